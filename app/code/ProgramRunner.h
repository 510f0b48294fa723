#pragma once

class GridServices;
class MainTableView;
class QString;

/// Runs what of a SAS program a grid can carry out.
namespace programrunner {

/// Runs the statements in their order and stops at the first that fails, which is told. What the
/// grid does not know is passed over and stands in the log with its line.
void run(const QString& program, MainTableView& grid, GridServices& services);

}  // namespace programrunner

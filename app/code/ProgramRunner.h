#pragma once

class GridServices;
class OpenDataset;
class QString;

/// Runs what of a SAS program an open dataset can carry out.
namespace programrunner {

/// Runs the statements in their order and stops at the first that fails, which is told. What the
/// dataset does not know is passed over and stands in the log with its line.
void run(const QString& program, OpenDataset& opened, GridServices& services);

}  // namespace programrunner

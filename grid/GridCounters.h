#pragma once

#include <QString>

class StatDataset;

/// What a grid counts, as the status bar shows it.
namespace gridcounters {

/// @param dataset    null for none
/// @param shownRows  how many of its rows are shown
[[nodiscard]] QString rows(const StatDataset* dataset, int shownRows);
[[nodiscard]] QString variables(const StatDataset* dataset);

}  // namespace gridcounters

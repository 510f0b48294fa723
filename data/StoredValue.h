#pragma once

#include <string>

class StatDataset;

/// A value as the file holds it, before any format.
namespace storedvalue {

/// A number with the fewest digits that read back to the same number, a missing one as a point with
/// its letter, if it has one; a text as it stands. The row and the column are not checked.
[[nodiscard]] std::string text(const StatDataset& dataset, int row, int column);

}  // namespace storedvalue

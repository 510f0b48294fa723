#pragma once

#include <QString>

#include <span>

class GridTable;

/// What the grid puts on the clipboard.
namespace gridcopy {

/// The selected cells of a grid as it shows them.
[[nodiscard]] QString ofSelection(const GridTable& grid);
/// The same below a line of their variables' names.
[[nodiscard]] QString ofSelectionWithNames(const GridTable& grid);
/// The values of the selected cells as they are stored.
[[nodiscard]] QString ofStoredValues(const GridTable& grid);
/// The names of these variables in one line.
[[nodiscard]] QString namesOf(const GridTable& grid, std::span<const int> variables);

}  // namespace gridcopy

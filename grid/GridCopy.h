#pragma once

#include <QString>

#include <functional>
#include <span>

class GridTable;

/// What the grid puts on the clipboard.
namespace gridcopy {

/// What a copy consists of, in the order on the screen.
struct Cells
{
    std::span<const int> rows;
    std::span<const int> columns;
    /// The text of a cell; empty for one between selected cells that is not selected itself.
    std::function<QString(int row, int column)> text;
};

/// The cells separated by tabs, the rows by line feeds, without one at the very end. A tab or line
/// break within a cell becomes a blank, so that every row keeps its columns.
[[nodiscard]] QString text(const Cells& cells);

/// The same texts in one line.
[[nodiscard]] QString line(const QStringList& texts);

/// The selected cells of a grid as it shows them.
[[nodiscard]] QString ofSelection(const GridTable& grid);
/// The same below a line of their variables' names.
[[nodiscard]] QString ofSelectionWithNames(const GridTable& grid);
/// The values of the selected cells as they are stored.
[[nodiscard]] QString ofStoredValues(const GridTable& grid);
/// The names of these variables in one line.
[[nodiscard]] QString namesOf(const GridTable& grid, std::span<const int> variables);

}  // namespace gridcopy

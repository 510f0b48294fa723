#pragma once

#include <QString>

#include <functional>
#include <span>

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

}  // namespace gridcopy

#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <span>
#include <vector>

class QTableView;

/// Cells as a text for the clipboard, which spreadsheets read as a table.
namespace tabletext {

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

/// The rows that have a selected cell, from top to bottom.
[[nodiscard]] std::vector<int> selectedRows(const QTableView& table);

/// Puts the selected cells of a table that hides none on the clipboard, if there are any.
void copySelection(const QTableView& table);

}  // namespace tabletext

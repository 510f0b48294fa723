#pragma once

#include <QItemSelection>

#include <vector>

class ShownVariables;
class RowVisibility;

/// What is selected in a grid, as commands take it: without hidden rows and columns.
class GridSelection
{
public:
    /// @param variables, rows  what is shown; both outlive this object
    GridSelection(QItemSelection selection, const ShownVariables& variables,
                  const RowVisibility& rows);

    /// The variables with selected cells, in the order of their columns on the screen.
    [[nodiscard]] std::vector<int> variables() const;
    /// The rows with selected cells, from top to bottom.
    [[nodiscard]] std::vector<int> rows() const;
    /// The rows whose cell of that variable is selected, from top to bottom.
    [[nodiscard]] std::vector<int> rowsOf(int variable) const;
    [[nodiscard]] bool contains(int row, int variable) const;

private:
    template <typename Accepts>
    [[nodiscard]] std::vector<int> shownRows(Accepts accepts) const;

    QItemSelection m_selection;
    const ShownVariables& m_variables;
    const RowVisibility& m_rows;
};

namespace gridselection {

/// The columns that are selected from the first shown row to the last, or through all rows while
/// none is shown; none when only one row is shown, where a single cell is as much.
[[nodiscard]] std::vector<int> wholeColumns(const QItemSelection& selection,
                                            const RowVisibility& rows);

/// The selection of whole columns.
[[nodiscard]] QItemSelection ofWholeColumns(const QAbstractItemModel& model,
                                            const std::vector<int>& columns);

}  // namespace gridselection

#include "app/open/GridPlace.h"

#include "data/StatDataset.h"
#include "grid/MainTableModel.h"
#include "grid/MainTableView.h"

#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>

namespace {

/// The row of an observation, or of the last one, or the nearest to it that is shown; -1 for none.
int shownRow(const MainTableView& grid, int observation)
{
    const int rows = grid.model()->rowCount();
    if (observation < 0 || rows == 0) {
        return -1;
    }
    const int row = grid.tableModel()->rowOf(std::min(observation, rows - 1));
    const auto isShown = [&](int candidate) {
        return candidate >= 0 && candidate < rows && !grid.isRowHidden(candidate);
    };
    for (int distance = 0; distance < rows; ++distance) {
        for (const int candidate : {row + distance, row - distance}) {
            if (isShown(candidate)) {
                return candidate;
            }
        }
    }
    return -1;
}

}  // namespace

GridPlace::GridPlace(const MainTableView& grid)
    : m_left(grid.horizontalScrollBar()->value())
{
    const auto& names = grid.dataset()->names();
    const QHeaderView& header = *grid.horizontalHeader();
    for (int variable = 0; variable < header.count(); ++variable) {
        if (!header.isSectionHidden(variable)) {
            m_widths[names[static_cast<std::size_t>(variable)]] = header.sectionSize(variable);
        }
    }
    if (const QModelIndex current = grid.currentIndex(); current.isValid()) {
        m_observation = grid.tableModel()->observationAt(current.row());
        m_variable = names[static_cast<std::size_t>(current.column())];
        m_isSelected = grid.selectionModel()->isSelected(current);
    }
    if (const int top = grid.rowAt(0); top >= 0) {
        m_topObservation = grid.tableModel()->observationAt(top);
    }
}

void GridPlace::goTo(MainTableView& grid) const
{
    const auto& names = grid.dataset()->names();
    for (int variable = 0; variable < grid.dataset()->variableCount(); ++variable) {
        const auto width = m_widths.find(names[static_cast<std::size_t>(variable)]);
        if (width != m_widths.end() && !grid.isColumnHidden(variable)) {
            grid.setColumnWidth(variable, width->second);
        }
    }
    const auto name = std::find(names.begin(), names.end(), m_variable);
    const int variable = name == names.end() ? 0 : static_cast<int>(name - names.begin());
    if (const int row = shownRow(grid, m_observation); row >= 0) {
        grid.selectionModel()->setCurrentIndex(grid.model()->index(row, variable),
                                               m_isSelected ? QItemSelectionModel::ClearAndSelect
                                                            : QItemSelectionModel::NoUpdate);
    }
    if (const int top = shownRow(grid, m_topObservation); top >= 0) {
        grid.scrollTo(grid.model()->index(top, variable), QAbstractItemView::PositionAtTop);
    }
    grid.horizontalScrollBar()->setValue(m_left);
}

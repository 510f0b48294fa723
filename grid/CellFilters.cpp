#include "grid/CellFilters.h"

#include "grid/GridTable.h"
#include "grid/MainTableModel.h"

#include <QScopedValueRollback>

namespace {

/// The observation of the current cell, -1 when there is none or its column is hidden.
int currentObservation(const GridTable& grid)
{
    const QModelIndex current = grid.currentIndex();
    return current.isValid() && grid.isCurrentVariableShown()
        ? grid.tableModel()->observationAt(current.row())
        : -1;
}

}  // namespace

CommandOutcome CellFilters::compareBy(CompareOp op, const GridTable& grid) const
{
    const int observation = currentObservation(grid);
    return observation < 0
        ? std::nullopt
        : grid.opened()->filterByCell(grid.currentVariable(), op, observation, m_mode);
}

CommandOutcome CellFilters::compare(const GridTable& grid) const
{
    return compareBy(m_op, grid);
}

CommandOutcome CellFilters::compareForLibrary(const GridTable& grid)
{
    const QScopedValueRollback mode(m_mode, OpenDataset::FilterKind::Library);
    return compareBy(CompareOp::Equal, grid);
}

CommandOutcome CellFilters::isIn(const GridTable& grid) const
{
    const int observation = currentObservation(grid);
    if (observation < 0) {
        return std::nullopt;
    }
    std::vector<int> observations;
    for (const int row : grid.selected().rowsOf(grid.currentVariable())) {
        observations.push_back(grid.tableModel()->observationAt(row));
    }
    if (observations.empty()) {
        observations.push_back(observation);
    }
    return grid.opened()->filterByCells(grid.currentVariable(), observations, m_mode);
}

CommandOutcome CellFilters::contains(const GridTable& grid) const
{
    return compareBy(CompareOp::Contains, grid);
}

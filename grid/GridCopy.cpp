#include "grid/GridCopy.h"

#include "analysis/panels/TableText.h"
#include "data/StoredValue.h"
#include "grid/GridTable.h"
#include "grid/MainTableModel.h"
#include "grid/opened/OpenDataset.h"

#include <QStringList>

#include <algorithm>

namespace gridcopy {

namespace {

/// @param textOf  of a cell, by row and variable
template <typename TextOf>
QString ofSelectedCells(const GridTable& grid, TextOf textOf)
{
    const GridSelection selection = grid.selected();
    const std::vector<int> rows = selection.rows();
    const std::vector<int> variables = selection.variables();
    return tabletext::text({rows, variables, [&](int row, int variable) {
                                return selection.contains(row, variable) ? textOf(row, variable)
                                                                         : QString();
                            }});
}

}  // namespace

QString ofSelection(const GridTable& grid)
{
    return ofSelectedCells(grid, [&](int row, int variable) {
        return grid.model()->index(row, variable).data().toString();
    });
}

QString ofSelectionWithNames(const GridTable& grid)
{
    return namesOf(grid, grid.selected().variables()) + u'\n' + ofSelection(grid);
}

QString ofStoredValues(const GridTable& grid)
{
    return ofSelectedCells(grid, [&](int row, int variable) {
        const int observation = grid.tableModel()->observationAt(row);
        return QString::fromStdString(storedvalue::text(*grid.dataset(), observation, variable));
    });
}

QString namesOf(const GridTable& grid, std::span<const int> variables)
{
    QStringList names;
    std::transform(variables.begin(), variables.end(), std::back_inserter(names),
                   [&](int variable) { return grid.opened()->nameOf(variable); });
    return tabletext::line(names);
}

}  // namespace gridcopy

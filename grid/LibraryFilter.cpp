#include "grid/LibraryFilter.h"

#include "grid/filter/FilterStatement.h"

#include <algorithm>

void LibraryFilter::join(Grid& grid)
{
    m_grids.push_back(&grid);
    if (!m_condition.isEmpty()) {
        takeOver(grid);
    }
}

void LibraryFilter::leave(Grid& grid)
{
    std::erase(m_grids, &grid);
}

Result<std::size_t> LibraryFilter::apply(const QString& condition, Grid& origin)
{
    if (!m_condition.isEmpty()) {
        return Failure{"Library Filter supports one level only. "
                       "Please clear library filter first."};
    }
    Result<std::size_t> selected = origin.takeLibraryFilter(condition);
    if (!selected) {
        return selected;
    }
    m_condition = condition;
    m_text = origin.ownLibraryFilterText();
    for (Grid* grid : m_grids) {
        if (grid != &origin) {
            takeOver(*grid);
        }
    }
    origin.showLibraryFilter(QString());
    return selected;
}

Result<bool> LibraryFilter::restore(const QString& text)
{
    if (!m_condition.isEmpty() || text.trimmed().isEmpty()) {
        return false;
    }
    const Result<QString> condition = filterstatement::condition(text, u"where");
    if (!condition) {
        return Failure{condition.error()};
    }
    m_condition = condition.value();
    m_text = QStringLiteral("where ") + m_condition;
    for (Grid* grid : m_grids) {
        takeOver(*grid);
    }
    return true;
}

/// Filters a grid by the filter in force and shows what has become of it.
void LibraryFilter::takeOver(Grid& grid)
{
    // A filter of the grid's own, which came with its file, makes way.
    grid.dropLibraryFilter();
    const Result<std::size_t> selected = grid.takeLibraryFilter(m_condition);
    grid.showLibraryFilter(selected ? QString() : QString::fromStdString(selected.error()));
}

void LibraryFilter::clear()
{
    m_condition.clear();
    m_text.clear();
    for (Grid* grid : m_grids) {
        grid->dropLibraryFilter();
        grid->showLibraryFilter(QString());
    }
}

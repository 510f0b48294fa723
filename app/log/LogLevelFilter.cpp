#include "app/log/LogLevelFilter.h"

#include "app/log/LogModel.h"

void LogLevelFilter::setLowestLevel(spdlog::level::level_enum level)
{
    if (level != m_lowestLevel) {
        m_lowestLevel = level;
        invalidateRowsFilter();
    }
}

bool LogLevelFilter::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    const QModelIndex index = sourceModel()->index(sourceRow, 0, sourceParent);
    return index.data(LogModel::levelRole).toInt() >= m_lowestLevel;
}

#include "app/docks/WorkspaceFilter.h"

WorkspaceFilter::WorkspaceFilter(QObject* parent)
    : QSortFilterProxyModel(parent)
{
    setRecursiveFilteringEnabled(true);
}

void WorkspaceFilter::setText(const QString& text)
{
    m_text = text;
    invalidateFilter();
}

bool WorkspaceFilter::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    const auto contains = [this](const QModelIndex& index) {
        return index.data().toString().contains(m_text, Qt::CaseInsensitive);
    };
    const bool isTop = !parent.isValid();
    const bool isBelowTop = parent.isValid() && !parent.parent().isValid();
    return isTop || m_text.isEmpty() || contains(sourceModel()->index(row, 0, parent))
        || (!isBelowTop && contains(parent));
}

#include "grid/GridColumns.h"

#include "grid/opened/OpenDataset.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScopeGuard>
#include <QTableView>

GridColumns::GridColumns(QTableView& view, OpenDataset& opened)
    : m_view(view)
    , m_opened(opened)
{ }

bool GridColumns::followBits()
{
    // The view lays itself out again for each column otherwise, and there may be thousands.
    const bool updated = m_view.updatesEnabled();
    m_view.setUpdatesEnabled(false);
    const auto restore = qScopeGuard([&] { m_view.setUpdatesEnabled(updated); });
    bool hasChanged = false;
    for (int variable = 0; variable < m_view.horizontalHeader()->count(); ++variable) {
        hasChanged = followBit(variable) || hasChanged;
    }
    return hasChanged;
}

bool GridColumns::followBit(int variable)
{
    const bool isShown = m_opened.variables().isShown(variable);
    const bool hasChanged = variable >= 0 && variable < m_view.horizontalHeader()->count()
        && m_view.isColumnHidden(variable) == isShown;
    if (hasChanged) {
        m_view.setColumnHidden(variable, !isShown);
    }
    return hasChanged;
}

void GridColumns::followOrder()
{
    const QScopedValueRollback moving(m_isMoving, true);
    QHeaderView& header = *m_view.horizontalHeader();
    int place = 0;
    for (const int variable : m_opened.variables().order()) {
        header.moveSection(header.visualIndex(variable), place++);
    }
}

void GridColumns::keepOrder()
{
    if (m_isMoving) {
        return;
    }
    const QHeaderView& header = *m_view.horizontalHeader();
    std::vector<int> order;
    order.reserve(static_cast<std::size_t>(header.count()));
    for (int place = 0; place < header.count(); ++place) {
        order.push_back(header.logicalIndex(place));
    }
    m_opened.setVariableOrder(order);
}

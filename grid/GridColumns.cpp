#include "grid/GridColumns.h"

#include "data/StatDataset.h"

#include <QHeaderView>
#include <QScopeGuard>
#include <QTableView>

GridColumns::GridColumns(QTableView& view, StatDataset& dataset)
    : m_view(view)
    , m_dataset(dataset)
{ }

QHeaderView& GridColumns::header() const
{
    return *m_view.horizontalHeader();
}

bool GridColumns::contains(int variable) const
{
    return variable >= 0 && variable < m_dataset.variableCount();
}

bool GridColumns::isShown(int variable) const
{
    return contains(variable)
        && m_dataset.visibleVariables().test(static_cast<std::size_t>(variable));
}

int GridColumns::shownCount() const
{
    return static_cast<int>(m_dataset.visibleVariables().count());
}

void GridColumns::followBits()
{
    // The view lays itself out again for each column otherwise, and there may be thousands.
    const bool updated = m_view.updatesEnabled();
    m_view.setUpdatesEnabled(false);
    const auto restore = qScopeGuard([&] { m_view.setUpdatesEnabled(updated); });
    for (int variable = 0; variable < m_dataset.variableCount(); ++variable) {
        followBit(variable);
    }
}

void GridColumns::followBit(int variable)
{
    if (contains(variable) && m_view.isColumnHidden(variable) == isShown(variable)) {
        m_view.setColumnHidden(variable, !isShown(variable));
    }
}

void GridColumns::setShown(int variable, bool shown)
{
    if (contains(variable)) {
        m_dataset.visibleVariables().set(static_cast<std::size_t>(variable), shown);
        followBit(variable);
    }
}

void GridColumns::showAll()
{
    m_dataset.visibleVariables().set();
    followBits();
}

void GridColumns::showOnly(std::span<const int> variables)
{
    BitVector& bits = m_dataset.visibleVariables();
    bits.reset();
    for (const int variable : variables) {
        bits.set(static_cast<std::size_t>(variable));
    }
    followBits();
}

std::vector<int> GridColumns::order() const
{
    std::vector<int> variables;
    variables.reserve(static_cast<std::size_t>(header().count()));
    for (int place = 0; place < header().count(); ++place) {
        variables.push_back(header().logicalIndex(place));
    }
    return variables;
}

std::vector<int> GridColumns::hidden() const
{
    std::vector<int> variables;
    for (int variable = 0; variable < m_dataset.variableCount(); ++variable) {
        if (!isShown(variable)) {
            variables.push_back(variable);
        }
    }
    return variables;
}

/// The nearest place in that direction whose column is shown, or -1.
int GridColumns::nextShownPlace(int place, int step) const
{
    for (int next = place + step; next >= 0 && next < header().count(); next += step) {
        if (isShown(header().logicalIndex(next))) {
            return next;
        }
    }
    return -1;
}

int GridColumns::neighbour(int variable) const
{
    const int place = header().visualIndex(variable);
    int next = nextShownPlace(place, 1);
    if (next < 0) {
        next = nextShownPlace(place, -1);
    }
    return next < 0 ? -1 : header().logicalIndex(next);
}

bool GridColumns::shift(int variable, int step)
{
    if (!isShown(variable)) {
        return false;
    }
    const int place = header().visualIndex(variable);
    const int target = nextShownPlace(place, step);
    if (target < 0) {
        return false;
    }
    header().moveSection(place, target);
    return true;
}

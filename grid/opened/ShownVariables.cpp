#include "grid/opened/ShownVariables.h"

#include "data/StatDataset.h"

#include <algorithm>
#include <numeric>

ShownVariables::ShownVariables(StatDataset& dataset)
    : m_dataset(dataset)
    , m_order(static_cast<std::size_t>(std::max(dataset.variableCount(), 0)))
{
    std::iota(m_order.begin(), m_order.end(), 0);
}

bool ShownVariables::contains(int variable) const
{
    return variable >= 0 && variable < m_dataset.variableCount();
}

bool ShownVariables::isShown(int variable) const
{
    return contains(variable)
        && m_dataset.visibleVariables().test(static_cast<std::size_t>(variable));
}

int ShownVariables::shownCount() const
{
    return static_cast<int>(m_dataset.visibleVariables().count());
}

std::vector<int> ShownVariables::hidden() const
{
    std::vector<int> variables;
    for (int variable = 0; variable < m_dataset.variableCount(); ++variable) {
        if (!isShown(variable)) {
            variables.push_back(variable);
        }
    }
    return variables;
}

void ShownVariables::setShown(std::span<const int> variables, bool shown)
{
    for (const int variable : variables) {
        if (contains(variable)) {
            m_dataset.visibleVariables().set(static_cast<std::size_t>(variable), shown);
        }
    }
}

void ShownVariables::showAll()
{
    m_dataset.visibleVariables().set();
}

void ShownVariables::showOnly(std::span<const int> variables)
{
    m_dataset.visibleVariables().reset();
    setShown(variables, true);
}

bool ShownVariables::setOrder(std::span<const int> variables)
{
    std::vector<int> order;
    BitVector placed(m_order.size());
    const auto place = [&](int variable) {
        if (contains(variable) && !placed.test_set(static_cast<std::size_t>(variable))) {
            order.push_back(variable);
        }
    };
    std::for_each(variables.begin(), variables.end(), place);
    std::for_each(m_order.begin(), m_order.end(), place);
    const bool hasMoved = order != m_order;
    m_order.swap(order);
    return hasMoved;
}

int ShownVariables::placeOf(int variable) const
{
    return static_cast<int>(std::find(m_order.begin(), m_order.end(), variable) - m_order.begin());
}

/// The nearest place in that direction whose variable is shown, or -1.
int ShownVariables::nextShownPlace(int place, int step) const
{
    const int count = static_cast<int>(m_order.size());
    for (int next = place + step; next >= 0 && next < count; next += step) {
        if (isShown(m_order[static_cast<std::size_t>(next)])) {
            return next;
        }
    }
    return -1;
}

bool ShownVariables::shift(int variable, int step)
{
    if (!isShown(variable)) {
        return false;
    }
    const int place = placeOf(variable);
    const int target = nextShownPlace(place, step);
    if (target < 0) {
        return false;
    }
    m_order.erase(m_order.begin() + place);
    m_order.insert(m_order.begin() + target, variable);
    return true;
}

int ShownVariables::neighbour(int variable) const
{
    const int place = placeOf(variable);
    int next = nextShownPlace(place, 1);
    if (next < 0) {
        next = nextShownPlace(place, -1);
    }
    return next < 0 ? -1 : m_order[static_cast<std::size_t>(next)];
}

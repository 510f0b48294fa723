#include "app/compare/LinkedGrids.h"

#include "grid/MainTableView.h"

#include <QScopedValueRollback>

namespace {

int partnerOf(const std::vector<int>& partners, int number)
{
    const bool isThere = number >= 0 && static_cast<std::size_t>(number) < partners.size();
    return isThere ? partners[static_cast<std::size_t>(number)] : -1;
}

}  // namespace

LinkedGrids::LinkedGrids(const ComparedDatasets& comparison, QObject* parent)
    : QObject(parent)
    , m_observationsOfBase(static_cast<std::size_t>(comparison.base->observationCount()), -1)
    , m_observationsOfCompare(static_cast<std::size_t>(comparison.compare->observationCount()), -1)
    , m_variablesOfBase(static_cast<std::size_t>(comparison.base->variableCount()), -1)
    , m_variablesOfCompare(static_cast<std::size_t>(comparison.compare->variableCount()), -1)
{
    for (const comparison::ObservationPair& pair : comparison.result.observations().pairs) {
        if (pair.isMatched()) {
            m_observationsOfBase[pair.base] = static_cast<int>(pair.compare);
            m_observationsOfCompare[pair.compare] = static_cast<int>(pair.base);
        }
    }
    for (const comparison::VariablePair& pair : comparison.result.variables().common) {
        m_variablesOfBase[static_cast<std::size_t>(pair.base)] = pair.compare;
        m_variablesOfCompare[static_cast<std::size_t>(pair.compare)] = pair.base;
    }
}

void LinkedGrids::link(MainTableView* base, MainTableView* compare)
{
    for (MainTableView* grid : {m_base.data(), m_compare.data()}) {
        if (grid != nullptr) {
            disconnect(grid, nullptr, this, nullptr);
        }
    }
    m_base = base;
    m_compare = compare;
    if (base == nullptr || compare == nullptr || base == compare) {
        return;
    }
    connect(base, &GridTable::signalCurrentCellChanged, this,
            [this] { follow(m_base, m_compare, m_observationsOfBase, m_variablesOfBase); });
    connect(compare, &GridTable::signalCurrentCellChanged, this,
            [this] { follow(m_compare, m_base, m_observationsOfCompare, m_variablesOfCompare); });
}

void LinkedGrids::setActive(bool isActive)
{
    m_isActive = isActive;
}

void LinkedGrids::follow(MainTableView* leader, MainTableView* follower,
                         const Partners& observations, const Partners& variables)
{
    if (!m_isActive || m_isMoving || leader == nullptr || follower == nullptr) {
        return;
    }
    const QScopedValueRollback moving(m_isMoving, true);
    const int observation = partnerOf(observations, leader->currentObservation());
    const int variable = partnerOf(variables, leader->currentVariable());
    if (observation >= 0 && observation != follower->currentObservation()) {
        follower->cmdGotoObservation(observation);
    }
    if (variable >= 0 && variable != follower->currentVariable()) {
        follower->cmdGotoVariable(variable);
    }
}

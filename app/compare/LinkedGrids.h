#pragma once

#include "app/compare/ComparedDatasets.h"

#include <QObject>
#include <QPointer>

#include <cstdint>
#include <vector>

class MainTableView;

/// Keeps the grids of two compared datasets together: whoever goes to a cell in one of them finds
/// the other at the observation and the variable that belong to it.
class LinkedGrids : public QObject
{
    Q_OBJECT

public:
    /// @param comparison  outlives this object
    explicit LinkedGrids(const ComparedDatasets& comparison, QObject* parent = nullptr);

    /// Links two grids of the compared datasets; null for one that is not open.
    void link(MainTableView* base, MainTableView* compare);
    void setActive(bool isActive);

private:
    /// For each observation, or variable, of a dataset the one of the other; -1 for none.
    using Partners = std::vector<int>;

    void follow(MainTableView* leader, MainTableView* follower, const Partners& observations,
                const Partners& variables);

    Partners m_observationsOfBase;
    Partners m_observationsOfCompare;
    Partners m_variablesOfBase;
    Partners m_variablesOfCompare;
    QPointer<MainTableView> m_base;
    QPointer<MainTableView> m_compare;
    bool m_isActive = true;
    bool m_isMoving = false;
};

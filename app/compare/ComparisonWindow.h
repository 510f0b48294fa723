#pragma once

#include "app/compare/ComparedDatasets.h"

#include <QMdiSubWindow>

class DifferenceWindow;
class LinkedGrids;

/// The sub-window of a comparison: its differences, and what keeps them.
class ComparisonWindow : public QMdiSubWindow
{
    Q_OBJECT

public:
    explicit ComparisonWindow(std::shared_ptr<const ComparedDatasets> comparison);

    [[nodiscard]] const ComparedDatasets& comparison() const { return *m_comparison; }
    [[nodiscard]] std::shared_ptr<const ComparedDatasets> shared() const { return m_comparison; }
    [[nodiscard]] DifferenceWindow& differences() const { return *m_differences; }
    [[nodiscard]] LinkedGrids& grids() const { return *m_grids; }

private:
    std::shared_ptr<const ComparedDatasets> m_comparison;
    DifferenceWindow* m_differences;
    LinkedGrids* m_grids;
};

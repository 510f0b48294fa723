#pragma once

#include "analysis/Frequencies.h"
#include "analysis/panels/FrequencyPanel.h"
#include "analysis/panels/StatisticsPanel.h"
#include "analysis/panels/VariableTableView.h"

#include <QObject>
#include <QPointer>

#include <memory>
#include <vector>

class MainTableView;

/// The side views of a grid, which owns them wherever they are shown, and how they act on it.
class GridPanels final : public QObject
{
    Q_OBJECT

public:
    /// @param grid  outlives this object
    explicit GridPanels(MainTableView& grid);
    ~GridPanels() override;

    [[nodiscard]] VariableTableView* variables() const { return m_variables; }
    [[nodiscard]] FrequencyPanel* frequency() const { return m_frequency; }
    [[nodiscard]] StatisticsPanel* statistics() const { return m_statistics; }

    /// Counts the values of variables, or their distinct subjects, and has the grid tell of it.
    void countFrequencies(std::vector<int> variables, bool frequencyN);

private:
    void showFrequencies(std::vector<int> variables, bool frequencyN);
    void connectVariables();
    void connectFrequency();
    void goToVariable(int variable);
    void returnToGrid();

    MainTableView& m_grid;
    // Whoever shows them may go first.
    QPointer<VariableTableView> m_variables;
    QPointer<FrequencyPanel> m_frequency;
    QPointer<StatisticsPanel> m_statistics;
    std::unique_ptr<std::vector<WordsAndCounts>> m_frequencies;  ///< what the panel shows
};

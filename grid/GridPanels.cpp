#include "grid/GridPanels.h"

#include "analysis/panels/FreqTableView.h"
#include "grid/MainTableView.h"
#include "grid/WaitCursor.h"

GridPanels::GridPanels(MainTableView& grid)
    : m_grid(grid)
    , m_variables(new VariableTableView(grid.opened()))
    , m_frequency(new FrequencyPanel(grid.opened()))
    , m_statistics(new StatisticsPanel(grid.opened()))
{
    connectVariables();
    connectFrequency();
    connect(m_statistics, &StatisticsPanel::signalLeft, this, &GridPanels::returnToGrid);
}

GridPanels::~GridPanels()
{
    delete m_variables;
    delete m_frequency;
    delete m_statistics;
}

void GridPanels::connectVariables()
{
    connect(&m_grid, &MainTableView::signalShowDockVar, m_variables,
            &VariableTableView::cmdSelectRow);
    connect(m_variables, &VariableTableView::signalGotoVar, this, &GridPanels::goToVariable);
    connect(m_variables, &VariableTableView::signalFrequencyAsked, this,
            &GridPanels::countFrequencies);
    connect(m_variables, &PanelTable::signalLeft, this, &GridPanels::returnToGrid);
}

void GridPanels::connectFrequency()
{
    FreqTableView& table = m_frequency->table();
    connect(&m_grid, &MainTableView::signalSetFrequency, &table,
            &FreqTableView::updateSetFrequency);
    connect(&table, &FreqTableView::signalFilter, &m_grid, &MainTableView::filter);
    connect(&table, &FreqTableView::signalMessage, &m_grid, &MainTableView::signalMessage);
    connect(&table, &PanelTable::signalLeft, this, &GridPanels::returnToGrid);
}

void GridPanels::countFrequencies(std::vector<int> variables, bool frequencyN)
{
    if (variables.empty()) {
        return;
    }
    const CommandOutcome failure = failureOf(QString(), [&] {
        const WaitCursor waitCursor;
        showFrequencies(std::move(variables), frequencyN);
    });
    if (failure) {
        emit m_grid.signalCommandFailed(*failure);
    } else {
        emit m_grid.signalShowDockFreq();
    }
}

/// The list before goes when the panel has the new one.
void GridPanels::showFrequencies(std::vector<int> variables, bool frequencyN)
{
    auto counted = std::make_unique<std::vector<WordsAndCounts>>(
        m_grid.opened()->frequenciesOf(variables, frequencyN));
    emit m_grid.signalSetFrequency(counted.get(), std::move(variables), m_grid.dataset(),
                                   frequencyN);
    m_frequencies = std::move(counted);
    m_frequency->noteCounted(frequencyN);
}

void GridPanels::goToVariable(int variable)
{
    m_grid.cmdGotoVariable(variable);
    if (m_grid.currentVariable() == variable && m_grid.isCurrentVariableShown()) {
        returnToGrid();
    }
}

/// Its window first, as the side view may float in one of its own.
void GridPanels::returnToGrid()
{
    m_grid.activateWindow();
    m_grid.setFocus();
}

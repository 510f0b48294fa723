#include "app/docks/CellDocks.h"

#include "analysis/panels/CellPane.h"
#include "analysis/panels/CellText.h"
#include "analysis/panels/RowPane.h"
#include "app/docks/DockWindows.h"
#include "app/window/StatusCounters.h"
#include "app/window/WindowArrangement.h"
#include "grid/MainTableView.h"

#include <QDockWidget>

CellDocks::CellDocks(const DockWindows& docks, WindowArrangement& arrangement,
                     StatusCounters& counters)
    : m_docks(docks)
    , m_arrangement(arrangement)
    , m_counters(counters)
    , m_cell(new CellPane(docks.cell()))
    , m_row(new RowPane(docks.row()))
{
    docks.cell()->setWidget(m_cell);
    docks.row()->setWidget(m_row);
    connect(m_row, &RowPane::signalVariableChosen, this, [this](int variable) {
        if (m_grid != nullptr) {
            m_grid->cmdGotoVariable(variable);
        }
    });
}

void CellDocks::follow(MainTableView* grid)
{
    if (m_grid != nullptr) {
        disconnect(m_grid, nullptr, this, nullptr);
        disconnect(m_grid->opened(), nullptr, this, nullptr);
    }
    m_grid = grid;
    if (grid != nullptr) {
        connect(grid, &MainTableView::signalCurrentCellChanged, this, &CellDocks::update);
        connect(grid, &MainTableView::signalVarHideUnhide, this, &CellDocks::update);
        connect(grid->opened(), &OpenDataset::signalOrderChanged, this, &CellDocks::update);
        connect(grid, &MainTableView::signalShowDockCell, this,
                [this] { m_arrangement.show(*m_docks.cell()); });
        connect(grid, &MainTableView::signalShowDockRow, this,
                [this] { m_arrangement.show(*m_docks.row()); });
    }
    update();
}

void CellDocks::update()
{
    const OpenDataset* opened = m_grid == nullptr ? nullptr : m_grid->opened();
    const int observation = opened == nullptr ? -1 : m_grid->currentObservation();
    const int variable = opened == nullptr ? -1 : m_grid->currentVariable();
    const bool isShown = observation >= 0 && opened->variables().isShown(variable);
    const StatDataset* dataset = isShown ? &opened->dataset() : nullptr;
    m_cell->showCell(dataset, observation, variable);
    m_row->showRow(opened, observation, variable);
    m_counters.setCell(isShown ? celltext::summary(*dataset, observation, variable) : QString());
}

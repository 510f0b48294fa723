#pragma once

#include "analysis/panels/RowModel.h"

#include <QTableView>

/// Shows one observation from top to bottom, its variables as the grid shows them.
class RowPane : public QTableView
{
    Q_OBJECT

public:
    explicit RowPane(QWidget* parent = nullptr);

    /// @param opened       outlives the pane or its next call; null for no row
    /// @param observation  -1 for no row
    /// @param variable     is marked
    void showRow(const OpenDataset* opened, int observation, int variable);

signals:
    /// A variable has been chosen by a double click or Return.
    void signalVariableChosen(int variable);

private:
    RowModel m_model;
};

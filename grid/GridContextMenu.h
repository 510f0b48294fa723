#pragma once

#include "grid/GridCommands.h"

#include <QMenu>

/// The context menu of the grid, with the keys of the commands as hints at the right.
class GridContextMenu : public QMenu
{
    Q_OBJECT

public:
    /// @param idVariable  the variable whose distinct values "Frequency (%1)" counts
    explicit GridContextMenu(const QString& idVariable, QWidget* parent = nullptr);

signals:
    void signalCommand(GridCommand command);

private:
    void add(GridCommand command, const QString& idVariable);
};

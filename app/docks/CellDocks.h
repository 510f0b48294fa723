#pragma once

#include <QObject>
#include <QPointer>

class CellPane;
class DockWindows;
class MainTableView;
class RowPane;
class StatusCounters;
class WindowArrangement;

/// What is told of the current cell of the active grid: the docks with its whole text and its row,
/// and the left of the status bar.
class CellDocks : public QObject
{
    Q_OBJECT

public:
    /// All outlive this object. The panes are put into their docks, which own them.
    CellDocks(const DockWindows& docks, WindowArrangement& arrangement, StatusCounters& counters);

    /// Follows a grid from now on.
    /// @param grid  null for none; has to be left before its dataset goes
    void follow(MainTableView* grid);

private:
    void update();

    const DockWindows& m_docks;
    WindowArrangement& m_arrangement;
    StatusCounters& m_counters;
    CellPane* m_cell;
    RowPane* m_row;
    QPointer<MainTableView> m_grid;
};

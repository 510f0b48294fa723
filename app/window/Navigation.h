#pragma once

#include <QObject>
#include <QPointer>

class FindDialog;
class MainTableView;
class QAbstractItemModel;
class QWidget;
struct MainActions;

/// The ways to a cell of the active grid, or to a dataset, by what the user types: find and quick
/// open.
class Navigation : public QObject
{
    Q_OBJECT

public:
    /// All outlive the navigation.
    Navigation(QWidget& window, const MainActions& actions, const QAbstractItemModel& workspace);

    /// The active grid, or null.
    void setGrid(MainTableView* grid);

signals:
    void signalFileChosen(QString path);

private:
    void findAgain(bool isForward);
    void quickOpen();

    QWidget& m_window;
    const QAbstractItemModel& m_workspace;
    FindDialog* m_find;
    QPointer<MainTableView> m_grid;
};

#pragma once

#include <QLabel>
#include <QPointer>

class MainTableView;

/// Tells in the status bar by which operator the next quick filter compares.
class OperatorLabel : public QLabel
{
    Q_OBJECT

public:
    explicit OperatorLabel(QWidget* parent = nullptr);

    /// Tells of a grid from now on; hidden for null.
    void follow(MainTableView* grid);

private:
    void tell();

    QPointer<MainTableView> m_grid;
};

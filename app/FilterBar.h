#pragma once

#include <QToolBar>

class HistoryComboBox;

/// The toolbar with the box in which commands for the active grid are typed. It shows the filter
/// that is in force there.
class FilterBar : public QToolBar
{
    Q_OBJECT

public:
    explicit FilterBar(QWidget* parent = nullptr);

    void setText(const QString& text);
    /// Adds a command that has run to the box's list.
    void remember(const QString& command);

signals:
    /// A command is to be run.
    void signalSubmitted(QString command);
    /// The user wants back to the grid.
    void signalLeft();

private:
    HistoryComboBox* m_box;
};

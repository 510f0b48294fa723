#pragma once

#include <QToolBar>

class HistoryComboBox;

/// A toolbar with a box in which something for the active grid is typed. It shows what is in force
/// there.
class CommandBar : public QToolBar
{
    Q_OBJECT

public:
    /// @param title  what the box is for; its placeholder, too
    CommandBar(const QString& title, const QString& barName, const QString& boxName,
               QWidget* parent = nullptr);

    /// How wide the box is where the window has room for it.
    void setUsualWidth(int letters);
    /// Shows what is in force.
    void setText(const QString& text);
    /// Lets the user type in the box, over what stands there.
    void edit();
    /// Adds a line that has run to the box's list.
    void remember(const QString& line);

signals:
    /// A line is to be run.
    void signalSubmitted(QString line);
    /// The user wants back to the grid.
    void signalLeft();

private:
    HistoryComboBox* m_box;
};

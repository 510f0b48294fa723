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

    /// Shows what is in force, unless the user is typing something else.
    void setText(const QString& text);
    /// Adds a line that has run to the box's list.
    void remember(const QString& line);
    /// Puts the cursor into the box.
    void focusBox();

signals:
    /// A line is to be run.
    void signalSubmitted(QString line);
    /// The user wants back to the grid.
    void signalLeft();

private:
    HistoryComboBox* m_box;
};

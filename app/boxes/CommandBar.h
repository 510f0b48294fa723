#pragma once

#include <QToolBar>

class FailureNote;
class HistoryComboBox;
struct CommandFailure;

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
    /// Shows what is in force, whatever was typed or told.
    void showInForce(const QString& text);
    [[nodiscard]] const QString& inForce() const;
    /// Lets the user type in the box, over what stands there.
    void edit();
    /// Adds a line that has run to the box's list.
    void remember(const QString& line);
    [[nodiscard]] bool remembers(const QString& line) const;
    /// Says below the box what is wrong, and goes to the place in its line.
    void tell(const CommandFailure& failure);

signals:
    /// A line is to be run. @see HistoryComboBox::signalSubmitted
    void signalSubmitted(QString line, bool isEdited);
    /// What is in force is to go.
    void signalCleared();
    /// The user wants back to the grid.
    void signalLeft();

private:
    HistoryComboBox* m_box;
    FailureNote* m_note;
};

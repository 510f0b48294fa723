#pragma once

#include <QComboBox>

/// A box in which lines are typed; its list holds those that were submitted, the last one first.
class HistoryComboBox : public QComboBox
{
    Q_OBJECT

public:
    /// @param title  what the box is for; shown while it is empty
    explicit HistoryComboBox(const QString& title, QWidget* parent = nullptr);

    /// Puts a line at the top of the list; the text in the box stays.
    void remember(const QString& line);

signals:
    void signalSubmitted(QString line);
    /// The user wants back to where they came from.
    void signalLeft();

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

#pragma once

#include <QFrame>

class QLabel;
struct CommandFailure;

/// Says below a box what is wrong with the line in it, and where.
class FailureNote : public QFrame
{
    Q_OBJECT

public:
    /// @param box  in whose window the note shows; outlives it
    explicit FailureNote(QWidget& box);

    void tell(const CommandFailure& failure);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void place();

    QWidget& m_box;
    QLabel* m_message;
    QLabel* m_place;
    QLabel* m_suggestion;
};

#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

/// A bar that says what the user must not miss: a sign, a sentence, and perhaps a button that does
/// something about it. Hidden while it has nothing to say.
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    explicit NoticeBar(QWidget* parent = nullptr);

    /// Says this from now on; an empty text hides the bar.
    void setText(const QString& text);
    [[nodiscard]] QString text() const;
    /// Adds a button at the end of the bar.
    [[nodiscard]] QPushButton* addButton(const QString& text);

private:
    QLabel* m_text;
};

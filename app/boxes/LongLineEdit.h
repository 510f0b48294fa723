#pragma once

#include <QLineEdit>

/// A line of any length, quick where a filter lists tens of thousands of values.
class LongLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit LongLineEdit(QWidget* parent = nullptr);

    /// Sets the text with the cursor in front of it, as a long one is read from its beginning.
    void setWholeText(const QString& text);
    /// Marks the text as one that is not in force.
    void setMarked(bool isMarked);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void chooseFont(qsizetype length);

    QAction* m_mark;
    bool m_isMarked = false;
    bool m_isLong = false;
};

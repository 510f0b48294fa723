#include "app/boxes/HistoryComboBox.h"

#include <QKeyEvent>
#include <QLineEdit>

HistoryComboBox::HistoryComboBox(const QString& title, QWidget* parent)
    : QComboBox(parent)
{
    constexpr int linesToRemember = 20;
    constexpr int narrowest = 90;
    setEditable(true);
    setInsertPolicy(NoInsert);
    setMaxCount(linesToRemember);
    setCompleter(nullptr);  // which would change what is being typed
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(20);
    setMinimumWidth(narrowest);
    lineEdit()->setPlaceholderText(title);
    lineEdit()->setClearButtonEnabled(true);
    setAccessibleName(title);
}

void HistoryComboBox::remember(const QString& line)
{
    const QString text = currentText();
    const int known = findText(line, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (known >= 0) {
        removeItem(known);
    } else if (count() == maxCount()) {
        removeItem(count() - 1);
    }
    insertItem(0, line);
    setCurrentIndex(-1);
    setEditText(text);
}

/// Keys come here when the line does not want them. The line's own signal for Return would come
/// twice, as the box hands the key back to it.
void HistoryComboBox::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit signalSubmitted(currentText());
        return;
    case Qt::Key_Escape:
        emit signalLeft();
        return;
    default:
        QComboBox::keyPressEvent(event);
    }
}

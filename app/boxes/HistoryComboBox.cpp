#include "app/boxes/HistoryComboBox.h"

#include "app/boxes/LongLineEdit.h"

#include <QAction>
#include <QKeyEvent>
#include <QWheelEvent>

#include <utility>

namespace {

constexpr int wholeLine = Qt::UserRole;

/// A line as a list has room for it.
QString shortened(const QString& line)
{
    constexpr qsizetype longest = 200;
    return line.size() <= longest ? line : line.first(longest - 1) + QChar(0x2026);
}

}  // namespace

HistoryComboBox::HistoryComboBox(const QString& title, QWidget* parent)
    : QComboBox(parent)
    , m_line(new LongLineEdit(this))
{
    constexpr int linesToRemember = 20;
    constexpr int narrowest = 90;
    setEditable(true);
    setLineEdit(m_line);
    setInsertPolicy(NoInsert);
    setMaxCount(linesToRemember);
    setCompleter(nullptr);  // which would change what is being typed
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(20);
    setMinimumWidth(narrowest);
    m_line->setPlaceholderText(title);
    setAccessibleName(title);
    connectLine();
}

void HistoryComboBox::connectLine()
{
    m_line->setClearButtonEnabled(true);
    for (const QAction* action : m_line->findChildren<QAction*>()) {
        if (action->objectName() == QStringLiteral("_q_qlineeditclearaction")) {
            connect(action, &QAction::triggered, this, &HistoryComboBox::signalCleared);
        }
    }
    // The line tells in this order: an edit, any change, the selection.
    connect(m_line, &QLineEdit::textEdited, this, [this] { m_isTyped = true; });
    connect(m_line, &QLineEdit::textChanged, this, &HistoryComboBox::onTextChanged);
    connect(m_line, &QLineEdit::selectionChanged, this,
            [this] { m_wasAllSelected = m_line->selectionLength() == m_line->text().size(); });
    connect(this, &QComboBox::activated, this,
            [this](int index) { m_line->setWholeText(itemData(index, wholeLine).toString()); });
}

void HistoryComboBox::onTextChanged(const QString& text)
{
    const bool isTyped = std::exchange(m_isTyped, false);
    const bool isInForce = text == m_inForce;
    m_isReplaced = !isInForce && (m_isReplaced || !isTyped || m_wasAllSelected || text.isEmpty());
    m_line->setMarked(!isInForce);
}

void HistoryComboBox::showInForce(const QString& text)
{
    m_inForce = text;
    if (currentIndex() >= 0) {
        setCurrentIndex(-1);  // which empties the line
    }
    m_line->setWholeText(text);
    m_line->setMarked(false);
    m_isReplaced = false;
    m_wasAllSelected = false;
}

void HistoryComboBox::remember(const QString& line)
{
    const int known = findData(line, wholeLine, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (known >= 0) {
        removeItem(known);
    } else if (count() == maxCount()) {
        removeItem(count() - 1);
    }
    insertItem(0, shortened(line), line);
    showInForce(m_inForce);
}

bool HistoryComboBox::remembers(const QString& line) const
{
    return findData(line, wholeLine, Qt::MatchExactly | Qt::MatchCaseSensitive) >= 0;
}

/// Keys come here when the line does not want them. The line's own signal for Return would come
/// twice, as the box hands the key back to it.
void HistoryComboBox::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit signalSubmitted(currentText(), !m_isReplaced && !m_inForce.isEmpty());
        return;
    case Qt::Key_Escape:
        showInForce(m_inForce);
        emit signalLeft();
        return;
    default:
        QComboBox::keyPressEvent(event);
    }
}

/// A list, a menu or another window in front is no reason to forget what is being typed.
void HistoryComboBox::focusOutEvent(QFocusEvent* event)
{
    QComboBox::focusOutEvent(event);
    switch (event->reason()) {
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
    case Qt::ActiveWindowFocusReason:
        return;
    default:
        showInForce(m_inForce);
        emit signalRestored();
    }
}

/// The wheel would put lines of the list in the box; over the list it scrolls.
void HistoryComboBox::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

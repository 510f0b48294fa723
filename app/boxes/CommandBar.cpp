#include "app/boxes/CommandBar.h"

#include "app/boxes/FailureNote.h"
#include "app/boxes/HistoryComboBox.h"
#include "grid/opened/CommandFailure.h"

#include <QLineEdit>

CommandBar::CommandBar(const QString& title, const QString& barName, const QString& boxName,
                       QWidget* parent)
    : QToolBar(title, parent)
    , m_box(new HistoryComboBox(title, this))
    , m_note(new FailureNote(*m_box))
{
    setObjectName(barName);
    m_box->setObjectName(boxName);
    addWidget(m_box);
    connect(m_box, &HistoryComboBox::signalSubmitted, this, &CommandBar::signalSubmitted);
    connect(m_box, &HistoryComboBox::signalCleared, this, &CommandBar::signalCleared);
    connect(m_box, &HistoryComboBox::signalRestored, m_note, &QWidget::hide);
    connect(m_box, &HistoryComboBox::signalLeft, m_note, &QWidget::hide);
    connect(m_box, &HistoryComboBox::signalLeft, this, &CommandBar::signalLeft);
}

void CommandBar::setUsualWidth(int letters)
{
    m_box->setMinimumContentsLength(letters);
}

void CommandBar::showInForce(const QString& text)
{
    m_note->hide();
    m_box->showInForce(text);
}

const QString& CommandBar::inForce() const
{
    return m_box->inForce();
}

void CommandBar::edit()
{
    m_box->setFocus(Qt::ShortcutFocusReason);
    m_box->lineEdit()->selectAll();
}

void CommandBar::remember(const QString& line)
{
    m_box->remember(line);
}

bool CommandBar::remembers(const QString& line) const
{
    return m_box->remembers(line);
}

void CommandBar::tell(const CommandFailure& failure)
{
    const qsizetype start = m_box->currentText().indexOf(failure.command);
    if (start >= 0 && failure.position >= 0) {
        m_box->lineEdit()->setCursorPosition(static_cast<int>(start + failure.position));
    }
    m_note->tell(failure);
}

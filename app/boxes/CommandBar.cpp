#include "app/boxes/CommandBar.h"

#include "app/boxes/HistoryComboBox.h"

#include <QLineEdit>

CommandBar::CommandBar(const QString& title, const QString& barName, const QString& boxName,
                       QWidget* parent)
    : QToolBar(title, parent)
    , m_box(new HistoryComboBox(title, this))
{
    setObjectName(barName);
    m_box->setObjectName(boxName);
    addWidget(m_box);
    connect(m_box, &HistoryComboBox::signalSubmitted, this, &CommandBar::signalSubmitted);
    connect(m_box, &HistoryComboBox::signalLeft, this, &CommandBar::signalLeft);
}

void CommandBar::setUsualWidth(int letters)
{
    m_box->setMinimumContentsLength(letters);
}

void CommandBar::setText(const QString& text)
{
    m_box->setEditText(text);
    m_box->lineEdit()->setCursorPosition(0);  // a long text is read from its beginning
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

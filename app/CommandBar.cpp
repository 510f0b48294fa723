#include "app/CommandBar.h"

#include "app/HistoryComboBox.h"

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

void CommandBar::setText(const QString& text)
{
    m_box->setEditText(text);
}

void CommandBar::remember(const QString& line)
{
    m_box->remember(line);
}

void CommandBar::focusBox()
{
    m_box->setFocus(Qt::OtherFocusReason);
}

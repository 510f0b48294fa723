#include "app/FilterBar.h"

#include "app/HistoryComboBox.h"

FilterBar::FilterBar(QWidget* parent)
    : QToolBar(tr("Dataset Filter"), parent)
    , m_box(new HistoryComboBox(tr("Dataset Filter"), this))
{
    setObjectName(QStringLiteral("toolBarDf"));
    m_box->setObjectName(QStringLiteral("comboBoxDf"));
    addWidget(m_box);
    connect(m_box, &HistoryComboBox::signalSubmitted, this, &FilterBar::signalSubmitted);
    connect(m_box, &HistoryComboBox::signalLeft, this, &FilterBar::signalLeft);
}

void FilterBar::setText(const QString& text)
{
    m_box->setEditText(text);
}

void FilterBar::remember(const QString& command)
{
    m_box->remember(command);
}

#include "app/StatusCounters.h"

#include <QLabel>
#include <QStatusBar>

namespace {

QLabel* addLabel(QStatusBar* statusBar, const QString& name, const QString& text)
{
    auto* label = new QLabel(text, statusBar);
    label->setObjectName(name);
    label->setContentsMargins(6, 0, 6, 0);
    statusBar->addPermanentWidget(label);
    return label;
}

}  // namespace

StatusCounters::StatusCounters(QStatusBar* statusBar)
    : m_rows(addLabel(statusBar, QStringLiteral("labelStatusBarRow"), tr("Rows: NA/NA")))
    , m_variables(addLabel(statusBar, QStringLiteral("labelStatusBarVar"), tr("Vars: NA/NA")))
{ }

void StatusCounters::setRows(const QString& text)
{
    m_rows->setText(text);
}

void StatusCounters::setVariables(const QString& text)
{
    m_variables->setText(text);
}

void StatusCounters::showNothingOpen()
{
    m_rows->setText(tr("Rows: NA / NA"));  // sic: with blanks, unlike the text at the start
    m_variables->setText(tr("Vars: NA/NA"));
}

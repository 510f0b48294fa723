#include "app/window/StatusCounters.h"

#include "app/window/ElidedLabel.h"
#include "grid/opened/EngineMessages.h"

#include <QStatusBar>

namespace {

QLabel* setUp(QLabel* label, const QString& name)
{
    label->setObjectName(name);
    label->setContentsMargins(6, 0, 6, 0);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel* addLabel(QStatusBar* statusBar, QLabel* label, const QString& name)
{
    statusBar->addPermanentWidget(setUp(label, name));
    return label;
}

}  // namespace

StatusCounters::StatusCounters(QStatusBar* statusBar)
    : m_cell(setUp(new ElidedLabel(QString(), statusBar), QStringLiteral("labelStatusBarCell")))
    , m_rows(addLabel(statusBar, new QLabel(tr("Rows: NA/NA"), statusBar),
                      QStringLiteral("labelStatusBarRow")))
    , m_variables(addLabel(statusBar, new QLabel(tr("Vars: NA/NA"), statusBar),
                           QStringLiteral("labelStatusBarVar")))
    , m_by(addLabel(statusBar, new ElidedLabel(tr("By: NA"), statusBar),
                    QStringLiteral("labelStatusBarBy")))
    , m_libraryFilter(addLabel(statusBar, new ElidedLabel(tr("LF: NA"), statusBar),
                               QStringLiteral("labelStatusBarLf")))
    , m_datasetFilter(addLabel(statusBar, new ElidedLabel(tr("DF: NA"), statusBar),
                               QStringLiteral("labelStatusBarDf")))
{
    statusBar->addWidget(m_cell, 1);
}

void StatusCounters::setCell(const QString& summary)
{
    m_cell->setText(summary);
}

void StatusCounters::setRows(const QString& text)
{
    m_rows->setText(text);
}

void StatusCounters::setVariables(const QString& text)
{
    m_variables->setText(text);
}

void StatusCounters::setByVariables(const QString& names)
{
    m_by->setText(names.isEmpty() ? tr("By: NA") : tr("By: %1").arg(names));
}

void StatusCounters::setLibraryFilter(const QString& filter, const QString& problem)
{
    if (filter.isEmpty()) {
        m_libraryFilter->setText(tr("LF: NA"));
        m_libraryFilter->setToolTip(QString());
    } else if (problem.isEmpty()) {
        m_libraryFilter->setText(tr("LF: %1").arg(filter));
        m_libraryFilter->setToolTip(QString());
    } else {
        m_libraryFilter->setText(tr("LF: (not applied) %1").arg(filter));
        m_libraryFilter->setToolTip(tr("%1\nThis dataset is not filtered by it: %2")
                                        .arg(filter, enginemessages::translated(problem)));
    }
}

void StatusCounters::setDatasetFilter(const QString& filter)
{
    m_datasetFilter->setText(filter.isEmpty() ? tr("DF: NA") : tr("DF: %1").arg(filter));
}

void StatusCounters::showNothingOpen()
{
    m_rows->setText(tr("Rows: NA / NA"));  // sic: with blanks, unlike the text at the start
    m_variables->setText(tr("Vars: NA/NA"));
    setByVariables({});
    setLibraryFilter(QString(), QString());
    setDatasetFilter(QString());
}

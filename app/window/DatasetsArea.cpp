#include "app/window/DatasetsArea.h"

#include "app/compare/ComparisonWindow.h"
#include "app/window/DatasetWindow.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QStackedLayout>
#include <QTabBar>

DatasetsArea::DatasetsArea(QWidget* parent)
    : QWidget(parent)
    , m_pages(new QStackedLayout(this))
    , m_mdiArea(new QMdiArea(this))
{
    setObjectName(QStringLiteral("centralwidget"));
    createMdiArea();
    m_pages->addWidget(m_mdiArea);
}

void DatasetsArea::createMdiArea()
{
    m_mdiArea->setObjectName(QStringLiteral("mdiArea"));
    m_mdiArea->setViewMode(QMdiArea::TabbedView);
    m_mdiArea->setTabsClosable(true);
    m_mdiArea->setTabsMovable(true);
    m_mdiArea->setDocumentMode(true);
    // The background follows the palette instead of a brush of its own.
    m_mdiArea->setBackground(Qt::NoBrush);
    m_mdiArea->viewport()->setBackgroundRole(QPalette::Window);
    if (auto* tabs = m_mdiArea->findChild<QTabBar*>()) {
        tabs->setExpanding(false);
        tabs->setElideMode(Qt::ElideNone);
        connect(tabs, &QTabBar::tabBarClicked, this, &DatasetsArea::signalTabSwitched);
    }
}

void DatasetsArea::setEmptyState(QWidget* widget)
{
    m_pages->insertWidget(0, widget);
    m_pages->setCurrentWidget(widget);
}

/// What is shown while there is no dataset may be cut; it must not keep the window from getting
/// small.
QSize DatasetsArea::minimumSizeHint() const
{
    constexpr QSize smallest(200, 120);
    return smallest;
}

void DatasetsArea::showDatasets(bool areOpen)
{
    if (areOpen || m_pages->count() == 1) {
        m_pages->setCurrentWidget(m_mdiArea);
        keepOneActive();
    } else {
        m_pages->setCurrentIndex(0);
    }
}

DatasetWindow* DatasetsArea::currentDataset() const
{
    return qobject_cast<DatasetWindow*>(m_mdiArea->currentSubWindow());
}

QMdiSubWindow* DatasetsArea::currentComparison() const
{
    return qobject_cast<ComparisonWindow*>(m_mdiArea->currentSubWindow());
}

void DatasetsArea::closeCurrent()
{
    if (QMdiSubWindow* window = m_mdiArea->currentSubWindow()) {
        window->close();
    }
}

/// Once a tab has been moved, Qt 6.4 makes none active when the active one is closed.
void DatasetsArea::keepOneActive()
{
    const QList<QMdiSubWindow*> windows = m_mdiArea->subWindowList();
    const auto* tabs = m_mdiArea->findChild<QTabBar*>();
    if (m_mdiArea->activeSubWindow() == nullptr && tabs != nullptr && !windows.isEmpty()) {
        m_mdiArea->setActiveSubWindow(windows.value(tabs->currentIndex(), windows.constFirst()));
    }
}

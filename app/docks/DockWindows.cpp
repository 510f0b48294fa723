#include "app/docks/DockWindows.h"

#include "app/window/PlainTitle.h"

#include <QAction>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>

DockWindows::DockWindows(QMainWindow& window)
    : m_window(window)
    , m_workspace(
          add(QStringLiteral("dockWidgetWorkspace"), tr("Workspace"), Qt::LeftDockWidgetArea))
    , m_variables(
          add(QStringLiteral("dockWidgetVariables"), tr("Variables"), Qt::LeftDockWidgetArea))
    , m_frequency(add(QStringLiteral("dockWidgetFreq"), tr("Frequency"), Qt::RightDockWidgetArea))
    , m_univariate(add(QStringLiteral("dockWidgetDesc"), tr("Univariate"), Qt::RightDockWidgetArea))
    , m_code(add(QStringLiteral("dockWidgetCode"), tr("Code"), Qt::BottomDockWidgetArea))
    , m_log(add(QStringLiteral("dockWidgetLog"), tr("Log"), Qt::BottomDockWidgetArea))
    , m_output(add(QStringLiteral("dockWidgetOutput"), tr("Output"), Qt::BottomDockWidgetArea))
    , m_shortcutKeys(add(QStringLiteral("dockWidgetShortcutKeys"), tr("Shortcut Keys"),
                         Qt::RightDockWidgetArea))
    , m_cell(add(QStringLiteral("dockWidgetCell"), tr("Cell"), Qt::BottomDockWidgetArea))
    , m_row(add(QStringLiteral("dockWidgetRow"), tr("Row"), Qt::RightDockWidgetArea))
{
    arrange();
}

QDockWidget* DockWindows::add(const QString& name, const QString& title, Qt::DockWidgetArea area)
{
    auto* dock = new QDockWidget(title, &m_window);
    dock->setObjectName(name);
    m_window.addDockWidget(area, dock);
    m_docks.push_back(dock);
    return dock;
}

/// The side docks stand above each other and use the whole height of the window; those below the
/// datasets share one place and are closed at first, as a table needs the height.
void DockWindows::arrange()
{
    m_window.setDockNestingEnabled(true);
    m_window.setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    m_window.setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    m_window.tabifyDockWidget(m_univariate, m_shortcutKeys);
    m_window.tabifyDockWidget(m_shortcutKeys, m_row);
    m_window.tabifyDockWidget(m_code, m_log);
    m_window.tabifyDockWidget(m_log, m_output);
    m_window.tabifyDockWidget(m_output, m_cell);
    for (QDockWidget* dock : {m_code, m_log, m_output, m_cell}) {
        dock->hide();
    }
}

void DockWindows::fillMenu(QMenu& menu) const
{
    for (const QDockWidget* dock : m_docks) {
        menu.addAction(dock->toggleViewAction());
    }
}

void DockWindows::showTitlesOf(const QString& datasetName)
{
    const bool isNone = datasetName.isEmpty();
    const QString name = plainTitle(datasetName);
    m_variables->setWindowTitle(isNone ? tr("Variable") : tr("Variable - %1").arg(name));
    m_frequency->setWindowTitle(isNone ? tr("Freq") : tr("Freq - %1").arg(name));
    m_univariate->setWindowTitle(isNone ? tr("Univariate") : tr("Univariate - %1").arg(name));
}

void DockWindows::raiseFloating() const
{
    for (QDockWidget* dock : m_docks) {
        if (dock->isFloating() && !dock->isHidden()) {
            dock->hide();  // only a new window is placed before the main one
            bringUp(*dock);
        }
    }
}

void DockWindows::bringUp(QDockWidget& dock)
{
    dock.show();
    dock.raise();
}

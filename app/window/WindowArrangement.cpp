#include "app/window/WindowArrangement.h"

#include "app/docks/DockWindows.h"
#include "app/start/Settings.h"
#include "app/window/MainActions.h"

#include <spdlog/spdlog.h>

#include <QAction>
#include <QDockWidget>

WindowArrangement::WindowArrangement(QMainWindow& window, const DockWindows& docks,
                                     const MainActions& actions, Settings& settings)
    : m_window(window)
    , m_docks(docks)
    , m_actions(actions)
    , m_settings(settings)
    , m_layout(window, docks.all())
{ }

void WindowArrangement::restore()
{
    m_window.restoreGeometry(m_settings.geometry());
    const QByteArray usual = m_window.saveState();
    const QByteArray remembered = m_settings.state();
    if (!remembered.isEmpty() && !m_window.restoreState(remembered)) {
        spdlog::warn("The arrangement of docks and toolbars could not be restored");
        m_window.restoreState(usual);  // of the damaged one a part may be in force
    }
    applyLayout(PaneLayout::fromText(m_settings.lastLayout()));
}

void WindowArrangement::finish()
{
    m_layout.apply(PaneLayout::fromText(m_settings.lastLayout()));
    m_docks.raiseFloating();
}

void WindowArrangement::save() const
{
    m_settings.setGeometryAndState(m_window.saveGeometry(), m_window.saveState());
}

void WindowArrangement::applyLayout(std::size_t layout)
{
    m_actions.layouts.at(layout)->setChecked(true);
    m_settings.setLastLayout(PaneLayout::text(layout));
    m_layout.apply(layout);
}

void WindowArrangement::show(QDockWidget& dock)
{
    m_layout.makeRoomFor(dock);
    DockWindows::bringUp(dock);
}

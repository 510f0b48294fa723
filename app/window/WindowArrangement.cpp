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
{
    for (QDockWidget* dock : docks.all()) {
        // The dock's own handler closes it also where it stands behind another and is not seen.
        QAction* action = dock->toggleViewAction();
        QObject::disconnect(action, &QAction::triggered, nullptr, nullptr);
        QObject::connect(action, &QAction::triggered, dock, [this, dock] { toggle(*dock); });
    }
}

void WindowArrangement::restore()
{
    m_window.restoreGeometry(m_settings.geometry());
    m_usual = m_window.saveState();
    const QByteArray remembered = m_settings.state();
    m_isRestored = m_window.restoreState(remembered);
    if (!m_isRestored && !remembered.isEmpty()) {
        spdlog::warn("The arrangement of docks and toolbars could not be restored");
        m_window.restoreState(m_usual);  // of the damaged one a part may be in force
    }
    const PaneLayout::Shares shares = lastShares();
    for (std::size_t layout = 0; layout < PaneLayout::shares.size(); ++layout) {
        m_actions.layouts.at(layout)->setChecked(PaneLayout::shares[layout] == shares);
    }
    if (!m_isRestored) {
        m_layout.apply(shares);
    }
}

PaneLayout::Shares WindowArrangement::lastShares() const
{
    return PaneLayout::fromText(m_settings.lastLayout()).value_or(PaneLayout::shares.front());
}

void WindowArrangement::finish()
{
    if (m_isRestored) {
        m_window.restoreState(m_settings.state());
    } else {
        m_layout.apply(lastShares());
    }
    m_docks.raiseFloating();
}

void WindowArrangement::save() const
{
    m_settings.setGeometryAndState(m_window.saveGeometry(), m_window.saveState());
}

void WindowArrangement::applyLayout(std::size_t layout)
{
    m_actions.layouts.at(layout)->setChecked(true);
    m_settings.setLastLayout(PaneLayout::text(PaneLayout::shares.at(layout)));
    m_layout.apply(PaneLayout::shares.at(layout));
}

void WindowArrangement::reset()
{
    m_window.restoreState(m_usual);
    applyLayout(0);
}

void WindowArrangement::show(QDockWidget& dock)
{
    m_layout.makeRoomFor(dock);
    DockWindows::bringUp(dock);
}

void WindowArrangement::toggle(QDockWidget& dock)
{
    if (dock.visibleRegion().isEmpty()) {
        show(dock);
    } else {
        dock.close();
    }
    dock.toggleViewAction()->setChecked(!dock.isHidden());
}

#pragma once

#include "app/window/PaneLayout.h"

#include <QByteArray>

class DockWindows;
class Settings;
struct MainActions;

/// How the main window and its docks stand: the layouts, and what is kept for the next start.
class WindowArrangement
{
public:
    /// All outlive this object.
    WindowArrangement(QMainWindow& window, const DockWindows& docks, const MainActions& actions,
                      Settings& settings);

    /// Puts everything where it stood at the end of the last run; without one, and where what was
    /// kept is damaged, the docks stand as the last layout wants them.
    void restore();
    /// Does what only a window that is on the screen can: the docks take their widths from it.
    void finish();
    void save() const;
    void applyLayout(std::size_t layout);
    /// Puts docks and toolbars where they stand at the first start.
    void reset();
    /// Shows a dock in front of others and wide enough to read it.
    void show(QDockWidget& dock);
    /// Closes a dock that can be seen; shows one that is closed or stands behind another.
    void toggle(QDockWidget& dock);

private:
    [[nodiscard]] PaneLayout::Shares lastShares() const;

    QMainWindow& m_window;
    const DockWindows& m_docks;
    const MainActions& m_actions;
    Settings& m_settings;
    PaneLayout m_layout;
    QByteArray m_usual;  ///< how docks and toolbars stand at the first start
    bool m_isRestored = false;  ///< whether docks and toolbars stand as they were kept
};

#pragma once

#include "app/window/PaneLayout.h"

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

    /// Puts everything where it stood at the end of the last run.
    void restore();
    /// Does what only a window that is on the screen can: the docks take their widths from it.
    void finish();
    void save() const;
    void applyLayout(std::size_t layout);
    /// Shows a dock in front of others and wide enough to read it.
    void show(QDockWidget& dock);

private:
    QMainWindow& m_window;
    const DockWindows& m_docks;
    const MainActions& m_actions;
    Settings& m_settings;
    PaneLayout m_layout;
};

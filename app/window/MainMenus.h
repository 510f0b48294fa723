#pragma once

#include <QCoreApplication>

class QMainWindow;
class QMenu;
class QString;
struct MainActions;

/// The menu bar of the main window.
class MainMenus
{
    Q_DECLARE_TR_FUNCTIONS(MainMenus)

public:
    /// Fills the menu bar of the window, which owns the menus and outlives this object.
    MainMenus(QMainWindow* window, const MainActions& actions);

    /// The File menu, at whose end the recently opened files stand.
    [[nodiscard]] QMenu* fileMenu() const { return m_file; }
    /// The list of the dock windows' toggle actions.
    [[nodiscard]] QMenu* dockWindowsMenu() const { return m_dockWindows; }

private:
    void fillFileMenu(const MainActions& actions);
    void fillEditMenu(const MainActions& actions);
    void fillViewMenu(const MainActions& actions);
    void fillToolsMenu(const MainActions& actions);
    void fillRunMenu(const MainActions& actions);
    void fillHelpMenu(const MainActions& actions);
    [[nodiscard]] QMenu* addMenu(const char* name, const QString& title);

    QMainWindow* m_window;
    QMenu* m_file = nullptr;
    QMenu* m_dockWindows = nullptr;
};

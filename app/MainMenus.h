#pragma once

#include <QCoreApplication>

class QAction;
class QKeySequence;
class QMainWindow;
class QMenu;
class QString;

/// The menu bar of the main window and its actions. What they do is connected by the main window.
class MainMenus
{
    Q_DECLARE_TR_FUNCTIONS(MainMenus)

public:
    /// Fills the menu bar of the window, which owns the menus and outlives this object.
    explicit MainMenus(QMainWindow* window);

    [[nodiscard]] QAction* openSasData() const { return m_openSasData; }
    [[nodiscard]] QAction* openSpssData() const { return m_openSpssData; }
    [[nodiscard]] QAction* openStataData() const { return m_openStataData; }
    [[nodiscard]] QAction* close() const { return m_close; }
    [[nodiscard]] QAction* closeAll() const { return m_closeAll; }
    [[nodiscard]] QAction* exit() const { return m_exit; }

private:
    void createFileActions();
    void fillFileMenu();
    [[nodiscard]] QMenu* addMenu(const QString& name, const QString& title);
    [[nodiscard]] QAction* addAction(const QString& name, const QString& text,
                                     const QKeySequence& shortcut);

    QMainWindow* m_window;
    QAction* m_openSasData = nullptr;
    QAction* m_openSpssData = nullptr;
    QAction* m_openStataData = nullptr;
    QAction* m_close = nullptr;
    QAction* m_closeAll = nullptr;
    QAction* m_exit = nullptr;
};

#include "app/MainMenus.h"

#include <QAction>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

MainMenus::MainMenus(QMainWindow* window)
    : m_window(window)
{
    window->menuBar()->setObjectName(QStringLiteral("menubar"));
    createFileActions();
    fillFileMenu();
}

void MainMenus::createFileActions()
{
    m_openSasData = addAction(QStringLiteral("actionOpenSasData"), tr("Open &SAS Datasets"), {});
    m_openSpssData = addAction(QStringLiteral("actionOpenSpssData"), tr("Open S&PSS Datasets"), {});
    m_openStataData =
        addAction(QStringLiteral("actionOpenStataData"), tr("Open S&tata Datasets"), {});
    m_close = addAction(QStringLiteral("actionClose"), tr("&Close\tCtrl+W"),
                        QKeySequence(Qt::CTRL | Qt::Key_W));
    m_closeAll = addAction(QStringLiteral("actionCloseAll"), tr("Close &All"),
                           QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_W));
    m_exit =
        addAction(QStringLiteral("actionExit"), tr("E&xit"), QKeySequence(Qt::CTRL | Qt::Key_Q));
    m_exit->setMenuRole(QAction::QuitRole);
}

void MainMenus::fillFileMenu()
{
    QMenu* file = addMenu(QStringLiteral("menuFile"), tr("&File"));
    file->addAction(m_openSasData);
    file->addAction(m_openSpssData);
    file->addAction(m_openStataData);
    file->addSeparator();
    file->addAction(m_close);
    file->addAction(m_closeAll);
    file->addSeparator();
    file->addAction(m_exit);
}

QMenu* MainMenus::addMenu(const QString& name, const QString& title)
{
    QMenu* menu = m_window->menuBar()->addMenu(title);
    menu->setObjectName(name);
    return menu;
}

QAction* MainMenus::addAction(const QString& name, const QString& text,
                              const QKeySequence& shortcut)
{
    auto* action = new QAction(text, m_window);
    action->setObjectName(name);
    action->setShortcut(shortcut);
    return action;
}

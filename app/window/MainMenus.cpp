#include "app/window/MainMenus.h"

#include "app/window/MainActions.h"

#include <QActionGroup>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

MainMenus::MainMenus(QMainWindow* window, const MainActions& actions)
    : m_window(window)
{
    window->menuBar()->setObjectName(QStringLiteral("menubar"));
    fillFileMenu(actions);
    fillEditMenu(actions);
    fillViewMenu(actions);
    fillToolsMenu(actions);
    fillRunMenu(actions);
    fillHelpMenu(actions);
}

void MainMenus::fillFileMenu(const MainActions& actions)
{
    m_file = addMenu("menuFile", tr("&File"));
    m_file->addActions({actions.openSasData, actions.openDatasetJson, actions.openRData,
                        actions.openSpssData, actions.openStataData, actions.openCsv});
    m_file->addSeparator();
    m_file->addActions({actions.openFolder, actions.manageLibraries, actions.saveSession});
    m_file->addSeparator();
    m_file->addActions({actions.newSasProgram, actions.openSasProgram, actions.saveSasProgram,
                        actions.saveSasProgramAs});
    m_file->addSeparator();
    m_file->addActions({actions.reload, actions.properties, actions.close, actions.closeAll});
    m_file->addSeparator();
    m_file->addAction(actions.exit);
}

void MainMenus::fillEditMenu(const MainActions& actions)
{
    QMenu* edit = addMenu("menuEdit", tr("&Edit"));
    edit->addActions({actions.copyStoredValues, actions.copyWithNames});
    edit->addSeparator();
    edit->addActions({actions.find, actions.findNext, actions.findPrevious});
    edit->addSeparator();
    edit->addActions({actions.goToDatasetFilter, actions.editDataFilter});
}

void MainMenus::fillViewMenu(const MainActions& actions)
{
    QMenu* view = addMenu("menuView", tr("&View"));
    m_dockWindows = view->addMenu(tr("Dock Windows"));
    m_dockWindows->setObjectName(QStringLiteral("menuDockWindows"));
    view->addSeparator();
    view->addActions(actions.layoutGroup->actions());
    view->addAction(actions.resetArrangement);
    view->addSeparator();
    view->addActions({actions.nextDataset, actions.toggleDarkMode});
}

void MainMenus::fillToolsMenu(const MainActions& actions)
{
    QMenu* tools = addMenu("menuTools", tr("&Tools"));
    tools->addActions({actions.quickOpen, actions.compare, actions.joinSupp});
    tools->addSeparator();
    tools->addAction(actions.options);
}

void MainMenus::fillRunMenu(const MainActions& actions)
{
    addMenu("menuRun", tr("&Run"))->addAction(actions.submit);
}

void MainMenus::fillHelpMenu(const MainActions& actions)
{
    // Alt+H hides variables in a grid, so the menu opens by another letter.
    QMenu* help = addMenu("menuHelp", tr("Hel&p"));
    help->addActions({actions.documentation, actions.checkForUpdates, actions.about});
}

QMenu* MainMenus::addMenu(const char* name, const QString& title)
{
    QMenu* menu = m_window->menuBar()->addMenu(title);
    menu->setObjectName(QLatin1String(name));
    return menu;
}

#include "app/boxes/CommandBoxes.h"
#include "app/code/CodeWindow.h"
#include "app/compare/Comparisons.h"
#include "app/dialogs/UserPrompts.h"
#include "app/docks/DockWindows.h"
#include "app/docks/Libraries.h"
#include "app/docks/WorkspaceTree.h"
#include "app/open/Sessions.h"
#include "app/start/UpdateCheck.h"
#include "app/start/WebSite.h"
#include "app/window/DatasetsArea.h"
#include "app/window/GridServices.h"
#include "app/window/MainWindow.h"
#include "app/window/PropertiesWindows.h"
#include "app/window/WindowArrangement.h"
#include "grid/MainTableView.h"
#include "workspace/WorkspaceStore.h"

#include <QCoreApplication>
#include <QMdiArea>
#include <QUrl>

// The slots of the main window's actions.

void MainWindow::on_actionOpenSasData_triggered()
{
    m_opener->chooseAndOpen(FileKind::Sas);
}

void MainWindow::on_actionOpenDatasetJson_triggered()
{
    m_opener->chooseAndOpen(FileKind::DatasetJson);
}

void MainWindow::on_actionOpenRData_triggered()
{
    m_opener->chooseAndOpen(FileKind::R);
}

void MainWindow::on_actionOpenSpssData_triggered()
{
    m_opener->chooseAndOpen(FileKind::Spss);
}

void MainWindow::on_actionOpenStataData_triggered()
{
    m_opener->chooseAndOpen(FileKind::Stata);
}

void MainWindow::on_actionOpenCsv_triggered()
{
    m_opener->chooseAndOpen(FileKind::Csv);
}

void MainWindow::cmdOpenFolder()
{
    if (m_libraries != nullptr) {
        m_libraries->openFolder();
        m_arrangement->show(*m_docks->workspace());
    }
}

void MainWindow::showManageLibrariesDialog()
{
    if (m_libraries != nullptr) {
        m_libraries->showManageDialog();
    }
}

void MainWindow::onTreeViewDoubleClicked(const QModelIndex& index)
{
    m_tree->activate(index);
}

void MainWindow::onTreeViewContextMenuRequested(const QPoint& position)
{
    m_tree->showMenu(position);
}

void MainWindow::refreshFolder(QStandardItem* folderItem)
{
    m_libraries->refresh(folderItem);
}

/// Takes the library out that is, or holds, the tree's current item.
void MainWindow::removeFolder()
{
    if (QStandardItem* library = WorkspaceTree::libraryOf(m_tree->itemAt(m_tree->currentIndex()))) {
        m_libraries->remove(library);
    }
}

/// Lets the user rename the library that is the tree's current item.
void MainWindow::setLibname()
{
    m_tree->editName();
}

void MainWindow::on_actionSaveSession_triggered()
{
    if (m_sessions != nullptr) {
        m_sessions->promptSaveSession();
    }
}

void MainWindow::on_actionNewSasProgram_triggered()
{
    m_arrangement->show(*m_docks->code());
    m_code->addProgram();
}

void MainWindow::on_actionClose_triggered()
{
    m_area->closeCurrent();
}

void MainWindow::on_actionCloseAll_triggered()
{
    m_area->mdiArea().closeAllSubWindows();
}

void MainWindow::on_actionExit_triggered()
{
    close();
}

void MainWindow::on_actionAbout_triggered()
{
    m_prompts->inform(tr("About Quorlane"),
                      tr("Quorlane %1\nA viewer for statistical and clinical-trial datasets.\n"
                         "Data files are only ever read.")
                          .arg(QCoreApplication::applicationVersion()));
}

void MainWindow::on_actionCheckForUpdates_triggered()
{
    m_updateCheck->check();
}

void MainWindow::on_actionDocumentation_triggered()
{
    openPage(QUrl(QString::fromUtf8(quorlane::webSite) + QStringLiteral("/documentation/")));
}

void MainWindow::openPage(const QUrl& url)
{
    if (!m_openUrl(url)) {
        m_gridServices->showMessage(tr("No browser could show %1").arg(url.toString()));
    }
}

void MainWindow::on_actionOptions_triggered()
{
    QString& uniqueVarName = m_gridServices->datasets().uniqueVarName;
    const QString name = m_prompts->editOptions(uniqueVarName);
    if (name != uniqueVarName) {
        uniqueVarName = name;
        m_store->saveOption(QStringLiteral("uniqueVarName"), name);
    }
}

void MainWindow::datasetProperty()
{
    m_properties->showOf(m_area->currentDataset());
}

void MainWindow::showCompareDialog()
{
    m_comparisons->showDialog();
}

void MainWindow::editDataFilter()
{
    m_boxes->editDataFilter(*m_prompts);
}

/// Writes the program of a grid, or of the active one.
void MainWindow::generateSasCode(MainTableView* view)
{
    m_code->follow(view == nullptr ? activeView() : view);
}

#include "app/window/MainWindow.h"

#include "app/boxes/CommandBar.h"
#include "app/boxes/CommandBoxes.h"
#include "app/code/CodeWindow.h"
#include "app/compare/Comparisons.h"
#include "app/dialogs/DialogPrompts.h"
#include "app/docks/CellDocks.h"
#include "app/docks/DockWindows.h"
#include "app/docks/Libraries.h"
#include "app/docks/OutputView.h"
#include "app/docks/ShortcutKeysWindow.h"
#include "app/docks/SidePanels.h"
#include "app/docks/WorkspaceTree.h"
#include "app/log/LogView.h"
#include "app/look/GridLook.h"
#include "app/look/Theme.h"
#include "app/open/RecentFiles.h"
#include "app/open/Sessions.h"
#include "app/open/SuppJoins.h"
#include "app/start/Settings.h"
#include "app/start/UpdateCheck.h"
#include "app/start/WebSite.h"
#include "app/window/DatasetsArea.h"
#include "app/window/DatasetWindow.h"
#include "app/window/EmptyState.h"
#include "app/window/GridServices.h"
#include "app/window/MainActions.h"
#include "app/window/MainMenus.h"
#include "app/window/MainToolBars.h"
#include "app/window/Navigation.h"
#include "app/window/OperatorLabel.h"
#include "app/window/PropertiesWindows.h"
#include "app/window/StatusCounters.h"
#include "app/window/WindowArrangement.h"
#include "grid/MainTableView.h"
#include "workspace/WorkspaceStore.h"

#include <spdlog/spdlog.h>

#include <QAbstractButton>
#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QDesktopServices>
#include <QDockWidget>
#include <QDropEvent>
#include <QMdiArea>
#include <QMenu>
#include <QMimeData>
#include <QSettings>
#include <QStandardItemModel>
#include <QStatusBar>
#include <QTableWidget>
#include <QTimer>

MainWindow::MainWindow(QWidget* parent)
    : MainWindow(MainWindowServices(), parent)
{ }

MainWindow::MainWindow(MainWindowServices services, QWidget* parent)
    : QMainWindow(parent)
{
    setObjectName(QStringLiteral("MainWindow"));
    setWindowTitle(tr("Quorlane"));
    setAcceptDrops(true);
    resize(1280, 800);
    DatasetLoader load = std::move(services.load);
    std::unique_ptr<WorkspaceStore> store = std::move(services.store);
    createServices(std::move(services));
    theme::apply(m_settings->darkMode());
    createActions();
    createCentralArea();
    createOpener(std::move(load));
    createToolBars();
    createDocks();
    createMenus();
    connectActions();
    openWorkspace(std::move(store));
}

MainWindow::~MainWindow()
{
    // The sub-windows, those that are closed and about to go included, would outlive the members
    // that hear of their end and serve them.
    disconnect(&m_area->mdiArea(), nullptr, this, nullptr);
    disconnect(m_comparisons, nullptr, this, nullptr);
    m_cellDocks->follow(nullptr);
    delete m_area;
}

// Construction

void MainWindow::createServices(MainWindowServices services)
{
    m_settingsStore =
        services.settings ? std::move(services.settings) : std::make_unique<QSettings>();
    m_settings = std::make_unique<Settings>(*m_settingsStore);
    m_prompts =
        services.prompts ? std::move(services.prompts) : std::make_unique<DialogPrompts>(this);
    m_openUrl = services.openUrl ? std::move(services.openUrl) : &QDesktopServices::openUrl;
    statusBar()->setObjectName(QStringLiteral("statusbar"));
    m_operator = new OperatorLabel(statusBar());
    statusBar()->addPermanentWidget(m_operator);
    m_counters = std::make_unique<StatusCounters>(statusBar());
    m_gridServices = std::make_unique<GridServices>(*m_prompts, *statusBar());
    m_recentFiles = std::make_unique<RecentFiles>(*m_settings);
    m_updateCheck = new UpdateCheck({.webSite = QString::fromUtf8(quorlane::webSite),
                                     .version = QCoreApplication::applicationVersion(),
                                     .openPage = [this](const QUrl& url) { openPage(url); }},
                                    *m_prompts, this);
    connect(m_updateCheck, &UpdateCheck::signalFailed, m_gridServices.get(),
            &GridServices::showMessage);
}

void MainWindow::createActions()
{
    m_actions = std::make_unique<MainActions>(this);
    addActions({m_actions->nextDataset});
}

void MainWindow::createCentralArea()
{
    m_area = new DatasetsArea(this);
    auto* empty = new EmptyState(m_area);
    empty->setActions(m_actions->readableKinds());
    empty->setRecentFiles(m_recentFiles->paths());
    m_area->setEmptyState(empty);
    setCentralWidget(m_area);
    m_look = std::make_unique<GridLook>(*m_settings, m_area->mdiArea());
    connect(m_gridServices.get(), &GridServices::signalFontSizeChanged, this,
            [this](int points) { m_look->setFontSize(points); });
    connect(empty, &EmptyState::signalOpenRequested, m_recentFiles.get(), &RecentFiles::request);
    connect(m_recentFiles.get(), &RecentFiles::signalChanged, empty,
            [this, empty] { empty->setRecentFiles(m_recentFiles->paths()); });
    connect(&m_area->mdiArea(), &QMdiArea::subWindowActivated, this, &MainWindow::activeWindow);
    connect(m_area, &DatasetsArea::signalTabSwitched, this, &MainWindow::handleTabSwitch);
}

void MainWindow::createOpener(DatasetLoader load)
{
    m_opener = new DatasetOpener(
        DatasetOpener::Surroundings{*this, m_area->mdiArea(), m_gridServices->datasets(),
                                    *m_prompts, *m_settings,
                                    load ? std::move(load) : DatasetLoader(&openDataset)},
        this);
    connect(m_opener, &DatasetOpener::signalOpened, this, &MainWindow::prepareWindow);
    connect(m_opener, &DatasetOpener::signalShown, this,
            [this](DatasetWindow* window) { m_look->applyFontTo(*window->view()); });
    connect(m_opener, &DatasetOpener::signalRead, m_recentFiles.get(), &RecentFiles::add);
    m_suppJoins = new SuppJoins({*this, m_area->mdiArea(), *m_opener, *m_prompts, *m_settings,
                                 *m_gridServices, *m_actions->joinSupp});
}

void MainWindow::createToolBars()
{
    m_toolBars = new MainToolBars(*this, *m_actions);
    m_boxes = new CommandBoxes(*this, *m_gridServices);
    // A grid tells of the filter; without one nobody does.
    connect(m_boxes, &CommandBoxes::signalLibraryFilterSubmitted, this, [this] {
        if (m_activeView == nullptr) {
            m_counters->setLibraryFilter(m_gridServices->datasets().libraryFilter.text(), {});
        }
    });
    m_boxes->datasetFilterBar()->addAction(m_actions->editDataFilter);
    connect(m_actions->goToDatasetFilter, &QAction::triggered, m_boxes->datasetFilterBar(),
            &CommandBar::edit);
    m_toolBars->addRightBars(*m_actions);
    m_toolBars->showHeaderMode(m_look->headerMode());
    connect(m_toolBars, &MainToolBars::signalHeaderModeClicked, this,
            &MainWindow::onColumnHeaderLabelChanged);
}

void MainWindow::createDocks()
{
    m_docks = std::make_unique<DockWindows>(*this);
    m_arrangement = std::make_unique<WindowArrangement>(*this, *m_docks, *m_actions, *m_settings);
    fillDocks();
}

void MainWindow::fillDocks()
{
    m_sidePanels = std::make_unique<SidePanels>(*m_docks);
    m_tree = new WorkspaceTree(m_docks->workspace());
    m_docks->workspace()->setWidget(m_tree);
    m_properties = new PropertiesWindows(*this, *m_prompts);
    m_navigation = new Navigation(*this, *m_actions, m_tree->items());
    connect(m_navigation, &Navigation::signalFileChosen, this, &MainWindow::openDatasetFile);
    m_code = new CodeWindow(*m_gridServices, *m_prompts, *m_settings, m_docks->code());
    m_docks->code()->setWidget(m_code);
    connect(m_code, &CodeWindow::signalLeft, this, &MainWindow::handleTabSwitch);
    m_docks->log()->setWidget(new LogView(spdlog::default_logger(), m_docks->log()));
    m_output = new OutputView(*m_prompts, m_docks->output());
    m_docks->output()->setWidget(m_output);
    connect(m_output, &OutputView::signalLeft, this, &MainWindow::handleTabSwitch);
    createComparisons();
    m_docks->shortcutKeys()->setWidget(new ShortcutKeysWindow(m_docks->shortcutKeys()));
    m_cellDocks = std::make_unique<CellDocks>(*m_docks, *m_arrangement, *m_counters);
}

void MainWindow::createComparisons()
{
    m_comparisons = new Comparisons(
        {*this, m_area->mdiArea(), *m_opener, *m_prompts, *m_settings, *m_output, *m_code});
    connect(m_comparisons, &Comparisons::signalReported, this,
            [this] { m_arrangement->show(*m_docks->output()); });
    connect(m_comparisons, &Comparisons::signalProgramWritten, this,
            [this] { m_arrangement->show(*m_docks->code()); });
    connect(m_comparisons, &Comparisons::signalMessage, m_gridServices.get(),
            &GridServices::showMessage);
    connect(m_comparisons, &Comparisons::signalShown, this,
            [this](DifferenceView& view) { m_look->applyFontTo(view); });
    connect(m_comparisons, &Comparisons::signalFontSizeChanged, m_gridServices.get(),
            &GridServices::signalFontSizeChanged);
    connect(m_comparisons, &Comparisons::signalWindowsChanged, this, &MainWindow::showWhatIsOpen);
}

void MainWindow::createMenus()
{
    m_menus = std::make_unique<MainMenus>(this, *m_actions);
    m_docks->fillMenu(*m_menus->dockWindowsMenu());
    m_recentFiles->showIn(m_menus->fileMenu());
    connect(m_recentFiles.get(), &RecentFiles::signalOpenRequested, this,
            &MainWindow::openDatasetFile);
}

void MainWindow::connectActions()
{
    const auto run = [this](QAction* action, void (MainWindow::*slot)()) {
        connect(action, &QAction::triggered, this, slot);
    };
    run(m_actions->openSasData, &MainWindow::on_actionOpenSasData_triggered);
    run(m_actions->openDatasetJson, &MainWindow::on_actionOpenDatasetJson_triggered);
    run(m_actions->openRData, &MainWindow::on_actionOpenRData_triggered);
    run(m_actions->openSpssData, &MainWindow::on_actionOpenSpssData_triggered);
    run(m_actions->openStataData, &MainWindow::on_actionOpenStataData_triggered);
    run(m_actions->openCsv, &MainWindow::on_actionOpenCsv_triggered);
    run(m_actions->openFolder, &MainWindow::cmdOpenFolder);
    run(m_actions->manageLibraries, &MainWindow::showManageLibrariesDialog);
    run(m_actions->saveSession, &MainWindow::on_actionSaveSession_triggered);
    run(m_actions->newSasProgram, &MainWindow::on_actionNewSasProgram_triggered);
    connect(m_actions->openSasProgram, &QAction::triggered, this, [this] {
        m_arrangement->show(*m_docks->code());
        m_code->openPrograms();
    });
    connect(m_actions->saveSasProgram, &QAction::triggered, m_code, &CodeWindow::save);
    connect(m_actions->saveSasProgramAs, &QAction::triggered, m_code, &CodeWindow::saveAs);
    run(m_actions->close, &MainWindow::on_actionClose_triggered);
    run(m_actions->closeAll, &MainWindow::on_actionCloseAll_triggered);
    run(m_actions->exit, &MainWindow::on_actionExit_triggered);
    run(m_actions->about, &MainWindow::on_actionAbout_triggered);
    run(m_actions->checkForUpdates, &MainWindow::on_actionCheckForUpdates_triggered);
    run(m_actions->documentation, &MainWindow::on_actionDocumentation_triggered);
    run(m_actions->options, &MainWindow::on_actionOptions_triggered);
    connect(m_actions->submit, &QAction::triggered, m_code, &CodeWindow::submit);
    run(m_actions->toggleDarkMode, &MainWindow::toggleDarkMode);
    run(m_actions->editDataFilter, &MainWindow::editDataFilter);
    run(m_actions->properties, &MainWindow::datasetProperty);
    run(m_actions->compare, &MainWindow::showCompareDialog);
    run(m_actions->nextDataset, &MainWindow::onSwitchWindow);
    connect(m_actions->reload, &QAction::triggered, m_opener, &DatasetOpener::reloadActive);
    connect(m_actions->resetArrangement, &QAction::triggered, this,
            [this] { m_arrangement->reset(); });
    for (const auto& [action, command] :
         {std::pair(m_actions->copyStoredValues, GridCommand::CopyStoredValues),
          std::pair(m_actions->copyWithNames, GridCommand::CopyWithNames)}) {
        connect(action, &QAction::triggered, this, [this, command = command] {
            if (m_activeView != nullptr) {
                m_activeView->run(command);
            }
        });
    }
    for (std::size_t layout = 0; layout < m_actions->layouts.size(); ++layout) {
        connect(m_actions->layouts[layout], &QAction::triggered, this,
                [this, layout] { m_arrangement->applyLayout(layout); });
    }
}

/// Without its workspace the program ends as soon as its event loop begins, and what it remembers
/// stays as it is.
void MainWindow::openWorkspace(std::unique_ptr<WorkspaceStore> store)
{
    m_store = store ? std::move(store) : std::make_unique<WorkspaceStore>();
    if (!m_store->initDatabase()) {
        m_store.reset();
        m_prompts->critical(tr("Database Initialization Failed"),
                            tr("The application will now exit."));
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        return;
    }
    QString& uniqueVarName = m_gridServices->datasets().uniqueVarName;
    const QString name =
        m_store->loadOption(QStringLiteral("uniqueVarName"), uniqueVarName).trimmed();
    uniqueVarName = name.isEmpty() ? uniqueVarName : name;
    fillWorkspace();
    m_sessions = std::make_unique<Sessions>(
        Sessions::Surroundings{m_area->mdiArea(), *m_opener, *m_tree, *m_gridServices, *m_prompts},
        *m_store);
    m_arrangement->restore();
}

void MainWindow::fillWorkspace()
{
    m_libraries = std::make_unique<Libraries>(
        Libraries::Surroundings{*this, *m_tree, *m_prompts, *m_settings, *m_gridServices},
        *m_store);
    connect(m_tree, &QTreeView::doubleClicked, this, &MainWindow::onTreeViewDoubleClicked);
    connect(m_tree, &WorkspaceTree::signalMenuRequested, this,
            &MainWindow::onTreeViewContextMenuRequested);
    connect(m_tree, &WorkspaceTree::signalAddLibraryRequested, this, &MainWindow::cmdOpenFolder);
    connect(m_tree, &WorkspaceTree::signalManageRequested, this,
            &MainWindow::showManageLibrariesDialog);
    connect(m_tree, &WorkspaceTree::signalRefreshRequested, this, &MainWindow::refreshFolder);
    connect(m_tree, &WorkspaceTree::signalRemoveRequested, this, &MainWindow::removeFolder);
    connect(m_tree, &WorkspaceTree::signalPropertiesRequested, m_properties,
            [this](const QString& path) { m_properties->showOfFile(path); });
    connect(m_tree, &WorkspaceTree::signalCompareRequested, m_comparisons,
            &Comparisons::showDialogFor);
    connect(m_tree, &WorkspaceTree::signalJoinRequested, m_suppJoins,
            [this](const QString& path) { m_suppJoins->join(path); });
    connect(m_tree, &WorkspaceTree::signalOpenRequested, m_opener, &DatasetOpener::openLater);
    connect(m_libraries.get(), &Libraries::signalVariableRequested, this,
            &MainWindow::showVariable);
    connect(m_libraries.get(), &Libraries::signalFolderChanged, m_opener,
            &DatasetOpener::lookAtFiles);
    connect(m_opener, &DatasetOpener::signalRead, m_libraries.get(), &Libraries::applyFilterOf);
    m_code->setLibraries([this](const QString& path) { return m_libraries->libraryOf(path); });
    connect(m_libraries.get(), &Libraries::signalChanged, m_code, &CodeWindow::generate);
    m_libraries->fill();
}

// Datasets

bool MainWindow::openDatasetFile(const QString& path)
{
    return m_opener->open(path);
}

void MainWindow::openReceivedFile(const QString& path)
{
    m_opener->openLater({path});
}

/// Brings a variable of a dataset to its user's eyes.
void MainWindow::showVariable(const QString& path, const QString& member, const QString& name)
{
    if (m_opener->bringUp(path, member) && m_activeView != nullptr) {
        m_activeView->cmdGotoVariable(m_activeView->dataset()->findVariable(name.toStdWString()));
        activateWindow();
    }
}

MainTableView* MainWindow::activeView() const
{
    return m_activeView;
}

/// Gives a new window what all windows share, before it is shown.
void MainWindow::prepareWindow(DatasetWindow* window)
{
    connect(window, &DatasetWindow::signalClosed, this, &MainWindow::subWindowClosed);
    m_area->showDatasets(true);
    m_gridServices->serve(*window->view());
    window->view()->setHeaderMode(m_look->headerMode());
}

// What it connects changes the window. NOLINTNEXTLINE(readability-make-member-function-const)
void MainWindow::connectGrid(MainTableView* view)
{
    connect(view, &MainTableView::signalObsNo, this, &MainWindow::setLabelStatusBarRow);
    connect(view, &MainTableView::signalVarNo, this, &MainWindow::setLabelStatusBarVar);
    connect(view, &MainTableView::signalAddByVar, this, &MainWindow::setLabelStatusBarBy);
    connect(view, &MainTableView::signalLibraryFilter, this, &MainWindow::setLabelStatusBarLf);
    connect(view, &MainTableView::signalFilter, this, &MainWindow::setLabelStatusBarDf);
    connect(view, &MainTableView::signalShowDockFreq, this, &MainWindow::showDockFreq);
    connect(view, &MainTableView::signalShowDockDesc, this, &MainWindow::showDockDesc);
    connect(view, &MainTableView::signalShowDockVar, this, &MainWindow::showDockVar);
}

void MainWindow::activeWindow(QMdiSubWindow* window)
{
    // Qt also says "none" when the whole window loses the focus, where nothing changes for the
    // user.
    if (window == nullptr) {
        return;
    }
    auto* active = qobject_cast<DatasetWindow*>(window);
    if (active == nullptr) {
        leaveGrid();
        showWhatIsOpen();
        return;
    }
    if (active->view() == m_activeView) {
        return;
    }
    if (m_activeView != nullptr) {
        disconnect(m_activeView, nullptr, this, nullptr);
    }
    m_activeView = active->view();
    connectGrid(m_activeView);
    m_boxes->setGrid(m_activeView);
    m_navigation->setGrid(m_activeView);
    m_operator->follow(m_activeView);
    generateSasCode(m_activeView);
    setWindowTitle(active->mainTitle());
    m_cellDocks->follow(m_activeView);
    m_docks->showTitlesOf(active->datasetName());
    m_sidePanels->setGrid(m_activeView);
    m_suppJoins->follow(active);
    updateStatus();
    showWhatIsOpen();
}

void MainWindow::subWindowClosed(DatasetWindow* closedWindow)
{
    m_opener->forget(closedWindow);
    if (closedWindow->view() == m_activeView) {
        leaveGrid();
    }
    showWhatIsOpen();
}

/// No dataset is in front any more.
void MainWindow::leaveGrid()
{
    if (m_activeView != nullptr) {
        disconnect(m_activeView, nullptr, this, nullptr);
    }
    m_activeView = nullptr;
    m_boxes->setGrid(nullptr);
    m_navigation->setGrid(nullptr);
    m_cellDocks->follow(nullptr);
    m_operator->follow(nullptr);
    generateSasCode();
    m_sidePanels->setGrid(nullptr);
    m_suppJoins->follow(nullptr);
}

/// Brings what depends on whether there is a dataset up to date.
void MainWindow::showWhatIsOpen()
{
    const QMdiSubWindow* comparison = m_area->currentComparison();
    const bool isAny = !openFiles().isEmpty() && comparison == nullptr;
    m_actions->setDatasetOpen(isAny);
    m_actions->setComparisonOpen(comparison != nullptr);
    m_area->showDatasets(isAny || comparison != nullptr);
    if (!isAny) {
        setWindowTitle(comparison == nullptr ? tr("Quorlane")
                                             : tr("%1 - Quorlane").arg(comparison->windowTitle()));
        m_counters->showNothingOpen();
        m_counters->setLibraryFilter(m_gridServices->datasets().libraryFilter.text(), QString());
        m_docks->showTitlesOf(QString());
    }
}

void MainWindow::onSwitchWindow()
{
    m_area->mdiArea().activateNextSubWindow();
    handleTabSwitch();
}

/// The keys of the grid are to work as soon as its tab is chosen.
void MainWindow::handleTabSwitch()
{
    if (m_activeView != nullptr) {
        m_activeView->setFocus();
    } else if (const QMdiSubWindow* comparison = m_area->currentComparison()) {
        comparison->widget()->setFocus();
    }
}

// Status bar and docks

void MainWindow::updateStatus()
{
    if (m_activeView != nullptr) {
        m_activeView->publishCounters();
        m_activeView->publishFilters();
        setLabelStatusBarBy();
    }
}

void MainWindow::setLabelStatusBarRow(const QString& text)
{
    m_counters->setRows(text);
}

void MainWindow::setLabelStatusBarVar(const QString& text)
{
    m_counters->setVariables(text);
}

void MainWindow::setLabelStatusBarBy()
{
    if (m_activeView != nullptr) {
        m_counters->setByVariables(m_activeView->opened()->byText());
        m_boxes->showByVariables();
    }
}

void MainWindow::setLabelStatusBarLf(const QString& filter)
{
    if (m_activeView != nullptr) {
        m_counters->setLibraryFilter(filter, m_activeView->opened()->libraryFilterProblem());
        m_boxes->showLibraryFilter(filter);
    }
}

void MainWindow::setLabelStatusBarDf(const QString& filter)
{
    m_counters->setDatasetFilter(filter);
    m_boxes->showDatasetFilter(filter);
}

void MainWindow::showDockFreq()
{
    showPanel(*m_docks->frequency());
}

void MainWindow::showDockDesc(QTableWidget* /*tableWidget*/)
{
    showPanel(*m_docks->univariate());
}

void MainWindow::showDockVar()
{
    showPanel(*m_docks->variables());
}

/// Brings a view of the grid in front to the user's hand; Escape leads back.
void MainWindow::showPanel(QDockWidget& dock)
{
    m_sidePanels->update();
    m_arrangement->show(dock);
    dock.widget()->setFocus();
}

// Looks

void MainWindow::onColumnHeaderLabelChanged(QAbstractButton* /*button*/)
{
    m_look->setHeaderMode(m_toolBars->headerMode());
    handleTabSwitch();
}

void MainWindow::toggleDarkMode()
{
    m_look->toggleDarkMode();
}

// Window

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!m_code->mayGo()) {
        event->ignore();
        return;
    }
    if (m_store != nullptr) {
        m_arrangement->save();
    }
    QMainWindow::closeEvent(event);
}

void MainWindow::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    if (!m_isArranged) {
        m_isArranged = true;
        QTimer::singleShot(0, this, [this] { m_arrangement->finish(); });
    }
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); })) {
        event->acceptProposedAction();
    }
}

void MainWindow::dropEvent(QDropEvent* event)
{
    m_opener->openDropped(event->mimeData()->urls());
    event->acceptProposedAction();
}

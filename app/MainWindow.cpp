#include "app/MainWindow.h"

#include "app/DatasetWindow.h"
#include "app/DialogPrompts.h"
#include "app/FilterBar.h"
#include "app/GridServices.h"
#include "app/MainMenus.h"
#include "app/Settings.h"
#include "app/StatusCounters.h"
#include "grid/MainTableView.h"

#include <QAction>
#include <QMdiArea>
#include <QSettings>
#include <QStatusBar>
#include <QTabBar>
#include <QVBoxLayout>

MainWindow::MainWindow(QWidget* parent)
    : MainWindow(MainWindowServices(), parent)
{ }

MainWindow::MainWindow(MainWindowServices services, QWidget* parent)
    : QMainWindow(parent)
{
    setObjectName(QStringLiteral("MainWindow"));
    setWindowTitle(tr("Quorlane"));
    resize(1200, 760);
    DatasetLoader load = std::move(services.load);
    createServices(std::move(services));
    createMdiArea();
    createStatusBar();
    createOpener(std::move(load));
    createFilterBar();
    createMenus();
}

MainWindow::~MainWindow()
{
    // The sub-windows, those that are closed and about to go included, would outlive the members
    // that hear of their end and serve them.
    disconnect(m_mdiArea, nullptr, this, nullptr);
    delete m_mdiArea;
}

void MainWindow::createServices(MainWindowServices services)
{
    m_store = services.store ? std::move(services.store) : std::make_unique<QSettings>();
    m_settings = std::make_unique<Settings>(*m_store);
    m_prompts =
        services.prompts ? std::move(services.prompts) : std::make_unique<DialogPrompts>(this);
}

void MainWindow::createMdiArea()
{
    auto* central = new QWidget(this);
    central->setObjectName(QStringLiteral("centralwidget"));
    m_mdiArea = new QMdiArea(central);
    m_mdiArea->setObjectName(QStringLiteral("mdiArea"));
    m_mdiArea->setViewMode(QMdiArea::TabbedView);
    m_mdiArea->setTabsClosable(true);
    m_mdiArea->setTabsMovable(true);
    m_mdiArea->setDocumentMode(true);
    // The background follows the palette instead of a brush of its own.
    m_mdiArea->setBackground(Qt::NoBrush);
    m_mdiArea->viewport()->setBackgroundRole(QPalette::Window);
    if (auto* tabs = m_mdiArea->findChild<QTabBar*>()) {
        tabs->setExpanding(false);
        tabs->setElideMode(Qt::ElideNone);
    }
    auto* layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_mdiArea);
    setCentralWidget(central);
    connect(m_mdiArea, &QMdiArea::subWindowActivated, this, &MainWindow::activeWindow);
}

void MainWindow::createOpener(DatasetLoader load)
{
    m_opener = new DatasetOpener(
        DatasetOpener::Surroundings{*m_mdiArea, *m_gridServices, *m_prompts, *m_settings,
                                    load ? std::move(load) : DatasetLoader(&openDataset)},
        this);
    connect(m_opener, &DatasetOpener::signalOpened, this, &MainWindow::connectWindow);
}

void MainWindow::createStatusBar()
{
    statusBar()->setObjectName(QStringLiteral("statusbar"));
    m_counters = std::make_unique<StatusCounters>(statusBar());
    m_gridServices = std::make_unique<GridServices>(*m_prompts, *statusBar());
}

void MainWindow::createFilterBar()
{
    m_filterBar = new FilterBar(this);
    addToolBar(m_filterBar);
    connect(m_filterBar, &FilterBar::signalSubmitted, this, &MainWindow::submitCommand);
    connect(m_filterBar, &FilterBar::signalLeft, this, &MainWindow::focusGrid);
}

void MainWindow::createMenus()
{
    m_menus = std::make_unique<MainMenus>(this);
    const auto run = [this](QAction* action, void (MainWindow::*slot)()) {
        connect(action, &QAction::triggered, this, slot);
    };
    run(m_menus->openSasData(), &MainWindow::on_actionOpenSasData_triggered);
    run(m_menus->openSpssData(), &MainWindow::on_actionOpenSpssData_triggered);
    run(m_menus->openStataData(), &MainWindow::on_actionOpenStataData_triggered);
    run(m_menus->close(), &MainWindow::on_actionClose_triggered);
    run(m_menus->closeAll(), &MainWindow::on_actionCloseAll_triggered);
    run(m_menus->exit(), &MainWindow::on_actionExit_triggered);
}

// What it connects changes the window. NOLINTNEXTLINE(readability-make-member-function-const)
void MainWindow::connectWindow(DatasetWindow* window)
{
    connect(window, &DatasetWindow::signalClosed, this, &MainWindow::subWindowClosed);
}

// What it connects changes the window. NOLINTNEXTLINE(readability-make-member-function-const)
void MainWindow::connectGrid(MainTableView* view)
{
    connect(view, &MainTableView::signalObsNo, this, &MainWindow::setLabelStatusBarRow);
    connect(view, &MainTableView::signalVarNo, this, &MainWindow::setLabelStatusBarVar);
    connect(view, &MainTableView::signalAddByVar, this, &MainWindow::setLabelStatusBarBy);
    connect(view, &MainTableView::signalLibraryFilter, this, &MainWindow::setLabelStatusBarLf);
    connect(view, &MainTableView::signalFilter, this, &MainWindow::setLabelStatusBarDf);
}

bool MainWindow::openDatasetFile(const QString& path)
{
    return m_opener->open(path);
}

MainTableView* MainWindow::activeView() const
{
    return m_activeView;
}

void MainWindow::activeWindow(QMdiSubWindow* window)
{
    // Qt also says "none" when the whole window loses the focus, where nothing changes for the
    // user.
    auto* active = qobject_cast<DatasetWindow*>(window);
    if (active == nullptr || active->view() == m_activeView) {
        return;
    }
    if (m_activeView != nullptr) {
        disconnect(m_activeView, nullptr, this, nullptr);
    }
    m_activeView = active->view();
    connectGrid(m_activeView);
    m_activeView->publishCounters();
    m_activeView->publishFilters();
    setLabelStatusBarBy();
}

void MainWindow::subWindowClosed(DatasetWindow* closedWindow)
{
    m_opener->forget(closedWindow);
    if (closedWindow->view() == m_activeView) {
        disconnect(m_activeView, nullptr, this, nullptr);
        m_activeView = nullptr;
    }
    if (openFiles().isEmpty()) {
        m_counters->showNothingOpen();
        m_filterBar->setText(QString());
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
        m_counters->setByVariables(m_activeView->byVariables());
    }
}

void MainWindow::setLabelStatusBarLf(const QString& filter)
{
    if (m_activeView != nullptr) {
        m_counters->setLibraryFilter(filter, m_activeView->libraryFilterProblem());
    }
}

void MainWindow::setLabelStatusBarDf(const QString& filter)
{
    m_counters->setDatasetFilter(filter);
    m_filterBar->setText(filter);
}

void MainWindow::submitCommand(const QString& command)
{
    if (m_activeView != nullptr && m_gridServices->runCommand(*m_activeView, command)) {
        m_filterBar->remember(command);
        m_filterBar->setText(m_activeView->datasetFilterText());
    }
}

void MainWindow::focusGrid()
{
    if (m_activeView != nullptr) {
        m_activeView->setFocus();
    }
}

void MainWindow::on_actionOpenSasData_triggered()
{
    m_opener->chooseAndOpen(tr("Open SAS Datasets"),
                            tr("SAS Data Files (*.sas7bdat);; SAS Transport Files (*.xpt)"));
}

void MainWindow::on_actionOpenSpssData_triggered()
{
    m_opener->chooseAndOpen(tr("Open SPSS Datasets"), tr("SPSS Data Files (*.sav)"));
}

void MainWindow::on_actionOpenStataData_triggered()
{
    m_opener->chooseAndOpen(tr("Open Stata Datasets"), tr("Stata Data Files (*.dta)"));
}

void MainWindow::on_actionClose_triggered()
{
    if (QMdiSubWindow* window = m_mdiArea->currentSubWindow()) {
        window->close();
    }
}

void MainWindow::on_actionCloseAll_triggered()
{
    m_mdiArea->closeAllSubWindows();
}

void MainWindow::on_actionExit_triggered()
{
    close();
}

#include "app/window/DatasetWindow.h"
#include "app/window/MainWindow.h"
#include "grid/MainTableModel.h"
#include "grid/MainTableView.h"
#include "tests/support/LogCapture.h"
#include "tests/support/ScriptedDataset.h"
#include "tests/support/TemporaryServices.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDockWidget>
#include <QDropEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>
#include <QTreeView>

/// The main window round the datasets: docks, layouts, boxes, looks, and what it remembers.
class TestShell : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void menusHoldTheActions();
    void docksHaveTheirNamesAndTitles();
    void titlesFollowTheActiveGrid();
    void layoutsDivideTheWidth_data();
    void layoutsDivideTheWidth();
    void layoutIsKeptForTheNextStart();
    void arrangementIsKeptForTheNextStart();
    void damagedArrangementGivesWayToTheUsualOne();
    void darkModeIsKeptForTheNextStart();
    void headersShowLabelsInAllGridsAndThoseOpenedLater();
    void fontSizeIsSharedAndKept();
    void libraryFilterBoxWorksOnAllDatasets();
    void byVariablesBoxSetsTheList();
    void emptyLinesClearWhatTheBoxShows();
    void keyboardGoesToTheBoxAndBack();
    void dataFilterReplacesTheDatasetFilter();
    void cancelledDataFilterChangesNothing();
    void wrongDataFilterLeavesTheOldOne();
    void submittedProgramRunsOnTheActiveGrid();
    void programStopsWhereAStatementFails();
    void statisticsAreShownInTheirDock();
    void keysSwitchAndCloseDatasets();
    void uniqueVariableNameIsKeptInTheStore();
    void withoutAWorkspaceTheProgramEnds();
    void droppedFilesOpen();
    void receivedFilesWaitForOpenQuestions();
    void libraryFilterIsSetAndClearedWithoutADataset();
    void boxesShowWhatIsInForceOnceLeft();
    void titlesShowNamesAsTheyAre();
    void submittedProgramTakesSignedNumbers();
    void openedFilesStandInTheMenu();
    void emptyWindowTellsHowToOpenADataset();
    void documentationOpensItsPage();

private:
    void openWindow();
    void startAgain();
    void trigger(const QString& action) { m_window->findChild<QAction*>(action)->trigger(); }
    void submit(const QString& box, const QString& line);
    void open(const QString& name) { m_window->openDatasetFile(m_folder->filePath(name)); }
    [[nodiscard]] QDockWidget* dock(const QString& name) const
    {
        return m_window->findChild<QDockWidget*>(name);
    }
    [[nodiscard]] MainTableView& view() const { return *m_window->activeView(); }
    [[nodiscard]] MainTableView& viewAt(int index) const;
    [[nodiscard]] QString boxText(const QString& name) const
    {
        return m_window->findChild<QComboBox*>(name)->currentText();
    }
    [[nodiscard]] QString label(const QString& name) const
    {
        return m_window->findChild<QLabel*>(name)->text();
    }
    [[nodiscard]] QString rows() const { return label("labelStatusBarRow"); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<LogCapture> m_log;
    ScriptedPrompts::Script m_script;
    QList<QUrl> m_urls;
    std::unique_ptr<MainWindow> m_window;
};

namespace {

Result<OpenedDataset> load(const QString&, const OpenOptions&)
{
    auto dataset = std::make_unique<ScriptedDataset>();
    dataset->variable("SEX", TypeCode::Character).variable("AGE", TypeCode::Double);
    dataset->row({"F", 30.0}).row({"M", 40.0}).row({"F", 50.0});
    OpenedDataset opened;
    opened.dataset = std::move(dataset);
    return opened;
}

}  // namespace

void TestShell::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_log = std::make_unique<LogCapture>();
    m_script = {};
    m_urls.clear();
    openWindow();
}

void TestShell::cleanup()
{
    m_window.reset();
    const QString log = QString::fromStdString(m_log->take());
    m_log.reset();
    QVERIFY2(!log.contains("warning:") && !log.contains("error:"), qPrintable(log));
    QCOMPARE(m_script.notes, QStringList());
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

void TestShell::openWindow()
{
    MainWindowServices services = temporaryServices(m_folder->path(), m_script);
    services.load = load;
    services.openUrl = [this](const QUrl& url) { m_urls << url; };
    m_window = std::make_unique<MainWindow>(std::move(services));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestShell::startAgain()
{
    m_window->close();
    m_window.reset();
    openWindow();
}

void TestShell::submit(const QString& box, const QString& line)
{
    auto* combo = m_window->findChild<QComboBox*>(box);
    combo->setEditText(line);
    QTest::keyClick(combo->lineEdit(), Qt::Key_Return);
}

MainTableView& TestShell::viewAt(int index) const
{
    auto* area = m_window->findChild<QMdiArea*>("mdiArea");
    return *qobject_cast<DatasetWindow*>(area->subWindowList().at(index))->view();
}

void TestShell::menusHoldTheActions()
{
    QStringList menus;
    for (const QAction* action : m_window->menuBar()->actions()) {
        menus << action->menu()->objectName() + '|' + action->text().remove('&');
        // A letter of the grid's Alt keys would do neither.
        QVERIFY(
            !QString("HC").contains(QKeySequence::mnemonic(action->text()).toString().right(1)));
    }
    QCOMPARE(menus,
             QStringList({"menuFile|File", "menuEdit|Edit", "menuView|View", "menuTools|Tools",
                          "menuRun|Run", "menuHelp|Help"}));
    QStringList docks;
    for (const QAction* action : m_window->findChild<QMenu*>("menuDockWindows")->actions()) {
        docks << action->text();
    }
    QCOMPARE(docks,
             QStringList({"Workspace", "Variables", "Frequency", "Univariate", "Code", "Log",
                          "Output", "Shortcut Keys"}));
    for (const char* name : {"toolBar", "toolBarDf", "toolBarLf", "toolBarBy", "toolBarLayouts"}) {
        QVERIFY2(m_window->findChild<QToolBar*>(name) != nullptr, name);
    }
}

void TestShell::docksHaveTheirNamesAndTitles()
{
    const QStringList expected{"dockWidgetWorkspace", "dockWidgetVariables",   "dockWidgetFreq",
                               "dockWidgetDesc",      "dockWidgetCode",        "dockWidgetLog",
                               "dockWidgetOutput",    "dockWidgetShortcutKeys"};
    QStringList names;
    for (const QDockWidget* each : m_window->findChildren<QDockWidget*>()) {
        names << each->objectName();
    }
    names.sort();
    QStringList sorted = expected;
    sorted.sort();
    QCOMPARE(names, sorted);
    QCOMPARE(dock("dockWidgetLog")->windowTitle(), "Log");
    QCOMPARE(dock("dockWidgetOutput")->windowTitle(), "Output");
    const auto* tree = dock("dockWidgetWorkspace")->findChild<QTreeView*>("treeView");
    QCOMPARE(tree->model()->index(0, 0).data().toString(), "Library");
    QCOMPARE(tree->model()->index(1, 0).data().toString(), "Session");
}

void TestShell::titlesFollowTheActiveGrid()
{
    const auto titles = [this] {
        return QStringList({dock("dockWidgetVariables")->windowTitle(),
                            dock("dockWidgetFreq")->windowTitle(),
                            dock("dockWidgetDesc")->windowTitle()});
    };
    open("adsl.xpt");
    QCOMPARE(titles(), QStringList({"Variable - adsl", "Freq - adsl", "Univariate - adsl"}));
    open("ae.v2.xpt");
    QCOMPARE(titles(), QStringList({"Variable - ae.v2", "Freq - ae.v2", "Univariate - ae.v2"}));
    trigger("actionClose");
    QCOMPARE(titles(), QStringList({"Variable - adsl", "Freq - adsl", "Univariate - adsl"}));
    trigger("actionClose");
    QCOMPARE(titles(), QStringList({"Variable", "Freq", "Univariate"}));
    QCOMPARE(rows(), "Rows: NA / NA");
}

void TestShell::layoutsDivideTheWidth_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("right");
    QTest::newRow("30:70:0") << "actionLayout1" << 30 << 0;
    QTest::newRow("0:100:0") << "actionLayout2" << 0 << 0;
    QTest::newRow("20:60:20") << "actionLayout3" << 20 << 20;
    QTest::newRow("0:70:30") << "actionLayout4" << 0 << 30;
}

void TestShell::layoutsDivideTheWidth()
{
    QFETCH(QString, action);
    QFETCH(int, left);
    QFETCH(int, right);
    m_window->resize(1600, 900);
    trigger(action);
    QVERIFY(m_window->findChild<QAction*>(action)->isChecked());
    const auto hasShare = [this](const QString& name, int percent) {
        const QDockWidget* side = dock(name);
        return side->isHidden() ? percent == 0 : side->width() == m_window->width() * percent / 100;
    };
    QTRY_VERIFY(hasShare("dockWidgetWorkspace", left));
    QTRY_VERIFY(hasShare("dockWidgetFreq", right));
    QCOMPARE(dock("dockWidgetDesc")->visibleRegion().isEmpty(), right == 0);
    QVERIFY(dock("dockWidgetShortcutKeys")->visibleRegion().isEmpty());
}

void TestShell::layoutIsKeptForTheNextStart()
{
    QVERIFY(m_window->findChild<QAction*>("actionLayout1")->isChecked());
    trigger("actionLayout4");
    startAgain();
    QVERIFY(m_window->findChild<QAction*>("actionLayout4")->isChecked());
    QVERIFY(dock("dockWidgetWorkspace")->isHidden());
    QVERIFY(!dock("dockWidgetFreq")->isHidden());
}

void TestShell::arrangementIsKeptForTheNextStart()
{
    m_window->resize(900, 700);
    m_window->addDockWidget(Qt::LeftDockWidgetArea, dock("dockWidgetLog"));
    dock("dockWidgetLog")->show();
    m_window->findChild<QToolBar*>("toolBarBy")->hide();
    startAgain();
    QCOMPARE(m_window->size(), QSize(900, 700));
    QCOMPARE(m_window->dockWidgetArea(dock("dockWidgetLog")), Qt::LeftDockWidgetArea);
    QVERIFY(!dock("dockWidgetLog")->isHidden());
    QVERIFY(m_window->findChild<QToolBar*>("toolBarBy")->isHidden());
}

void TestShell::damagedArrangementGivesWayToTheUsualOne()
{
    m_window->addDockWidget(Qt::LeftDockWidgetArea, dock("dockWidgetLog"));
    m_window->close();
    m_window.reset();
    {
        QSettings settings(m_folder->filePath("settings.ini"), QSettings::IniFormat);
        const QByteArray state = settings.value("state").toByteArray();
        settings.setValue("state", state.left(state.size() * 2 / 5));
    }
    openWindow();
    QCOMPARE(m_window->dockWidgetArea(dock("dockWidgetLog")), Qt::BottomDockWidgetArea);
    QVERIFY(!dock("dockWidgetWorkspace")->isHidden());
    QVERIFY(m_log->take().find("could not be restored") != std::string::npos);
}

void TestShell::darkModeIsKeptForTheNextStart()
{
    const auto isDark = [this] {
        const QPalette palette = m_window->palette();
        return palette.color(QPalette::Base).lightness()
            < palette.color(QPalette::Text).lightness();
    };
    QVERIFY(!isDark());
    trigger("actionToggleDarkMode");
    QVERIFY(isDark());
    startAgain();
    QVERIFY(isDark());
    trigger("actionToggleDarkMode");
    QVERIFY(!isDark());
}

void TestShell::headersShowLabelsInAllGridsAndThoseOpenedLater()
{
    open("dm1");
    open("dm2");
    m_window->findChildren<QRadioButton*>().at(1)->click();
    open("dm3");
    for (int index = 0; index < 3; ++index) {
        QCOMPARE(viewAt(index).tableModel()->headerMode(), HeaderMode::VariableLabels);
    }
    QCOMPARE(QApplication::focusWidget(), &view());
    startAgain();
    QCOMPARE(m_window->findChildren<QRadioButton*>().at(1)->text(), "Var Label");
    QVERIFY(m_window->findChildren<QRadioButton*>().at(1)->isChecked());
}

void TestShell::fontSizeIsSharedAndKept()
{
    open("dm1");
    open("dm2");
    const int before = view().fontSize();
    QTest::keyClick(&view(), Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(viewAt(0).fontSize(), before + 1);
    QCOMPARE(viewAt(1).fontSize(), before + 1);
    trigger("actionToggleDarkMode");
    startAgain();
    open("dm3");
    open("dm4");
    QCOMPARE(view().fontSize(), before + 1);
    QCOMPARE(QFontInfo(view().horizontalHeader()->font()).pointSize(), before + 1);
    trigger("actionToggleDarkMode");
    const int rowHeight = view().rowHeight(0);
    for (int i = 0; i < 2; ++i) {
        trigger("actionToggleDarkMode");
        QCOMPARE(view().fontSize(), before + 1);
        QCOMPARE(QFontInfo(view().horizontalHeader()->font()).pointSize(), before + 1);
        QCOMPARE(QFontInfo(view().verticalHeader()->font()).pointSize(), before + 1);
        QCOMPARE(view().rowHeight(0), rowHeight);
    }
    QTest::keyClick(&view(), Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(view().fontSize(), before);
}

void TestShell::libraryFilterBoxWorksOnAllDatasets()
{
    open("dm1");
    submit("comboBoxLf", "where sex = \"F\"");
    QCOMPARE(rows(), "Rows: 2/3");
    open("dm2");
    QCOMPARE(rows(), "Rows: 2/3");
    QCOMPARE(boxText("comboBoxLf"), "where sex = \"F\"");
    QCOMPARE(label("labelStatusBarLf"), "LF: where sex = \"F\"");
    QTest::keyClick(&view(), Qt::Key_C, Qt::AltModifier);
    QCOMPARE(boxText("comboBoxLf"), "");
    QCOMPARE(viewAt(0).shownRowCount(), 3);
}

void TestShell::byVariablesBoxSetsTheList()
{
    open("dm");
    submit("comboBoxBy", "by age SEX;");
    QCOMPARE(view().opened()->byVariables(), (std::vector<std::string>{"AGE", "SEX"}));
    QCOMPARE(boxText("comboBoxBy"), "AGE SEX");
    QCOMPARE(label("labelStatusBarBy"), "By: AGE SEX");

    submit("comboBoxBy", "AGE NOSUCH");
    QCOMPARE(view().opened()->byVariables(), (std::vector<std::string>{"AGE", "SEX"}));
    QCOMPARE(m_script.notes, QStringList({"warn|Command|unknown command|AGE NOSUCH"}));
    m_script.notes.clear();
}

void TestShell::emptyLinesClearWhatTheBoxShows()
{
    open("dm");
    submit("comboBoxDf", "if age > 35");
    submit("comboBoxLf", "where sex = \"F\"");
    submit("comboBoxBy", "SEX");
    QCOMPARE(rows(), "Rows: 1/3");
    submit("comboBoxDf", "  ");
    QCOMPARE(rows(), "Rows: 2/3");
    submit("comboBoxLf", "");
    QCOMPARE(rows(), "Rows: 3/3");
    submit("comboBoxBy", "");
    QVERIFY(view().opened()->byVariables().empty());
}

void TestShell::keyboardGoesToTheBoxAndBack()
{
    open("dm");
    auto* line = m_window->findChild<QComboBox*>("comboBoxDf")->lineEdit();
    QTest::keyClick(&view(), Qt::Key_L, Qt::ControlModifier);
    QCOMPARE(QApplication::focusWidget(), m_window->findChild<QComboBox*>("comboBoxDf"));
    QTest::keyClicks(line, "if q = 1");
    QTest::keyClick(line, Qt::Key_Return);
    QVERIFY(line->hasFocus());
    QCOMPARE(m_script.notes.size(), 1);
    m_script.notes.clear();

    line->setText("if age = 40");
    QTest::keyClick(line, Qt::Key_Return);
    QVERIFY(view().hasFocus());
    QCOMPARE(rows(), "Rows: 1/3");
}

void TestShell::dataFilterReplacesTheDatasetFilter()
{
    open("dm");
    submit("comboBoxDf", "if age > 35");
    m_script.dataFilter = "age < 35";
    trigger("actionEditDataFilter");
    QCOMPARE(m_script.notes, QStringList({"data filter|age > 35"}));
    QCOMPARE(boxText("comboBoxDf"), "if age < 35");
    QCOMPARE(rows(), "Rows: 1/3");

    m_script.dataFilter = "age < 35";
    trigger("actionEditDataFilter");  // as it is: no step
    QTest::keyClick(&view(), Qt::Key_Z);
    QCOMPARE(boxText("comboBoxDf"), "if age > 35");
    QCOMPARE(rows(), "Rows: 2/3");

    m_script.dataFilter = "SEX = \"M  \"";
    trigger("actionEditDataFilter");
    QCOMPARE(view().opened()->datasetFilterText(), "if SEX = \"M  \"");
    m_script.dataFilter = "";
    trigger("actionEditDataFilter");
    QCOMPARE(rows(), "Rows: 3/3");
    m_script.notes.clear();
}

void TestShell::cancelledDataFilterChangesNothing()
{
    open("dm");
    submit("comboBoxDf", "if age > 35");
    (void)m_log->take();  // what was said before
    trigger("actionEditDataFilter");
    QCOMPARE(m_log->take(), "info: Filter canceled\n");
    QCOMPARE(rows(), "Rows: 2/3");
    m_script.notes.clear();
}

void TestShell::wrongDataFilterLeavesTheOldOne()
{
    open("dm");
    submit("comboBoxDf", "if age > 35");
    m_script.dataFilter = "age > \"x\"";
    trigger("actionEditDataFilter");
    QCOMPARE(m_script.notes,
             QStringList({"data filter|age > 35",
                          "warn|Command|The variable types do not match.|if age > \"x\"",
                          "data filter|age > \"x\""}));  // and is offered to be mended
    QCOMPARE(view().opened()->datasetFilterText(), "if age > 35");
    QCOMPARE(rows(), "Rows: 2/3");
    m_script.notes.clear();
}

void TestShell::submittedProgramRunsOnTheActiveGrid()
{
    open("dm");
    auto* editor = dock("dockWidgetCode")->findChild<QPlainTextEdit*>();
    editor->setPlainText("libname adam '/data'; * comment;\ndata a; set adam.dm;\n"
                         "  where sex\n = 'F';\n  proc print;\nby AGE; keep sex; run;\n");
    (void)m_log->take();  // what was said before
    trigger("actionSubmit");
    QCOMPARE(rows(), "Rows: 2/3");
    QCOMPARE(label("labelStatusBarVar"), "Vars: 1/2");
    QCOMPARE(label("labelStatusBarBy"), "By: AGE");
    QCOMPARE(m_log->take(), "warning: Line 5: this statement is passed over: proc print\n");
}

void TestShell::programStopsWhereAStatementFails()
{
    open("dm");
    dock("dockWidgetCode")
        ->findChild<QPlainTextEdit*>()
        ->setPlainText("if AGE > 35;\nkeep NOSUCH;\ndrop SEX;\n");
    (void)m_log->take();  // what was said before
    trigger("actionSubmit");
    QCOMPARE(rows(), "Rows: 2/3");
    QCOMPARE(label("labelStatusBarVar"), "Vars: 2/2");
    QCOMPARE(m_script.notes.size(), 1);
    QVERIFY(m_script.notes.takeFirst().contains("NOSUCH"));
    QCOMPARE(m_log->take(), "error: Line 2: the program has stopped here: keep NOSUCH\n");
}

void TestShell::statisticsAreShownInTheirDock()
{
    open("dm");
    QVERIFY(dock("dockWidgetDesc")->isHidden());
    view().selectColumn(1);
    QTest::keyClick(&view(), Qt::Key_S);
    QVERIFY(!dock("dockWidgetDesc")->isHidden());
    auto* table = qobject_cast<QTableWidget*>(dock("dockWidgetDesc")->widget());
    QVERIFY(table != nullptr);
    QVERIFY(table->isVisibleTo(m_window.get()));

    open("dm2");
    QVERIFY(dock("dockWidgetDesc")->widget() == nullptr);
    QTest::keyClick(&view(), Qt::Key_W);
    QCOMPARE(dock("dockWidgetDesc")->widget(), table);
    QTest::keyClick(&view(), Qt::Key_W);
    QTRY_VERIFY(dock("dockWidgetDesc")->widget() == nullptr);
}

void TestShell::keysSwitchAndCloseDatasets()
{
    open("dm1");
    open("dm2");
    open("dm3");
    QTest::keyClick(m_window.get(), Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(&view(), &viewAt(0));
    QCOMPARE(QApplication::focusWidget(), &view());
    QTest::keyClick(&view(), Qt::Key_W);
    QTRY_COMPARE(m_window->openFiles().size(), std::size_t{2});
    QTest::keyClick(m_window.get(), Qt::Key_W, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(m_window->openFiles().size(), std::size_t{0});
}

void TestShell::uniqueVariableNameIsKeptInTheStore()
{
    m_script.uniqueVarName = "SUBJID";
    trigger("actionOptions");
    startAgain();
    m_script.uniqueVarName.clear();
    trigger("actionOptions");
    QCOMPARE(m_script.notes, QStringList({"options|USUBJID", "options|SUBJID"}));
    m_script.notes.clear();
}

void TestShell::withoutAWorkspaceTheProgramEnds()
{
    m_window.reset();
    const QString folder = m_folder->filePath("no-database");
    QVERIFY(QDir().mkpath(folder + "/quorlane.db"));  // a folder in the file's place
    MainWindowServices services = temporaryServices(folder, m_script);
    m_window = std::make_unique<MainWindow>(std::move(services));
    QCOMPARE(m_script.notes,
             QStringList({"critical|Database Initialization Failed|"
                          "The application will now exit."}));
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(m_log->take().find("Error: Unable to open database!") != std::string::npos);
    m_window->close();
    QVERIFY(!QSettings(folder + "/settings.ini", QSettings::IniFormat).contains("state"));
    m_script.notes.clear();
}

void TestShell::droppedFilesOpen()
{
    QMimeData data;
    data.setUrls({QUrl("https://brindlework.example/dm.xpt"),
                  QUrl::fromLocalFile(m_folder->filePath("dm 1.xpt")),
                  QUrl::fromLocalFile(m_folder->filePath("ae.xpt"))});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window.get(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window.get(), &drop);
    QTRY_COMPARE(m_window->openFiles().size(), std::size_t{2});
    QVERIFY(m_window->openFiles().find(m_folder->filePath("dm 1.xpt")) != nullptr);
}

void TestShell::receivedFilesWaitForOpenQuestions()
{
    QDialog question(m_window.get());
    question.setModal(true);
    question.show();
    m_window->openReceivedFile(m_folder->filePath("dm"));
    QTest::qWait(200);  // longer than the wait before another try
    QCOMPARE(m_window->openFiles().size(), std::size_t{0});
    question.close();
    QTRY_COMPARE(m_window->openFiles().size(), std::size_t{1});
}

void TestShell::libraryFilterIsSetAndClearedWithoutADataset()
{
    submit("comboBoxLf", "where sex = 'F' and");
    QCOMPARE(m_script.notes.size(), 1);
    m_script.notes.clear();
    submit("comboBoxLf", "where sex = 'F'");
    QCOMPARE(label("labelStatusBarLf"), "LF: where sex = 'F'");
    open("dm");
    QCOMPARE(rows(), "Rows: 2/3");
    trigger("actionClose");
    QCOMPARE(label("labelStatusBarLf"), "LF: where sex = 'F'");
    submit("comboBoxLf", "where age = 1");
    QCOMPARE(m_script.notes,
             QStringList({"warn|Command|Library Filter supports one level only. "
                          "Please clear library filter first.|where age = 1"}));
    m_script.notes.clear();
    submit("comboBoxLf", "clear library filter");
    QCOMPARE(label("labelStatusBarLf"), "LF: NA");
    open("dm");
    QCOMPARE(rows(), "Rows: 3/3");
}

void TestShell::boxesShowWhatIsInForceOnceLeft()
{
    open("dm");
    submit("comboBoxDf", "if age > 35");
    submit("comboBoxDf", "if age > 35");
    QCOMPARE(boxText("comboBoxDf"), "if age > 35");
    for (const char* name : {"comboBoxDf", "comboBoxLf", "comboBoxBy"}) {
        auto* box = m_window->findChild<QComboBox*>(name);
        box->setEditText("where NOSUCH = 1");
        QTest::keyClick(box->lineEdit(), Qt::Key_Escape);
    }
    QCOMPARE(boxText("comboBoxDf"), "if age > 35");
    QCOMPARE(boxText("comboBoxLf"), "");
    QCOMPARE(boxText("comboBoxBy"), "");
    submit("comboBoxBy", "");
    QCOMPARE(m_window->findChild<QComboBox*>("comboBoxBy")->count(), 0);
}

void TestShell::titlesShowNamesAsTheyAre()
{
    open("a&b[*].xpt");
    QCOMPARE(dock("dockWidgetFreq")->windowTitle(), "Freq - a&&b[*][*]");
    QCOMPARE(m_window->findChild<QMdiArea*>()->currentSubWindow()->windowTitle(), "a&&b[*][*].xpt");
}

void TestShell::submittedProgramTakesSignedNumbers()
{
    open("dm");
    dock("dockWidgetCode")->findChild<QPlainTextEdit*>()->setPlainText("if AGE > -1.5e1;");
    trigger("actionSubmit");
    QCOMPARE(boxText("comboBoxDf"), "if AGE > -1.5e1");
    QCOMPARE(rows(), "Rows: 3/3");
}

void TestShell::openedFilesStandInTheMenu()
{
    for (const char* name : {"ae.xpt", "dm.xpt"}) {
        QFile file(m_folder->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        open(name);
    }
    trigger("actionCloseAll");
    startAgain();
    const QList<QAction*> entries = m_window->findChild<QMenu*>("menuFile")->actions();
    QAction* last = nullptr;
    for (QAction* entry : entries) {
        last = entry->text().contains("ae.xpt") ? entry : last;
    }
    QVERIFY(last != nullptr);
    last->trigger();
    QVERIFY(m_window->openFiles().find(m_folder->filePath("ae.xpt")) != nullptr);
}

void TestShell::emptyWindowTellsHowToOpenADataset()
{
    auto* area = m_window->findChild<QMdiArea*>("mdiArea");
    QVERIFY(!area->isVisible());
    QVERIFY(!m_window->findChild<QAction*>("actionClose")->isEnabled());
    open("dm");
    QVERIFY(area->isVisible());
    QVERIFY(m_window->findChild<QAction*>("actionClose")->isEnabled());
    trigger("actionClose");
    QVERIFY(!area->isVisible());
}

void TestShell::documentationOpensItsPage()
{
    trigger("actionDocumentation");
    QCOMPARE(m_urls, QList<QUrl>({QUrl("https://quorlane.brindlework.example/documentation/")}));
}

QTEST_MAIN(TestShell)
#include "TestShell.moc"

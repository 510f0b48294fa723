#include "app/window/DatasetWindow.h"
#include "app/window/MainWindow.h"
#include "grid/MainTableModel.h"
#include "grid/MainTableView.h"
#include "tests/support/LogCapture.h"
#include "tests/support/ScriptedDataset.h"
#include "tests/support/TemporaryServices.h"

#include <QAction>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QMdiArea>
#include <QMenuBar>
#include <QPointer>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// Refuses every request to close.
class Refusal : public QObject
{
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::Close) {
            return false;
        }
        event->ignore();
        return true;
    }
};

}  // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void actionsHaveTheirNamesTextsAndShortcuts();
    void openingShowsAGridAndRemembersWhereItCameFrom();
    void filesAreChosenByFilterAndTheFolderIsRemembered_data();
    void filesAreChosenByFilterAndTheFolderIsRemembered();
    void failedLoadIsToldAndChangesNothing();
    void openFileIsOnlyActivatedUnlessReloadIsWanted();
    void reloadReplacesTheWindow();
    void fileClosedWhileReloadIsAskedForIsOpenedAnew();
    void windowThatRefusesToCloseIsKept();
    void failedReloadLeavesTheFileClosed();
    void relativeAndAbsolutePathsAreTheSameFile();
    void statusBarFollowsTheActiveGrid();
    void closingTheLastWindowResetsTheStatusBar();
    void ctrlWClosesTheActiveWindowOnly();
    void quittingWithOpenWindowsIsClean();
    void waitCursorIsShownDuringTheLoadOnly();

private:
    [[nodiscard]] Result<OpenedDataset> load(const QString& path);
    [[nodiscard]] QString path(const QString& name) const { return m_folder->filePath(name); }
    [[nodiscard]] QMdiArea* area() const { return m_window->findChild<QMdiArea*>("mdiArea"); }
    [[nodiscard]] QStringList titles() const;
    [[nodiscard]] QStringList statusTexts() const;
    [[nodiscard]] DatasetWindow* activeDataset() const;
    void trigger(const QString& action) { m_window->findChild<QAction*>(action)->trigger(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<LogCapture> m_log;
    ScriptedPrompts::Script m_script;
    QStringList m_loaded;
    bool m_waitedWhileLoading = false;
    bool m_failing = false;
    std::unique_ptr<MainWindow> m_window;
};

void TestMainWindow::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_log = std::make_unique<LogCapture>();
    m_script = {};
    m_loaded.clear();
    m_failing = false;
    MainWindowServices services = temporaryServices(m_folder->path(), m_script);
    services.load = [this](const QString& file, const OpenOptions&) { return load(file); };
    m_window = std::make_unique<MainWindow>(std::move(services));
    m_window->show();
}

void TestMainWindow::cleanup()
{
    m_window.reset();
    const QString log = QString::fromStdString(m_log->take());
    m_log.reset();
    QVERIFY2(!log.contains("warning:") && !log.contains("error:"), qPrintable(log));
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

/// Stands in for the readers: the file name says how many rows there are, "bad" fails.
Result<OpenedDataset> TestMainWindow::load(const QString& file)
{
    m_loaded << QFileInfo(file).fileName();
    const QCursor* cursor = QGuiApplication::overrideCursor();
    m_waitedWhileLoading = cursor != nullptr && cursor->shape() == Qt::WaitCursor;
    if (m_failing || file.contains("bad")) {
        return Failure{"The header is damaged."};
    }
    auto dataset = std::make_unique<ScriptedDataset>();
    dataset->variable("A", TypeCode::Double).variable("B", TypeCode::Character);
    dataset->rows(QFileInfo(file).baseName().right(1).toInt(), [](int row, int column) {
        return column == 0 ? ScriptedDataset::Value(double(row)) : ScriptedDataset::Value("x");
    });
    OpenedDataset opened;
    opened.dataset = std::move(dataset);
    return opened;
}

QStringList TestMainWindow::titles() const
{
    QStringList result;
    for (const QMdiSubWindow* window : area()->subWindowList()) {
        result << window->windowTitle();
    }
    return result;
}

QStringList TestMainWindow::statusTexts() const
{
    return {m_window->findChild<QLabel*>("labelStatusBarRow")->text(),
            m_window->findChild<QLabel*>("labelStatusBarVar")->text()};
}

DatasetWindow* TestMainWindow::activeDataset() const
{
    return qobject_cast<DatasetWindow*>(area()->currentSubWindow());
}

void TestMainWindow::actionsHaveTheirNamesTextsAndShortcuts()
{
    const QString open = QKeySequence::keyBindings(QKeySequence::Open).value(0).toString();
    const QString find = QKeySequence::keyBindings(QKeySequence::Find).value(0).toString();
    const QStringList expected{
        "actionOpenSasData|Open SAS Datasets|" + open,
        "actionOpenDatasetJson|Open Dataset-JSON Files|",
        "actionOpenFolder|Open Folder|",
        "actionManageLibraries|Manage Libraries|",
        "actionSaveSession|Save Session...|",
        "actionOpenRData|Open R Datasets|",
        "actionOpenSpssData|Open SPSS Datasets|",
        "actionOpenStataData|Open Stata Datasets|",
        "actionOpenCsv|Open CSV Files|",
        "actionNewSasProgram|New SAS Program|",
        "actionClose|Close\tCtrl+W|Ctrl+W",
        "actionCloseAll|Close All|Ctrl+Shift+W",
        "actionExit|Exit|Ctrl+Q",
        "actionFind|Find|" + find,
        "actionOptions|Options|",
        "actionAbout|About|",
        "actionCheckForUpdates|Check for Updates|",
        "actionDocumentation|Documentaiton|",  // sic
        "actionCompare|Compare Datasets|",
        "actionSubmit|Submit|Ctrl+R",
        "actionToggleDarkMode|Toggle Dark Mode|Ctrl+D",
        "actionQuickOpen|Quick Open|Ctrl+P",
        "actionEditDataFilter|Edit Data Filter|",
        "actionNextDataset|Next Dataset Tab|Ctrl+Tab",
        "actionLayout1|Layout 1|Ctrl+1",
        "actionLayout4|Layout 4|Ctrl+4",
    };
    QStringList found;
    for (const QString& line : expected) {
        const auto* action = m_window->findChild<QAction*>(line.section('|', 0, 0));
        QVERIFY2(action != nullptr, qPrintable(line));
        found << QStringList({action->objectName(), action->text(),
                              action->shortcut().toString(QKeySequence::PortableText)})
                     .join('|');
    }
    QCOMPARE(found, expected);
    QCOMPARE(m_window->menuBar()->objectName(), "menubar");
    QCOMPARE(m_window->centralWidget()->objectName(), "centralwidget");
    QCOMPARE(m_window->objectName(), "MainWindow");
}

void TestMainWindow::openingShowsAGridAndRemembersWhereItCameFrom()
{
    QFile file(path("adsl3.sas7bdat"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    QVERIFY(m_window->openDatasetFile(file.fileName()));

    DatasetWindow* window = activeDataset();
    QVERIFY(window != nullptr);
    QCOMPARE(window->property("filePath").toString(), file.fileName());
    QCOMPARE(window->property("fileKey").toString(), file.fileName());
    QCOMPARE(window->property("fileTimestamp").toDateTime(), QFileInfo(file).lastModified());
    QCOMPARE(window->windowTitle(), "adsl3.sas7bdat");
    QCOMPARE(m_window->openFiles().find(file.fileName()), window);
    QCOMPARE(window->view()->tableModel()->rowCount(), 3);
    QCOMPARE(window->view()->horizontalHeader()->sortIndicatorSection(), -1);
    QVERIFY(window->view()->isVisible());
    QVERIFY(m_log->take().find("Added to openFilesMap: " + file.fileName().toStdString())
            != std::string::npos);
    QVERIFY(m_script.notes.isEmpty());
}

void TestMainWindow::filesAreChosenByFilterAndTheFolderIsRemembered_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("filters");
    QTest::newRow("SAS") << "actionOpenSasData"
                         << "Open SAS Datasets"
                         << "SAS Data Files (*.sas7bdat);; SAS Transport Files (*.xpt)";
    QTest::newRow("SPSS") << "actionOpenSpssData"
                          << "Open SPSS Datasets"
                          << "SPSS Data Files (*.sav)";
    QTest::newRow("Stata") << "actionOpenStataData"
                           << "Open Stata Datasets"
                           << "Stata Data Files (*.dta)";
}

void TestMainWindow::filesAreChosenByFilterAndTheFolderIsRemembered()
{
    QFETCH(QString, action);
    QFETCH(QString, title);
    QFETCH(QString, filters);
    m_script.chosenFiles = {path("one1"), path("bad"), path("two2")};
    trigger(action);
    QCOMPARE(m_loaded, QStringList({"one1", "bad", "two2"}));
    QCOMPARE(titles(), QStringList({"one1", "two2"}));

    m_script.chosenFiles = {};
    m_script.notes.clear();
    trigger(action);
    QCOMPARE(m_script.notes,
             QStringList({"files|" + title + '|' + m_folder->path() + '|' + filters}));
    QCOMPARE(m_loaded.size(), 3);
}

void TestMainWindow::failedLoadIsToldAndChangesNothing()
{
    m_window->openDatasetFile(path("good1"));
    const QString before = statusTexts().join('|');
    QVERIFY(!m_window->openDatasetFile(path("bad.xpt")));

    QCOMPARE(m_script.notes,
             QStringList({"warn|Open File|Failed to open the file: " + path("bad.xpt")
                          + "|The header is damaged."}));
    QCOMPARE(m_window->openFiles().size(), std::size_t{1});
    QCOMPARE(titles(), QStringList("good1"));
    QCOMPARE(statusTexts().join('|'), before);
}

void TestMainWindow::openFileIsOnlyActivatedUnlessReloadIsWanted()
{
    m_window->openDatasetFile(path("first1"));
    const QPointer<DatasetWindow> first = activeDataset();
    m_window->openDatasetFile(path("second2"));
    QVERIFY(m_window->openDatasetFile(path("first1")));

    QCOMPARE(m_script.notes,
             QStringList("confirm|Reload Dataset|\"first1\" is already open.\n"
                         "Do you want to reload it?"));
    QCOMPARE(activeDataset(), first.data());
    QCOMPARE(m_loaded, QStringList({"first1", "second2"}));
    QCOMPARE(m_window->openFiles().size(), std::size_t{2});
}

void TestMainWindow::reloadReplacesTheWindow()
{
    m_window->openDatasetFile(path("first1"));
    const QPointer<DatasetWindow> old = activeDataset();
    m_script.confirmation = true;
    QVERIFY(m_window->openDatasetFile(path("first1")));

    QVERIFY2(old.isNull(), "the old dataset goes before the new one is read");
    QCOMPARE(titles(), QStringList("first1"));
    QCOMPARE(m_window->openFiles().find(path("first1")), activeDataset());
    QCOMPARE(statusTexts(), QStringList({"Rows: 1/1", "Vars: 2/2"}));
}

void TestMainWindow::fileClosedWhileReloadIsAskedForIsOpenedAnew()
{
    m_window->openDatasetFile(path("one1"));
    m_script.whileAsked = [this] { activeDataset()->close(); };
    m_script.confirmation = true;
    QVERIFY(m_window->openDatasetFile(path("one1")));
    QCOMPARE(titles(), QStringList({"one1"}));

    m_script.confirmation = false;
    QVERIFY(!m_window->openDatasetFile(path("one1")));
    QCOMPARE(titles(), QStringList());
    QCOMPARE(m_window->openFiles().size(), std::size_t{0});
}

void TestMainWindow::windowThatRefusesToCloseIsKept()
{
    m_window->openDatasetFile(path("first1"));
    DatasetWindow* first = activeDataset();
    m_window->openDatasetFile(path("second2"));
    Refusal refusal;
    first->installEventFilter(&refusal);
    m_script.confirmation = true;
    QVERIFY(m_window->openDatasetFile(path("first1")));

    QCOMPARE(activeDataset(), first);
    QCOMPARE(m_window->openFiles().find(path("first1")), first);
    QCOMPARE(m_loaded, QStringList({"first1", "second2"}));
}

void TestMainWindow::failedReloadLeavesTheFileClosed()
{
    m_window->openDatasetFile(path("first1"));
    m_script.confirmation = true;
    m_failing = true;
    QVERIFY(!m_window->openDatasetFile(path("first1")));
    QCOMPARE(m_script.notes.size(), 2);
    QVERIFY(m_script.notes.last().startsWith("warn|Open File|"));
    QVERIFY(titles().isEmpty());
    QVERIFY(m_window->openFiles().isEmpty());
    QCOMPARE(statusTexts().first(), "Rows: NA / NA");
}

void TestMainWindow::relativeAndAbsolutePathsAreTheSameFile()
{
    m_window->openDatasetFile(path("first1"));
    m_window->openDatasetFile(QDir::current().relativeFilePath(path("first1")));
    m_window->openDatasetFile(m_folder->path() + "/./first1");
    QCOMPARE(m_loaded, QStringList("first1"));
    QCOMPARE(m_script.notes.size(), 2);
}

void TestMainWindow::statusBarFollowsTheActiveGrid()
{
    QCOMPARE(statusTexts(), QStringList({"Rows: NA/NA", "Vars: NA/NA"}));
    m_window->openDatasetFile(path("first3"));
    DatasetWindow* first = activeDataset();
    m_window->openDatasetFile(path("second5"));
    DatasetWindow* second = activeDataset();
    QCOMPARE(statusTexts(), QStringList({"Rows: 5/5", "Vars: 2/2"}));

    first->dataset()->libraryFilterMask().reset(0);
    first->view()->updateAll();  // of a grid that is not active
    QCOMPARE(statusTexts().first(), "Rows: 5/5");
    area()->setActiveSubWindow(first);
    QCOMPARE(statusTexts().first(), "Rows: 2/3");
    second->dataset()->libraryFilterMask().reset(0);
    second->view()->updateAll();
    QCOMPARE(statusTexts().first(), "Rows: 2/3");
    QCOMPARE(m_window->activeView(), first->view());
}

void TestMainWindow::closingTheLastWindowResetsTheStatusBar()
{
    m_window->openDatasetFile(path("first1"));
    m_window->openDatasetFile(path("second2"));
    area()->subWindowList().at(0)->close();
    QCOMPARE(statusTexts(), QStringList({"Rows: 2/2", "Vars: 2/2"}));
    QCOMPARE(m_window->openFiles().size(), std::size_t{1});

    trigger("actionClose");
    QCOMPARE(statusTexts(), QStringList({"Rows: NA / NA", "Vars: NA/NA"}));
    QVERIFY(m_window->openFiles().isEmpty());
    QVERIFY(m_window->activeView() == nullptr);
    QTRY_VERIFY(area()->subWindowList().isEmpty());
    QVERIFY(m_log->take().find("Removed from openFilesMap: " + path("first1").toStdString())
            != std::string::npos);

    m_window->openDatasetFile(path("third4"));
    m_window->openDatasetFile(path("fourth1"));
    trigger("actionCloseAll");
    QCOMPARE(statusTexts(), QStringList({"Rows: NA / NA", "Vars: NA/NA"}));
    trigger("actionClose");  // with nothing to close
}

void TestMainWindow::ctrlWClosesTheActiveWindowOnly()
{
    m_window->openDatasetFile(path("first1"));
    m_window->openDatasetFile(path("second2"));
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    activeDataset()->view()->setFocus();

    QTest::keyClick(activeDataset()->view(), Qt::Key_W, Qt::ControlModifier);
    QTRY_COMPARE(titles(), QStringList("first1"));
    QTRY_COMPARE(statusTexts().first(), "Rows: 1/1");
}

void TestMainWindow::quittingWithOpenWindowsIsClean()
{
    m_window->openDatasetFile(path("first1"));
    m_window->openDatasetFile(path("second2"));
    const QPointer<MainTableView> view = m_window->activeView();
    trigger("actionExit");
    QVERIFY(!m_window->isVisible());
    m_window.reset();
    QVERIFY(view.isNull());
}

void TestMainWindow::waitCursorIsShownDuringTheLoadOnly()
{
    m_window->openDatasetFile(path("first1"));
    QVERIFY(m_waitedWhileLoading);
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

QTEST_MAIN(TestMainWindow)
#include "TestMainWindow.moc"

#include "data/StatDataset.h"
#include "samples/TableWriter.h"
#include "tests/support/WindowFixture.h"

#include <QActionGroup>
#include <QDialog>
#include <QDir>
#include <QDropEvent>
#include <QMimeData>
#include <QPointer>
#include <QSettings>
#include <QToolBar>

/// The main window: which files it opens and closes, its docks and looks, and what it remembers.
class TestMainWindow : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void init() { startUp(); }
    void cleanup() { shutDown(); }
    void openedFileIsShownAndTakesTheKeys();
    void filesAreReadByTheirSuffixOrToldWithAReason();
    void chosenFilesOpenAndTheirFolderIsRemembered();
    void openFileIsReadAnewOnlyWhenWanted();
    void fileClosedWhileReloadIsAskedForIsOpenedAnew();
    void keysSwitchAndCloseDatasets();
    void droppedFilesOpen();
    void receivedFilesWaitForOpenQuestions();
    void layoutsDivideTheWidth();
    void docksAreShownInFrontAndPutBack();
    void whatIsSetIsKeptForTheNextStart();
    void damagedSettingsGiveWayToTheUsualOnes();
    void withoutAWorkspaceTheProgramEnds();
    void actionsDoWhatTheySay();

private:
    [[nodiscard]] QString write(const QString& name) const;
    [[nodiscard]] bool isDark() const
    {
        const QPalette palette = window->palette();
        return palette.color(QPalette::Base).lightness()
            < palette.color(QPalette::Text).lightness();
    }
    [[nodiscard]] bool isSeen(const QString& name) const
    {
        return !dock(name)->visibleRegion().isEmpty();
    }
    [[nodiscard]] QSettings settings() const
    {
        return QSettings(path("settings.ini"), QSettings::IniFormat);
    }
    [[nodiscard]] QRadioButton* labelsButton() const
    {
        return window->findChildren<QRadioButton*>().at(1);
    }
};

/// A file with two rows of a text and a number.
QString TestMainWindow::write(const QString& name) const
{
    samples::Table table;
    table.name = "DATA";
    table.columns = {samples::textColumn("SEX", "Sex"), samples::numberColumn("AGE", "Age")};
    table.rows = {{"F", 44.0}, {"M", 31.0}};
    samples::writeTable(path(name).toStdString(), table);
    return path(name);
}

void TestMainWindow::openedFileIsShownAndTakesTheKeys()
{
    QVERIFY(!area().isVisible());
    const QString file = write("adsl.sas7bdat");
    QVERIFY(open("adsl.sas7bdat"));
    QVERIFY(hasWaited);
    QVERIFY(view().isVisible());
    QCOMPARE(QApplication::focusWidget(), &view());
    QCOMPARE(view().horizontalHeader()->sortIndicatorSection(), -1);
    QCOMPARE(active()->property("filePath").toString(), file);
    QCOMPARE(active()->property("fileKey").toString(), file);
    QCOMPARE(active()->property("fileTimestamp").toDateTime(), QFileInfo(file).lastModified());
    QCOMPARE(window->openFiles().find(file), active());
    trigger("actionClose");
    QVERIFY(window->openFiles().isEmpty());
    const std::string lines = log->take();
    QVERIFY(lines.find("Added to openFilesMap: " + file.toStdString()) != std::string::npos);
    QVERIFY(lines.find("Removed from openFilesMap: " + file.toStdString()) != std::string::npos);
}

void TestMainWindow::filesAreReadByTheirSuffixOrToldWithAReason()
{
    openWindow(true);
    const QList<std::pair<QString, SourceKind>> kinds{{"DATA.SAS7BDAT", SourceKind::Sas},
                                                      {"data.Xpt", SourceKind::Sas},
                                                      {"data.sav", SourceKind::Spss},
                                                      {"data.DTA", SourceKind::Stata}};
    for (const auto& [name, kind] : kinds) {
        QVERIFY(window->openDatasetFile(write(name)));
        QVERIFY(active()->dataset()->sourceKind() == kind);
        QCOMPARE(rows(), "Rows: 2/2");
        QCOMPARE(view().model()->index(1, 0).data().toString(), "M");
    }
    QVERIFY(QFile::copy(path("data.Xpt"), path("other.txt")));
    QFile damaged(path("damaged.sas7bdat"));
    QVERIFY(damaged.open(QIODevice::WriteOnly) && damaged.write("no such thing") > 0);
    damaged.close();
    for (const char* name : {"other.txt", "damaged.sas7bdat", "absent.xpt"}) {
        QVERIFY(!open(name));
        const QString told = notes().join('\n');
        QVERIFY2(told.startsWith("warn|Open File|Failed to open the file: " + path(name) + '|')
                     && !told.endsWith('|'),
                 qPrintable(told));
    }
    QCOMPARE(titles().size(), 4);
}

void TestMainWindow::chosenFilesOpenAndTheirFolderIsRemembered()
{
    script.chosenFiles = {path("dm1"), path("bad"), path("dm2")};
    trigger("actionOpenSasData");
    QCOMPARE(loaded, QStringList({"dm1", "bad", "dm2"}));
    QCOMPARE(titles(), QStringList({"dm1", "dm2"}));
    script.chosenFiles = {};
    notes();
    for (const auto& [action, suffix] : {std::pair("actionOpenSasData", "(*.sas7bdat)"),
                                         std::pair("actionOpenSpssData", "(*.sav)"),
                                         std::pair("actionOpenStataData", "(*.dta)")}) {
        trigger(action);
        const QString asked = notes().join('\n').section('|', 2);
        QVERIFY(asked.startsWith(folder->path() + '|') && asked.contains(suffix));
    }
    QCOMPARE(loaded.size(), 3);
}

void TestMainWindow::openFileIsReadAnewOnlyWhenWanted()
{
    open("dm");
    open("ts");
    const QPointer<DatasetWindow> first = datasetAt(0);
    for (const QString& other :
         {path("dm"), QDir::current().relativeFilePath(path("dm")), folder->path() + "/./dm"}) {
        activate(1);
        QVERIFY(window->openDatasetFile(other));
        QCOMPARE(notes(),
                 QStringList("confirm|Reload Dataset|\"dm\" is already open.\n"
                             "Do you want to reload it?"));
        QCOMPARE(active(), first.data());
    }
    QCOMPARE(loaded, QStringList({"dm", "ts"}));

    script.confirmation = true;
    QVERIFY(open("dm"));
    QVERIFY2(first.isNull(), "the old dataset goes before the new one is read");
    QCOMPARE(titles(), QStringList({"ts", "dm"}));
    QCOMPARE(window->openFiles().find(path("dm")), active());

    isFailing = true;
    QVERIFY(!open("dm"));
    QVERIFY(notes().last().startsWith("warn|Open File|"));
    QCOMPARE(titles(), QStringList("ts"));
    QCOMPARE(window->openFiles().size(), std::size_t{1});
}

void TestMainWindow::fileClosedWhileReloadIsAskedForIsOpenedAnew()
{
    open("dm");
    script.whileAsked = [this] { active()->close(); };
    for (const bool isWanted : {true, false}) {
        script.confirmation = isWanted;
        QCOMPARE(open("dm"), isWanted);
        QCOMPARE(titles(), isWanted ? QStringList("dm") : QStringList());
        QCOMPARE(window->openFiles().isEmpty(), !isWanted);
    }
    QCOMPARE(notes().size(), 2);
}

void TestMainWindow::keysSwitchAndCloseDatasets()
{
    for (const char* name : {"dm1", "dm2", "dm3", "dm4"}) {
        open(name);
    }
    QTest::keyClick(window.get(), Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(active()->windowTitle(), "dm1");
    QCOMPARE(QApplication::focusWidget(), &view());
    QTest::keyClick(&view(), Qt::Key_W);
    QTRY_COMPARE(titles(), QStringList({"dm2", "dm3", "dm4"}));
    activate(1);
    QTest::keyClick(&view(), Qt::Key_W, Qt::ControlModifier);
    QTRY_COMPARE(titles(), QStringList({"dm2", "dm4"}));
    QTest::keyClick(window.get(), Qt::Key_W, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(window->openFiles().isEmpty());
    window->on_actionClose_triggered();  // with nothing to close
}

void TestMainWindow::droppedFilesOpen()
{
    QMimeData data;
    data.setUrls({QUrl("https://brindlework.example/dm.xpt"), QUrl::fromLocalFile(path("dm 1.xpt")),
                  QUrl::fromLocalFile(path("ae.xpt"))});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &drop);
    QTRY_COMPARE(titles(), QStringList({"dm 1.xpt", "ae.xpt"}));
}

void TestMainWindow::receivedFilesWaitForOpenQuestions()
{
    QDialog question(window.get());
    question.setModal(true);
    question.show();
    window->openReceivedFile(path("dm"));
    QTest::qWait(200);  // longer than the wait before another try
    QVERIFY(titles().isEmpty());
    question.close();
    QTRY_COMPARE(titles(), QStringList("dm"));
}

void TestMainWindow::layoutsDivideTheWidth()
{
    window->resize(1600, 900);
    const auto hasShare = [this](const QString& name, int percent) {
        const QDockWidget* side = dock(name);
        return side->isHidden() ? percent == 0 : side->width() == window->width() * percent / 100;
    };
    const QList<std::pair<int, int>> shares{{20, 20}, {30, 0}, {0, 30}, {0, 0}};
    const QStringList layouts{"actionLayout3", "actionLayout1", "actionLayout4", "actionLayout2"};
    for (qsizetype i = 0; i < layouts.size(); ++i) {
        trigger(layouts[i]);
        QVERIFY(child<QAction>(layouts[i])->isChecked());
        QTRY_VERIFY2(hasShare("Workspace", shares[i].first), qPrintable(layouts[i]));
        QTRY_VERIFY2(hasShare("Freq", shares[i].second), qPrintable(layouts[i]));
        QCOMPARE(isSeen("Desc"), shares[i].second > 0);
        QVERIFY(!isSeen("ShortcutKeys"));
    }
    window.reset();
    settings().setValue("lastLayout", "25:50:25");
    openWindow();
    QTRY_VERIFY(hasShare("Workspace", 25) && hasShare("Freq", 25));
    QVERIFY(child<QActionGroup>("layoutGroup")->checkedAction() == nullptr);
}

void TestMainWindow::docksAreShownInFrontAndPutBack()
{
    const auto toggle = [this](const char* name) {
        dock(name)->toggleViewAction()->trigger();
        QCOMPARE(dock(name)->toggleViewAction()->isChecked(), !dock(name)->isHidden());
    };
    trigger("actionLayout3");
    QVERIFY(!dock("ShortcutKeys")->isHidden() && !isSeen("ShortcutKeys"));
    toggle("ShortcutKeys");
    QTRY_VERIFY(isSeen("ShortcutKeys"));
    toggle("ShortcutKeys");
    QVERIFY(dock("ShortcutKeys")->isHidden());
    for (const char* name : {"Output", "Log"}) {
        toggle(name);
        QTRY_VERIFY(isSeen(name));
        QTRY_VERIFY(dock(name)->height() >= window->height() / 4);
    }

    window->addDockWidget(Qt::LeftDockWidgetArea, dock("Log"));
    dock("Variables")->hide();
    child<QToolBar>("toolBarLf")->hide();
    trigger("actionResetArrangement");
    QCOMPARE(window->dockWidgetArea(dock("Log")), Qt::BottomDockWidgetArea);
    QTRY_VERIFY(isSeen("Variables") && isSeen("Workspace") && dock("Log")->isHidden());
    QVERIFY(dock("Freq")->isHidden() && !child<QToolBar>("toolBarLf")->isHidden());
    QVERIFY(child<QAction>("actionLayout1")->isChecked());
}

void TestMainWindow::whatIsSetIsKeptForTheNextStart()
{
    QVERIFY(child<QAction>("actionLayout1")->isChecked());
    trigger("actionLayout4");
    window->resize(900, 700);
    window->addDockWidget(Qt::LeftDockWidgetArea, dock("Log"));
    dock("Desc")->close();
    dock("ShortcutKeys")->close();
    QTRY_VERIFY(isSeen("Freq"));
    window->resizeDocks({dock("Freq")}, {400}, Qt::Horizontal);
    child<QToolBar>("toolBarBy")->hide();
    labelsButton()->click();
    trigger("actionToggleDarkMode");
    script.uniqueVarName = "SUBJID";
    trigger("actionOptions");
    open("dm");
    view().run(GridCommand::LargerFont);
    const int letters = view().fontSize();
    startAgain();

    QCOMPARE(settings().value("columnHeaderMode").toString(), "Var Label");
    QCOMPARE(settings().value("lastLayout").toString(), "0:70:30");
    QVERIFY(child<QAction>("actionLayout4")->isChecked());
    QVERIFY(dock("Desc")->isHidden() && dock("ShortcutKeys")->isHidden());
    QTRY_COMPARE(dock("Freq")->width(), 400);
    QVERIFY(dock("Workspace")->isHidden());
    QVERIFY(!dock("Freq")->isHidden());
    QCOMPARE(window->size(), QSize(900, 700));
    QCOMPARE(window->dockWidgetArea(dock("Log")), Qt::LeftDockWidgetArea);
    QVERIFY(child<QToolBar>("toolBarBy")->isHidden());
    QVERIFY(labelsButton()->isChecked());
    open("dm");
    QCOMPARE(view().tableModel()->headerMode(), HeaderMode::VariableLabels);
    QCOMPARE(view().fontSize(), letters);
    QVERIFY(isDark());
    trigger("actionToggleDarkMode");
    QVERIFY(!isDark());
    script.uniqueVarName.clear();
    trigger("actionOptions");
    QCOMPARE(notes(), QStringList({"options|USUBJID", "options|SUBJID"}));
}

void TestMainWindow::damagedSettingsGiveWayToTheUsualOnes()
{
    window->addDockWidget(Qt::LeftDockWidgetArea, dock("Log"));
    window->close();
    window.reset();
    {
        QSettings settings(path("settings.ini"), QSettings::IniFormat);
        const QByteArray state = settings.value("state").toByteArray();
        settings.setValue("state", state.left(state.size() * 2 / 5));
        settings.setValue("geometry", "no geometry");
        settings.setValue("lastLayout", "10:20:30:40");
        settings.setValue("columnHeaderMode", 17);
        settings.setValue("fontSize", 100'000);
    }
    openWindow();
    QVERIFY(log->take().find("could not be restored") != std::string::npos);
    QCOMPARE(window->dockWidgetArea(dock("Log")), Qt::BottomDockWidgetArea);
    QVERIFY(!dock("Workspace")->isHidden());
    QVERIFY(child<QAction>("actionLayout1")->isChecked());
    QVERIFY(!labelsButton()->isChecked());
    open("dm");
    QVERIFY(view().fontSize() <= 72);
}

void TestMainWindow::withoutAWorkspaceTheProgramEnds()
{
    const QString other = path("no-database");
    QVERIFY(QDir().mkpath(other + "/quorlane.db"));  // a folder in the file's place
    window = std::make_unique<MainWindow>(temporaryServices(other, script));
    QCOMPARE(notes(),
             QStringList({"critical|Database Initialization Failed|"
                          "The application will now exit."}));
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(log->take().find("Error: Unable to open database!") != std::string::npos);
    window->close();
    QVERIFY(!QSettings(other + "/settings.ini", QSettings::IniFormat).contains("state"));
}

void TestMainWindow::actionsDoWhatTheySay()
{
    trigger("actionDocumentation");
    QCOMPARE(urls, QStringList("https://quorlane.brindlework.example/documentation/"));
    trigger("actionAbout");
    QVERIFY(notes().join('\n').startsWith("inform|About Quorlane|"));

    auto* editor = child<QPlainTextEdit>("programEditor");
    trigger("actionNewSasProgram");
    QVERIFY(editor->isVisible() && editor->hasFocus());
    editor->setPlainText("keep A;");
    for (const bool isWanted : {false, true}) {
        script.confirmation = isWanted;
        trigger("actionNewSasProgram");
        QCOMPARE(notes().size(), 1);
        QCOMPARE(editor->toPlainText(), isWanted ? "" : "keep A;");
    }
    for (const QToolBar* bar : window->findChildren<QToolBar*>()) {
        for (const QAction* action : bar->actions()) {
            QVERIFY(action->objectName().isEmpty() || !action->icon().isNull());
        }
    }
    trigger("actionExit");
    QVERIFY(!window->isVisible());
}

QTEST_MAIN(TestMainWindow)
#include "TestMainWindow.moc"

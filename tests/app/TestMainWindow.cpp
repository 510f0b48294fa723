#include "app/open/LoadProgress.h"
#include "app/window/NoticeBar.h"
#include "data/StatDataset.h"
#include "samples/TableWriter.h"
#include "tests/support/WindowFixture.h"

#include <QActionGroup>
#include <QDialog>
#include <QDir>
#include <QDropEvent>
#include <QMimeData>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
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
    void fileDialogBeginsWithTheFilterThatFits();
    void openingSaysWhatAndHowFar();
    void openFileIsReadAnewOnlyWhenWanted();
    void fileClosedWhileReloadIsAskedForIsOpenedAnew();
    void keysSwitchAndCloseDatasets();
    void droppedFilesOpen();
    void receivedFilesWaitForOpenQuestions();
    void datasetsOfOneNameAreToldApart();
    void datasetsOfAFileAreChosenAndOpened();
    void reloadKeepsWhatTheUserHasMade();
    void whatMayBeDamagedIsToldAboveTheGrid();
    void layoutsDivideTheWidth();
    void docksAreShownInFrontAndPutBack();
    void whatIsSetIsKeptForTheNextStart();
    void damagedSettingsGiveWayToTheUsualOnes();
    void withoutAWorkspaceTheProgramEnds();
    void programsAreKeptUntilTheyAreSavedOrGivenUp();
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

void TestMainWindow::fileDialogBeginsWithTheFilterThatFits()
{
    const auto filter = [this] {
        trigger("actionOpenSasData");
        return notes().join('\n').section('|', 4).trimmed();
    };
    const QString dataSets = "SAS Data Files (*.sas7bdat)";
    const QString transport = "SAS Transport Files (*.xpt)";
    QCOMPARE(filter(), dataSets);
    script.chosenFiles = {write("dm.XPT")};
    QCOMPARE(filter(), dataSets);
    script.chosenFiles.clear();
    QCOMPARE(filter(), transport);
    (void)write("ae.sas7bdat");
    QCOMPARE(filter(), transport);
    window->openDatasetFile(path("ae.sas7bdat"));
    window->openDatasetFile(path("other.sav"));
    QCOMPARE(filter(), dataSets);
    QVERIFY(QFile::remove(path("ae.sas7bdat")));
    QCOMPARE(filter(), transport);
}

void TestMainWindow::openingSaysWhatAndHowFar()
{
    open("dm");
    QCOMPARE(messageWhileLoading, "Opening dm …");
    QCOMPARE(window->statusBar()->currentMessage(), "");
    {
        LoadProgress patient(*window, "dm", std::chrono::hours(1));
        patient.advance(50);
        QVERIFY(child<QFrame>("loadProgress") == nullptr);
    }
    {
        LoadProgress progress(*window, "ae.xpt", std::chrono::milliseconds(0));
        progress.advance(10);
        const QFrame* panel = child<QFrame>("loadProgress");
        QVERIFY(panel->isVisible() && window->rect().contains(panel->geometry()));
        QCOMPARE(panel->findChild<QLabel*>()->text(), "Opening ae.xpt …");
        progress.advance(40);
        QCOMPARE(panel->findChild<QProgressBar*>()->value(), 40);
    }
    QVERIFY(child<QFrame>("loadProgress") == nullptr);
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
                  QUrl::fromEncoded("file://" + path("m%FCnch.xpt").toUtf8())});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &drop);
    QTRY_COMPARE(titles(), QStringList({"dm 1.xpt", "m\uFFFDnch.xpt"}));
    QVERIFY(window->openFiles().find(path("m") + QChar(0xDCFC) + "nch.xpt") != nullptr);
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

void TestMainWindow::datasetsOfOneNameAreToldApart()
{
    const auto openThem = [this](const QStringList& names) {
        trigger("actionCloseAll");
        for (const QString& name : names) {
            open(name);
        }
        return titles();
    };
    QCOMPARE(openThem({"a/dm.x", "b/dm.x", "b/ae.x"}),
             QStringList({"dm.x (in a)", "dm.x (in b)", "ae.x"}));
    const auto* tabs = area().findChild<QTabBar*>();
    QCOMPARE(tabs->tabToolTip(1), path("b/dm.x"));
    QCOMPARE(window->windowTitle(), "ae - " + path("b/ae.x") + " - Quorlane");
    datasetAt(0)->close();
    QCOMPARE(titles(), QStringList({"dm.x", "ae.x"}));
    QCOMPARE(openThem({"s1/data/dm", "s2/data/dm", "dm"}),
             QStringList({"dm (in s1/data)", "dm (in s2/data)",
                          "dm (in " + QFileInfo(folder->path()).fileName() + ")"}));
    trigger("actionCloseAll");
    QCOMPARE(window->windowTitle(), "Quorlane");
}

void TestMainWindow::datasetsOfAFileAreChosenAndOpened()
{
    openWindow(true);
    samples::Table members[3];
    for (std::size_t i = 0; i < 3; ++i) {
        members[i].name = std::array{"DM", "AE", "LB"}[i];
        members[i].label = "Study";
        members[i].columns = {samples::numberColumn("N", "Number")};
        members[i].rows = {{double(i)}};
    }
    const QString file = path("study.xpt");
    samples::writeTransport(file.toStdString(), members);
    QVERIFY(!window->openDatasetFile(file));
    script.chosenDatasets = {"AE", "LB"};
    QVERIFY(window->openDatasetFile(file));
    QCOMPARE(notes(), QStringList(2, "datasets|study.xpt|DM AE LB"));
    QCOMPARE(titles(), QStringList({"AE (in study.xpt)", "LB (in study.xpt)"}));
    QCOMPARE(window->openFiles().find(file + "::LB"), active());
    QCOMPARE(active()->property("filePath").toString(), file);
    QCOMPARE(dock("Variables")->windowTitle(), "Variable - LB");
    QCOMPARE(area().findChild<QTabBar*>()->tabToolTip(0), file + "\nStudy");

    script.chosenDatasets = {"AE"};
    QVERIFY(window->openDatasetFile(file));
    QVERIFY(notes().last().startsWith("confirm|Reload Dataset|\"AE\" is already open."));
    trigger("actionReload");
    QCOMPARE(view().model()->index(0, 0).data().toString(), "1");
    QVERIFY(QFile::remove(file));
    trigger("actionReload");
    QCOMPARE(notes().join('\n').section('|', 0, 2),
             "warn|Open File|Failed to open dataset 'AE' in " + file + ".");
}

void TestMainWindow::reloadKeepsWhatTheUserHasMade()
{
    openWindow(true);
    samples::Table table;
    table.columns = {samples::textColumn("SEX", "Sex"), samples::numberColumn("AGE", "Age"),
                     samples::numberColumn("ID", "Number")};
    table.rows = {{"F", 44.0, 1.0}, {"M", 31.0, 2.0}, {"F", 52.0, 3.0}, {"M", 60.0, 4.0}};
    const QString file = path("dm.xpt");
    const auto replace = [&] {
        samples::writeTable(path("new.xpt").toStdString(), table);
        QFile::remove(file);
        QVERIFY(QFile::rename(path("new.xpt"), file));
    };
    replace();
    window->openDatasetFile(file);
    window->openDatasetFile(write("ae.xpt"));
    activate(0);
    submit("comboBoxDf", "if AGE > 40");
    view().onHeaderClicked(1);
    view().setCurrentIndex(view().model()->index(view().tableModel()->rowOf(2), 2));
    view().run(GridCommand::ShiftLeft);
    view().opened()->setShown({{0}}, false);
    view().setColumnWidth(1, 177);
    const ViewState state = view().opened()->state();

    table.rows.push_back({"F", 71.0, 5.0});
    table.rows[0][1] = 39.0;
    replace();
    QTRY_COMPARE(titles().at(0), "dm.xpt - changed on disk");
    auto* notice = active()->findChild<NoticeBar*>("fileNotice");
    QVERIFY(notice->isVisible() && notice->text().contains("changed"));
    QTest::keyClick(&view(), Qt::Key_F5);
    QCOMPARE(titles(), QStringList({"dm.xpt", "ae.xpt"}));
    QVERIFY(active() == datasetAt(0) && view().hasFocus());
    QVERIFY(!active()->findChild<NoticeBar*>("fileNotice")->isVisible());
    QCOMPARE(rows(), "Rows: 3/5");
    QVERIFY(view().opened()->state() == state);
    QCOMPARE(boxText("comboBoxDf"), state.datasetFilter);
    QCOMPARE(view().tableModel()->observationAt(view().currentIndex().row()), 2);
    QCOMPARE(view().currentIndex().column(), 2);
    QCOMPARE(view().columnWidth(1), 177);

    table.columns[1] = samples::numberColumn("AGEY", "Age");
    replace();
    QTRY_COMPARE(titles().at(0), "dm.xpt - changed on disk");
    active()->findChild<NoticeBar*>("fileNotice")->findChild<QPushButton*>()->click();
    QTRY_COMPARE(titles().at(0), "dm.xpt");
    QVERIFY(notes().join('\n').contains("could not be kept: if AGE > 40|"));
    QCOMPARE(status().mid(0, 2), QStringList({"Rows: 5/5", "Vars: 2/3"}));

    const DatasetWindow* last = active();
    QVERIFY(QFile::remove(file));
    QTRY_COMPARE(titles().at(0), "dm.xpt - gone from disk");
    trigger("actionReload");
    QVERIFY(notes().join('\n').startsWith("warn|Open File|"));
    QCOMPARE(active(), last);
    QCOMPARE(window->openFiles().find(file), last);
    replace();
    QTRY_COMPARE(titles().at(0), "dm.xpt - changed on disk");
}

void TestMainWindow::whatMayBeDamagedIsToldAboveTheGrid()
{
    const auto notice = [this] { return active()->findChild<NoticeBar*>("damageNotice"); };
    open("worn");
    QVERIFY(notice()->isVisible() && notice()->geometry().bottom() < view().geometry().top());
    QCOMPARE(notice()->text(), "Its end may be missing.");
    open("dm");
    QVERIFY(!notice()->isVisible());
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

void TestMainWindow::programsAreKeptUntilTheyAreSavedOrGivenUp()
{
    const auto editors = [this] { return window->findChildren<QPlainTextEdit*>("programEditor"); };
    trigger("actionNewSasProgram");
    QVERIFY(editors().front()->isVisible() && editors().front()->hasFocus());
    QTest::keyClicks(editors().front(), "keep A;");
    trigger("actionNewSasProgram");
    QTest::keyClicks(editors().back(), "drop B;");
    auto* tabs = qobject_cast<QTabWidget*>(dock("Code")->widget());
    QCOMPARE(tabs->tabText(2), "Untitled 2*");
    trigger("actionExit");  // which is cancelled
    QVERIFY(window->isVisible());
    QCOMPARE(notes().size(), 1);
    script.unsaved = UserPrompts::Unsaved::Save;
    emit tabs->tabCloseRequested(2);  // and no file named
    QCOMPARE(tabs->count(), 3);
    script.savePath = path("b.sas");
    trigger("actionSaveSasProgram");
    QCOMPARE(tabs->tabText(2), "b.sas");
    QTest::keyClicks(editors().back(), "C");
    QTest::keyClick(editors().back(), Qt::Key_S, Qt::ControlModifier);
    notes();
    emit tabs->tabCloseRequested(2);
    QCOMPARE(notes(), QStringList());
    script.chosenFiles = {path("b.sas"), path("absent.sas")};
    trigger("actionOpenSasProgram");
    QCOMPARE(tabs->tabText(2), "b.sas");
    QCOMPARE(qobject_cast<QPlainTextEdit*>(tabs->widget(2))->toPlainText(), "drop B;C");
    QVERIFY(notes().last().startsWith("warn|Open SAS Program|Failed to open the file: "));
    emit tabs->tabCloseRequested(0);
    QCOMPARE(tabs->count(), 3);
    script.savePath = path("no/such/folder");
    trigger("actionExit");
    QVERIFY(window->isVisible());
    QVERIFY(notes().last().startsWith("warn|Save SAS Program|Failed to save the file: "));
    script.unsaved = UserPrompts::Unsaved::Discard;
    trigger("actionExit");
    QVERIFY(!window->isVisible());
    QCOMPARE(notes().size(), 1);
}

void TestMainWindow::actionsDoWhatTheySay()
{
    trigger("actionDocumentation");
    QCOMPARE(urls, QStringList("https://quorlane.brindlework.example/documentation/"));
    QCOMPARE(window->statusBar()->currentMessage(), "");
    opensPages = false;
    trigger("actionDocumentation");
    QVERIFY(window->statusBar()->currentMessage().contains(urls.last()));
    trigger("actionAbout");
    QVERIFY(notes().join('\n').startsWith("inform|About Quorlane|"));

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

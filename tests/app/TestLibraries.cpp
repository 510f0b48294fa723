#include "app/dialogs/FolderVariablesDialog.h"
#include "app/dialogs/QuickOpenDialog.h"
#include "app/docks/FolderScanner.h"
#include "app/docks/WorkspaceTree.h"
#include "samples/TableWriter.h"
#include "tests/support/WindowFixture.h"
#include "workspace/LibraryRegistry.h"
#include "workspace/ManageLibrariesDialog.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QDir>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QSqlQuery>
#include <QTableView>
#include <QTimer>

#include <future>

/// Libraries in the window's tree, over a real store and real folders.
class TestLibraries : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { shutDown(); }
    void openedFolderIsListedAndItsFilesOpen();
    void watchedFolderIsFollowed();
    void folderThatCannotBeListedSaysSoAndStays();
    void silentFolderKeepsNobodyWaiting();
    void librariesAreRenamedAndRemoved();
    void librariesComeBackAsTheyWereSet();
    void librarysFilterIsForWhatIsOpenedFromIt();
    void typingNarrowsTheTree();
    void menusHoldWhatIsAliveAndDoIt();
    void variablesOfAllDatasetsAreCompared();

private:
    /// Writes files into a folder of the test.
    QString fill(const QString& folderName, const QStringList& names, const char* bytes = "x");
    void openFolder(const QString& dir);
    [[nodiscard]] WorkspaceTree& tree() const { return *child<WorkspaceTree>("treeView"); }
    [[nodiscard]] QModelIndex library(int row = 0) const
    {
        return tree().model()->index(row, 0, tree().model()->index(0, 0));
    }
    [[nodiscard]] QModelIndex file(int row) const
    {
        return tree().model()->index(row, 0, library());
    }
    /// What stands below an index, parted by blanks.
    [[nodiscard]] QString below(const QModelIndex& index) const
    {
        QStringList texts;
        for (int row = 0; row < tree().model()->rowCount(index); ++row) {
            texts << tree().model()->index(row, 0, index).data().toString();
        }
        return texts.join(' ');
    }
    [[nodiscard]] QString libraries() const { return below(tree().model()->index(0, 0)); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(&tree(), key, modifiers);
    }
    /// The entries of the menu of an index; the one of that name is chosen, if any is named.
    QStringList menuOf(const QModelIndex& index, const QString& chosen = {}) const;
};

void TestLibraries::init()
{
    startUp();
    new QAbstractItemModelTester(tree().model(), tree().model());
}

QString TestLibraries::fill(const QString& folderName, const QStringList& names, const char* bytes)
{
    QDir(folder->path()).mkpath(folderName);
    for (const QString& name : names) {
        QFile written(path(folderName + '/' + name));
        if (written.open(QIODevice::WriteOnly)) {
            written.write(bytes);
        }
    }
    return path(folderName);
}

void TestLibraries::openFolder(const QString& dir)
{
    script.chosenFolder = dir;
    trigger("actionOpenFolder");
    notes();
}

void TestLibraries::openedFolderIsListedAndItsFilesOpen()
{
    const QString dir = fill("adam", {"b.XPT", "ADSL.sas7bdat", "notes.txt", "c.csv", "a.dta"});
    script.chosenFolder = dir;
    trigger("actionOpenFolder");
    QCOMPARE(notes(), QStringList("folder|Open Folder|"));
    QTRY_COMPARE(below(library()), "a.dta ADSL.sas7bdat b.XPT c.csv");
    QVERIFY(tree().isExpanded(library()));
    QCOMPARE(library().data(Qt::UserRole + 3).toInt(), 1);
    QCOMPARE(file(1).data(Qt::UserRole).toString(), dir + "/ADSL.sas7bdat");
    QVERIFY(file(1).data(Qt::UserRole + 1) != library().data(Qt::UserRole + 1));
    const QString tip = file(1).data(Qt::ToolTipRole).toString();
    QVERIFY2(tip.startsWith(dir + "/ADSL.sas7bdat\n1 ") && tip.contains("changed"),
             qPrintable(tip));
    QVERIFY(!file(0).data(Qt::DecorationRole).isNull());

    // Once more, by another way to write it, and cancelled.
    openFolder(dir + "/../adam/");
    openFolder({});
    QCOMPARE(libraries(), "adam");

    emit tree().doubleClicked(file(1));
    QTRY_COMPARE(loaded, QStringList("ADSL.sas7bdat"));
    tree().setFocus();
    tree().setCurrentIndex(file(2));
    tree().selectionModel()->select(file(0), QItemSelectionModel::Select);
    press(Qt::Key_Return);
    QTRY_COMPARE(loaded.mid(1), QStringList({"a.dta", "b.XPT"}));
    tree().setFocus();
    tree().setCurrentIndex(file(3));
    press(Qt::Key_Enter);
    QTRY_COMPARE(loaded.mid(3), QStringList("c.csv"));

    QuickOpenDialog palette(*child<WorkspaceTree>("treeView")->libraries()->model(), nullptr);
    QCOMPARE(palette.findChild<QListView*>()->model()->index(1, 0).data().toString(),
             "ADSL.sas7bdat\t" + dir + "/ADSL.sas7bdat");
    startAgain();
    QTRY_COMPARE(below(library()), "a.dta ADSL.sas7bdat b.XPT c.csv");
}

void TestLibraries::watchedFolderIsFollowed()
{
    const QString dir = fill("adam", {"b.csv", "d.csv", "e.csv"});
    openFolder(dir);
    QTRY_COMPARE(below(library()), "b.csv d.csv e.csv");
    QVERIFY(window->openDatasetFile(dir + "/d.csv"));
    const QPersistentModelIndex kept(file(1));
    tree().setCurrentIndex(kept);
    const QString tip = kept.data(Qt::ToolTipRole).toString();
    QFile::remove(dir + "/b.csv");
    fill("adam", {"a.csv", "c.csv"});
    fill("adam", {"d.csv"}, "longer");
    QTRY_COMPARE(below(library()), "a.csv c.csv d.csv e.csv");
    QTRY_VERIFY(kept.isValid() && kept.data(Qt::ToolTipRole).toString() != tip);
    QCOMPARE(tree().currentIndex(), QModelIndex(kept));
    QTRY_COMPARE(titles(), QStringList("d.csv - changed on disk"));
    for (const char* name : {"a.csv", "c.csv", "d.csv", "e.csv"}) {
        QFile::remove(dir + '/' + name);
    }
    QTRY_COMPARE(below(library()), "No datasets");
    QTRY_COMPARE(titles(), QStringList("d.csv - gone from disk"));
}

void TestLibraries::folderThatCannotBeListedSaysSoAndStays()
{
    const QString dir = fill("share/adam", {"a.csv"});
    openFolder(dir);
    QTRY_COMPARE(below(library()), "a.csv");
    QVERIFY(QDir(path("share")).rename("adam", "other"));
    QTRY_COMPARE(below(library()), "The folder cannot be listed");
    QVERIFY(library().data(Qt::ToolTipRole).toString().contains("No such file"));
    QVERIFY(QString::fromStdString(log->take()).contains("warning: Failed to enumerate " + dir));
    // Somebody asks, and is told.
    tree().setCurrentIndex(library());
    press(Qt::Key_F5);
    QTRY_VERIFY(window->statusBar()->currentMessage().startsWith(dir + ": The folder cannot be"));
    static_cast<void>(log->take());
    QVERIFY(QDir(path("share")).rename("other", "adam"));
    QTRY_COMPARE(below(library()), "a.csv");
    QCOMPARE(library().data(Qt::ToolTipRole).toString(), dir);
}

void TestLibraries::silentFolderKeepsNobodyWaiting()
{
    std::promise<void> answer;
    const std::shared_future<void> answered(answer.get_future());
    auto scanner = std::make_unique<FolderScanner>([answered](const QString& asked) {
        if (asked == "/dead") {
            answered.wait();
        }
        return std::vector<datasetfolder::File>{{asked + "/a.csv", {}}};
    });
    QSignalSpy silent(scanner.get(), &FolderScanner::signalSilent);
    QStringList listed;
    connect(scanner.get(), &FolderScanner::signalListed, this,
            [&](const QString& asked) { listed << asked; });
    scanner->setWatched({"/dead", "/live"});
    QTRY_COMPARE(listed, QStringList("/live"));
    QTRY_COMPARE(silent.size(), 1);
    QCOMPARE(silent[0][0].toString(), "/dead");
    QTest::qWait(1500);  // in which the other folder has been looked at again and was the same
    QCOMPARE(silent.size(), 1);
    QCOMPARE(listed, QStringList("/live"));
    scanner->scan("/other");
    QTRY_COMPARE(listed, QStringList({"/live", "/other"}));
    scanner.reset();  // which its thread outlives
    answer.set_value();
    QTest::qWait(50);
    QCOMPARE(listed.size(), 2);
}

void TestLibraries::librariesAreRenamedAndRemoved()
{
    openFolder(fill("sdtm", {"a.csv"}));
    openFolder(fill("adam", {"a.csv"}));
    QCOMPARE(libraries(), "sdtm adam");
    const auto rename = [this](const QString& name) {
        tree().setCurrentIndex(library());
        press(Qt::Key_F2);
        auto* editor = tree().viewport()->findChild<QLineEdit*>();
        editor->selectAll();
        QTest::keyClicks(editor, name);
        tree().libraries()->child(0)->setStatusTip(name);  // something else of it changes
        QTest::keyClick(editor, Qt::Key_Return);
        QTest::qWait(0);  // in which the name is taken over
    };
    rename("Tabulations");
    QCOMPARE(libraries(), "Tabulations adam");
    rename(" ");
    QCOMPARE(libraries(), "Tabulations adam");
    {
        // Another program holds the store.
        QSqlDatabase other = QSqlDatabase::addDatabase("QSQLITE", "other");
        other.setDatabaseName(path("quorlane.db"));
        QVERIFY(other.open() && QSqlQuery(other).exec("BEGIN IMMEDIATE"));
        static_cast<void>(log->take());
        rename("x");
        QCOMPARE(libraries(), "Tabulations adam");
        QVERIFY(log->take().find("error: Update failed:") != std::string::npos);
        QVERIFY(window->statusBar()->currentMessage().contains("database is locked"));
        QSqlQuery(other).exec("ROLLBACK");
    }
    QSqlDatabase::removeDatabase("other");

    tree().setCurrentIndex(library());
    press(Qt::Key_Delete);
    QCOMPARE(libraries(), "Tabulations adam");
    script.confirmation = true;
    press(Qt::Key_Delete);
    QCOMPARE(libraries(), "adam");
    QVERIFY(notes().last().startsWith("confirm|Remove Library|Remove the library \"Tabulations\""));
    QVERIFY(QFile::exists(path("sdtm/a.csv")));
    startAgain();
    QCOMPARE(libraries(), "adam");
}

void TestLibraries::librariesComeBackAsTheyWereSet()
{
    for (const char* name : {"a", "b", "c"}) {
        openFolder(fill(name, {"x.csv"}));
    }
    tree().collapse(library(2));
    QTimer::singleShot(0, window.get(), [this] {
        auto* dialog = window->findChild<ManageLibrariesDialog*>();
        dialog->findChild<QPushButton*>("moveDown")->click();
        dialog->accept();
    });
    trigger("actionManageLibraries");
    QCOMPARE(libraries(), "b a c");
    QVERIFY(tree().isExpanded(library(1)) && !tree().isExpanded(library(2)));
    QTRY_COMPARE(below(library(1)), "x.csv");

    WorkspaceStore store(StoreLocations{folder->path(), {}});
    QVERIFY(store.initDatabase());
    const LibraryRegistry registry(store);
    QList<Library> list = registry.load().value();
    list[1].opensItself = true;
    list[1].color = "#aa0000";
    list[2].watchesChanges = false;
    QVERIFY(registry.save(list, {}).ok());
    startAgain();
    QCOMPARE(libraries(), "b a c");
    QVERIFY(!tree().isExpanded(library(0)) && tree().isExpanded(library(1)));
    QCOMPARE(library(1).data(Qt::ForegroundRole).value<QBrush>().color(), QColor("#aa0000"));
    QVERIFY(!library(0).data(Qt::ForegroundRole).isValid());
    // A folder that is not watched is read when it is asked for.
    QTRY_COMPARE(below(library(2)), "x.csv");
    fill("c", {"y.csv"});
    fill("b", {"y.csv"});
    QTRY_COMPARE(below(library(0)), "x.csv y.csv");
    QCOMPARE(below(library(2)), "x.csv");
    tree().setCurrentIndex(library(2));
    press(Qt::Key_F5);
    QTRY_COMPARE(below(library(2)), "x.csv y.csv");
}

void TestLibraries::librarysFilterIsForWhatIsOpenedFromIt()
{
    for (const char* name : {"men", "all", "wrong"}) {
        openFolder(fill(name, {"dm.csv"}));
    }
    WorkspaceStore store(StoreLocations{folder->path(), {}});
    QVERIFY(store.initDatabase());
    QList<Library> list = LibraryRegistry(store).load().value();
    list[0].filter = "SEX = \"M\"";
    list[2].filter = "SEX like";
    QVERIFY(LibraryRegistry(store).save(list, {}).ok());
    startAgain();
    QVERIFY(open("all/dm.csv"));
    QCOMPARE(rows(), "Rows: 3/3");
    QVERIFY(open("wrong/dm.csv"));
    QCOMPARE(rows(), "Rows: 3/3");
    QVERIFY(window->statusBar()->currentMessage().startsWith(
        "The library filter of wrong cannot be used: "));
    QVERIFY(open("men/dm.csv"));
    QCOMPARE(rows(), "Rows: 1/3");
    QCOMPARE(status().at(3), "LF: where SEX = \"M\"");
    QCOMPARE(boxText("comboBoxLf"), "where SEX = \"M\"");
    // One in force stays.
    submit("comboBoxLf", "clear library filter");
    submit("comboBoxLf", "where AGE > 30");
    trigger("actionCloseAll");
    QVERIFY(open("men/dm.csv"));
    QCOMPARE(status().at(3), "LF: where AGE > 30");
    QVERIFY(!window->statusBar()->currentMessage().contains("cannot be used"));
}

void TestLibraries::typingNarrowsTheTree()
{
    openFolder(fill("adam", {"adae.csv", "adsl.csv", "advs.csv"}));
    openFolder(fill("sdtm", {"ae.csv", "vs.csv"}));
    QTRY_COMPARE(below(library(1)), "ae.csv vs.csv");
    tree().collapse(library(1));
    tree().setFocus();
    QTest::keyClicks(&tree(), "q");  // a key of the window elsewhere
    auto* box = child<QLineEdit>("treeFilter");
    QVERIFY(box->isVisible());
    QCOMPARE(libraries(), "");
    box->setText("VS");
    QCOMPARE(libraries(), "adam sdtm");
    QCOMPARE(below(library(0)) + '|' + below(library(1)), "advs.csv|vs.csv");
    QVERIFY(tree().isExpanded(library(1)));
    QTest::keyClick(box, Qt::Key_Return);
    QTRY_COMPARE(loaded, QStringList("advs.csv"));
    box->setFocus();
    box->setText("sdt");
    QCOMPARE(libraries() + '|' + below(library()), "sdtm|ae.csv vs.csv");
    box->setText("adsl");
    QTest::keyClick(box, Qt::Key_Down);
    QVERIFY(tree().hasFocus());
    press(Qt::Key_Escape);
    QVERIFY(!box->isVisible());
    QCOMPARE(libraries(), "adam sdtm");
    QVERIFY(tree().isExpanded(library(0)) && !tree().isExpanded(library(1)));
}

QStringList TestLibraries::menuOf(const QModelIndex& index, const QString& chosen) const
{
    tree().setCurrentIndex(index);
    QContextMenuEvent byKey(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(tree().viewport(), &byKey);
    QStringList entries;
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu == nullptr) {
        return entries;
    }
    for (QAction* action : menu->actions()) {
        entries << action->text().section('\t', 0, 0);
        if (entries.last() == chosen) {
            action->trigger();
        }
    }
    entries.removeAll("");
    menu->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return entries;
}

void TestLibraries::menusHoldWhatIsAliveAndDoIt()
{
    openFolder(fill("sdtm", {"ae.csv", "dm.csv", "SUPPAE.xpt"}));
    QTRY_COMPARE(below(library()), "ae.csv dm.csv SUPPAE.xpt");
    auto* session = new QStandardItem("Week 12");
    session->setData(workspaceitem::Session, workspaceitem::KindRole);
    session->setData(5, workspaceitem::IdRole);
    tree().sessions()->appendRow(session);
    const QModelIndex top = tree().model()->index(0, 0);
    QCOMPARE(menuOf(top), QStringList({"Open Folder", "Manage Libraries"}));
    QCOMPARE(menuOf(library(), "Set Library Name"),
             QStringList(
                 {"Variables of All Datasets", "Refresh", "Edit", "Set Library Name", "Remove"}));
    QVERIFY(tree().viewport()->findChild<QLineEdit*>() != nullptr);
    QCOMPARE(menuOf(file(0), "Open").first(), "Open");
    QTRY_COMPARE(loaded, QStringList("ae.csv"));
    QCOMPARE(menuOf(file(0)),
             QStringList({"Open", "Properties", "Join SUPP--", "Compare With..."}));
    // The program of its dataset speaks of the library as it is called now.
    QTRY_VERIFY(window->activeView() != nullptr);
    emit tree().signalRenameRequested(tree().library(1), "Week 12");
    QVERIFY(child<QPlainTextEdit>("programWindow")->toPlainText().contains("libname week_12 '"));

    QSignalSpy joined(&tree(), &WorkspaceTree::signalJoinRequested);
    QSignalSpy compared(&tree(), &WorkspaceTree::signalCompareRequested);
    QSignalSpy properties(&tree(), &WorkspaceTree::signalPropertiesRequested);
    QSignalSpy opened(&tree(), &WorkspaceTree::signalSessionOpenRequested);
    QSignalSpy deleted(&tree(), &WorkspaceTree::signalSessionDeleteRequested);
    QCOMPARE(menuOf(file(0), "Join SUPP--"),
             QStringList({"Open", "Properties", "Join SUPP--", "Compare With..."}));
    QCOMPARE(menuOf(file(1), "Compare With..."),
             QStringList({"Open", "Properties", "Compare With..."}));
    QCOMPARE(joined.value(0).value(0).toString(), path("sdtm/ae.csv"));
    QVERIFY2(notes().value(0).startsWith("warn|Join SUPP--|"), "what is read has no DOMAIN");
    QCOMPARE(compared.value(0).value(0).toString(), path("sdtm/dm.csv"));
    press(Qt::Key_Return, Qt::AltModifier);
    QCOMPARE(properties.value(0).value(0).toString(), path("sdtm/dm.csv"));
    QCOMPARE(menuOf(tree().indexOf(*session), "Open Session"),
             QStringList({"Open Session", "Delete Session"}));
    press(Qt::Key_Delete);
    QCOMPARE(opened.value(0).value(0).toInt() + deleted.value(0).value(0).toInt(), 10);
    script.confirmation = true;
    menuOf(library(), "Remove");
    QCOMPARE(libraries(), "");
    notes();
}

void TestLibraries::variablesOfAllDatasetsAreCompared()
{
    openWindow(true);
    QDir(folder->path()).mkpath("sdtm");
    for (const auto& [name, label] : {std::pair("dm", "Sex"), {"ae", "Gender"}, {"vs", "Sex"}}) {
        samples::Table table;
        table.name = QString(name).toUpper().toStdString();
        table.columns = {samples::numberColumn("AGE", "Age"), samples::textColumn("SEX", label)};
        table.rows = {{40.0, "F"}};
        samples::writeTable(path(QString("sdtm/%1.xpt").arg(name)).toStdString(), table);
    }
    fill("sdtm", {"bad.xpt"});
    openFolder(path("sdtm"));
    QTRY_COMPARE(below(library()), "ae.xpt bad.xpt dm.xpt vs.xpt");
    menuOf(library(), "Variables of All Datasets");
    auto* dialog = child<FolderVariablesDialog>("");
    auto* count = dialog->findChild<QLabel*>("count");
    QTRY_COMPARE(count->text(), "Variables: 6 of 6, datasets: 3");
    QVERIFY(dialog->findChild<QLabel*>("problems")->text().startsWith("bad.xpt: "));
    QVERIFY(log->take().find("warning: bad.xpt: ") != std::string::npos);
    auto* table = dialog->findChild<QTableView*>();
    const auto row = [table](int number) {
        QStringList texts;
        for (int column = 0; column < table->model()->columnCount(); ++column) {
            const QModelIndex index = table->model()->index(number, column);
            const bool isMarked = index.data(Qt::FontRole).value<QFont>().bold();
            texts << index.data().toString() + (isMarked ? "*" : "");
        }
        return texts.join('|');
    };
    QCOMPARE(row(0), "AE|AGE|Numeric|8||Age|");
    QCOMPARE(row(3), "AE|SEX|Character|1||Gender*|label");
    QCOMPARE(table->model()->index(3, 5).data(Qt::ToolTipRole).toString(),
             "Gender: AE\nSex: DM, VS");
    dialog->findChild<QCheckBox*>()->setChecked(true);
    dialog->findChild<QLineEdit*>()->setText("sex");
    QCOMPARE(count->text(), "Variables: 3 of 6, datasets: 3");
    dialog->findChild<QLineEdit*>()->setText("gender");
    QCOMPARE(row(0), "AE|SEX|Character|1||Gender*|label");
    dialog->findChild<QLineEdit*>()->setText("dm");
    table->sortByColumn(3, Qt::DescendingOrder);
    table->selectRow(0);
    dialog->activateWindow();
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Return);
    QCOMPARE(titles(), QStringList("dm.xpt"));
    QCOMPARE(view().currentVariable(), 1);
    // A dataset that is open is not read again.
    view().cmdGotoVariable(0);
    emit table->doubleClicked(table->model()->index(0, 1));
    QCOMPARE(titles(), QStringList("dm.xpt"));
    QCOMPARE(view().currentVariable(), 1);
}

QTEST_MAIN(TestLibraries)
#include "TestLibraries.moc"

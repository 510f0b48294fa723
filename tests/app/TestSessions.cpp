#include "app/docks/WorkspaceTree.h"
#include "tests/support/WindowFixture.h"

#include <QContextMenuEvent>
#include <QFile>
#include <QMenu>
#include <QSignalSpy>
#include <QSqlError>
#include <QSqlQuery>
#include <QStandardItem>

/// Sessions from "Save Session..." to the nodes of the workspace tree and back.
class TestSessions : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void sessionBringsBackFiltersAndHiddenVariables();
    void sessionBringsBackOneDatasetOfSeveral();
    void whatCannotBeRestoredIsTold();
    void sessionThatCannotBeOpenedChangesNothing();
    void savingAsksForANameAndSaysWhatIsMissing();
    void nodesAreAnsweredByKeysMouseAndMenu();

private:
    void save(const QString& name);
    void run(const QString& statement);
    [[nodiscard]] QStandardItem& node() const { return *tree().sessions(); }
    [[nodiscard]] WorkspaceTree& tree() const { return *child<WorkspaceTree>("treeView"); }
    [[nodiscard]] QStringList nodes() const;
    void restore(int row = 0) const { tree().activate(tree().indexOf(*node().child(row))); }
    [[nodiscard]] QString message() const { return window->statusBar()->currentMessage(); }

    QSqlDatabase m_probe;
};

void TestSessions::init()
{
    startUp();
    for (const char* name : {"dm1", "dm2", "ts"}) {
        QVERIFY(QFile(path(name)).open(QIODevice::WriteOnly));
    }
    m_probe = QSqlDatabase::addDatabase("QSQLITE", "probe");
    m_probe.setDatabaseName(path("quorlane.db"));
    QVERIFY(m_probe.open());
}

void TestSessions::cleanup()
{
    m_probe = {};
    QSqlDatabase::removeDatabase("probe");
    shutDown();
}

void TestSessions::save(const QString& name)
{
    script.text = name;
    trigger("actionSaveSession");
    QVERIFY(notes().join("").startsWith("text|Save Session|Session name:|Session 20"));
}

/// Changes what is stored, which another window would have done.
void TestSessions::run(const QString& statement)
{
    QSqlQuery query(m_probe);
    QVERIFY2(query.exec(statement), qPrintable(query.lastError().text()));
}

QStringList TestSessions::nodes() const
{
    QStringList names;
    for (int row = 0; row < node().rowCount(); ++row) {
        names << node().child(row)->text();
    }
    return names;
}

void TestSessions::sessionBringsBackFiltersAndHiddenVariables()
{
    open("dm1");
    open("ts");
    open("dm2");
    submit("comboBoxDf", "if AGE < 50");
    submit("comboBoxDf", "drop SEX");
    activate(0);
    submit("comboBoxDf", "where SEX = 'F'");
    save("  Week 1 ");
    QCOMPARE(message(), "Session \"Week 1\" saved");
    QCOMPARE(nodes(), QStringList("Week 1"));
    submit("comboBoxDf", "clf");
    submit("comboBoxDf", "where AGE = 1");
    open("dm3");

    startAgain();
    QCOMPARE(nodes(), QStringList("Week 1"));
    open("dm3");
    submit("comboBoxDf", "where AGE = 1");
    (void)log->take();
    const QPointer<DatasetWindow> old = active();
    restore();
    QVERIFY(old.isNull());
    QCOMPARE(titles(), QStringList({"dm1", "ts", "dm2"}));
    QCOMPARE(message(), "Session \"Week 1\" restored");
    QCOMPARE(active(), datasetAt(0));
    QCOMPARE(status(),
             QStringList({"Rows: 2/3", "Vars: 2/2", "By: NA", "LF: where SEX = 'F'", "DF: NA"}));
    QVERIFY(child<QPlainTextEdit>("programWindow")->toPlainText().contains("set "));
    activate(2);
    QCOMPARE(status(),
             QStringList(
                 {"Rows: 1/3", "Vars: 1/2", "By: NA", "LF: where SEX = 'F'", "DF: if AGE < 50"}));
    QVERIFY(child<QPlainTextEdit>("programWindow")
                ->toPlainText()
                .endsWith("    where SEX = 'F';\n    if AGE < 50;\n    keep age;\nrun;"));
    // A session without a library filter takes it away.
    run("UPDATE session_dataset SET libraryFilter = NULL");
    restore();
    QCOMPARE(status().at(3), "LF: NA");
}

void TestSessions::sessionBringsBackOneDatasetOfSeveral()
{
    run("INSERT INTO session (name, updatedAt) VALUES ('one', '2001-01-01')");
    run("INSERT INTO session_dataset (session_id, filePath, datasetName) VALUES (1, '" + path("dm1")
        + "', 'ae')");
    startAgain();
    restore();
    QCOMPARE(active()->property("fileKey").toString(), path("dm1") + "::ae");
    save("two");
    startAgain();
    QCOMPARE(nodes(), QStringList({"two", "one"}));
    restore();
    QCOMPARE(active()->property("fileKey").toString(), path("dm1") + "::ae");
}

void TestSessions::whatCannotBeRestoredIsTold()
{
    open("ts");
    open("dm1");
    submit("comboBoxDf", "if AGE < 50");
    submit("comboBoxDf", "drop SEX");
    open("dm2");
    submit("comboBoxDf", "where SEX = 'F'");
    save("one");
    QVERIFY(QFile::remove(path("ts")));
    QVERIFY(QFile::rename(path("dm2"), path("bad2")));
    run("UPDATE session_dataset SET filePath = '" + path("bad2") + "' WHERE position = 2");
    run("UPDATE session_dataset SET datasetFilter = 'if NOSUCH < 50', "
        "hiddenVariables = '[\"SEX\", \"NOSUCH\"]' WHERE position = 1");
    restore();
    QCOMPARE(titles(), QStringList("dm1"));
    QCOMPARE(status(),
             QStringList({"Rows: 2/3", "Vars: 1/2", "By: NA", "LF: where SEX = 'F'", "DF: NA"}));
    QCOMPARE(
        notes(),
        QStringList(
            {"warn|Open File|Failed to open the file: " + path("bad2") + "|The header is damaged.",
             "warn|Open Session|Some datasets could not be restored:\n" + path("ts") + '\n'
                 + path("dm1") + ": if NOSUCH < 50 (There is no variable named NOSUCH)\n"
                 + path("bad2") + '|'}));
    QCOMPARE(message(), "Session \"one\" restored");

    run("UPDATE session_dataset SET libraryFilter = 'where <', datasetFilter = 'if AGE < 50'");
    run("DELETE FROM session_dataset WHERE position <> 1");
    restore();
    QVERIFY(notes().join("").startsWith("warn|Open Session|Some datasets could not be restored:\n"
                                        + path("dm1") + ": where < ("));
    QCOMPARE(status(),
             QStringList({"Rows: 2/3", "Vars: 1/2", "By: NA", "LF: NA", "DF: if AGE < 50"}));

    QVERIFY(QFile::remove(path("dm1")));
    restore();
    QCOMPARE(titles(), QStringList());
    QCOMPARE(notes(),
             QStringList("warn|Open Session|Some datasets could not be restored:\n" + path("dm1")
                         + '|'));
}

void TestSessions::sessionThatCannotBeOpenedChangesNothing()
{
    open("dm1");
    save("one");
    open("dm2");
    run("DELETE FROM session_dataset");
    restore();
    QCOMPARE(notes(),
             QStringList("inform|Open Session|The session \"one\" does not contain any datasets."));
    run("DELETE FROM session");
    restore();
    QCOMPARE(notes(), QStringList("critical|Open Session|The selected session no longer exists."));
    QCOMPARE(titles(), QStringList({"dm1", "dm2"}));
}

void TestSessions::savingAsksForANameAndSaysWhatIsMissing()
{
    const auto told = [this](const std::optional<QString>& name) {
        script.text = name;
        trigger("actionSaveSession");
        return notes().mid(1).join("");
    };
    QCOMPARE(told(" "), "warn|Save Session|Session name cannot be empty.|");
    QCOMPARE(told("one"),
             "inform|Save Session|No datasets are currently open to include in the "
             "session.");
    open("dm1");
    QCOMPARE(told(std::nullopt), "");
    QCOMPARE(nodes(), QStringList());
    run("DROP TABLE session_dataset");
    QVERIFY(told("one").startsWith("critical|Save Session|Failed to persist dataset information "
                                   "for the session.\nno such table"));
    QCOMPARE(nodes(), QStringList());
}

void TestSessions::nodesAreAnsweredByKeysMouseAndMenu()
{
    open("dm1");
    save("one");
    save("two");
    run("UPDATE session SET updatedAt = '2001-01-01' WHERE name = 'two'");
    save("one");
    QCOMPARE(nodes(), QStringList({"one", "two"}));
    const QStandardItem* item = node().child(1);
    QCOMPARE(item->toolTip(), "two");
    QCOMPARE(item->data(Qt::UserRole + 1).toInt(), 7);
    QCOMPARE(item->data(Qt::UserRole + 3).toInt(), 2);
    QVERIFY(!item->isEditable() && !item->icon().isNull());

    const QModelIndex index = tree().indexOf(*item);
    const QPoint place = tree().visualRect(index).center();
    QVERIFY(tree().viewport()->rect().contains(place));
    const QSignalSpy opened(&tree(), &WorkspaceTree::signalSessionOpenRequested);
    tree().setCurrentIndex(index);
    tree().setFocus();
    QTest::keyClick(&tree(), Qt::Key_Return);
    QCOMPARE(opened.size(), 1);
    QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(tree().viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(opened.size(), 2);
    const auto choose = [&](int row) {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QCoreApplication::sendEvent(tree().viewport(), &event);
        auto* menu = tree().findChild<QMenu*>();
        menu->actions().at(row)->trigger();
        menu->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    choose(0);
    QCOMPARE(opened.size(), 3);
    QCOMPARE(opened.last().first().toInt(), 2);
    QCOMPARE(message(), "Session \"two\" restored");

    choose(1);
    QVERIFY(notes().join("").startsWith(
        "confirm|Delete Session|Do you want to delete the session \"two\"?"));
    QCOMPARE(nodes().size(), 2);
    script.confirmation = true;
    QTest::keyClick(&tree(), Qt::Key_Delete);
    QCOMPARE(notes().size(), 1);
    QCOMPARE(nodes(), QStringList("one"));
    QCOMPARE(tree().currentIndex().data().toString(), "one");
    startAgain();
    QCOMPARE(nodes(), QStringList("one"));
}

QTEST_MAIN(TestSessions)
#include "TestSessions.moc"

#include "tests/support/LogCapture.h"
#include "workspace/WorkspaceStore.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTemporaryDir>
#include <QTest>

/// Stores are looked into, and prepared, through a connection that is not their own.
class TestWorkspaceStore : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void newStoreHasTheTables_data();
    void newStoreHasTheTables();
    void optionsAreKept();
    void optionWithoutAValueYieldsTheDefault();
    void optionOfAnUnusableStoreYieldsTheDefault();
    void storeStandsInTheFirstPlaceThereIs_data();
    void storeStandsInTheFirstPlaceThereIs();
    void folderIsCreatedWithItsParents();
    void olderStoreIsBroughtUpToDate_data();
    void olderStoreIsBroughtUpToDate();
    void halfUpdatedStoreIsFinished();
    void secondStartChangesNothing();
    void unusableStoreFails_data();
    void unusableStoreFails();
    void storeWithoutAPlaceFails_data();
    void storeWithoutAPlaceFails();
    void storeWithoutAnyLocationFails();
    void lockedStoreFailsSoon();
    void storeThatCannotBeWrittenIsStillRead();
    void deletingASessionDeletesItsDatasets();
    void connectionGoesWithTheStore();
    void twoStoresDoNotMeet();

private:
    [[nodiscard]] QString path(const QString& name) const { return m_folder->filePath(name); }
    [[nodiscard]] WorkspaceStore store() const { return WorkspaceStore({m_folder->path(), {}}); }
    void run(const QStringList& statements);
    [[nodiscard]] QStringList rows(const QString& query);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<LogCapture> m_log;
    QSqlDatabase m_probe;
};

void TestWorkspaceStore::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_log = std::make_unique<LogCapture>();
    m_probe = QSqlDatabase::addDatabase("QSQLITE", "probe");
    m_probe.setDatabaseName(path("quorlane.db"));
}

void TestWorkspaceStore::cleanup()
{
    m_probe = {};
    QSqlDatabase::removeDatabase("probe");
    // Every message that a test expects it has taken.
    QCOMPARE(m_log->take(), "");
    m_log.reset();
    QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
}

/// Executes statements on the file, which is created where it is missing.
void TestWorkspaceStore::run(const QStringList& statements)
{
    QVERIFY(m_probe.isOpen() || m_probe.open());
    for (const QString& statement : statements) {
        QSqlQuery query(m_probe);
        QVERIFY2(query.exec(statement), qPrintable(query.lastError().text()));
    }
}

/// One text a row, its values parted by bars, NULL written as such.
QStringList TestWorkspaceStore::rows(const QString& statement)
{
    QStringList rows;
    if (!m_probe.isOpen() && !m_probe.open()) {
        return {"no store"};
    }
    QSqlQuery query(statement, m_probe);
    while (query.next()) {
        QStringList values;
        for (int column = 0; column < query.record().count(); ++column) {
            values << (query.isNull(column) ? "NULL" : query.value(column).toString());
        }
        rows << values.join('|');
    }
    return rows;
}

void TestWorkspaceStore::newStoreHasTheTables_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QStringList>("columns");
    // Name, type, whether it must be given, default, place in the primary key.
    QTest::newRow("library")
        << "library"
        << QStringList{"id|INTEGER|0|NULL|1",           "dir|TEXT|1|NULL|0",
                       "libAlias|TEXT|0|NULL|0",        "libName|TEXT|0|NULL|0",
                       "libFilter|TEXT|0|NULL|0",       "watchChangesFlag|INTEGER|0|NULL|0",
                       "autoOpenFlag|INTEGER|0|NULL|0", "color|TEXT|0|NULL|0",
                       "sortOrder|INTEGER|0|NULL|0",    "bookmarkData|BLOB|0|NULL|0"};
    QTest::newRow("option") << "option" << QStringList{"key|TEXT|0|NULL|1", "value|TEXT|0|NULL|0"};
    QTest::newRow("session") << "session"
                             << QStringList{"id|INTEGER|0|NULL|1", "name|TEXT|1|NULL|0",
                                            "createdAt|TEXT|0|CURRENT_TIMESTAMP|0",
                                            "updatedAt|TEXT|0|CURRENT_TIMESTAMP|0"};
    QTest::newRow("session_dataset")
        << "session_dataset"
        << QStringList{"id|INTEGER|0|NULL|1",         "session_id|INTEGER|1|NULL|0",
                       "position|INTEGER|1|0|0",      "filePath|TEXT|1|NULL|0",
                       "datasetName|TEXT|0|NULL|0",   "libraryFilter|TEXT|0|NULL|0",
                       "datasetFilter|TEXT|0|NULL|0", "hiddenVariables|TEXT|0|NULL|0"};
}

void TestWorkspaceStore::newStoreHasTheTables()
{
    QFETCH(QString, table);
    WorkspaceStore store = this->store();
    QVERIFY(store.initDatabase());
    QTEST(rows("SELECT name, type, \"notnull\", dflt_value, pk FROM pragma_table_info('" + table
               + "')"),
          "columns");
    run({"INSERT INTO session (name) VALUES ('Week 12')"});
    QSqlQuery again(m_probe);
    QVERIFY(!again.exec("INSERT INTO session (name) VALUES ('Week 12')"));
}

void TestWorkspaceStore::optionsAreKept()
{
    {
        WorkspaceStore store = this->store();
        QVERIFY(store.initDatabase());
        store.saveOption("uniqueVarName", "SUBJID");
        QCOMPARE(store.loadOption("uniqueVarName", "USUBJID"), "SUBJID");
        store.saveOption("uniqueVarName", "it's \"PATID\"; -- Ä");
        store.saveOption("other", "1");
    }
    WorkspaceStore store = this->store();
    QVERIFY(store.initDatabase());
    QCOMPARE(store.loadOption("uniqueVarName", "USUBJID"), "it's \"PATID\"; -- Ä");
    QCOMPARE(rows("SELECT COUNT(*) FROM option"), QStringList("2"));
}

void TestWorkspaceStore::optionWithoutAValueYieldsTheDefault()
{
    WorkspaceStore store = this->store();
    QVERIFY(store.initDatabase());
    QCOMPARE(store.loadOption("uniqueVarName", "USUBJID"), "USUBJID");
    run({"DROP TABLE option"});
    QCOMPARE(store.loadOption("uniqueVarName", "USUBJID"), "USUBJID");
}

void TestWorkspaceStore::optionOfAnUnusableStoreYieldsTheDefault()
{
    WorkspaceStore store({{}, {}});
    QVERIFY(!store.initDatabase());
    QVERIFY(!m_log->take().empty());
    QCOMPARE(store.loadOption("uniqueVarName", "USUBJID"), "USUBJID");
    store.saveOption("uniqueVarName", "SUBJID");
    QVERIFY(m_log->take().starts_with("error: Error: Failed to save option to database."));
}

void TestWorkspaceStore::storeStandsInTheFirstPlaceThereIs_data()
{
    QTest::addColumn<QString>("home");
    QTest::addColumn<QString>("appData");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("log");
    QTest::newRow("home") << "home"
                          << "data"
                          << "home/quorlane.db"
                          << "";
    QTest::newRow("no home") << ""
                             << "data"
                             << "data/quorlane.db"
                             << "warning: Warning: No writable home location, falling back to "
                                "AppDataLocation.\n";
}

void TestWorkspaceStore::storeStandsInTheFirstPlaceThereIs()
{
    QFETCH(QString, home);
    QFETCH(QString, appData);
    QFETCH(QString, file);
    WorkspaceStore store({home.isEmpty() ? QString() : path(home), path(appData)});
    QVERIFY(store.initDatabase());
    QVERIFY(QFile::exists(path(file)));
    QTEST(QString::fromStdString(m_log->take()), "log");
}

void TestWorkspaceStore::folderIsCreatedWithItsParents()
{
    WorkspaceStore store({path("a/b/ü"), {}});
    QVERIFY(store.initDatabase());
    QVERIFY(QFile::exists(path("a/b/ü/quorlane.db")));
}

void TestWorkspaceStore::olderStoreIsBroughtUpToDate_data()
{
    QTest::addColumn<QString>("lateColumns");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("libraries");
    const QStringList seeded{"2|0|NULL", "3|1|NULL", "7|2|NULL"};
    QTest::newRow("neither") << "" << QStringList{"sortOrder", "bookmarkData"} << seeded;
    QTest::newRow("bookmark only")
        << ", bookmarkData BLOB" << QStringList{"bookmarkData", "sortOrder"} << seeded;
    QTest::newRow("order only") << ", sortOrder INTEGER DEFAULT 5"
                                << QStringList{"sortOrder", "bookmarkData"}
                                << QStringList{"2|5|NULL", "3|5|NULL", "7|5|NULL"};
    QTest::newRow("in capitals") << ", SORTORDER INTEGER DEFAULT 5, BOOKMARKDATA BLOB"
                                 << QStringList{"SORTORDER", "BOOKMARKDATA"}
                                 << QStringList{"2|5|NULL", "3|5|NULL", "7|5|NULL"};
}

void TestWorkspaceStore::olderStoreIsBroughtUpToDate()
{
    QFETCH(QString, lateColumns);
    run({"CREATE TABLE library (id INTEGER PRIMARY KEY AUTOINCREMENT, dir TEXT NOT NULL"
             + lateColumns + ')',
         "INSERT INTO library (id, dir) VALUES (7, '/c'), (2, '/a'), (3, '/b')"});
    WorkspaceStore store = this->store();
    QVERIFY(store.initDatabase());
    QTEST(rows("SELECT name FROM pragma_table_info('library')").mid(2), "names");
    QTEST(rows("SELECT id, sortOrder, bookmarkData FROM library ORDER BY id"), "libraries");
}

void TestWorkspaceStore::halfUpdatedStoreIsFinished()
{
    run({"CREATE TABLE library (id INTEGER PRIMARY KEY, dir TEXT NOT NULL, sortOrder INTEGER)",
         "CREATE TABLE option (key TEXT PRIMARY KEY, value TEXT)",
         "INSERT INTO option VALUES ('uniqueVarName', 'SUBJID')"});
    WorkspaceStore store = this->store();
    QVERIFY(store.initDatabase());
    QCOMPARE(store.loadOption("uniqueVarName", "USUBJID"), "SUBJID");
    QCOMPARE(rows("SELECT name FROM sqlite_master WHERE type = 'table' "
                  "AND name NOT LIKE 'sqlite%' ORDER BY name"),
             QStringList({"library", "option", "session", "session_dataset"}));
}

void TestWorkspaceStore::secondStartChangesNothing()
{
    {
        WorkspaceStore store = this->store();
        QVERIFY(store.initDatabase());
        run({"INSERT INTO library (dir, sortOrder, bookmarkData) VALUES ('/b', 9, x'00ff')"});
    }
    const QStringList before = rows("SELECT sql FROM sqlite_master ORDER BY name");
    WorkspaceStore store = this->store();
    QVERIFY(store.initDatabase());
    QCOMPARE(rows("SELECT sql FROM sqlite_master ORDER BY name"), before);
    QCOMPARE(rows("SELECT id, dir, sortOrder, hex(bookmarkData) FROM library"),
             QStringList("1|/b|9|00FF"));
}

void TestWorkspaceStore::unusableStoreFails_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("statements");
    QTest::addColumn<QString>("message");
    const QByteArray none;
    QTest::newRow("not a database") << QByteArray("USUBJID,AGE\n").repeated(200) << QStringList()
                                    << "Error: Failed to create table: library.";
    QTest::newRow("damaged") << "SQLite format 3" + QByteArray(4081, '\0') << QStringList()
                             << "Error: Failed to create table: library.";
    for (const QString name : {"library", "option", "session", "session_dataset"}) {
        // An index keeps a table from having its name.
        QTest::newRow(qPrintable("no place for " + name))
            << none << QStringList{"CREATE TABLE t (x)", "CREATE INDEX " + name + " ON t (x)"}
            << "Error: Failed to create table: " + name + '.';
    }
    QTest::newRow("no place for sortOrder")
        << none << QStringList{"CREATE VIEW library AS SELECT 1 AS id, 2 AS bookmarkData"}
        << "Error: Failed to add sortOrder column:";
    QTest::newRow("no place for bookmarkData")
        << none << QStringList{"CREATE VIEW library AS SELECT 1 AS id, 2 AS sortOrder"}
        << "Error: Failed to add bookmarkData column:";
    QTest::newRow("order refused")
        << none
        << QStringList{"CREATE TABLE library (id INTEGER PRIMARY KEY, dir TEXT)",
                       "INSERT INTO library (dir) VALUES ('/a')",
                       "CREATE TRIGGER t BEFORE UPDATE ON library "
                       "BEGIN SELECT RAISE(ABORT, 'no'); END"}
        << "Error: Failed to seed sortOrder values:";
}

void TestWorkspaceStore::unusableStoreFails()
{
    QFETCH(QByteArray, content);
    QFETCH(QStringList, statements);
    QFETCH(QString, message);
    if (statements.isEmpty()) {
        QFile file(path("quorlane.db"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    } else {
        run(statements);
    }
    WorkspaceStore store = this->store();
    QVERIFY(!store.initDatabase());
    const QString log = QString::fromStdString(m_log->take());
    QVERIFY2(log.startsWith("error: " + message), qPrintable(log));
    QCOMPARE(log.count('\n'), 1);
}

void TestWorkspaceStore::storeWithoutAPlaceFails_data()
{
    QTest::addColumn<QString>("home");
    QTest::addColumn<QString>("log");
    QTest::newRow("folder cannot be made")
        << "file/home"
        << "error: Error: Failed to create writable directory for session database: ";
    QTest::newRow("file cannot be opened") << "."
                                           << "error: Error: Unable to open database! ";
}

void TestWorkspaceStore::storeWithoutAPlaceFails()
{
    QFETCH(QString, home);
    QFETCH(QString, log);
    QVERIFY(QDir(m_folder->path()).mkdir("quorlane.db"));
    QVERIFY(QFile(path("file")).open(QIODevice::WriteOnly));
    WorkspaceStore store({path(home), path("data")});
    QVERIFY(!store.initDatabase());
    QVERIFY(QString::fromStdString(m_log->take()).startsWith(log + path(home)));
    // The second place is for systems without the first one only.
    QVERIFY(!QFile::exists(path("data")));
}

void TestWorkspaceStore::storeWithoutAnyLocationFails()
{
    WorkspaceStore store({{}, {}});
    QVERIFY(!store.initDatabase());
    QCOMPARE(m_log->take(),
             "warning: Warning: No writable home location, falling back to AppDataLocation.\n"
             "error: Error: Unable to determine writable location for session database.\n");
}

void TestWorkspaceStore::lockedStoreFailsSoon()
{
    run({"CREATE TABLE other (x)", "BEGIN EXCLUSIVE"});
    WorkspaceStore store = this->store();
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!store.initDatabase());
    QVERIFY(timer.elapsed() < 4000);
    QVERIFY(m_log->take().starts_with("error: Error: Failed to create table: library."));
}

void TestWorkspaceStore::storeThatCannotBeWrittenIsStillRead()
{
    {
        WorkspaceStore store = this->store();
        QVERIFY(store.initDatabase());
        store.saveOption("uniqueVarName", "SUBJID");
    }
    WorkspaceStore store = this->store();
    QVERIFY(store.initDatabase());
    // As a file without the permission to write, which would not keep an administrator off.
    QSqlQuery(store.database()).exec("PRAGMA query_only = ON");
    store.saveOption("uniqueVarName", "PATID");
    QVERIFY(m_log->take().starts_with("error: Error: Failed to save option to database."));
    QCOMPARE(store.loadOption("uniqueVarName", "USUBJID"), "SUBJID");
}

void TestWorkspaceStore::deletingASessionDeletesItsDatasets()
{
    WorkspaceStore store = this->store();
    QVERIFY(store.initDatabase());
    run({"INSERT INTO session (id, name) VALUES (1, 'a'), (2, 'b')",
         "INSERT INTO session_dataset (session_id, filePath) VALUES (1, '/x'), (1, '/y'), "
         "(2, '/z')"});
    QVERIFY(QSqlQuery(store.database()).exec("DELETE FROM session WHERE id = 1"));
    QCOMPARE(rows("SELECT session_id, position, filePath FROM session_dataset"),
             QStringList("2|0|/z"));
}

void TestWorkspaceStore::connectionGoesWithTheStore()
{
    {
        WorkspaceStore store = this->store();
        QVERIFY(store.initDatabase());
        QVERIFY(store.database().isOpen());
        QCOMPARE(QSqlDatabase::connectionNames().size(), 2);
    }
    QCOMPARE(QSqlDatabase::connectionNames(), QStringList("probe"));
}

void TestWorkspaceStore::twoStoresDoNotMeet()
{
    WorkspaceStore first({path("a"), {}});
    WorkspaceStore second({path("b"), {}});
    QVERIFY(first.initDatabase() && second.initDatabase());
    first.saveOption("uniqueVarName", "SUBJID");
    QCOMPARE(first.loadOption("uniqueVarName", "USUBJID"), "SUBJID");
    QCOMPARE(second.loadOption("uniqueVarName", "USUBJID"), "USUBJID");
}

QTEST_GUILESS_MAIN(TestWorkspaceStore)
#include "TestWorkspaceStore.moc"

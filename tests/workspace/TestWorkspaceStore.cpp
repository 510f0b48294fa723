#include "tests/support/LogCapture.h"
#include "workspace/WorkspaceStore.h"

#include <QDir>
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
    void newStoreHasTheTables();
    void deletingASessionDeletesItsDatasets();
    void optionsAreKeptByEachStoreForItself();
    void optionThatCannotBeReadOrWrittenIsNoHarm();
    void storeStandsInTheFirstPlaceThereIs();
    void olderStoreIsBroughtUpToDate();
    void unusableStoreFails();
    void damagedStoreFails();
    void storeWithoutAPlaceFails();
    void lockedStoreFailsSoon();

private:
    using Store = std::unique_ptr<WorkspaceStore>;

    [[nodiscard]] QString path(const QString& name) const { return m_folder->filePath(name); }
    /// A store in the folder of the test, or in one of that name below it.
    [[nodiscard]] Store store(const QString& name = ".") const
    {
        return std::make_unique<WorkspaceStore>(StoreLocations{path(name), {}});
    }
    [[nodiscard]] QString logged() { return QString::fromStdString(m_log->take()); }
    void begin(const QString& folder = ".");
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
    begin();
}

/// From now on the probe looks into the store in that folder below the one of the test.
void TestWorkspaceStore::begin(const QString& folder)
{
    m_probe.close();
    QVERIFY(QDir(m_folder->path()).mkpath(folder));
    m_probe.setDatabaseName(path(folder + "/quorlane.db"));
}

void TestWorkspaceStore::cleanup()
{
    m_probe = {};
    QSqlDatabase::removeDatabase("probe");
    // Every message that a test expects it has taken, and connections go with their stores.
    QCOMPARE(logged(), "");
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

/// One text a row, its values parted by bars.
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
            values << query.value(column).toString();
        }
        rows << values.join('|');
    }
    return rows;
}

void TestWorkspaceStore::newStoreHasTheTables()
{
    const Store store = this->store();
    QVERIFY(store->initDatabase());
    // Other versions read them: name, type, default, and * where a value must be given.
    QCOMPARE(rows("SELECT t.name || ': ' || group_concat(c.name || ' ' || c.type || "
                  "iif(c.\"notnull\", '*', '') || ifnull(' ' || c.dflt_value, ''), ', ') "
                  "FROM sqlite_master t, pragma_table_info(t.name) c "
                  "WHERE t.type = 'table' AND t.name NOT LIKE 'sqlite%' "
                  "GROUP BY t.name ORDER BY t.name"),
             QStringList(
                 {"library: id INTEGER, dir TEXT*, libAlias TEXT, libName TEXT, libFilter TEXT, "
                  "watchChangesFlag INTEGER, autoOpenFlag INTEGER, color TEXT, sortOrder INTEGER, "
                  "bookmarkData BLOB",
                  "option: key TEXT, value TEXT",
                  "session: id INTEGER, name TEXT*, createdAt TEXT CURRENT_TIMESTAMP, "
                  "updatedAt TEXT CURRENT_TIMESTAMP",
                  "session_dataset: id INTEGER, session_id INTEGER*, position INTEGER* 0, "
                  "filePath TEXT*, datasetName TEXT, libraryFilter TEXT, datasetFilter TEXT, "
                  "hiddenVariables TEXT"}));
    run({"INSERT INTO session (name) VALUES ('Week 12')"});
    QSqlQuery again(m_probe);
    QVERIFY(!again.exec("INSERT INTO session (name) VALUES ('Week 12')"));
}

void TestWorkspaceStore::deletingASessionDeletesItsDatasets()
{
    const Store store = this->store();
    QVERIFY(store->initDatabase());
    run({"INSERT INTO session (id, name) VALUES (1, 'a'), (2, 'b')",
         "INSERT INTO session_dataset (session_id, filePath) VALUES (1, '/x'), (1, '/y'), "
         "(2, '/z')"});
    QVERIFY(QSqlQuery(store->database()).exec("DELETE FROM session WHERE id = 1"));
    QCOMPARE(rows("SELECT session_id, filePath FROM session_dataset"), QStringList("2|/z"));
}

void TestWorkspaceStore::optionsAreKeptByEachStoreForItself()
{
    const Store other = store("other");
    QVERIFY(other->initDatabase());
    for (const QString value : {"SUBJID", "it's \"PATID\"; -- Ä"}) {
        const Store store = this->store();
        QVERIFY(store->initDatabase());
        store->saveOption("uniqueVarName", value);
        QCOMPARE(store->loadOption("uniqueVarName", "USUBJID"), value);
    }
    const Store store = this->store();
    QVERIFY(store->initDatabase());
    QCOMPARE(store->loadOption("uniqueVarName", "USUBJID"), "it's \"PATID\"; -- Ä");
    QCOMPARE(other->loadOption("uniqueVarName", "USUBJID"), "USUBJID");
}

void TestWorkspaceStore::optionThatCannotBeReadOrWrittenIsNoHarm()
{
    const Store store = this->store();
    QVERIFY(store->initDatabase());
    store->saveOption("uniqueVarName", "SUBJID");
    // As a file without the permission to write, which would not keep an administrator off.
    QSqlQuery(store->database()).exec("PRAGMA query_only = ON");
    store->saveOption("uniqueVarName", "PATID");
    QVERIFY(logged().startsWith("error: Error: Failed to save option to database."));
    QCOMPARE(store->loadOption("uniqueVarName", "USUBJID"), "SUBJID");
    run({"DROP TABLE option"});
    QCOMPARE(store->loadOption("uniqueVarName", "USUBJID"), "USUBJID");

    WorkspaceStore unusable({{}, {}});
    QVERIFY(!unusable.initDatabase());
    QVERIFY(!logged().isEmpty());
    QCOMPARE(unusable.loadOption("uniqueVarName", "USUBJID"), "USUBJID");
    unusable.saveOption("uniqueVarName", "SUBJID");
    QVERIFY(logged().startsWith("error: Error: Failed to save option to database."));
}

void TestWorkspaceStore::storeStandsInTheFirstPlaceThereIs()
{
    for (const QString home : {"home", "a/b/ü", ""}) {
        WorkspaceStore store({home.isEmpty() ? QString() : path(home), path("data")});
        QVERIFY(store.initDatabase());
        QVERIFY(QFile::exists(path((home.isEmpty() ? "data" : home) + "/quorlane.db")));
        QCOMPARE(logged(),
                 home.isEmpty() ? "warning: Warning: No writable home location, falling back to "
                                  "AppDataLocation.\n"
                                : "");
    }
}

void TestWorkspaceStore::olderStoreIsBroughtUpToDate()
{
    const struct
    {
        const char* lateColumns;
        const char* names;
        const char* orders;
    } table[]{
        {"", "sortOrder bookmarkData", "0 1 2"},
        {", bookmarkData BLOB", "bookmarkData sortOrder", "0 1 2"},
        {", sortOrder INTEGER DEFAULT 5", "sortOrder bookmarkData", "5 5 5"},
        {", SORTORDER INTEGER DEFAULT 5, BOOKMARKDATA BLOB", "SORTORDER BOOKMARKDATA", "5 5 5"},
    };
    int number = 0;
    for (const auto& row : table) {
        const QString folder = QString::number(++number);
        begin(folder);
        run({QString("CREATE TABLE library (id INTEGER PRIMARY KEY, dir TEXT NOT NULL%1)")
                 .arg(row.lateColumns),
             "INSERT INTO library (id, dir) VALUES (7, '/c'), (2, '/a'), (3, '/b')",
             "CREATE TABLE option (key TEXT PRIMARY KEY, value TEXT)",
             "INSERT INTO option VALUES ('uniqueVarName', 'SUBJID')"});
        for (int start = 1; start <= 2; ++start) {
            const Store store = this->store(folder);
            QVERIFY(store->initDatabase());
            QCOMPARE(rows("SELECT name FROM pragma_table_info('library')").mid(2).join(' '),
                     row.names);
            QCOMPARE(rows("SELECT sortOrder FROM library ORDER BY id").join(' '), row.orders);
            QCOMPARE(store->loadOption("uniqueVarName", "USUBJID"), "SUBJID");
            QCOMPARE(rows("SELECT COUNT(*) FROM session, session_dataset"), QStringList("0"));
        }
    }
}

void TestWorkspaceStore::unusableStoreFails()
{
    QList<std::pair<QStringList, QString>> table{
        {{"CREATE VIEW library AS SELECT 1 AS id, 2 AS bookmarkData"},
         "Failed to add sortOrder column:"},
        {{"CREATE VIEW library AS SELECT 1 AS id, 2 AS sortOrder"},
         "Failed to add bookmarkData column:"},
        {{"CREATE TABLE library (id INTEGER PRIMARY KEY, dir TEXT)",
          "INSERT INTO library (dir) VALUES ('/a')",
          "CREATE TRIGGER t BEFORE UPDATE ON library BEGIN SELECT RAISE(ABORT, 'no'); END"},
         "Failed to seed sortOrder values:"},
    };
    for (const QString name : {"library", "option", "session", "session_dataset"}) {
        // An index keeps a table from having its name.
        table.append({{"CREATE TABLE t (x)", "CREATE INDEX " + name + " ON t (x)"},
                      "Failed to create table: " + name + '.'});
    }
    for (const auto& [statements, message] : table) {
        const QString folder = "for " + message;
        begin(folder);
        run(statements);
        QVERIFY(!store(folder)->initDatabase());
        const QString log = logged();
        QVERIFY2(log.startsWith("error: Error: " + message), qPrintable(log));
        QCOMPARE(log.count('\n'), 1);
    }
}

void TestWorkspaceStore::damagedStoreFails()
{
    for (const QByteArray& content :
         {QByteArray("USUBJID,AGE\n").repeated(200), "SQLite format 3" + QByteArray(4081, '\0')}) {
        QFile file(path("quorlane.db"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        file.close();
        QVERIFY(!store()->initDatabase());
        QVERIFY(logged().startsWith("error: Error: Failed to create table: library."));
    }
}

void TestWorkspaceStore::storeWithoutAPlaceFails()
{
    QVERIFY(QDir(m_folder->path()).mkdir("quorlane.db"));
    QFile file(path("file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const std::pair<QString, QString> table[]{
        {path("file/home"), "Failed to create writable directory for session database: "},
        {path("."), "Unable to open database! "},
        {"", "Unable to determine writable location for session database.\n"},
    };
    for (const auto& [home, message] : table) {
        QVERIFY(!WorkspaceStore({home, {}}).initDatabase());
        const QString log = logged();
        QVERIFY2(log.contains("error: Error: " + message), qPrintable(log));
    }
}

void TestWorkspaceStore::lockedStoreFailsSoon()
{
    run({"CREATE TABLE other (x)", "BEGIN EXCLUSIVE"});
    QVERIFY(!store()->initDatabase());
    QVERIFY(logged().startsWith("error: Error: Failed to create table: library."));
}

QTEST_GUILESS_MAIN(TestWorkspaceStore)
#include "TestWorkspaceStore.moc"

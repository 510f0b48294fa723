#include "tests/support/LogCapture.h"
#include "workspace/LibraryRegistry.h"
#include "workspace/WorkspaceStore.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTemporaryDir>
#include <QTest>

/// The libraries in a real store, which a connection of the test's own looks into and disturbs as
/// another program would.
class TestLibraryRegistry : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void foldersAreAddedOnceAndInOrder();
    void librariesComeInTheirOrderWithAllThatIsKept();
    void treeRenamesAndRemoves();
    void listIsWrittenInItsOrder();
    void newerStoreKeepsWhatIsNotKnownHere();
    void whatCannotBeWrittenIsToldAndLeavesTheStoreWhole_data();
    void whatCannotBeWrittenIsToldAndLeavesTheStoreWhole();
    void withoutAConnectionEverythingFails();

private:
    [[nodiscard]] QString logged() { return QString::fromStdString(m_log->take()); }
    void run(const QString& statement);
    [[nodiscard]] QStringList rows(const QString& query);
    [[nodiscard]] QStringList libraries()
    {
        return rows("SELECT id, dir, libName, sortOrder FROM library ORDER BY id");
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<LogCapture> m_log;
    std::unique_ptr<WorkspaceStore> m_store;
    std::unique_ptr<LibraryRegistry> m_registry;
    QSqlDatabase m_other;
};

void TestLibraryRegistry::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_log = std::make_unique<LogCapture>();
    m_store = std::make_unique<WorkspaceStore>(StoreLocations{m_folder->path(), {}});
    QVERIFY(m_store->initDatabase());
    m_registry = std::make_unique<LibraryRegistry>(*m_store);
    m_other = QSqlDatabase::addDatabase("QSQLITE", "other");
    m_other.setDatabaseName(m_folder->filePath("quorlane.db"));
    QVERIFY(m_other.open());
}

void TestLibraryRegistry::cleanup()
{
    m_registry.reset();
    m_store.reset();
    m_other = {};
    QSqlDatabase::removeDatabase("other");
    QCOMPARE(logged(), "");
    m_log.reset();
    QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
}

void TestLibraryRegistry::run(const QString& statement)
{
    QSqlQuery query(m_other);
    QVERIFY2(query.exec(statement), qPrintable(query.lastError().text()));
}

QStringList TestLibraryRegistry::rows(const QString& statement)
{
    QStringList rows;
    QSqlQuery query(statement, m_other);
    while (query.next()) {
        QStringList values;
        for (int column = 0; column < query.record().count(); ++column) {
            values << query.value(column).toString();
        }
        rows << values.join('|');
    }
    return rows;
}

void TestLibraryRegistry::foldersAreAddedOnceAndInOrder()
{
    QCOMPARE(m_registry->add("/data/sdtm").value().sortOrder, 0);
    run("UPDATE library SET libName = 'Tabulations', sortOrder = 6, libFilter = 'AGE > 1', "
        "watchChangesFlag = 0, autoOpenFlag = 1, color = 'red', bookmarkData = x'00ff'");
    const Library adam = m_registry->add("/data/./adam/").value();
    QCOMPARE(adam.name, "adam");
    const Library known = m_registry->add("/data/x/../sdtm/").value();
    QCOMPARE(known,
             (Library{1, "/data/sdtm", "", "Tabulations", "AGE > 1", false, true, "red", 6,
                      QByteArray("\0\xff", 2)}));
    QCOMPARE(libraries(), QStringList({"1|/data/sdtm|Tabulations|6", "2|/data/adam|adam|7"}));
    QCOMPARE(m_registry->find("/data/adam")->id, adam.id);
    QVERIFY(!m_registry->find("/data"));
    const Result<Library> strange = m_registry->add(QString("/data/") + QChar(0xDCFF));
    QVERIFY(!strange.ok());
}

void TestLibraryRegistry::librariesComeInTheirOrderWithAllThatIsKept()
{
    run("INSERT INTO library (id, dir, libName, sortOrder, bookmarkData, libAlias) VALUES "
        "(3, '/c', 'C', 1, x'01', 'LIBC'), (1, '/a', NULL, 2, NULL, NULL), "
        "(2, '/b', '', 1, NULL, '')");
    const QList<Library> all = m_registry->load().value();
    QCOMPARE(all.size(), 3);
    QCOMPARE(all[0].shownName() + all[1].shownName() + all[2].shownName(), "bCa");
    QCOMPARE(all[1].bookmark, QByteArray("\1"));
    QCOMPARE(all[1].alias, "LIBC");
    QVERIFY(!all[0].watchesChanges);
    QList<Library> edited = m_registry->loadForEditing().value();
    QCOMPARE(edited.size(), 3);
    QVERIFY(edited[1].bookmark.isNull());
    edited[1].bookmark = all[1].bookmark;
    QCOMPARE(edited, all);
}

void TestLibraryRegistry::treeRenamesAndRemoves()
{
    for (const char* dir : {"/a", "/b", "/c"}) {
        QVERIFY(m_registry->add(dir).ok());
    }
    QVERIFY(m_registry->rename(2, "it's \"B\"").ok());
    QVERIFY(logged().contains("Item renamed to: it's \"B\""));
    QVERIFY(m_registry->remove(1).ok());
    QCOMPARE(libraries(), QStringList({"2|/b|it's \"B\"|1", "3|/c|c|2"}));
    // Another program has removed it before.
    QVERIFY(m_registry->remove(1).ok());
    QCOMPARE(logged(), "warning: No record found with id 1\n");
}

void TestLibraryRegistry::listIsWrittenInItsOrder()
{
    for (const char* dir : {"/a", "/b", "/c"}) {
        QVERIFY(m_registry->add(dir).ok());
    }
    run("UPDATE library SET bookmarkData = x'01' WHERE id = 3");
    QList<Library> list = m_registry->loadForEditing().value();
    list.swapItemsAt(0, 2);
    list.removeAt(1);
    list.insert(1, Library{0, "/new", "NEW", "New", "A = 1", false, true, "#102030", 9, {}});
    QVERIFY(m_registry->save(list, {2}).ok());
    QCOMPARE(rows("SELECT id, dir, libAlias, libName, libFilter, watchChangesFlag, autoOpenFlag, "
                  "color, sortOrder, hex(bookmarkData) FROM library ORDER BY sortOrder"),
             QStringList({"3|/c||c||1|0||0|01", "4|/new|NEW|New|A = 1|0|1|#102030|1|",
                          "1|/a||a||1|0||2|"}));
}

void TestLibraryRegistry::newerStoreKeepsWhatIsNotKnownHere()
{
    QVERIFY(m_registry->add("/a").ok());
    run("ALTER TABLE library ADD COLUMN owner TEXT DEFAULT 'me'");
    run("UPDATE library SET owner = 'you'");
    QList<Library> list = m_registry->loadForEditing().value();
    list[0].name = "A";
    list << Library{.dir = "/b"};
    QVERIFY(m_registry->save(list, {}).ok());
    QCOMPARE(rows("SELECT dir, libName, owner FROM library ORDER BY id"),
             QStringList({"/a|A|you", "/b||me"}));
}

void TestLibraryRegistry::whatCannotBeWrittenIsToldAndLeavesTheStoreWhole_data()
{
    QTest::addColumn<QStringList>("disturb");  // through this connection and the other one
    QTest::addColumn<QString>("told");  // by the save of all libraries
    const auto row = [](const char* name, const QString& own, const QString& others,
                        const QString& told) {
        QTest::newRow(name) << QStringList({own, others}) << told;
    };
    row("locked", "PRAGMA busy_timeout = 1", "BEGIN IMMEDIATE",
        "Failed to delete library record: database is locked");
    row("read-only", "PRAGMA query_only = ON", "SELECT 1",
        "Failed to delete library record: attempt to write a readonly database");
    row("full", "PRAGMA max_page_count = 1", "SELECT 1",
        "Failed to insert library record: database or disk is full");
    row("update refused", "SELECT 1",
        "CREATE TRIGGER t BEFORE UPDATE ON library WHEN NEW.id = 3 "
        "BEGIN SELECT RAISE(ABORT, 'no'); END",
        "Failed to update library record: no");
    row("insert refused", "SELECT 1",
        "CREATE TRIGGER t BEFORE INSERT ON library BEGIN SELECT RAISE(ABORT, 'no'); END",
        "Failed to insert library record: no");
    row("commit refused", "SELECT 1",
        "CREATE TABLE part (dir REFERENCES library(id) DEFERRABLE INITIALLY DEFERRED)",
        "Unable to commit database transaction: FOREIGN KEY constraint failed");
}

void TestLibraryRegistry::whatCannotBeWrittenIsToldAndLeavesTheStoreWhole()
{
    QFETCH(const QStringList, disturb);
    QFETCH(const QString, told);
    for (const char* dir : {"/a", "/b", "/c"}) {
        QVERIFY(m_registry->add(dir).ok());
    }
    const QStringList before = libraries();
    QList<Library> list = m_registry->loadForEditing().value();
    list.removeFirst();
    list.swapItemsAt(0, 1);
    list << Library{.dir = "/new", .filter = QString(9000, 'x')};
    QVERIFY(QSqlQuery(m_store->database()).exec(disturb[0]));
    run(disturb[1]);
    if (told.contains("commit")) {
        run("INSERT INTO part VALUES (1)");
    }

    const Result<bool> saved = m_registry->save(list, {1});
    QVERIFY(!saved.ok());
    QVERIFY2(QString::fromStdString(saved.error()).startsWith(told), saved.error().c_str());
    QCOMPARE(libraries(), before);

    // Nothing holds the store: what can be written again is written.
    const bool isRefusing = !told.contains("no") && !told.contains("FOREIGN");
    if (isRefusing && !told.contains("full")) {
        QVERIFY(!m_registry->rename(2, "x").ok());
        QVERIFY(logged().startsWith("error: Update failed: "));
        QVERIFY(!m_registry->remove(2).ok());
        QVERIFY(logged().startsWith("error: Delete failed: "));
        QVERIFY(!m_registry->add("/d").ok());
        QVERIFY(logged().startsWith("error: Error: Failed to insert folder. "));
        QCOMPARE(libraries(), before);
    }
    static_cast<void>(QSqlQuery(m_other).exec("ROLLBACK"));
    static_cast<void>(QSqlQuery(m_other).exec("DROP TRIGGER t"));
    static_cast<void>(QSqlQuery(m_other).exec("DELETE FROM part"));
    QSqlQuery(m_store->database()).exec("PRAGMA query_only = OFF");
    QSqlQuery(m_store->database()).exec("PRAGMA max_page_count = 10000");
    QVERIFY(m_registry->save(list, {1}).ok());
    QCOMPARE(rows("SELECT dir FROM library ORDER BY sortOrder"), QStringList({"/c", "/b", "/new"}));
}

void TestLibraryRegistry::withoutAConnectionEverythingFails()
{
    m_store->database().close();
    QCOMPARE(m_registry->loadForEditing().error(), "Database connection is not available.");
    QVERIFY(!m_registry->save({}, {}).ok());
    QVERIFY(!m_registry->load().ok());
    static_cast<void>(logged());
    QVERIFY(!m_registry->add("/a").ok());
    QVERIFY(logged().startsWith("error: Error: Failed to check folder existence."));
    QVERIFY(!m_registry->remove(1).ok());
    QVERIFY(logged().startsWith("error: Database not open!\nerror: Delete failed:"));
}

QTEST_GUILESS_MAIN(TestLibraryRegistry)
#include "TestLibraryRegistry.moc"

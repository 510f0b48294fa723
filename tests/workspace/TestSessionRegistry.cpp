#include "tests/support/LogCapture.h"
#include "workspace/SessionRegistry.h"
#include "workspace/WorkspaceStore.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

namespace {

SavedDataset dataset(const QString& filePath)
{
    SavedDataset result;
    result.filePath = filePath;
    return result;
}

SavedSession session(const QString& name, const QStringList& filePaths)
{
    SavedSession result;
    result.name = name;
    for (const QString& filePath : filePaths) {
        result.datasets << dataset(filePath);
    }
    return result;
}

/// A session of many datasets, told from others by its letter.
SavedSession longSession(QChar letter)
{
    QStringList filePaths;
    for (int i = 0; i < 200; ++i) {
        filePaths << QString("/%1/%2.xpt").arg(letter).arg(i);
    }
    return session("long", filePaths);
}

/// The other process of a test: saves one long session after the other until it is killed.
[[noreturn]] void saveForEver(const QString& folder)
{
    WorkspaceStore store({folder, {}});
    const bool isOpen = store.initDatabase();
    const SessionRegistry registry(store);
    for (int i = 0; isOpen && registry.save(longSession(i % 2 == 0 ? 'a' : 'b')); ++i) {
        puts("saved");
        fflush(stdout);
    }
    std::_Exit(1);
}

}  // namespace

/// The store is looked into, and spoilt, through a connection that is not its own.
class TestSessionRegistry : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void sessionIsKeptAsItWasSaved();
    void savingAgainReplacesTheDatasetsOnly();
    void sessionsAreListedByTheTimeOfTheirSaving();
    void hiddenVariablesAreReadAsFarAsTheyCanBe();
    void failedSaveLeavesTheStoreAsItWas_data();
    void failedSaveLeavesTheStoreAsItWas();
    void whatCannotBeReadIsTold();
    void killedSaveLeavesTheStoreWhole();

private:
    void run(const QString& statement);
    [[nodiscard]] QStringList rows(const QString& statement);
    [[nodiscard]] qint64 idOf(const QString& name);
    [[nodiscard]] QString logged() { return QString::fromStdString(m_log->take()); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<LogCapture> m_log;
    std::unique_ptr<WorkspaceStore> m_store;
    std::unique_ptr<SessionRegistry> m_registry;
    QSqlDatabase m_probe;
};

void TestSessionRegistry::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_log = std::make_unique<LogCapture>();
    m_store = std::make_unique<WorkspaceStore>(StoreLocations{m_folder->path(), {}});
    m_registry = std::make_unique<SessionRegistry>(*m_store);
    QVERIFY(m_store->initDatabase());
    m_probe = QSqlDatabase::addDatabase("QSQLITE", "probe");
    m_probe.setDatabaseName(m_folder->filePath("quorlane.db"));
    QVERIFY(m_probe.open());
}

void TestSessionRegistry::cleanup()
{
    m_probe = {};
    QSqlDatabase::removeDatabase("probe");
    m_store.reset();
    QCOMPARE(logged(), "");
    m_log.reset();
}

void TestSessionRegistry::run(const QString& statement)
{
    QSqlQuery query(m_probe);
    QVERIFY2(query.exec(statement), qPrintable(query.lastError().text()));
}

/// One text a row, its values parted by bars.
QStringList TestSessionRegistry::rows(const QString& statement)
{
    QStringList rows;
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

qint64 TestSessionRegistry::idOf(const QString& name)
{
    return rows("SELECT id FROM session WHERE name = '" + name + "'").join("").toLongLong();
}

void TestSessionRegistry::sessionIsKeptAsItWasSaved()
{
    SavedSession saved = session("Week \"1\"; it's", {"/b.xpt", "/a.sas7bdat"});
    SavedDataset& first = saved.datasets.front();
    first.datasetName = "AE";
    first.libraryFilter = "where A = 'x'";
    first.datasetFilter = "if B = \"\u00E9\"";
    first.hiddenVariables = QStringList({"A", "q\"\\ \u00E9"});
    QVERIFY(m_registry->save(saved));
    QCOMPARE(rows("SELECT session_id = (SELECT id FROM session), position, filePath, datasetName, "
                  "libraryFilter, datasetFilter, hiddenVariables FROM session_dataset ORDER BY id"),
             QStringList({"1|0|/b.xpt|AE|where A = 'x'|if B = \"\u00E9\"|[\"A\",\"q\\\"\\\\ "
                          "\u00E9\"]",
                          "1|1|/a.sas7bdat||||[]"}));
    const auto loaded = m_registry->load(idOf("Week \"1\"; it''s"));
    QCOMPARE(loaded.value().name, saved.name);
    QCOMPARE(loaded.value().datasets, saved.datasets);
    // The order is that of the positions, whatever wrote the rows.
    run("UPDATE session_dataset SET position = 7 WHERE position = 0");
    QCOMPARE(m_registry->load(1).value().datasets.last(), first);
}

void TestSessionRegistry::savingAgainReplacesTheDatasetsOnly()
{
    QVERIFY(m_registry->save(session("one", {"/a", "/b"})));
    QVERIFY(m_registry->save(session("other", {"/c"})));
    run("UPDATE session SET createdAt = '2001-01-01 00:00:00', updatedAt = '2001-01-01 00:00:00'");
    QVERIFY(m_registry->save(session("one", {"/d"})));
    QCOMPARE(rows("SELECT id, name, createdAt, updatedAt > '2001-01-01 00:00:00' FROM session"),
             QStringList({"1|one|2001-01-01 00:00:00|1", "2|other|2001-01-01 00:00:00|0"}));
    QCOMPARE(rows("SELECT session_id, filePath FROM session_dataset ORDER BY session_id"),
             QStringList({"1|/d", "2|/c"}));
    QVERIFY(m_registry->remove(1));
    QVERIFY(m_registry->remove(1));
    QCOMPARE(rows("SELECT name FROM session"), QStringList("other"));
    QCOMPARE(rows("SELECT filePath FROM session_dataset"), QStringList("/c"));
}

void TestSessionRegistry::sessionsAreListedByTheTimeOfTheirSaving()
{
    run("INSERT INTO session (name, updatedAt) VALUES ('Beta', '2026-01-02 10:00:00'), "
        "('older', '2026-01-02 09:59:59'), ('alpha', '2026-01-02 10:00:00'), "
        "('of another form', '2026-01-03T08:00')");
    QStringList names;
    const auto entries = m_registry->list();
    for (const SessionEntry& entry : *entries) {
        names << QString("%1 %2").arg(entry.id).arg(entry.name);
    }
    QCOMPARE(names, QStringList({"4 of another form", "3 alpha", "1 Beta", "2 older"}));
}

void TestSessionRegistry::hiddenVariablesAreReadAsFarAsTheyCanBe()
{
    const auto read = [](const char* text) {
        return SessionRegistry::parseHiddenVariables(QString::fromUtf8(text)).join('|');
    };
    QCOMPARE(read(""), "");
    QCOMPARE(read("[]"), "");
    QCOMPARE(read(" [\"B\", 1, \"a\\u00e9\", null, [\"C\"], \"B\"]"), "B|a\u00E9|B");
    QCOMPARE(logged(), "");
    for (const char* text : {"{\"A\": \"B\"}", "[\"A\"", "no JSON", "\"A\""}) {
        QCOMPARE(read(text), "");
        QVERIFY(logged().startsWith("warning: Failed to parse hidden variables payload: "));
    }
}

void TestSessionRegistry::failedSaveLeavesTheStoreAsItWas_data()
{
    QTest::addColumn<QStringList>("faults");
    QTest::addColumn<QString>("message");
    const auto trigger = [](const QString& event) {
        return "CREATE TRIGGER fault " + event + " BEGIN SELECT RAISE(FAIL, 'spoilt'); END";
    };
    const auto row = [](const char* name, const QStringList& faults, const QString& message) {
        QTest::newRow(name) << faults << message;
    };
    row("look up", {"ALTER TABLE session RENAME COLUMN name TO title"},
        "Failed to look up existing sessions.\nno such column");
    row("insert", {"UPDATE session SET name = 'other'", trigger("BEFORE INSERT ON session")},
        "Failed to create a new session record.\nspoilt");
    row("touch", {trigger("AFTER UPDATE ON session")},
        "Failed to update the session timestamp.\nspoilt");
    row("clear", {trigger("AFTER DELETE ON session_dataset")},
        "Failed to clear existing session datasets.\nspoilt");
    row("write", {trigger("BEFORE INSERT ON session_dataset WHEN NEW.position = 1")},
        "Failed to persist dataset information for the session.\nspoilt");
    row("commit",
        {"CREATE TABLE bad (id REFERENCES session(id) DEFERRABLE INITIALLY DEFERRED)",
         "CREATE TRIGGER fault AFTER INSERT ON session_dataset "
         "BEGIN INSERT INTO bad VALUES (99); END"},
        "Failed to commit the session data.");
}

void TestSessionRegistry::failedSaveLeavesTheStoreAsItWas()
{
    QFETCH(QStringList, faults);
    QFETCH(QString, message);
    QVERIFY(m_registry->save(session("one", {"/a", "/b"})));
    for (const QString& fault : faults) {
        run(fault);
    }
    const auto content = [this] {
        return rows("SELECT * FROM session") + rows("SELECT * FROM session_dataset");
    };
    const QStringList before = content();
    const auto done = m_registry->save(session("one", {"/c", "/d"}));
    QVERIFY(!done);
    const auto told = QString::fromStdString(done.error());
    QVERIFY2(told.startsWith(message), qPrintable(told));
    QCOMPARE(content(), before);
    // No transaction is left open.
    run("CREATE TABLE another (id INTEGER)");
}

void TestSessionRegistry::whatCannotBeReadIsTold()
{
    QCOMPARE(m_registry->load(1).error(), "The selected session no longer exists.");
    run("INSERT INTO session (name) VALUES ('one')");
    run("DROP TABLE session_dataset");
    QVERIFY(
        m_registry->load(1).error().starts_with("Failed to load datasets for the session.\nno"));
    run("DROP TABLE session");
    QVERIFY(m_registry->load(1).error().starts_with("Failed to read the session information.\nno"));
    QVERIFY(m_registry->remove(1).error().starts_with("Failed to delete the session.\nno"));
    QVERIFY(m_registry->list()->isEmpty());
    QVERIFY(logged().startsWith("error: Failed to load sessions: no such table"));

    const WorkspaceStore closed(StoreLocations{m_folder->path(), {}});
    const SessionRegistry registry(closed);
    const std::string unable = "Unable to access the session database.";
    QCOMPARE(registry.save(session("one", {})).error(), unable);
    QCOMPARE(registry.load(1).error(), unable);
    QCOMPARE(registry.remove(1).error(), unable);
    QVERIFY(!registry.list());
    QCOMPARE(logged(), "warning: Database not open while loading sessions\n");
}

/// The process dies at fifty moments of a save; each time the session is whole as it was before or
/// after.
void TestSessionRegistry::killedSaveLeavesTheStoreWhole()
{
    QSet<QChar> seen;
    int milliseconds = 0;  // that a save takes
    for (int round = 0; round <= 50; ++round) {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(),
                      {"--save-for-ever", m_folder->path()});
        QVERIFY(process.waitForStarted());
        QVERIFY(process.waitForReadyRead());
        // One save is done. From here on there is nearly always one under way.
        QElapsedTimer timer;
        timer.start();
        if (round == 0) {
            QVERIFY(process.waitForReadyRead());
            milliseconds = int(timer.elapsed());
        }
        QTest::qSleep(milliseconds * round / 25);
        process.kill();
        QVERIFY(process.waitForFinished());
        const QList<SavedDataset> datasets = m_registry->load(1).value().datasets;
        const QChar letter = datasets.value(0).filePath.mid(1, 1).front();
        seen << letter;
        QCOMPARE(datasets, longSession(letter).datasets);
        QCOMPARE(rows("PRAGMA integrity_check"), QStringList("ok"));
    }
    QCOMPARE(seen.size(), 2);
}

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--save-for-ever") {
        saveForEver(arguments.value(2));
    }
    TestSessionRegistry test;
    return QTest::qExec(&test, argc, argv);
}
#include "TestSessionRegistry.moc"

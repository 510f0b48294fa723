#include "app/start/SingleInstance.h"
#include "data/FilePath.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <fstream>

namespace {

/// An instance that listens, and what has been handed to it.
class Listener
{
public:
    explicit Listener(const InstanceChannel& channel)
        : m_instance(channel)
    {
        isListening = m_instance.listen();
    }
    void serve() { m_instance.serve(); }
    [[nodiscard]] QStringList files() const
    {
        QStringList files;
        for (const QList<QVariant>& signal : m_received) {
            files << signal.first().toString();
        }
        return files;
    }

    bool isListening = false;

private:
    SingleInstance m_instance;
    QSignalSpy m_received{&m_instance, &SingleInstance::signalFileReceived};
};

}  // namespace

/// Both ends of the channel in one process, over sockets in a folder of the test's own.
class TestSingleInstance : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void pathsThatExistAreHandedOver();
    void filesHandedOverEarlyAreServedLater();
    void newerInstanceTakesTheNameOverAndKeepsIt();
    void staleSocketIsReplacedByOneForTheUserAlone();
    void nothingIsHandedToAnotherUser();
    void nameHeldByAnotherUserIsAvoided();
    void privateSocketIsFoundAfterTheNameIsFree();

private:
    [[nodiscard]] InstanceChannel channel() const;
    /// The channel as the program of another user has it.
    [[nodiscard]] InstanceChannel strangersChannel() const;
    [[nodiscard]] bool handOver(const QString& file) const
    {
        return SingleInstance(channel()).handOver(file);
    }
    [[nodiscard]] QString write(const QString& name) const;
    [[nodiscard]] QString path(const QString& name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_temporaryFolder;
};

void TestSingleInstance::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    // Where sockets stand.
    m_temporaryFolder = qgetenv("TMPDIR");
    qputenv("TMPDIR", QFile::encodeName(m_folder->path()));
    QVERIFY(QDir(m_folder->path()).mkdir("private"));
}

void TestSingleInstance::cleanup()
{
    if (m_temporaryFolder.isNull()) {
        qunsetenv("TMPDIR");
    } else {
        qputenv("TMPDIR", m_temporaryFolder);
    }
}

InstanceChannel TestSingleInstance::channel() const
{
    InstanceChannel channel;
    channel.name = "channel";
    channel.privateFolder = path("private");
    return channel;
}

InstanceChannel TestSingleInstance::strangersChannel() const
{
    InstanceChannel stranger = channel();
    stranger.user += 1;
    return stranger;
}

QString TestSingleInstance::write(const QString& name) const
{
    return std::ofstream(filepath::toBytes(path(name))).is_open() ? path(name) : QString();
}

void TestSingleInstance::pathsThatExistAreHandedOver()
{
    Listener running(channel());
    QVERIFY(running.isListening);
    running.serve();
    QVERIFY(handOver(path("missing.xpt")));
    QVERIFY(handOver("   "));
    QStringList files;
    for (const char* const name : {"dm.xpt", "Prüfung 試験.xpt", "a  b.xpt", "m\xFCnch.xpt"}) {
        files << write(filepath::fromBytes(name));
        QVERIFY(handOver(" \t" + files.last() + "\r\n"));
        QTRY_COMPARE(running.files(), files);
    }
}

void TestSingleInstance::filesHandedOverEarlyAreServedLater()
{
    Listener running(channel());
    QStringList files;
    for (const QString name : {"a.xpt", "b.xpt", "c.xpt"}) {
        files << write(name);
        QVERIFY(handOver(files.last()));
        // As a message box during the start does.
        QEventLoop box;
        QTimer::singleShot(0, &box, &QEventLoop::quit);
        box.exec();
    }
    QCOMPARE(running.files(), QStringList());

    running.serve();

    QTRY_COMPARE(running.files(), files);
}

void TestSingleInstance::newerInstanceTakesTheNameOverAndKeepsIt()
{
    auto older = std::make_unique<Listener>(channel());
    older->serve();
    Listener newer(channel());
    QVERIFY(older->isListening && newer.isListening);
    newer.serve();
    const QString file = write("dm.xpt");
    QVERIFY(handOver(file));
    QTRY_COMPARE(newer.files(), QStringList(file));
    QCOMPARE(older->files(), QStringList());

    older.reset();

    QVERIFY(handOver(file));
    QTRY_COMPARE(newer.files().size(), 2);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::System | QDir::Files),
             QStringList({"channel", "dm.xpt"}));
}

void TestSingleInstance::staleSocketIsReplacedByOneForTheUserAlone()
{
    const QString file = write("dm.xpt");
    QVERIFY(!handOver(file));
    // A socket that nobody listens on any more.
    const QString socket = write("channel");
    QVERIFY(!handOver(file));
    {
        const Listener running(channel());
        QVERIFY(running.isListening);
        QVERIFY(handOver(file));
        const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup
            | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
        QVERIFY(QFileInfo::exists(socket));
        QCOMPARE(QFile::permissions(socket) & others, QFile::Permissions());
    }
    QVERIFY(!QFileInfo::exists(socket));
}

void TestSingleInstance::nothingIsHandedToAnotherUser()
{
    Listener running(channel());
    running.serve();
    const QString file = write("dm.xpt");

    // For a sender who is somebody else, everything here belongs to another user. The private
    // folder, too, leads to the program that runs.
    QVERIFY(QFile::link(path("channel"), path("private/channel")));
    QVERIFY(!SingleInstance(strangersChannel()).handOver(file));

    QVERIFY(handOver(file));
    QTRY_COMPARE(running.files(), QStringList(file));
}

void TestSingleInstance::nameHeldByAnotherUserIsAvoided()
{
    Listener running(channel());
    const Listener other(strangersChannel());
    QVERIFY(running.isListening && other.isListening);

    QVERIFY(QFileInfo::exists(path("private/channel")));
    running.serve();
    QVERIFY(handOver(write("dm.xpt")));
    QTRY_COMPARE(running.files().size(), 1);
}

void TestSingleInstance::privateSocketIsFoundAfterTheNameIsFree()
{
    auto holder = std::make_unique<Listener>(channel());
    Listener evader(strangersChannel());
    QVERIFY(holder->isListening && evader.isListening);
    evader.serve();
    holder.reset();

    // The socket of this process answers to its real user only.
    QVERIFY(handOver(write("dm.xpt")));
    QTRY_COMPARE(evader.files().size(), 1);
}

QTEST_GUILESS_MAIN(TestSingleInstance)
#include "TestSingleInstance.moc"

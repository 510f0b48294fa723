#include "app/start/SingleInstance.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

/// Both ends of the channel in one process, over sockets in a folder of the test's own.
class TestSingleInstance : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void fileIsHandedOver_data();
    void fileIsHandedOver();
    void missingFileIsPassedOver();
    void eachChunkIsOnePath();
    void filesHandedOverEarlyAreServedLater();
    void nobodyListening();
    void newerInstanceTakesTheNameOver();
    void olderInstanceLeavesTheNameToTheNewer();
    void staleSocketIsReplaced();
    void socketIsTheUsersAlone();
    void nameThatCannotBeTakenIsAFailure();
    void nothingIsHandedToAnotherUser();
    void nameHeldByAnotherUserIsAvoided();
    void privateSocketIsFoundAfterTheNameIsFree();

private:
    [[nodiscard]] InstanceChannel channel() const;
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

QString TestSingleInstance::write(const QString& name) const
{
    QFile file(path(name));
    return file.open(QIODevice::WriteOnly) ? file.fileName() : QString();
}

void TestSingleInstance::fileIsHandedOver_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::newRow("plain") << "dm.xpt"
                           << ""
                           << "";
    QTest::newRow("not ASCII") << "Prüfung 試験.xpt"
                               << ""
                               << "";
    QTest::newRow("blanks within") << "a  b.xpt"
                                   << ""
                                   << "";
    QTest::newRow("blanks before") << "dm.xpt"
                                   << " \t"
                                   << "";
    QTest::newRow("line break after") << "dm.xpt"
                                      << ""
                                      << "\r\n";
}

void TestSingleInstance::fileIsHandedOver()
{
    QFETCH(QString, name);
    QFETCH(QString, before);
    QFETCH(QString, after);
    SingleInstance running(channel());
    QSignalSpy received(&running, &SingleInstance::signalFileReceived);
    QVERIFY(running.listen());
    running.serve();

    const QString file = write(name);
    QVERIFY(SingleInstance(channel()).handOver(before + file + after));

    QTRY_COMPARE(received.count(), 1);
    QCOMPARE(received.first().first().toString(), file);
}

void TestSingleInstance::missingFileIsPassedOver()
{
    SingleInstance running(channel());
    QSignalSpy received(&running, &SingleInstance::signalFileReceived);
    QVERIFY(running.listen());
    running.serve();
    const SingleInstance sender(channel());

    QVERIFY(sender.handOver(path("missing.xpt")));
    QVERIFY(sender.handOver("   "));
    // One that does exist shows that the others have been dealt with.
    const QString file = write("dm.xpt");
    QVERIFY(sender.handOver(file));

    QTRY_VERIFY(received.count() > 0);
    QCOMPARE(received.count(), 1);
    QCOMPARE(received.first().first().toString(), file);
}

void TestSingleInstance::eachChunkIsOnePath()
{
    SingleInstance running(channel());
    QSignalSpy received(&running, &SingleInstance::signalFileReceived);
    QVERIFY(running.listen());
    running.serve();
    const QString first = write("a.xpt");
    const QString second = write("b.xpt");

    QLocalSocket socket;
    socket.connectToServer("channel");
    QVERIFY(socket.waitForConnected());
    socket.write(first.toUtf8());
    QTRY_COMPARE(received.count(), 1);
    socket.write(second.toUtf8());
    QTRY_COMPARE(received.count(), 2);

    QCOMPARE(received.at(0).first().toString(), first);
    QCOMPARE(received.at(1).first().toString(), second);
}

void TestSingleInstance::filesHandedOverEarlyAreServedLater()
{
    SingleInstance running(channel());
    QSignalSpy received(&running, &SingleInstance::signalFileReceived);
    QVERIFY(running.listen());
    const SingleInstance sender(channel());
    QStringList files;
    for (const QString name : {"a.xpt", "b.xpt", "c.xpt"}) {
        files << write(name);
        QVERIFY(sender.handOver(files.last()));
        // As a message box during the start does.
        QEventLoop box;
        QTimer::singleShot(0, &box, &QEventLoop::quit);
        box.exec();
    }
    QCOMPARE(received.count(), 0);

    running.serve();

    QTRY_COMPARE(received.count(), 3);
    QStringList got;
    for (const QList<QVariant>& signal : received) {
        got << signal.first().toString();
    }
    QCOMPARE(got, files);
}

void TestSingleInstance::nobodyListening()
{
    QVERIFY(!SingleInstance(channel()).handOver(write("dm.xpt")));
    // A socket that nobody listens on any more.
    QVERIFY(!write("channel").isEmpty());
    QVERIFY(!SingleInstance(channel()).handOver(path("dm.xpt")));
}

void TestSingleInstance::newerInstanceTakesTheNameOver()
{
    SingleInstance older(channel());
    SingleInstance newer(channel());
    QSignalSpy toOlder(&older, &SingleInstance::signalFileReceived);
    QSignalSpy toNewer(&newer, &SingleInstance::signalFileReceived);
    QVERIFY(older.listen());
    older.serve();
    QVERIFY(newer.listen());
    newer.serve();

    QVERIFY(SingleInstance(channel()).handOver(write("dm.xpt")));

    QTRY_COMPARE(toNewer.count(), 1);
    QCOMPARE(toOlder.count(), 0);
}

void TestSingleInstance::olderInstanceLeavesTheNameToTheNewer()
{
    auto older = std::make_unique<SingleInstance>(channel());
    SingleInstance newer(channel());
    QSignalSpy toNewer(&newer, &SingleInstance::signalFileReceived);
    QVERIFY(older->listen());
    QVERIFY(newer.listen());
    newer.serve();
    older.reset();

    QVERIFY(SingleInstance(channel()).handOver(write("dm.xpt")));
    QTRY_COMPARE(toNewer.count(), 1);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::System | QDir::Files),
             QStringList({"channel", "dm.xpt"}));
}

void TestSingleInstance::staleSocketIsReplaced()
{
    QVERIFY(!write("channel").isEmpty());
    SingleInstance running(channel());
    QVERIFY(running.listen());
    QVERIFY(SingleInstance(channel()).handOver(write("dm.xpt")));
}

void TestSingleInstance::socketIsTheUsersAlone()
{
    {
        SingleInstance running(channel());
        QVERIFY(running.listen());
        const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup
            | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
        QVERIFY(QFileInfo::exists(path("channel")));
        QCOMPARE(QFile::permissions(path("channel")) & others, QFile::Permissions());
    }
    QVERIFY(!QFileInfo::exists(path("channel")));
}

void TestSingleInstance::nameThatCannotBeTakenIsAFailure()
{
    QVERIFY(QDir(m_folder->path()).mkpath("channel/in/use"));
    SingleInstance running(channel());
    QVERIFY(!running.listen());
    QVERIFY(!running.errorString().isEmpty());
}

void TestSingleInstance::nothingIsHandedToAnotherUser()
{
    SingleInstance running(channel());
    QSignalSpy received(&running, &SingleInstance::signalFileReceived);
    QVERIFY(running.listen());
    running.serve();
    const QString file = write("dm.xpt");

    // For a sender who is somebody else, everything here belongs to another user. The private
    // folder, too, leads to the program that runs.
    InstanceChannel stranger = channel();
    stranger.user += 1;
    QVERIFY(QFile::link(path("channel"), path("private/channel")));
    QVERIFY(!SingleInstance(stranger).handOver(file));

    QVERIFY(SingleInstance(channel()).handOver(file));
    QTRY_COMPARE(received.count(), 1);
}

void TestSingleInstance::nameHeldByAnotherUserIsAvoided()
{
    InstanceChannel stranger = channel();
    stranger.user += 1;
    SingleInstance running(channel());
    QVERIFY(running.listen());

    SingleInstance other(stranger);
    QVERIFY(other.listen());

    QVERIFY(QFileInfo::exists(path("private/channel")));
    QSignalSpy received(&running, &SingleInstance::signalFileReceived);
    running.serve();
    QVERIFY(SingleInstance(channel()).handOver(write("dm.xpt")));
    QTRY_COMPARE(received.count(), 1);
}

void TestSingleInstance::privateSocketIsFoundAfterTheNameIsFree()
{
    InstanceChannel stranger = channel();
    stranger.user += 1;
    auto holder = std::make_unique<SingleInstance>(channel());
    QVERIFY(holder->listen());
    SingleInstance evader(stranger);
    QSignalSpy received(&evader, &SingleInstance::signalFileReceived);
    QVERIFY(evader.listen());
    evader.serve();
    holder.reset();

    // The socket of this process answers to its real user only.
    QVERIFY(SingleInstance(channel()).handOver(write("dm.xpt")));
    QTRY_COMPARE(received.count(), 1);
}

QTEST_GUILESS_MAIN(TestSingleInstance)
#include "TestSingleInstance.moc"

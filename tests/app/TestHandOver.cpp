#include "samples/TableWriter.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

/// Two processes of the program itself, in a home and with sockets of the test's own.
class TestHandOver : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void secondStartHandsItsFileToTheFirst();
    void programEndsWhereItCannotListen();

private:
    void start(QProcess& process, const QStringList& arguments) const;
    [[nodiscard]] QString write(const QString& name) const;
    /// Waits until a process has told that it opened a file.
    [[nodiscard]] static bool hasOpened(QProcess& process, const QString& file);

    std::unique_ptr<QTemporaryDir> m_folder;
    QProcess m_first;
};

void TestHandOver::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    for (const QString name : {"home", "run", "tmp"}) {
        QVERIFY(QDir(m_folder->path()).mkdir(name));
        QVERIFY(QFile::setPermissions(m_folder->filePath(name),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }
}

void TestHandOver::cleanup()
{
    if (m_first.state() != QProcess::NotRunning) {
        m_first.kill();
        QVERIFY(m_first.waitForFinished());
    }
}

void TestHandOver::start(QProcess& process, const QStringList& arguments) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("HOME", m_folder->filePath("home"));
    environment.insert("XDG_CONFIG_HOME", m_folder->filePath("home/.config"));
    environment.insert("XDG_RUNTIME_DIR", m_folder->filePath("run"));
    environment.insert("TMPDIR", m_folder->filePath("tmp"));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_folder->path());
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QUORLANE_PROGRAM, arguments);
}

/// A small dataset.
QString TestHandOver::write(const QString& name) const
{
    samples::Table table;
    table.name = "DATA";
    table.columns = {samples::numberColumn("AGE", "Age")};
    table.rows = {{44.0}};
    const QString path = m_folder->filePath(name);
    samples::writeTable(path.toStdString(), table);
    return path;
}

bool TestHandOver::hasOpened(QProcess& process, const QString& file)
{
    const QByteArray wanted = "Added to openFilesMap: " + file.toUtf8() + '\n';
    QByteArray output;
    while (!output.contains(wanted)) {
        if (!process.waitForReadyRead(20'000)) {
            qWarning("%s", output.constData());
            return false;
        }
        output += process.readAll();
    }
    return true;
}

void TestHandOver::secondStartHandsItsFileToTheFirst()
{
    start(m_first, {write("dm.xpt")});
    QVERIFY(hasOpened(m_first, m_folder->filePath("dm.xpt")));

    QVERIFY(QDir(m_folder->path()).mkdir("sub"));
    const QString file = write("sub/Prüfung ae.xpt");
    QProcess second;
    start(second, {"sub/Prüfung ae.xpt", write("ignored.xpt")});

    QVERIFY(second.waitForFinished(20'000));
    QCOMPARE(second.exitStatus(), QProcess::NormalExit);
    QCOMPARE(second.exitCode(), 0);
    QVERIFY(!second.readAll().contains("openFilesMap"));
    QVERIFY(hasOpened(m_first, file));
    QCOMPARE(m_first.state(), QProcess::Running);
}

void TestHandOver::programEndsWhereItCannotListen()
{
    QVERIFY(QDir(m_folder->path()).mkpath("tmp/QuorlaneSingleInstance/in/use"));
    start(m_first, {});
    QVERIFY(m_first.waitForFinished(20'000));
    QCOMPARE(m_first.exitCode(), 1);
    QVERIFY(m_first.readAll().contains("[critical] Failed to start server: "));
}

QTEST_GUILESS_MAIN(TestHandOver)
#include "TestHandOver.moc"

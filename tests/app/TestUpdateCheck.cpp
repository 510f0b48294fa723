#include "app/start/UpdateCheck.h"
#include "tests/support/HttpServer.h"
#include "tests/support/LogCapture.h"
#include "tests/support/ScriptedPrompts.h"

#include <QNetworkProxy>
#include <QTest>
#include <QUrl>

#include <algorithm>

class TestUpdateCheck : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void onlyANewerVersionIsOffered();
    void downloadPageIsOpenedOnRequestOnly();
    void failuresAreToldInPassing();
    void oversizedAnswerIsGivenUp();
    void checkMayEndWhileAnAnswerIsAwaited();

private:
    /// Makes the check and waits until its reply is gone.
    void check(const std::function<void(UpdateCheck::Setup&)>& change = {});
    [[nodiscard]] UpdateCheck::Setup setup();
    void answer(const QByteArray& body) { m_server->answer(manifest, "200 OK", body); }

    static constexpr auto manifest = "/updates/update.json";
    std::unique_ptr<HttpServer> m_server;
    std::unique_ptr<LogCapture> m_log;
    ScriptedPrompts::Script m_script;
    QStringList m_opened;
    QStringList m_failures;  ///< told in passing
};

void TestUpdateCheck::initTestCase()
{
    // The surroundings may name one.
    QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
}

void TestUpdateCheck::init()
{
    m_server = std::make_unique<HttpServer>();
    QVERIFY(m_server->isListening());
    m_log = std::make_unique<LogCapture>();
    m_script = {};
    m_opened.clear();
    m_failures.clear();
}

void TestUpdateCheck::cleanup()
{
    QCOMPARE(m_log->take(), "");
    m_log.reset();
    m_server.reset();
}

UpdateCheck::Setup TestUpdateCheck::setup()
{
    UpdateCheck::Setup setup;
    setup.webSite = m_server->address();
    setup.version = "2025.10.28";
    setup.openPage = [this](const QUrl& page) { m_opened << page.toString(); };
    return setup;
}

void TestUpdateCheck::check(const std::function<void(UpdateCheck::Setup&)>& change)
{
    UpdateCheck::Setup setup = this->setup();
    if (change) {
        change(setup);
    }
    ScriptedPrompts prompts(m_script);
    UpdateCheck check(setup, prompts);
    connect(&check, &UpdateCheck::signalFailed, this,
            [this](const QString& message) { m_failures << message; });
    check.check();
    QTRY_VERIFY(!check.isBusy());
}

void TestUpdateCheck::onlyANewerVersionIsOffered()
{
    const auto version = [](const QByteArray& text) { return R"({"version": ")" + text + "\"}"; };
    const std::pair<QByteArray, const char*> table[]{
        {version("2025.10.28"), ""},
        {version("2026.01.01"), "2026.01.01"},
        {version("2025.09.30"), ""},
        {version("10000.01.01"), ""},  // compared as text
        {version("v1"), "v1"},
        {version("<b>9</b>"), "<b>9</b>"},  // markup and place markers stay text
        {version("3%1%2"), "3%1%2"},
        {R"({"a": [1], "version": "3", "b": {}})", "3"},
        {R"({"latest": "2026.01.01"})", ""},
        {R"(["version", "2026.01.01"])", ""},
        {R"({"version": "2026.01.01")", ""},
        {"", ""},
    };
    for (const auto& [body, offered] : table) {
        m_script.notes.clear();
        answer(body);
        check();
        QCOMPARE(m_server->requests().constLast(), "GET /updates/update.json HTTP/1.1");
        const QString note =
            "offer|Update Available|A new version is available!\n\nLatest version: "
            + QString(offered)
            + "\nYour version: 2025.10.28\n\nClick 'Open' to get the latest version:\n"
            + m_server->address() + "/download/";
        QCOMPARE(m_script.notes, *offered == '\0' ? QStringList() : QStringList(note));
        QCOMPARE(m_failures, QStringList());
    }
}

void TestUpdateCheck::downloadPageIsOpenedOnRequestOnly()
{
    answer(R"({"version": "2026.01.01"})");
    check();
    QCOMPARE(m_script.notes.size(), 1);
    QCOMPARE(m_opened, QStringList());
    m_script.opening = true;
    check();
    QCOMPARE(m_opened, QStringList(m_server->address() + "/download/"));
}

void TestUpdateCheck::failuresAreToldInPassing()
{
    const QString address = m_server->address();
    for (const QByteArray& status :
         {QByteArray("404 Not Found"), QByteArray("500 Internal Server Error"), QByteArray()}) {
        if (status.isEmpty()) {
            m_server->close();  // which leaves nobody to reach
        }
        m_server->answer(manifest, status, R"({"version": "2026.01.01"})");
        check([&](UpdateCheck::Setup& setup) { setup.webSite = address; });
        const std::string log = m_log->take();
        QVERIFY2(log.starts_with("warning: Update check failed: "), log.c_str());
        QCOMPARE(std::ranges::count(log, '\n'), 1);
        QVERIFY(m_failures.takeFirst().startsWith("The check for updates has failed: "));
        QCOMPARE(m_script.notes, QStringList());
    }
}

void TestUpdateCheck::oversizedAnswerIsGivenUp()
{
    const QByteArray body = R"({"version": "2026.01.01", "x": ")" + QByteArray(70'000, 'x') + "\"}";
    answer(body);
    check();
    QCOMPARE(m_log->take(), "warning: Update check failed: the answer is too large\n");
    QCOMPARE(m_script.notes, QStringList());
}

void TestUpdateCheck::checkMayEndWhileAnAnswerIsAwaited()
{
    {
        ScriptedPrompts prompts(m_script);
        UpdateCheck check(setup(), prompts);
        check.check();
        QTRY_COMPARE(m_server->requests().size(), 1);
    }
    QCOMPARE(m_script.notes, QStringList());
}

QTEST_GUILESS_MAIN(TestUpdateCheck)
#include "TestUpdateCheck.moc"

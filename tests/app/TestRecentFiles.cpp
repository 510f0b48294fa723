#include "app/open/RecentFiles.h"
#include "app/start/Settings.h"
#include "app/window/EmptyState.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

class TestRecentFiles : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void lastOpenedIsFirstAndNoneIsThereTwice();
    void menuListsTheFilesWithTheirKeys();
    void chosenFileIsAskedForAndLeavesTheListWhenGone();
    void emptyStateOffersActionsAndFiles();
    void fileClickedMayReplaceTheList();

private:
    [[nodiscard]] QString path(const QString& name) const { return m_folder->filePath(name); }
    [[nodiscard]] static QStringList texts(const QMenu& menu);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QSettings> m_store;
    std::unique_ptr<Settings> m_settings;
    std::unique_ptr<RecentFiles> m_files;
};

void TestRecentFiles::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_store = std::make_unique<QSettings>(path("settings.ini"), QSettings::IniFormat);
    m_settings = std::make_unique<Settings>(*m_store);
    m_files = std::make_unique<RecentFiles>(*m_settings);
}

void TestRecentFiles::cleanup()
{
    m_files.reset();
    m_settings.reset();
    m_store.reset();
}

/// The menu's entries, separators as "-".
QStringList TestRecentFiles::texts(const QMenu& menu)
{
    QStringList result;
    for (const QAction* action : menu.actions()) {
        result << (action->isSeparator() ? QStringLiteral("-") : action->text());
    }
    return result;
}

void TestRecentFiles::lastOpenedIsFirstAndNoneIsThereTwice()
{
    QSignalSpy changes(m_files.get(), &RecentFiles::signalChanged);
    for (const char* name : {"/d/a", "/d/b", "x/../c", "/d/a"}) {
        m_files->add(name);
    }
    const QString here = QDir::currentPath();
    m_files->add("/d/a");
    m_files->add(here + "/c");
    QCOMPARE(m_files->paths(), QStringList({here + "/c", "/d/a", "/d/b"}));
    QCOMPARE(changes.count(), 5);
    for (int number = 1; number <= 12; ++number) {
        m_files->add(QStringLiteral("/d/ö, %1").arg(number));
    }
    m_store->sync();
    QSettings store(path("settings.ini"), QSettings::IniFormat);
    Settings settings(store);
    QCOMPARE(RecentFiles(settings).paths(), m_files->paths());
    QCOMPARE(m_files->paths().size(), 10);
    QCOMPARE(m_files->paths().constFirst(), "/d/ö, 12");
    QCOMPARE(m_files->paths().constLast(), "/d/ö, 3");
    m_files->clear();
    m_files->clear();
    QCOMPARE(changes.count(), 18);
    QCOMPARE(m_files->paths(), QStringList());
}

void TestRecentFiles::menuListsTheFilesWithTheirKeys()
{
    QMenu menu;
    menu.addAction("Exit");
    m_files->showIn(&menu);
    QCOMPARE(texts(menu), QStringList("Exit"));
    for (const char* name : {"j", "i", "h", "g", "f", "e", "d", "c", "b", "A & B.csv"}) {
        m_files->add(QStringLiteral("/d&x/%1").arg(name));
    }
    const QStringList entries = texts(menu);
    QCOMPARE(entries.size(), 12);
    QCOMPARE(entries.mid(0, 3), QStringList({"Exit", "-", "&1 A && B.csv (in /d&&x)"}));
    QCOMPARE(entries.mid(10), QStringList({"&9 i (in /d&&x)", "10 j (in /d&&x)"}));
    m_files->clear();
    QCOMPARE(texts(menu), QStringList("Exit"));
}

void TestRecentFiles::chosenFileIsAskedForAndLeavesTheListWhenGone()
{
    QFile file(path("a.csv"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QMenu menu;
    m_files->showIn(&menu);
    m_files->add(path("gone.csv"));
    m_files->add(file.fileName());
    QSignalSpy requests(m_files.get(), &RecentFiles::signalOpenRequested);

    menu.actions().at(1)->trigger();
    QCOMPARE(requests.takeFirst().constFirst().toString(), file.fileName());
    QCOMPARE(m_files->paths().size(), 2);

    menu.actions().at(2)->trigger();
    QCOMPARE(requests.takeFirst().constFirst().toString(), path("gone.csv"));
    QCOMPARE(m_files->paths(), QStringList(file.fileName()));
    QCOMPARE(texts(menu).size(), 2);
}

void TestRecentFiles::emptyStateOffersActionsAndFiles()
{
    QWidget parent;
    QAction open("&Open SAS Datasets");
    open.setShortcut(QKeySequence("Ctrl+O"));
    QAction other("Open CSV Files");
    other.setEnabled(false);
    EmptyState state(&parent);
    state.setActions({&open, &other});
    state.setRecentFiles({"/d/a&b.csv"});
    QSignalSpy triggered(&open, &QAction::triggered);
    QSignalSpy requests(&state, &EmptyState::signalOpenRequested);

    const auto actions = state.findChildren<QToolButton*>("buttonAction");
    const auto files = state.findChildren<QToolButton*>("buttonRecentFile");
    QCOMPARE(actions.size(), 2);
    QCOMPARE(actions.at(0)->text(), "Open SAS Datasets (Ctrl+O)");
    QVERIFY(!actions.at(1)->isEnabled());
    QCOMPARE(files.size(), 1);
    QCOMPARE(files.at(0)->text(), "a&&b.csv (in /d)");
    actions.at(0)->click();
    files.at(0)->click();

    QCOMPARE(triggered.count(), 1);
    QCOMPARE(requests.count(), 1);
    QCOMPARE(requests.constFirst().constFirst().toString(), "/d/a&b.csv");
}

void TestRecentFiles::fileClickedMayReplaceTheList()
{
    QWidget parent;
    EmptyState state(&parent);
    state.setRecentFiles({"/d/a", "/d/b"});
    connect(&state, &EmptyState::signalOpenRequested, &state,
            [&](const QString& file) { state.setRecentFiles({file}); });

    state.findChildren<QToolButton*>().at(1)->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    const auto buttons = state.findChildren<QToolButton*>();
    QCOMPARE(buttons.size(), 1);
    QCOMPARE(buttons.at(0)->text(), "b (in /d)");
}

QTEST_MAIN(TestRecentFiles)
#include "TestRecentFiles.moc"

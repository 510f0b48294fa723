#include "app/window/DatasetWindow.h"
#include "app/window/MainWindow.h"
#include "grid/MainTableModel.h"
#include "grid/MainTableView.h"
#include "samples/Study.h"
#include "samples/TableWriter.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TemporaryServices.h"

#include <QAction>
#include <QDirIterator>
#include <QMdiArea>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <random>

/// Thirty files at once: real ones where QUORLANE_TEST_DATA names their folder, else those of the
/// sample study.
class TestManyFiles : public QObject
{
    Q_OBJECT

private slots:
    void thirtyFilesAreUsedAndClosedInRandomOrder_data();
    void thirtyFilesAreUsedAndClosedInRandomOrder();

private:
    static constexpr int fileCount = 30;

    void writeStudy() const;
    [[nodiscard]] QStringList files() const;
    static void use(MainTableView& view, std::mt19937& random);

    QTemporaryDir m_folder;
};

/// Each table of the sample study in every format: 36 files.
void TestManyFiles::writeStudy() const
{
    QVERIFY(QDir(m_folder.path()).mkpath("study"));
    for (const samples::Table& table : samples::studyTables()) {
        for (const char* suffix : {".xpt", ".sas7bdat", ".sav", ".dta"}) {
            const std::string name = table.name + suffix;
            samples::writeTable(m_folder.filePath("study").toStdString() + '/' + name, table);
        }
    }
}

QStringList TestManyFiles::files() const
{
    constexpr qint64 largest = 2'000'000;
    const QString real = qEnvironmentVariable("QUORLANE_TEST_DATA");
    const QString folder = real.isEmpty() ? m_folder.filePath("study") : real;
    QStringList found;
    QDirIterator walk(folder, {"*.sas7bdat", "*.xpt", "*.sav", "*.dta"}, QDir::Files,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        walk.next();
        if (!walk.filePath().contains("/corrupt") && walk.fileInfo().size() < largest) {
            found << walk.filePath();
        }
    }
    found.sort();
    return found;
}

/// What a user does to a grid, at random.
void TestManyFiles::use(MainTableView& view, std::mt19937& random)
{
    const int rows = view.tableModel()->rowCount();
    const int columns = view.tableModel()->columnCount();
    if (rows == 0 || columns == 0) {
        return;
    }
    view.setCurrentIndex(
        view.model()->index(int(random() % unsigned(rows)), int(random() % unsigned(columns))));
    constexpr std::array commands{GridCommand::FilterAgain,       GridCommand::FilterLess,
                                  GridCommand::HideVariable,      GridCommand::UnhideVariables,
                                  GridCommand::UndoDatasetFilter, GridCommand::Frequency,
                                  GridCommand::AddByVariable,     GridCommand::LibraryFilter,
                                  GridCommand::ShiftRight,        GridCommand::ClearLibraryFilter};
    view.run(commands.at(random() % commands.size()));
    view.onHeaderClicked(int(random() % unsigned(columns)));
}

void TestManyFiles::thirtyFilesAreUsedAndClosedInRandomOrder_data()
{
    QTest::addColumn<unsigned>("seed");
    QTest::newRow("1") << 1U;
    QTest::newRow("2") << 2U;
}

void TestManyFiles::thirtyFilesAreUsedAndClosedInRandomOrder()
{
    QFETCH(unsigned, seed);
    if (qEnvironmentVariableIsEmpty("QUORLANE_TEST_DATA")) {
        writeStudy();
    }
    std::mt19937 random(seed);
    const LogCapture log;
    ScriptedPrompts::Script script;
    MainWindow window(temporaryServices(m_folder.path(), script));
    window.show();

    QStringList paths = files();
    std::shuffle(paths.begin(), paths.end(), random);
    for (const QString& path : paths) {
        if (window.openFiles().size() < fileCount && window.openDatasetFile(path)) {
            use(*window.activeView(), random);
        }
    }
    QVERIFY(window.openFiles().size() >= std::min<std::size_t>(fileCount, paths.size() / 2));

    auto* area = window.findChild<QMdiArea*>("mdiArea");
    for (QList<QMdiSubWindow*> open = area->subWindowList(); !open.isEmpty();
         open = area->subWindowList()) {
        const auto before = window.openFiles().size();
        QMdiSubWindow* closing = open.at(qsizetype(random() % unsigned(open.size())));
        closing->close();
        QCOMPARE(window.openFiles().size(), before - 1);
        if (window.activeView() != nullptr && random() % 2 == 0) {
            use(*window.activeView(), random);
        }
        QCoreApplication::sendPostedEvents(closing, QEvent::DeferredDelete);
    }
    QVERIFY(window.activeView() == nullptr);
    QCOMPARE(window.openFiles().size(), std::size_t{0});
}

QTEST_MAIN(TestManyFiles)
#include "TestManyFiles.moc"

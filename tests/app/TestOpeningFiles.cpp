#include "app/window/DatasetWindow.h"
#include "app/window/MainWindow.h"
#include "data/StatDataset.h"
#include "grid/MainTableView.h"
#include "samples/TableWriter.h"
#include "tests/support/TemporaryServices.h"

#include <QFile>
#include <QMdiArea>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

/// The main window over the real readers.
class TestOpeningFiles : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void readerIsChosenBySuffixInAnyCase_data();
    void readerIsChosenBySuffixInAnyCase();
    void otherSuffixesAreRefused();
    void unreadableFilesAreToldWithAReason();

private:
    [[nodiscard]] QString write(const QString& name) const;
    [[nodiscard]] QList<QMdiSubWindow*> windows() const
    {
        return m_window->findChild<QMdiArea*>("mdiArea")->subWindowList();
    }

    QTemporaryDir m_folder;
    ScriptedPrompts::Script m_script;
    std::unique_ptr<MainWindow> m_window;
};

void TestOpeningFiles::init()
{
    m_script = {};
    MainWindowServices services = temporaryServices(m_folder.path(), m_script);
    m_window = std::make_unique<MainWindow>(std::move(services));
}

/// A file with two rows of a text and a number.
QString TestOpeningFiles::write(const QString& name) const
{
    samples::Table table;
    table.name = "DATA";
    table.columns = {samples::textColumn("SEX", "Sex"), samples::numberColumn("AGE", "Age")};
    table.rows = {{"F", 44.0}, {"M", 31.0}};
    const QString path = m_folder.filePath(name);
    samples::writeTable(path.toStdString(), table);
    return path;
}

void TestOpeningFiles::readerIsChosenBySuffixInAnyCase_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<SourceKind>("kind");
    QTest::newRow("SAS7BDAT") << "DATA.SAS7BDAT" << SourceKind::Sas;
    QTest::newRow("transport") << "data.Xpt" << SourceKind::Sas;
    QTest::newRow("SPSS") << "data.sav" << SourceKind::Spss;
    QTest::newRow("Stata") << "data.DTA" << SourceKind::Stata;
}

void TestOpeningFiles::readerIsChosenBySuffixInAnyCase()
{
    QFETCH(QString, name);
    QFETCH(SourceKind, kind);
    QVERIFY(m_window->openDatasetFile(write(name)));
    QCOMPARE(windows().size(), 1);
    auto* window = qobject_cast<DatasetWindow*>(windows().first());
    QCOMPARE(window->windowTitle(), name);
    QVERIFY(window->dataset()->sourceKind() == kind);
    QCOMPARE(window->dataset()->observationCount(), 2);
    QCOMPARE(window->view()->model()->index(1, 0).data().toString(), "M");
    QVERIFY(m_script.notes.isEmpty());
}

void TestOpeningFiles::otherSuffixesAreRefused()
{
    const QString path = m_folder.filePath("notes.txt");
    QVERIFY(QFile::copy(write("data.xpt"), path));
    QVERIFY(!m_window->openDatasetFile(path));
    QVERIFY(windows().isEmpty());
    QCOMPARE(m_script.notes.size(), 1);
    QVERIFY(
        m_script.notes.first().startsWith("warn|Open File|Failed to open the file: " + path + '|'));
}

void TestOpeningFiles::unreadableFilesAreToldWithAReason()
{
    QFile damaged(m_folder.filePath("damaged.sas7bdat"));
    QVERIFY(damaged.open(QIODevice::WriteOnly) && damaged.write("no such thing") > 0);
    damaged.close();
    for (const QString& name : {QString("damaged.sas7bdat"), QString("absent.xpt")}) {
        m_script.notes.clear();
        QVERIFY(!m_window->openDatasetFile(m_folder.filePath(name)));
        QCOMPARE(m_script.notes.size(), 1);
        QVERIFY2(!m_script.notes.first().section('|', 3).isEmpty(), "there is no reason");
    }
    QVERIFY(m_window->openFiles().isEmpty());
}

QTEST_MAIN(TestOpeningFiles)
#include "TestOpeningFiles.moc"

#include "analysis/panels/PanelTable.h"
#include "app/docks/WorkspaceTree.h"
#include "app/open/SuppFiles.h"
#include "samples/TableWriter.h"
#include "tests/support/WindowFixture.h"

#include <QDialog>
#include <QPushButton>

using samples::textColumn;

/// A folder with DM and SUPPDM, one row of which is of a subject that DM does not have and one in
/// conflict with another.
class TestSuppJoins : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        startUp();
        openWindow(true);
        write("ASIAN");
    }
    void cleanup()
    {
        // What could not be joined is logged as a warning each time.
        static_cast<void>(log->take());
        shutDown();
    }

    void joinsTheDatasetInFront();
    void findingsLeadToTheRows();
    void reloadJoinsAnew();
    void filesByName_data();
    void filesByName();

private:
    void write(const std::string& race) const
    {
        samples::Table dm;
        dm.name = "DM";
        dm.columns = {textColumn("STUDYID", "", 1), textColumn("DOMAIN", "", 2),
                      textColumn("USUBJID", "", 2)};
        dm.rows = {{"S", "DM", "01"}, {"S", "DM", "02"}};
        samples::Table supp;
        supp.name = "SUPPDM";
        supp.columns = {textColumn("STUDYID", "", 1),  textColumn("RDOMAIN", "", 2),
                        textColumn("USUBJID", "", 2),  textColumn("IDVAR", "", 8),
                        textColumn("IDVARVAL", "", 8), textColumn("QNAM", "", 8),
                        textColumn("QLABEL", "", 8),   textColumn("QVAL", "", 8),
                        textColumn("QORIG", "", 8)};
        supp.rows = {{"S", "DM", "03", "", "", "RACE1", "Race 1", "WHITE", "CRF"},
                     {"S", "DM", "02", "", "", "RACE1", "Race 1", race, "CRF"},
                     {"S", "DM", "02", "", "", "RACE1", "Race 1", "BLACK", "CRF"}};
        if (!QFile::exists(path("dm.xpt"))) {
            samples::writeTable(path("dm.xpt").toStdString(), dm);
        }
        samples::writeTable(path("suppdm.xpt").toStdString(), supp);
    }
    void join()
    {
        QVERIFY(open("dm.xpt"));
        trigger("actionJoinSupp");
        QCOMPARE(active()->datasetName(), QString("DM + SUPPDM"));
    }
    [[nodiscard]] QString race(int row) const
    {
        return view().model()->index(row, 3).data().toString();
    }
};

void TestSuppJoins::joinsTheDatasetInFront()
{
    auto* action = child<QAction>("actionJoinSupp");
    QVERIFY(!action->isEnabled());
    join();
    QVERIFY2(!action->isEnabled(), "what is joined cannot be joined again");
    QCOMPARE(titles(), QStringList({"dm.xpt", "dm + suppdm"}));
    QCOMPARE(active()->property("fileKey").toString(), path("dm.xpt") + " + " + path("suppdm.xpt"));
    QCOMPARE(race(0), QString());
    QCOMPARE(race(1), QString("ASIAN | BLACK"));
    QCOMPARE(view().model()->headerData(3, Qt::Horizontal, Qt::ToolTipRole).toString(),
             QString("Race 1\nSUPPDM\nQORIG: CRF"));
    QVERIFY(child<QStatusBar>("statusbar")
                ->currentMessage()
                .contains("joined variables 1, rows that match no observation 1, conflicts 1"));
    const QString logged = QString::fromStdString(log->take());
    QVERIFY(logged.contains("SUPPDM row 1, 03 RACE1=WHITE: No observation"));

    script.text = "s";
    trigger("actionSaveSession");
    QCOMPARE(notes().size(), 1);
    QVERIFY(child<QStatusBar>("statusbar")->currentMessage().contains("without joined datasets"));

    activate(0);
    QVERIFY(action->isEnabled());
    emit child<WorkspaceTree>("treeView")->signalJoinRequested(path("dm.xpt"));
    QCOMPARE(notes(),
             QStringList("confirm|Reload Dataset|\"dm.xpt + suppdm.xpt\" is already open."
                         "\nDo you want to reload it?"));
    QCOMPARE(active()->datasetName(), QString("DM + SUPPDM"));
}

void TestSuppJoins::findingsLeadToTheRows()
{
    join();
    active()->findChild<QFrame*>("joinNotice")->findChild<QPushButton*>()->click();
    auto* dialog = child<QDialog>("suppFindings");
    QVERIFY(dialog != nullptr);
    auto* table = dialog->findChild<PanelTable*>();
    QCOMPARE(table->model()->rowCount(), 2);
    QVERIFY(!dialog->findChild<QPushButton*>("showObservation")->isEnabled());
    table->selectRow(1);
    QCOMPARE(table->model()->index(1, 7).data().toString(),
             QString("Row 2 of SUPPDM has another value: ASIAN"));
    emit table->doubleClicked(table->currentIndex());
    QCOMPARE(active()->datasetName(), QString("SUPPDM"));
    QCOMPARE(view().currentIndex().row(), 2);
    dialog->findChild<QPushButton*>("showOtherRow")->click();
    QCOMPARE(view().currentIndex().row(), 1);
    dialog->findChild<QPushButton*>("showObservation")->click();
    QCOMPARE(active()->datasetName(), QString("DM + SUPPDM"));
    QCOMPARE(view().currentIndex().row(), 1);
}

void TestSuppJoins::reloadJoinsAnew()
{
    join();
    write("OTHER");
    QTRY_VERIFY(titles().contains("dm + suppdm - changed on disk"));
    trigger("actionReload");
    QCOMPARE(race(1), QString("OTHER | BLACK"));
    QCOMPARE(titles().at(1), QString("dm + suppdm"));
    QVERIFY(QFile::remove(path("suppdm.xpt")));
    trigger("actionReload");
    QVERIFY(notes().value(0).startsWith("warn|Join SUPP--|Failed to join dm.xpt + suppdm.xpt|"));
    QCOMPARE(race(1), QString("OTHER | BLACK"));
}

void TestSuppJoins::filesByName_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("parent");
    QTest::addColumn<QString>("found");
    QTest::newRow("of the same kind")
        << QStringList({"SuppAE.csv", "suppae.xpt", "suppaefoo1.xpt"}) << "ae.xpt"
        << "suppae.xpt";
    QTest::newRow("any kind") << QStringList({"suppae.json"}) << "AE.xpt"
                              << "suppae.json";
    QTest::newRow("split files of one domain")
        << QStringList({"supplbch.xpt", "supplbhe.xpt", "suppla.xpt"}) << "lb.xpt"
        << "supplbch.xpt supplbhe.xpt";
    QTest::newRow("split domain has its own")
        << QStringList({"supplb.xpt", "supplbch.xpt", "supplbhe.xpt"}) << "lbch.xpt"
        << "supplbch.xpt";
    QTest::newRow("split domain has none of its own")
        << QStringList({"supplb.xpt", "supplbhe.xpt"}) << "lbch.xpt"
        << "supplb.xpt";
    QTest::newRow("none") << QStringList({"ae.csv", "suppdm.xpt", "supp.xpt", "su.xpt"}) << "ae.xpt"
                          << "";
}

void TestSuppJoins::filesByName()
{
    QFETCH(QStringList, files);
    QFETCH(QString, parent);
    QTemporaryDir other;
    for (const QString& name : files) {
        QVERIFY(QFile(other.filePath(name)).open(QIODevice::WriteOnly));
    }
    QStringList names;
    for (const JoinedFile& file : suppfiles::beside(other.filePath(parent), QString())) {
        names << QFileInfo(file.path).fileName();
    }
    QTEST(names.join(' '), "found");
}

QTEST_MAIN(TestSuppJoins)
#include "TestSuppJoins.moc"

#include "app/code/ProgramEditor.h"
#include "tests/support/WindowFixture.h"

#include <QFile>

/// The program of a view, on its way out and back.
class TestPrograms : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void init() { startUp(); }
    void cleanup() { shutDown(); }
    void programReadBackChangesNothing_data();
    void programReadBackChangesNothing();
    void editedProgramChangesTheView();
    void sasNamesStandForTheVariables();
    void longProgramIsWholeBeforeItIsSeen();

private:
    /// Runs a program in a tab of its own.
    void runProgram(const QString& program) const
    {
        trigger("actionNewSasProgram");
        window->findChildren<ProgramEditor*>("programEditor").last()->setPlainText(program);
        trigger("actionSubmit");
    }
    [[nodiscard]] ProgramEditor& generated() const
    {
        return *child<ProgramEditor>("programWindow");
    }
};

/// What a grid shows: its filters and BY list, and the variables and observations in sight.
QStringList shownIn(const MainTableView& view)
{
    const OpenDataset& opened = *view.opened();
    QStringList shown{opened.libraryFilterText(), opened.datasetFilterText(), opened.byText()};
    for (int variable = 0; variable < opened.dataset().variableCount(); ++variable) {
        shown << (opened.variables().isShown(variable) ? opened.nameOf(variable) : QString());
    }
    for (int row = 0; row < view.model()->rowCount(); ++row) {
        if (!view.isRowHidden(row)) {
            shown << view.model()->headerData(row, Qt::Vertical).toString();
        }
    }
    return shown;
}

void TestPrograms::programReadBackChangesNothing_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("commands");
    QTest::addColumn<QString>("by");
    const auto row = [](const char* file, const QStringList& commands, const QString& by = {}) {
        QTest::newRow(file) << file << commands << by;
    };
    row("xpt/sdtm/dm.xpt", {"where SEX = 'F'", "if AGE > 70", "drop DOMAIN SUBJID"}, "ARM SEX");
    row("xpt/sdtm/ae.xpt", {"if AESEV = 'MILD' or AESER = 'Y'", "if index(AETERM, 'A') > 0"});
    row("xpt/sdtm/cm.xpt", {"keep CMTRT USUBJID", "if CMTRT contains 'A'"}, "CMTRT");
    row("sas7bdat/airline.sas7bdat", {"if YEAR in (1950, 1960, 1970)", "drop W"});
    row("sas7bdat/date_formats.sas7bdat", {"if date >= '01JAN2017'd", "drop day"}, "date");
    row("sav/simple_alltypes.sav", {"where x = 1", "drop 'y'n"});
    row("dta/iris.dta", {"if species = 'virginica' or sepallength < 5", "drop petalwidth"});
    row("r/dm.rda", {"where SEX = 'M'", "keep USUBJID AGE", "if AGE >= 65"}, "AGE");
    row("r/tibble_odd_names.rds", {"if 'odd name'n > 1", "drop '.dot'n"}, "'odd name'n");
    row("r/vs.rda", {"if VSTESTCD = 'PULSE' and VSSTRESN < 60", "keep VSSTRESN USUBJID"});
}

/// Programs of real views, read back where they come from and where nothing has been done yet.
void TestPrograms::programReadBackChangesNothing()
{
    QFETCH(QString, file);
    QFETCH(QStringList, commands);
    QFETCH(QString, by);
    const QString data = qEnvironmentVariable("QUORLANE_TEST_DATA");
    if (data.isEmpty()) {
        QSKIP("QUORLANE_TEST_DATA names no folder");
    }
    openWindow(true);
    QVERIFY(window->openDatasetFile(data + '/' + file));
    const QStringList untouched = shownIn(view());
    for (const QString& command : commands) {
        submit("comboBoxDf", command);
    }
    submit("comboBoxBy", by);
    const QStringList shown = shownIn(view());
    const QString program = generated().toPlainText();
    QVERIFY(shown != untouched && shown.last().toInt() > 0);
    trigger("actionSubmit");
    QCOMPARE(shownIn(view()), shown);
    QCOMPARE(window->statusBar()->currentMessage().section(' ', 0, 1), "Run on");

    submit("comboBoxDf", "clf");
    submit("comboBoxDf", "cdf");
    submit("comboBoxBy", "");
    view().opened()->showAllVariables();
    QCOMPARE(shownIn(view()), untouched);
    runProgram(program);
    QCOMPARE(shownIn(view()), shown);
    QCOMPARE(generated().toPlainText(), program);
    (void)log->take();  // what readers say of these files
}

void TestPrograms::editedProgramChangesTheView()
{
    open("dm");
    submit("comboBoxDf", "where SEX = 'F'");
    submit("comboBoxDf", "if AGE > 30");
    submit("comboBoxDf", "drop SEX");
    QString program = generated().toPlainText();
    runProgram(program.replace("'F'", "'M'").replace("> 30", "= 40").replace("age;", "sex;"));
    QCOMPARE(status(),
             QStringList(
                 {"Rows: 1/3", "Vars: 1/2", "By: NA", "LF: where SEX = 'M'", "DF: if AGE = 40"}));
    QVERIFY(view().opened()->variables().isShown(0));
    // The filter in force passes where it cannot filter.
    open("ts");
    const QString before = generated().toPlainText();
    QVERIFY(before.contains("where SEX = 'M';"));
    runProgram(before);
    QCOMPARE(window->statusBar()->currentMessage(), "Run on ts.");
    QCOMPARE(generated().toPlainText(), before);
}

void TestPrograms::sasNamesStandForTheVariables()
{
    fillOwn = [](ScriptedDataset& dataset) {
        for (const char* name : {"a.b", "Arm-Code", "x y", "x_y", "c", ".c1", "(c1)"}) {
            dataset.variable(name, TypeCode::Double);
        }
        dataset.row({1.0, 1.0, 1.0, 1.0, 1.0, 1.0, 1.0});
    };
    open("own");
    runProgram("keep ab arm_code X_Y; drop 'x_y'n; by ARM_code;");
    QCOMPARE(view().opened()->state().hiddenVariables,
             std::vector<std::string>({"x y", "x_y", "c", ".c1", "(c1)"}));
    QCOMPARE(view().opened()->byText(), "'Arm-Code'n");
    for (const char* program : {"keep c1;", "by c1;"}) {
        runProgram(program);
        QCOMPARE(window->statusBar()->currentMessage(),
                 "Nothing has been run. Line 1: c1 is the SAS name of several variables: .c1, "
                 "(c1)");
    }
    runProgram("drop nosuch;");
    QCOMPARE(window->statusBar()->currentMessage(),
             "Nothing has been run. Line 1: There is no variable named nosuch");
    (void)log->take();
}

void TestPrograms::longProgramIsWholeBeforeItIsSeen()
{
    open("dm");
    dock("Code")->hide();
    submit("comboBoxDf", "if AGE in (30" + QString(", 40").repeated(20'000) + ")");
    script.savePath = path("saved.sas");
    trigger("actionSaveSasProgram");
    QCOMPARE(notes().size(), 1);
    QFile saved(script.savePath);
    QVERIFY(saved.open(QIODevice::ReadOnly));
    const QString program = QString::fromUtf8(saved.readAll());
    QVERIFY(
        program.startsWith("/* Auto-generated SAS code for the current table view */\nlibname "));
    QVERIFY(program.endsWith(", 40);\nrun;"));
    dock("Code")->show();
    QCOMPARE(generated().toPlainText(), program);
}

QTEST_MAIN(TestPrograms)
#include "TestPrograms.moc"

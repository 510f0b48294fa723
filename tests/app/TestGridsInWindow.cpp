#include "tests/support/WindowFixture.h"

#include <QHelpEvent>
#include <QToolTip>

/// How grids, boxes, programs and status bar of a main window work together.
class TestGridsInWindow : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void init() { startUp(); }
    void cleanup() { shutDown(); }
    void boxRunsCommandsAndRemembersThem();
    void libraryFilterIsReadTheSameWithoutADataset();
    void dataFilterReplacesTheDatasetFilter();
    void programRunsOnTheActiveGrid();
    void longFiltersLeaveTheWindowItsSize();

private:
    void submitDf(const QString& line) const { submit("comboBoxDf", line); }
    void submitLf(const QString& line) const { submit("comboBoxLf", line); }
    void runProgram(const QString& program) const
    {
        child<QPlainTextEdit>("programEditor")->setPlainText(program);
        trigger("actionSubmit");
    }
};

void TestGridsInWindow::boxRunsCommandsAndRemembersThem()
{
    open("dm");
    open("dm2");
    QTest::keyClick(&view(), Qt::Key_L, Qt::ControlModifier);
    auto* box = child<QComboBox>("comboBoxDf");
    QCOMPARE(QApplication::focusWidget(), box);
    QTest::keyClicks(box->lineEdit(), "if AGE > 30 & SEX='F'");
    QTest::keyClick(box->lineEdit(), Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget(), &view());
    QCOMPARE(box->currentText(), "if AGE > 30 and SEX = 'F'");
    QCOMPARE(rows(), "Rows: 1/3");
    submitDf("keep AGE");
    QCOMPARE(status().at(1), "Vars: 1/2");
    activate(0);
    QCOMPARE(rows(), "Rows: 3/3");
    activate(1);
    submitDf("cdf");
    QCOMPARE(rows(), "Rows: 3/3");
    submitDf("keep AGE");
    submitDf("if AGE >");
    QCOMPARE(notes(), QStringList("warn|Command|expect value|if AGE >"));
    QStringList history;
    for (int i = 0; i < box->count(); ++i) {
        history << box->itemText(i);
    }
    QCOMPARE(history, QStringList({"keep AGE", "cdf", "if AGE > 30 & SEX='F'"}));
    submit("comboBoxBy", "");
    QCOMPARE(child<QComboBox>("comboBoxBy")->count(), 0);
    QTest::keyClicks(box->lineEdit(), "dh");  // letters that are keys of the grid
    QCOMPARE(box->currentText(), "dh");
}

void TestGridsInWindow::libraryFilterIsReadTheSameWithoutADataset()
{
    for (const char* filter : {"where SEX = 'F'", "where TSPARM = 'x'"}) {
        submitLf("where AGE > -1");
        QCOMPARE(notes(), QStringList("warn|Command|unknown character in input|where AGE > -1"));
        QCOMPARE(status().at(3), "LF: NA");
        submitLf(filter);
        QCOMPARE(status().at(3), QString("LF: ") + filter);
        submitLf("where TSPARM = 1");
        QVERIFY(notes().join('\n').contains("supports one level only"));
        submitLf("clf x");
        QCOMPARE(notes(), QStringList("warn|Command|unexpected trailing text|clf x"));
        QCOMPARE(status().at(3), "LF: NA");
        if (titles().isEmpty()) {
            open("ts");
        }
    }
    trigger("actionClose");
    submitLf("if AGE > 1");
    QCOMPARE(notes(),
             QStringList("warn|Command|No dataset is open that this could act on.|if AGE > 1"));
}

void TestGridsInWindow::dataFilterReplacesTheDatasetFilter()
{
    const auto edit = [this](const std::optional<QString>& condition) {
        script.dataFilter = condition;
        trigger("actionEditDataFilter");
        return notes();
    };
    open("dm");
    submitDf("if age > 35");
    (void)log->take();  // what was said before
    QCOMPARE(edit(std::nullopt), QStringList("data filter|age > 35"));
    QCOMPARE(log->take(), "info: Filter canceled\n");
    QCOMPARE(rows(), "Rows: 2/3");

    edit("age < 35");
    QCOMPARE(boxText("comboBoxDf") + rows(), "if age < 35Rows: 1/3");
    edit("age < 35");  // as it is: no step
    QTest::keyClick(&view(), Qt::Key_Z);
    QCOMPARE(boxText("comboBoxDf") + rows(), "if age > 35Rows: 2/3");

    // A wrong one is offered to be mended, and leaves the old one.
    QCOMPARE(edit("age > \"x\""),
             QStringList({"data filter|age > 35",
                          "warn|Command|The variable types do not match.|if age > \"x\"",
                          "data filter|age > \"x\""}));
    QCOMPARE(boxText("comboBoxDf") + rows(), "if age > 35Rows: 2/3");
    edit("SEX = \"M  \"");
    QCOMPARE(view().opened()->datasetFilterText(), "if SEX = \"M  \"");
    edit("");
    QCOMPARE(rows(), "Rows: 3/3");
}

void TestGridsInWindow::programRunsOnTheActiveGrid()
{
    open("dm");
    (void)log->take();  // what was said before
    runProgram("libname adam '/data'; * comment;\ndata a; set adam.dm;\n"
               "  where sex\n = 'F';\n  proc print;\nby AGE; keep sex; run;\n");
    QCOMPARE(status().mid(0, 3), QStringList({"Rows: 2/3", "Vars: 1/2", "By: AGE"}));
    QCOMPARE(log->take(), "warning: Line 5: this statement is passed over: proc print\n");

    open("dm2");
    runProgram("if AGE > -1.5e1;\nkeep NOSUCH;\ndrop SEX;\n");
    QCOMPARE(boxText("comboBoxDf"), "if AGE > -1.5e1");
    QCOMPARE(status().at(1), "Vars: 2/2");
    QVERIFY(notes().join('\n').contains("NOSUCH"));
    QVERIFY(log->take().ends_with("error: Line 2: the program has stopped here: keep NOSUCH\n"));
    runProgram("by AGE NOSUCH; drop SEX;");
    QCOMPARE(status().at(1), "Vars: 2/2");
    QCOMPARE(notes().size(), 1);
    (void)log->take();
}

void TestGridsInWindow::longFiltersLeaveTheWindowItsSize()
{
    const auto toolTip = [](QLabel& label) {
        QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), label.mapToGlobal(QPoint(1, 1)));
        QCoreApplication::sendEvent(&label, &event);
        return QToolTip::text();
    };
    open("dm");
    window->resize(700, 500);
    submitDf("if AGE in (30" + QString(", 40").repeated(500) + ")");
    QCoreApplication::sendPostedEvents();
    QCOMPARE(window->width(), 700);
    QVERIFY(window->minimumSizeHint().width() <= 700);
    auto* label = child<QLabel>("labelStatusBarDf");
    QCOMPARE(toolTip(*label), label->text());
    window->resize(1600, 500);
    submitDf("cdf");
    QTRY_VERIFY(label->width() >= label->sizeHint().width());
    (void)toolTip(*label);
    QTRY_VERIFY(!QToolTip::isVisible());
}

QTEST_MAIN(TestGridsInWindow)
#include "TestGridsInWindow.moc"

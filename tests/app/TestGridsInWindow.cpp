#include "app/code/ProgramEditor.h"
#include "data/values/MissingTag.h"
#include "tests/support/WindowFixture.h"

#include <QClipboard>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolTip>
#include <QWheelEvent>

#include <array>
#include <functional>
#include <tuple>

/// How grids, boxes, programs and status bar of a main window work together.
class TestGridsInWindow : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void init() { startUp(); }
    void cleanup() { shutDown(); }
    void boxRunsCommandsAndRemembersThem();
    void boxesShowWhatIsInForceOrMarkIt();
    void editedFilterTakesThePlaceOfTheOneInForce();
    void libraryFilterIsReadTheSameWithoutADataset();
    void dataFilterReplacesTheDatasetFilter();
    void programRunsOnTheActiveGrid();
    void currentCellIsToldWholeAndAsItIsStored();
    void programThatIsWrongRunsNothingAndIsMarked();
    void programOfTheActiveGridIsWritten();
    void operatorInForceIsTold();
    void longFiltersLeaveTheWindowItsSize();

private:
    void submitDf(const QString& line) const { submit("comboBoxDf", line); }
    void submitLf(const QString& line) const { submit("comboBoxLf", line); }
    [[nodiscard]] QLineEdit* line(const QString& box) const
    {
        return child<QComboBox>(box)->lineEdit();
    }
    [[nodiscard]] QTabWidget& code() const
    {
        return *qobject_cast<QTabWidget*>(dock("Code")->widget());
    }
    /// Runs a program in a tab of its own.
    ProgramEditor* runProgram(const QString& program) const
    {
        if (code().count() == 1) {
            trigger("actionNewSasProgram");
        }
        auto* editor = qobject_cast<ProgramEditor*>(code().currentWidget());
        editor->setPlainText(program);
        trigger("actionSubmit");
        return editor;
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
    QCOMPARE(told(), "expect value|if AGE >\n        ^");
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

void TestGridsInWindow::boxesShowWhatIsInForceOrMarkIt()
{
    open("dm");
    for (const auto& [box, inForce] : {std::pair<QString, QString>("comboBoxDf", "if AGE > 30"),
                                       {"comboBoxLf", "where AGE > 30"},
                                       {"comboBoxBy", "AGE"}}) {
        submit(box, inForce);
        auto* combo = child<QComboBox>(box);
        QWheelEvent wheel({5, 5}, combo->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(combo, &wheel);
        const auto look = [this, box = box] {
            const QString text = line(box)->text() + (line(box)->font().italic() ? " marked" : "");
            return text + (told().isEmpty() ? "" : " told");
        };
        QCOMPARE(look(), inForce);
        // Typed over it or at its end, wrong or not yet run, it is marked and goes again.
        const std::array<std::function<void()>, 3> leaving{
            [&] { QTest::keyClick(combo, Qt::Key_Escape); },
            [this] { view().setFocus(Qt::MouseFocusReason); },
            [&] { QTest::keyClick(combo, Qt::Key_Tab); }};
        for (const auto& leave : leaving) {
            combo->setFocus();
            line(box)->end(false);
            QTest::keyClicks(combo, " #");
            QCOMPARE(look(), inForce + " # marked");
            QTest::keyClick(combo, Qt::Key_Return);
            QCOMPARE(look(), inForce + " # marked told");
            leave();
            QCOMPARE(look(), inForce);
        }
        combo->setFocus();
        line(box)->clear();
        QCOMPARE(look(), " marked");
        QFocusEvent other(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
        QCoreApplication::sendEvent(combo, &other);
        QCOMPARE(look(), " marked");
        QTest::keyClick(combo, Qt::Key_Down);  // the last line of the list
        QCOMPARE(look(), inForce);
        line(box)->findChild<QAction*>("_q_qlineeditclearaction")->trigger();
        QCOMPARE(look(), "");
    }
    QCOMPARE(status(), QStringList({"Rows: 3/3", "Vars: 2/2", "By: NA", "LF: NA", "DF: NA"}));
}

void TestGridsInWindow::editedFilterTakesThePlaceOfTheOneInForce()
{
    open("dm");
    auto* box = child<QComboBox>("comboBoxDf");
    const auto append = [this](const QString& name, const QString& text) {
        child<QComboBox>(name)->setFocus();
        line(name)->end(false);
        QTest::keyClicks(child<QComboBox>(name), text);
        QTest::keyClick(child<QComboBox>(name), Qt::Key_Return);
    };
    const auto type = [this](const QString& text) {
        QTest::keyClick(&view(), Qt::Key_L, Qt::ControlModifier);  // selects all
        QTest::keyClicks(child<QComboBox>("comboBoxDf"), text);
        QTest::keyClick(child<QComboBox>("comboBoxDf"), Qt::Key_Return);
    };
    submitDf("AGE > 35 ;");
    QCOMPARE(box->currentText() + rows(), "if AGE > 35Rows: 2/3");
    append("comboBoxDf", " or SEX = 'F'");
    QCOMPARE(box->currentText() + rows(), "if AGE > 35 or SEX = 'F'Rows: 3/3");
    append("comboBoxDf", " and AGE > -1e0");  // as what is shown may read
    QCOMPARE(rows(), "Rows: 3/3");
    QTest::keyClick(&view(), Qt::Key_Z);
    QTest::keyClick(&view(), Qt::Key_Z);
    QCOMPARE(box->currentText(), "if AGE > 35");
    type("SEX = 'F'");
    QCOMPARE(box->currentText() + rows(), "if AGE > 35 and SEX = 'F'Rows: 1/3");
    // What is emptied first is typed anew, too, and what was run once may be run again.
    box->setFocus();
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(box, Qt::Key_Delete);
    QTest::keyClicks(box, "agee > 45");
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(told(), "There is no variable named agee|agee > 45\n^|Did you mean AGE?");
    QCOMPARE(line("comboBoxDf")->cursorPosition(), 0);
    submitDf("if AGE > 35 or SEX = 'F' and AGE > -1e0");
    QCOMPARE(told(), "");
    QVERIFY(box->currentText().endsWith("(AGE > 35 or SEX = 'F' and AGE > -1e0)"));
    QTest::keyClick(&view(), Qt::Key_C);
    QTest::keyClick(&view(), Qt::Key_Z);
    QVERIFY(box->currentText().startsWith("if AGE > 35 and SEX = 'F' and"));

    submitLf("AGE > 35;");
    append("comboBoxLf", " and AGE < 45");
    QCOMPARE(status().at(3), "LF: where AGE > 35 and AGE < 45");
    append("comboBoxLf", " and NOSUCH = 1");
    QCOMPARE(status().at(3), "LF: where AGE > 35 and AGE < 45");
}

void TestGridsInWindow::libraryFilterIsReadTheSameWithoutADataset()
{
    for (const char* filter : {"where SEX = 'F'", "where TSPARM = 'x'"}) {
        submitLf("where AGE > -1");
        QCOMPARE(told(), "unknown character in input|where AGE > -1\n            ^");
        QCOMPARE(status().at(3), "LF: NA");
        submitLf(filter);
        QCOMPARE(status().at(3), QString("LF: ") + filter);
        submitLf("where TSPARM = 1");
        QVERIFY(told().contains("supports one level only"));
        submitLf("clf x");
        QCOMPARE(told(), "unexpected trailing text|clf x\n    ^");
        QCOMPARE(status().at(3), "LF: NA");
        if (titles().isEmpty()) {
            open("ts");
        }
    }
    trigger("actionClose");
    submitLf("if AGE > 1");
    QCOMPARE(told(), "No dataset is open that this could act on.");
    QTest::keyClick(child<QComboBox>("comboBoxLf"), Qt::Key_Escape);
    QCOMPARE(told(), "");
    submit("comboBoxBy", "AGE");
    QCOMPARE(told(), "No dataset is open that this could act on.");
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
    const QString program = "libname adam '/data'; * comment;\ndata a; set adam.dm;\n"
                            "  where sex\n = 'F';\n  proc print;\nif AGE > -1.5e1; by 'AGE'n;\n"
                            "if sex='F' or age=30; keep sex; run;\n";
    const ProgramEditor* editor = runProgram(program);
    const QString filter = "if AGE > -1.5e1 and (sex = 'F' or age = 30)";
    QCOMPARE(
        status(),
        QStringList({"Rows: 2/3", "Vars: 1/2", "By: AGE", "LF: where sex = 'F'", "DF: " + filter}));
    QVERIFY(
        log->take().starts_with("warning: Line 5: this statement is passed over: proc print\n"));
    QCOMPARE(window->statusBar()->currentMessage(), "Run on dm. Statements passed over: 1");
    QCOMPARE(editor->extraSelections().size(), 1);
    QCOMPARE(editor->extraSelections().front().cursor.selectedText(), "proc print");

    // Run again it changes nothing; in the place of another filter it stands in one step.
    runProgram(program);
    view().run(GridCommand::UndoDatasetFilter);
    QCOMPARE(status().at(4), "DF: NA");
    submitDf("AGE > 1");
    runProgram(program);
    QCOMPARE(status().at(4), "DF: " + filter);
    QTest::keyClick(&view(), Qt::Key_Z);
    QCOMPARE(status().at(4), "DF: if AGE > 1");
    (void)log->take();
}

void TestGridsInWindow::currentCellIsToldWholeAndAsItIsStored()
{
    fillOwn = [](ScriptedDataset& dataset) {
        dataset.variable("TEXT", TypeCode::Character, "A\nlabel").variable("N", TypeCode::Double);
        dataset.row({"  two\r\nlines", 2.0 / 3}).row({"plain text", missingtag::number('Z')});
    };
    open("own");
    const auto told = [&](int row, int variable) {
        view().setCurrentIndex(view().model()->index(row, variable));
        return child<QLabel>("labelStatusBarCell")->text().split("  \u00B7  ").join('|');
    };
    auto* whole = child<QPlainTextEdit>("cellText");
    const auto showsBlanks = [&] {
        const QTextOption option = whole->document()->defaultTextOption();
        return option.flags().testFlag(QTextOption::ShowTabsAndSpaces);
    };
    QCOMPARE(told(0, 0), "TEXT|A label|Character|\"  two\u21B5lines\"");
    QVERIFY(!whole->isVisible());
    QTest::keyClick(&view(), Qt::Key_Space);
    QVERIFY(whole->isVisible());
    QVERIFY(view().hasFocus());
    QCOMPARE(whole->toPlainText(), "  two\nlines");
    QVERIFY(showsBlanks());
    QCOMPARE(told(1, 0), "TEXT|A label|Character|\"plain text\"");
    QVERIFY(!showsBlanks());
    QCOMPARE(told(0, 1), "N|Numeric|0.6666666666666666");
    QCOMPARE(whole->toPlainText(), "0.666667\nStored value: 0.6666666666666666");
    QCOMPARE(told(1, 1), "N|Numeric|.Z");
    dock("Cell")->close();
    QTest::keyClick(&view(), Qt::Key_F2);
    QVERIFY(whole->isVisible());
    QVERIFY(!dock("Row")->isVisible());
    QTest::keyClick(&view(), Qt::Key_F2, Qt::ShiftModifier);
    QVERIFY(dock("Row")->isVisible());
    auto* row = child<QTableView>("rowTable");
    QTest::keyClick(row, Qt::Key_Up);
    QTest::keyClick(row, Qt::Key_Return);
    QCOMPARE(view().currentVariable(), 0);

    trigger("actionCopyStoredValues");
    QCOMPARE(QGuiApplication::clipboard()->text(), "plain text");
    trigger("actionCopyWithNames");
    QCOMPARE(QGuiApplication::clipboard()->text(), "TEXT\nplain text");
}

void TestGridsInWindow::programThatIsWrongRunsNothingAndIsMarked()
{
    open("dm");
    for (const auto& [program, message, wrong] :
         {std::tuple("by AGE;\nif SEX = 'F';\n keep NOSUCH ;\n",
                     "Line 3: There is no variable named NOSUCH", "keep NOSUCH"),
          {"keep AGE; by AGE SEXX;", "Line 1: There is no variable named SEXX", "by AGE SEXX"},
          {"keep AGE;\nwhere AGE = 'x';", "Line 2: The variable types do not match.",
           "where AGE = 'x'"},
          {"where AGE > 1;\nwhere AGE > 2;\n", "Line 2: Library Filter supports one level only.",
           "where AGE > 2"},
          {"drop AGE;\nkeep 'SEX;", "Line 2: A quote or comment is not closed.", "keep 'SEX;"}}) {
        ProgramEditor* editor = runProgram(program);
        QCOMPARE(status(), QStringList({"Rows: 3/3", "Vars: 2/2", "By: NA", "LF: NA", "DF: NA"}));
        const QString told = window->statusBar()->currentMessage();
        QVERIFY2(told.startsWith(QString("Nothing has been run. ") + message), qPrintable(told));
        QCOMPARE(editor->extraSelections().front().cursor.selectedText(), wrong);
        editor->textCursor().insertText(" ");
        QVERIFY(editor->extraSelections().isEmpty());
    }
    (void)log->take();
}

void TestGridsInWindow::programOfTheActiveGridIsWritten()
{
    open("dm");
    auto* generated = child<ProgramEditor>("programWindow");
    submitDf("AGE > 30");
    submit("comboBoxBy", "SEX");
    submitDf("drop SEX");
    QCOMPARE(generated->toPlainText().section('\n', 5),
             "    if AGE > 30;\n    by sex;\n    keep age;\nrun;");
    ProgramEditor* typed = runProgram("by AGE;");
    QVERIFY(generated->toPlainText().contains("    by age;\n"));
    QCOMPARE(typed->toPlainText(), "by AGE;");
    code().setCurrentIndex(0);
    trigger("actionSubmit");  // what is in force anyway
    QCOMPARE(status(),
             QStringList({"Rows: 2/3", "Vars: 1/2", "By: AGE", "LF: NA", "DF: if AGE > 30"}));
    open("ts");
    QVERIFY(generated->toPlainText().contains("data work.ts_view;"));
    trigger("actionCloseAll");
    QCOMPARE(generated->toPlainText(), "");
}

void TestGridsInWindow::operatorInForceIsTold()
{
    const auto* label = child<QLabel>("labelStatusBarOperator");
    QVERIFY(!label->isVisible());
    open("dm");
    QTest::keyClick(&view(), Qt::Key_Greater);
    open("dm2");
    QCOMPARE(label->text(), "Key d: =");
    activate(0);
    QCOMPARE(label->text(), "Key d: >");
    QTest::keyClick(&view(), Qt::Key_D);
    QTest::keyClick(&view(), Qt::Key_Less, Qt::AltModifier);
    QCOMPARE(label->text(), "Key d: <=");
    trigger("actionCloseAll");
    QVERIFY(!label->isVisible());
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
    submitDf("if AGE in (30" + QString(", 50").repeated(20'000) + ")");
    QCOMPARE(rows(), "Rows: 1/3");
    QCOMPARE(boxText("comboBoxDf"), view().opened()->datasetFilterText());
    auto* label = child<QLabel>("labelStatusBarDf");
    QVERIFY(label->text().startsWith(toolTip(*label).chopped(1)));
    window->resize(1600, 500);
    submitDf("cdf");
    QTRY_VERIFY(label->width() >= label->sizeHint().width());
    (void)toolTip(*label);
    QTRY_VERIFY(!QToolTip::isVisible());
}

QTEST_MAIN(TestGridsInWindow)
#include "TestGridsInWindow.moc"

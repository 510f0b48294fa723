#include "app/code/ProgramEditor.h"
#include "app/compare/CompareDialog.h"
#include "app/compare/ComparisonWindow.h"
#include "app/compare/DifferenceView.h"
#include "app/compare/DifferenceWindow.h"
#include "app/docks/OutputView.h"
#include "app/docks/WorkspaceTree.h"
#include "tests/support/WindowFixture.h"

#include <QCheckBox>
#include <QClipboard>
#include <QFile>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>

/// Comparing open datasets, from the dialog to the differences and from there into the grids.
class TestComparisons : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void dialogProposesWhatTellsObservationsApart();
    void pickedVariablesAreWrittenAndTypedOnesTicked();
    void whatIsWrongIsToldAndNothingIsDone();
    void comparisonIsReportedAndShown();
    void windowFollowsTheTabInFront();
    void equalDatasetsNeedNoTab();
    void filtersCountWhereTheyAreToCount();
    void gridsOfComparedDatasetsMoveTogether();
    void datasetsThatWereClosedAreOpenedAgain();
    void programIsWrittenInATabOfItsOwn();
    void outputIsSearchedSavedAndCleared();
    void optionsAreRemembered();
    void filesAreComparedFromOutside();

private:
    [[nodiscard]] CompareDialog& openDialog() const;
    template <typename Widget>
    [[nodiscard]] Widget* part(const QString& name) const
    {
        return window->findChild<CompareDialog*>()->findChild<Widget*>(name);
    }
    [[nodiscard]] QLineEdit* picked(const QString& picker) const
    {
        return part<QWidget>(picker)->findChild<QLineEdit*>();
    }
    [[nodiscard]] QString said(const QString& label) const { return part<QLabel>(label)->text(); }
    void press(const QString& text) const;
    /// Compares both datasets by the ID variables that suggest themselves.
    [[nodiscard]] ComparisonWindow& compared() const;
    [[nodiscard]] ComparisonWindow* comparison() const
    {
        return qobject_cast<ComparisonWindow*>(area().currentSubWindow());
    }
    [[nodiscard]] QPlainTextEdit& output() const { return *child<QPlainTextEdit>("textOutput"); }
    /// The observation and the variable, from 0, at which a grid stands.
    [[nodiscard]] static QPair<int, int> place(const DatasetWindow& dataset)
    {
        return {dataset.view()->currentObservation(), dataset.view()->currentVariable()};
    }
    /// Goes to the dataset from a row of the differences.
    static void choose(const ComparisonWindow& shown, int row, int column)
    {
        DifferenceView& differences = shown.differences().view();
        differences.setCurrentIndex(differences.model()->index(row, column));
        QTest::keyClick(&differences, Qt::Key_Return);
    }

    int m_reads = 0;
};

/// "dm2" is the base: A and C differ in AGE, B is missing in "own", which has D, and other columns.
void TestComparisons::init()
{
    startUp();
    m_reads = 0;
    fillOwn = [this](ScriptedDataset& dataset) {
        const bool isBase = m_reads++ == 0;
        dataset.tableName("DM").variable("USUBJID", TypeCode::Character);
        if (!isBase) {
            dataset.variable("EXTRA", TypeCode::Double);
        }
        dataset.variable("AGE", TypeCode::Double);
        if (isBase) {
            dataset.row({"A", 30.0}).row({"B", 40.0}).row({"C", 50.0});
        } else {
            dataset.row({"C", 0.0, 51.0}).row({"A", 0.0, 33.0}).row({"D", 0.0, 1.0});
        }
    };
    for (const char* const folderName : {"base", "qc"}) {
        QVERIFY(QDir(folder->path()).mkdir(folderName));
        QVERIFY(QFile(path(QString(folderName) + "/own")).open(QIODevice::WriteOnly));
        QVERIFY(open(QString(folderName) + "/own"));
    }
    activate(0);
}

void TestComparisons::cleanup()
{
    shutDown();
}

CompareDialog& TestComparisons::openDialog() const
{
    trigger("actionCompare");
    return *window->findChild<CompareDialog*>();
}

void TestComparisons::press(const QString& text) const
{
    for (auto* button : window->findChild<CompareDialog*>()->findChildren<QPushButton*>()) {
        if (button->text().remove('&') == text) {
            button->click();
            return;
        }
    }
    QFAIL(qPrintable(text));
}

ComparisonWindow& TestComparisons::compared() const
{
    (void)openDialog();
    press("Compare");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return *comparison();
}

void TestComparisons::dialogProposesWhatTellsObservationsApart()
{
    QVERIFY(open("dm"));
    activate(1);
    activate(0);
    const CompareDialog& dialog = openDialog();
    QCOMPARE(dialog.base(), datasetAt(0));
    QCOMPARE(dialog.compare(), datasetAt(1));
    QCOMPARE(picked("pickerId")->text(), "USUBJID");
    QCOMPARE(said("labelKeys"), "Each observation has ID values of its own.");
    press("Swap");
    QCOMPARE(dialog.base(), datasetAt(1));
    QCOMPARE(dialog.request().value().id, std::vector<std::string>{"USUBJID"});

    // With another dataset its own proposal, unless the user has written something.
    auto* compare = part<QComboBox>("comboBoxCompare");
    const int datasetInFront = compare->currentIndex();
    compare->setCurrentIndex(2);
    QCOMPARE(dialog.compare(), datasetAt(2));
    QCOMPARE(picked("pickerId")->text(), "AGE");
    picked("pickerId")->clear();
    QTRY_COMPARE(said("labelKeys"), "Observations are matched by their position.");
    picked("pickerId")->setText("age");
    compare->setCurrentIndex(datasetInFront);
    QCOMPARE(picked("pickerId")->text(), "age");
    picked("pickerId")->setText("EXTRA");
    QTRY_COMPARE(said("labelKeys"), "DM: There is no variable named EXTRA");
    press("Propose");
    QCOMPARE(picked("pickerId")->text(), "USUBJID");
    press("Cancel");
}

void TestComparisons::pickedVariablesAreWrittenAndTypedOnesTicked()
{
    const CompareDialog& dialog = openDialog();
    auto* list = part<QWidget>("pickerVar")->findChild<QListWidget*>();
    QCOMPARE(list->count(), 2);
    picked("pickerVar")->setText("age=EXTRA");
    QCOMPARE(list->item(1)->checkState(), Qt::Checked);
    list->item(0)->setCheckState(Qt::Checked);
    QCOMPARE(picked("pickerVar")->text(), "age=EXTRA USUBJID");
    QCOMPARE(dialog.request().value().var, (std::vector<std::string>{"age", "USUBJID"}));
    QCOMPARE(dialog.request().value().with, (std::vector<std::string>{"EXTRA", "USUBJID"}));
    list->item(1)->setCheckState(Qt::Unchecked);
    QCOMPARE(picked("pickerVar")->text(), "USUBJID");
    QVERIFY(dialog.request().value().with.empty());
    part<QWidget>("pickerVar")->findChildren<QLineEdit*>().at(1)->setText("ag");
    QVERIFY(list->item(0)->isHidden() && !list->item(1)->isHidden());
}

void TestComparisons::whatIsWrongIsToldAndNothingIsDone()
{
    const QPointer<CompareDialog> dialog = &openDialog();
    part<QComboBox>("method")->setCurrentIndex(1);
    const QVector<std::tuple<QString, QString, QString>> mistakes{
        {"criterion", "0,1", "0,1 is no number"},
        {"own", "AGE=0.1:most", "most is none of exact, absolute, relative and percent"},
        {"own", "TALL=1", "TALL has a criterion, but is no numeric variable that is compared"},
        {"fuzz", "x", "x is no number"}};
    for (const auto& [line, text, problem] : mistakes) {
        part<QLineEdit>(line)->setText(text);
        for (const char* const button : {"Compare", "SAS Program"}) {
            press(button);
            QCOMPARE(said("labelProblem"), problem);
        }
        part<QLineEdit>(line)->clear();
    }
    picked("pickerId")->setText("NOID");
    QCOMPARE(said("labelProblem"), "");
    press("Compare");
    QVERIFY(said("labelProblem").contains("NOID"));
    QVERIFY(dialog && dialog->isVisible());
    QCOMPARE(area().subWindowList().size(), 2);
    QCOMPARE(output().toPlainText(), "");
    // What is asked for an exact comparison needs no criterion.
    part<QLineEdit>("criterion")->setText("0,1");
    part<QComboBox>("method")->setCurrentIndex(0);
    QVERIFY(dialog->request());
}

void TestComparisons::comparisonIsReportedAndShown()
{
    const ComparisonWindow& shown = compared();
    QVERIFY(dock("Output")->isVisible());
    QVERIFY(output().toPlainText().contains("Values Comparison Summary"));
    QVERIFY(!window->findChild<CompareDialog*>());
    const auto& match = shown.comparison().result.observations();
    QCOMPARE(match.base.unmatched + match.compare.unmatched, 2U);
    QCOMPARE(shown.comparison().result.unequalValues(), 2U);

    choose(shown, 0, 0);  // A
    QCOMPARE(active(), datasetAt(0));
    QCOMPARE(place(*datasetAt(0)).first, 0);
    QCOMPARE(place(*datasetAt(1)).first, 1);
    for (int i = 0; i < 2 && comparison() == nullptr; ++i) {
        trigger("actionNextDataset");
    }
    QVERIFY(shown.differences().view().hasFocus());
    const QAbstractItemModel& rows = *shown.differences().view().model();
    choose(shown, rows.rowCount() - 1, rows.columnCount() - 1);  // D, which the base lacks
    QCOMPARE(active(), datasetAt(1));
    QCOMPARE(place(*datasetAt(1)), qMakePair(2, 2));

    script.savePath = path("d.json");
    emit shown.differences().signalSaveRequested();
    QFile file(script.savePath);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray json = file.readAll();
    QVERIFY(json.contains(R"("unmatched":[{"baseObs":2,"compareObs":null)"));
    QVERIFY(json.contains(path("base/own").toUtf8()) && json.contains(path("qc/own").toUtf8()));
    script.savePath = path("no/folder/d.csv");
    emit shown.differences().signalSaveRequested();
    const QStringList told = notes();
    QCOMPARE(told.size(), 3);
    QVERIFY(told.last().startsWith("warn|Save Differences|Failed to save the file: "));
}

void TestComparisons::windowFollowsTheTabInFront()
{
    const QString variables = dock("Variables")->windowTitle();
    const QPointer<ComparisonWindow> shown = &compared();
    const auto showsComparison = [&] {
        return window->windowTitle() == shown->windowTitle() + " - Quorlane"
            && rows().contains("NA") && window->activeView() == nullptr
            && dock("Variables")->windowTitle() != variables
            && !child<QAction>("actionReload")->isEnabled()
            && child<QAction>("actionClose")->isEnabled();
    };
    QVERIFY2(showsComparison(), qPrintable(window->windowTitle() + rows()));
    activate(0);
    QCOMPARE(rows(), "Rows: 3/3");
    QCOMPARE(dock("Variables")->windowTitle(), variables);
    QVERIFY(child<QAction>("actionReload")->isEnabled());
    area().setActiveSubWindow(shown);
    QVERIFY(showsComparison());
    submit("comboBoxLf", "where AGE > 30");
    QVERIFY2(status().contains("LF: where AGE > 30"), qPrintable(status().join('|')));
    script.text = "none";
    trigger("actionSaveSession");
    (void)notes();
    QVERIFY(showsComparison());

    trigger("actionClose");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(shown.isNull());
    QVERIFY(active() != nullptr && window->activeView() == active()->view());
    QVERIFY(rows() != "Rows: NA");
    (void)compared();
    datasetAt(1)->close();
    datasetAt(0)->close();
    QVERIFY(comparison() != nullptr);
    QVERIFY(child<QAction>("actionClose")->isEnabled());
    script.text = "only a comparison";
    trigger("actionSaveSession");
    (void)notes();
    trigger("actionCloseAll");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(area().subWindowList().size(), 0);
    QCOMPARE(window->windowTitle(), "Quorlane");
    QVERIFY(!child<QAction>("actionClose")->isEnabled());
}

void TestComparisons::equalDatasetsNeedNoTab()
{
    (void)openDialog();
    part<QComboBox>("comboBoxCompare")
        ->setCurrentIndex(part<QComboBox>("comboBoxBase")->currentIndex());
    press("Compare");
    QCOMPARE(area().subWindowList().size(), 2);
    QVERIFY(window->statusBar()->currentMessage().startsWith("All compared values of "));
    QVERIFY(output().toPlainText().contains("No unequal values were found"));
}

void TestComparisons::filtersCountWhereTheyAreToCount()
{
    submit("comboBoxDf", "if USUBJID ne 'B'");
    submit("comboBoxDf", "drop AGE");
    activate(1);
    submit("comboBoxDf", "if USUBJID ne 'D'");
    activate(0);
    const QPointer<ComparisonWindow> all = &compared();
    QCOMPARE(all->comparison().result.observations().pairs.size(), 4U);
    const QPointer<QWidget> dialog = &openDialog();
    picked("pickerVar")->clear();
    part<QCheckBox>("filtersCount")->setChecked(true);
    press("Compare");
    QCOMPARE(area().subWindowList().size(), 3);  // AGE is hidden, and nothing else is compared
    QVERIFY(window->statusBar()->currentMessage().startsWith("All compared values"));
}

void TestComparisons::gridsOfComparedDatasetsMoveTogether()
{
    const ComparisonWindow& shown = compared();
    activate(0);
    view().cmdGotoObservation(2);
    view().cmdGotoVariable(1);
    QCOMPARE(place(*datasetAt(1)), qMakePair(0, 2));
    activate(1);
    view().cmdGotoObservation(1);
    QCOMPARE(place(*datasetAt(0)), qMakePair(0, 1));
    view().cmdGotoVariable(1);  // EXTRA, of this side only
    view().cmdGotoObservation(2);
    QCOMPARE(place(*datasetAt(0)), qMakePair(0, 1));
    emit shown.differences().signalTogetherChanged(false);
    view().cmdGotoObservation(0);
    QCOMPARE(place(*datasetAt(0)).first, 0);
    emit shown.differences().signalTogetherChanged(true);
    datasetAt(0)->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    view().cmdGotoObservation(1);
}

void TestComparisons::datasetsThatWereClosedAreOpenedAgain()
{
    const QPointer<ComparisonWindow> shown = &compared();
    activate(1);
    trigger("actionReload");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    datasetAt(0)->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    loaded.clear();
    QVERIFY(shown);
    activate(0);
    area().setActiveSubWindow(shown);
    QTRY_VERIFY(shown->differences().view().hasFocus());
    choose(*shown, 0, 0);
    QCOMPARE(loaded, QStringList("own"));
    QCOMPARE(active()->origin().filePath, path("base/own"));
    QVERIFY(window->statusBar()->currentMessage().contains("has been read anew"));
    QCOMPARE(place(*active()).first, 0);
    // A file that has gone is told, and the other side is gone to all the same.
    active()->close();
    isFailing = true;
    area().setActiveSubWindow(shown);
    QTRY_VERIFY(shown->differences().view().hasFocus());
    choose(*shown, 0, 0);
    QCOMPARE(active()->origin().filePath, path("qc/own"));
    QVERIFY(notes().join("").contains("The header is damaged."));
    (void)log->take();
}

void TestComparisons::programIsWrittenInATabOfItsOwn()
{
    submit("comboBoxDf", "if AGE > 30");
    submit("comboBoxDf", "drop AGE");
    (void)openDialog();
    part<QCheckBox>("filtersCount")->setChecked(true);
    press("SAS Program");
    const QString program =
        window->findChildren<ProgramEditor*>("programEditor").last()->toPlainText();
    QVERIFY2(program.contains("if AGE > 30;\n    drop AGE;\nrun;"), qPrintable(program));
    QVERIFY(program.contains("by USUBJID;"));
    QVERIFY(dock("Code")->isVisible());
    QCOMPARE(area().subWindowList().size(), 2);
    script.unsaved = UserPrompts::Unsaved::Discard;
}

void TestComparisons::outputIsSearchedSavedAndCleared()
{
    auto* save = child<QPushButton>("buttonSaveOutput");
    QVERIFY(!save->isEnabled());
    auto* view = window->findChild<OutputView*>();
    view->add("one\ntwo three", "first.txt");
    view->add("two\nThree", "second.txt");
    QCOMPARE(view->text(), "one\ntwo three\n\ntwo\nThree");
    QCOMPARE(output().textCursor().blockNumber(), 3);
    dock("Output")->show();
    dock("Output")->raise();
    output().setFocus();
    QTest::keyClick(&output(), Qt::Key_F, Qt::ControlModifier);
    auto* wanted = child<QLineEdit>("lineEditFindOutput");
    QVERIFY(wanted->hasFocus());
    QTest::keyClicks(wanted, "three");
    QList<int> lines;
    for (const Qt::KeyboardModifier modifier :
         {Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier}) {
        QTest::keyClick(wanted, Qt::Key_Return, modifier);
        lines << output().textCursor().blockNumber();
    }
    QCOMPARE(lines, QList<int>({4, 1, 4}));
    child<QPushButton>("buttonCopyOutput")->click();
    QCOMPARE(QGuiApplication::clipboard()->text(), "Three");

    script.savePath = path("out.txt");
    QTest::keyClick(&output(), Qt::Key_S, Qt::ControlModifier);
    QVERIFY(notes().join("").startsWith("save|Save Output|second.txt|"));
    QFile file(script.savePath);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), "one\ntwo three\n\ntwo\nThree\n");
    QTest::keyClick(wanted, Qt::Key_Escape);
    QVERIFY(output().hasFocus());
    QTest::keyClick(&output(), Qt::Key_Escape);
    QVERIFY(window->activeView()->hasFocus());
    child<QPushButton>("buttonClearOutput")->click();
    QCOMPARE(view->text(), "");
    QVERIFY(!save->isEnabled());
}

void TestComparisons::optionsAreRemembered()
{
    (void)openDialog();
    part<QComboBox>("method")->setCurrentIndex(2);
    part<QLineEdit>("delta")->setText("0.25");
    part<QCheckBox>("statistics")->setChecked(true);
    part<QWidget>("lineSize")->setProperty("value", 120);
    press("Cancel");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const auto chosen = [this] {
        return QVariantList{part<QComboBox>("method")->currentIndex(),
                            part<QLineEdit>("delta")->text(),
                            part<QCheckBox>("statistics")->isChecked(),
                            part<QWidget>("lineSize")->property("value").toInt()};
    };
    (void)openDialog();
    const QVariantList standard = chosen();
    QCOMPARE(standard.first().toInt(), 0);
    part<QComboBox>("method")->setCurrentIndex(2);
    part<QLineEdit>("delta")->setText("0.25");
    part<QCheckBox>("statistics")->setChecked(true);
    part<QWidget>("lineSize")->setProperty("value", 120);
    press("Compare");
    startAgain();
    QVERIFY(open("base/own"));
    const CompareDialog& dialog = openDialog();
    QCOMPARE(chosen(), QVariantList({2, "0.25", true, 120}));
    QVERIFY(dialog.compare() == nullptr);
    QVERIFY(dialog.base() == datasetAt(0));
    QVERIFY(!part<QPushButton>("buttonPropose")->isEnabled());
    script.chosenFiles = {path("dm")};
    for (auto* button : window->findChildren<QPushButton*>()) {
        if (button->text() == "Open File..." && button->isVisible()) {
            button->click();
        }
    }
    (void)notes();
    QCOMPARE(dialog.base(), datasetAt(1));
    QCOMPARE(dialog.compare(), datasetAt(1));
    QCOMPARE(loaded.count("dm"), 1);
}

void TestComparisons::filesAreComparedFromOutside()
{
    emit child<WorkspaceTree>("treeView")->signalCompareRequested({path("dm"), path("qc/own")});
    const auto* dialog = window->findChild<CompareDialog*>();
    QCOMPARE(dialog->base()->origin().filePath, path("dm"));
    QCOMPARE(dialog->compare(), datasetAt(1));
    QCOMPARE(area().subWindowList().size(), 3);
    press("Cancel");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    emit child<WorkspaceTree>("treeView")->signalCompareRequested({path("bad")});
    QVERIFY(window->findChild<CompareDialog*>() == nullptr);
    (void)notes();
    (void)log->take();
}

QTEST_MAIN(TestComparisons)
#include "TestComparisons.moc"

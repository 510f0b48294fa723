#include "app/window/ElidedLabel.h"
#include "app/window/MainWindow.h"
#include "grid/MainTableView.h"
#include "tests/support/LogCapture.h"
#include "tests/support/ScriptedDataset.h"
#include "tests/support/TemporaryServices.h"

#include <QComboBox>
#include <QFileInfo>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QSettings>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>
#include <QToolTip>

/// How grids, filter box and status bar of a main window work together.
class TestGridsInWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void keysWorkAsSoonAsAFileIsOpen();
    void boxRunsCommandsOnTheActiveGrid();
    void boxTellsErrorsAndKeepsTheText();
    void boxDoesNothingWithoutAGrid();
    void escapeReturnsToTheGrid();
    void statusBarFollowsFiltersAndByVariables();
    void libraryFilterHoldsForAllDatasets();
    void keyErrorsAreTold();
    void hiddenVariableIsToldInPassing();
    void longFiltersLeaveTheWindowItsSize();
    void elidedLabelShowsTheRestAsAToolTip();

private:
    void open(const QString& name) { QVERIFY(m_window->openDatasetFile("/data/" + name)); }
    void activate(int window) const
    {
        auto* area = m_window->findChild<QMdiArea*>("mdiArea");
        area->setActiveSubWindow(area->subWindowList().at(window));
    }
    [[nodiscard]] MainTableView& view() const { return *m_window->activeView(); }
    [[nodiscard]] QComboBox& box() const { return *m_window->findChild<QComboBox*>("comboBoxDf"); }
    void submit(const QString& command) const
    {
        box().lineEdit()->setText(command);
        QTest::keyClick(box().lineEdit(), Qt::Key_Return);
    }
    [[nodiscard]] QString status() const
    {
        QStringList texts;
        for (const char* name : {"labelStatusBarRow", "labelStatusBarVar", "labelStatusBarBy",
                                 "labelStatusBarLf", "labelStatusBarDf"}) {
            texts << m_window->findChild<QLabel*>(name)->text();
        }
        return texts.join(" | ");
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<LogCapture> m_log;
    ScriptedPrompts::Script m_script;
    std::unique_ptr<MainWindow> m_window;
};

namespace {

Result<OpenedDataset> load(const QString& file, const OpenOptions&)
{
    auto dataset = std::make_unique<ScriptedDataset>();
    if (QFileInfo(file).fileName().startsWith("ts")) {
        dataset->variable("TSPARM", TypeCode::Character).row({"TITLE"}).row({"SPONSOR"});
    } else {
        dataset->variable("SEX", TypeCode::Character).variable("AGE", TypeCode::Double);
        dataset->row({"F", 30.0}).row({"M", 40.0}).row({"F", 50.0});
    }
    OpenedDataset opened;
    opened.dataset = std::move(dataset);
    return opened;
}

}  // namespace

void TestGridsInWindow::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_log = std::make_unique<LogCapture>();
    m_script = {};
    MainWindowServices services = temporaryServices(m_folder->path(), m_script);
    services.load = load;
    m_window = std::make_unique<MainWindow>(std::move(services));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestGridsInWindow::cleanup()
{
    m_window.reset();
    const QString log = QString::fromStdString(m_log->take());
    m_log.reset();
    QVERIFY2(!log.contains("warning:") && !log.contains("error:"), qPrintable(log));
    QCOMPARE(m_script.notes, QStringList());
}

void TestGridsInWindow::keysWorkAsSoonAsAFileIsOpen()
{
    open("dm");
    QCOMPARE(QApplication::focusWidget(), &view());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_D);
    QCOMPARE(status(), "Rows: 2/3 | Vars: 2/2 | By: NA | LF: NA | DF: if SEX = \"F\"");
    open("dm2");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_H);
    QCOMPARE(status(), "Rows: 3/3 | Vars: 1/2 | By: NA | LF: NA | DF: NA");

    activate(0);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_C);
    QCOMPARE(status(), "Rows: 3/3 | Vars: 2/2 | By: NA | LF: NA | DF: NA");
}

void TestGridsInWindow::boxRunsCommandsOnTheActiveGrid()
{
    QCOMPARE(box().lineEdit()->placeholderText(), "Dataset Filter");
    QVERIFY(m_window->findChild<QToolBar*>("toolBarDf") != nullptr);
    open("dm");
    open("dm2");
    submit("if AGE > 30 & SEX='F'");
    QCOMPARE(box().currentText(), "if AGE > 30 and SEX = 'F'");
    QCOMPARE(view().shownRowCount(), 1);
    submit("keep AGE");
    QCOMPARE(view().opened()->variables().hidden(), std::vector<int>({0}));
    QCOMPARE(box().currentText(), "if AGE > 30 and SEX = 'F'");

    activate(0);
    QCOMPARE(view().shownRowCount(), 3);
    QCOMPARE(box().currentText(), "");
    activate(1);
    QCOMPARE(box().currentText(), "if AGE > 30 and SEX = 'F'");
    submit("cdf");
    QCOMPARE(box().currentText(), "");
    QCOMPARE(view().shownRowCount(), 3);

    submit("keep AGE");
    QStringList history;
    for (int i = 0; i < box().count(); ++i) {
        history << box().itemText(i);
    }
    QCOMPARE(history, QStringList({"keep AGE", "cdf", "if AGE > 30 & SEX='F'"}));
}

void TestGridsInWindow::boxTellsErrorsAndKeepsTheText()
{
    open("dm");
    submit("if AGE >");
    QCOMPARE(std::exchange(m_script.notes, {}), QStringList("warn|Command|expect value|if AGE >"));
    QCOMPARE(box().currentText(), "if AGE >");
    QCOMPARE(view().shownRowCount(), 3);
    submit("if RACE = 1");
    QCOMPARE(std::exchange(m_script.notes, {}),
             QStringList("warn|Command|There is no variable named RACE|if RACE = 1"));
}

void TestGridsInWindow::boxDoesNothingWithoutAGrid()
{
    submit("if AGE > 30");
    QCOMPARE(box().currentText(), "if AGE > 30");
    QTest::keyClick(box().lineEdit(), Qt::Key_Escape);
}

void TestGridsInWindow::escapeReturnsToTheGrid()
{
    open("dm");
    box().setFocus();
    QTest::keyClicks(box().lineEdit(), "dh");
    QCOMPARE(box().currentText(), "dh");
    QTest::keyClick(box().lineEdit(), Qt::Key_Escape);
    QCOMPARE(QApplication::focusWidget(), &view());
    QCOMPARE(view().shownRowCount(), 3);
}

void TestGridsInWindow::statusBarFollowsFiltersAndByVariables()
{
    QCOMPARE(status(), "Rows: NA/NA | Vars: NA/NA | By: NA | LF: NA | DF: NA");
    open("dm");
    view().cmdAddByVar("SEX");
    view().cmdAddByVar("AGE");
    submit("if AGE < 50");
    QCOMPARE(status(), "Rows: 2/3 | Vars: 2/2 | By: SEX AGE | LF: NA | DF: if AGE < 50");
    open("ts");
    QCOMPARE(status(), "Rows: 2/2 | Vars: 1/1 | By: NA | LF: NA | DF: NA");
    activate(0);
    QCOMPARE(status(), "Rows: 2/3 | Vars: 2/2 | By: SEX AGE | LF: NA | DF: if AGE < 50");
    view().cmdClearByVar();
    QCOMPARE(status(), "Rows: 2/3 | Vars: 2/2 | By: NA | LF: NA | DF: if AGE < 50");
    view().cmdAddByVar("SEX");

    m_window->on_actionCloseAll_triggered();
    QCOMPARE(status(), "Rows: NA / NA | Vars: NA/NA | By: NA | LF: NA | DF: NA");
    QCOMPARE(box().currentText(), "");
}

void TestGridsInWindow::libraryFilterHoldsForAllDatasets()
{
    open("dm");
    open("ts");
    const auto* label = m_window->findChild<QLabel*>("labelStatusBarLf");
    activate(0);
    QTest::keyClick(&view(), Qt::Key_L);
    QCOMPARE(status(), "Rows: 2/3 | Vars: 2/2 | By: NA | LF: where SEX = \"F\" | DF: NA");
    QVERIFY(label->toolTip().isEmpty());
    activate(1);
    QCOMPARE(status(),
             "Rows: 2/2 | Vars: 1/1 | By: NA | LF: (not applied) where SEX = \"F\" | DF: NA");
    QVERIFY(label->toolTip().contains("There is no variable named SEX"));
    open("dm2");
    QCOMPARE(status(), "Rows: 2/3 | Vars: 2/2 | By: NA | LF: where SEX = \"F\" | DF: NA");

    QTest::keyClick(&view(), Qt::Key_C, Qt::AltModifier);
    activate(0);
    QCOMPARE(status(), "Rows: 3/3 | Vars: 2/2 | By: NA | LF: NA | DF: NA");

    // It outlives the grids, too.
    submit("where AGE = 40");
    m_window->on_actionCloseAll_triggered();
    open("dm3");
    QCOMPARE(status(), "Rows: 1/3 | Vars: 2/2 | By: NA | LF: where AGE = 40 | DF: NA");
}

void TestGridsInWindow::keyErrorsAreTold()
{
    open("dm");
    QTest::keyClick(&view(), Qt::Key_L);
    QTest::keyClick(&view(), Qt::Key_L);
    QCOMPARE(std::exchange(m_script.notes, {}),
             QStringList("warn|Command|Library Filter supports one level only. Please clear "
                         "library filter first.|where SEX = \"F\""));
    QTest::keyClick(&view(), Qt::Key_S);
    QCOMPARE(std::exchange(m_script.notes, {}),
             QStringList("inform|Descriptive Statistics|Please select at least one column."));
}

void TestGridsInWindow::hiddenVariableIsToldInPassing()
{
    open("dm");
    submit("drop AGE");
    view().cmdGotoVariable(1);
    QCOMPARE(m_window->statusBar()->currentMessage(), "The variable AGE is hidden.");
}

void TestGridsInWindow::longFiltersLeaveTheWindowItsSize()
{
    open("dm");
    m_window->resize(700, 500);
    QString condition = "if AGE in (30";
    for (int i = 0; i < 500; ++i) {
        condition += ", " + QString::number(i);
    }
    submit(condition + ")");
    QCoreApplication::sendPostedEvents();
    QCOMPARE(m_window->width(), 700);
    QVERIFY(m_window->minimumSizeHint().width() <= 700);
}

void TestGridsInWindow::elidedLabelShowsTheRestAsAToolTip()
{
    const auto toolTip = [](ElidedLabel& label) {
        QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), label.mapToGlobal(QPoint(1, 1)));
        QCoreApplication::sendEvent(&label, &event);
        return QToolTip::text();
    };
    ElidedLabel label(QString("where ") + QString(300, 'x'));
    label.resize(label.sizeHint());
    label.show();
    QVERIFY(label.sizeHint().width() < QLabel(label.text()).sizeHint().width());
    QCOMPARE(toolTip(label), label.text());
    label.setText("short");
    (void)toolTip(label);
    QTRY_VERIFY(!QToolTip::isVisible());
    QCOMPARE(label.sizeHint(), QLabel("short").sizeHint());
}

QTEST_MAIN(TestGridsInWindow)
#include "TestGridsInWindow.moc"

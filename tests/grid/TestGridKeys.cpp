#include "tests/support/GridFixture.h"

#include <QClipboard>
#include <QLineEdit>
#include <QScopeGuard>
#include <QScrollBar>
#include <QSignalSpy>

class TestGridKeys : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { QCOMPARE(m_grid->close(), QStringList()); }
    void filterKeys_data();
    void filterKeys();
    void filtersAreTakenBackByKeyAndKeepTheirOperator();
    void inFilterTakesTheSelectedCellsOfTheCurrentColumn();
    void refusalsAreTold();
    void columnKeys();
    void keysThatAskForAnotherWindow();
    void keysForClipboardByListAndLetters();
    void lettersThatAreNoCommandSearchNothing();
    void keysActOnTheGridAlone();
    void clickedHeaderIsTheVariableOfTheKeys();
    void selectionIsExtendedFromWhereItBegan();
    void columnsMoveByTheMouse();
    void keysDoNothingWithoutCells();

private:
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        m_grid->press(key, modifiers);
    }

    [[nodiscard]] QString selected() const;

    std::unique_ptr<GridFixture> m_grid;
};

void TestGridKeys::init()
{
    m_grid.reset();
    m_grid = std::make_unique<GridFixture>();
    QVERIFY(m_grid->activate());
    m_grid->goTo(0, GridFixture::Age);
}

void TestGridKeys::filterKeys_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QString>("filters");
    const auto add = [](const char* name, Qt::Key key, Qt::KeyboardModifiers modifiers,
                        const char* filters) {
        QTest::newRow(name) << key << modifiers << QString(filters);
    };
    const Qt::KeyboardModifiers none = Qt::NoModifier;
    add("d", Qt::Key_D, none, "|if AGE = 34");
    add("=", Qt::Key_Equal, none, "|if AGE = 34");
    add("^", Qt::Key_AsciiCircum, none, "|if AGE ^= 34");
    add("^ as an accent", Qt::Key_Dead_Circumflex, none, "|if AGE ^= 34");
    add("~", Qt::Key_AsciiTilde, none, "|if AGE ^= 34");
    add("~ as an accent", Qt::Key_Dead_Tilde, none, "|if AGE ^= 34");
    add(">", Qt::Key_Greater, none, "|if AGE > 34");
    add("<", Qt::Key_Less, none, "|if AGE < 34");
    add("Alt+>", Qt::Key_Greater, Qt::AltModifier, "|if AGE >= 34");
    add("Alt+<", Qt::Key_Less, Qt::AltModifier, "|if AGE <= 34");
    add("i", Qt::Key_I, none, "|if AGE in (34)");
    add("l", Qt::Key_L, none, "where AGE = 34|");
}

void TestGridKeys::filterKeys()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    press(key, modifiers);
    QTEST(m_grid->filters(), "filters");
}

void TestGridKeys::filtersAreTakenBackByKeyAndKeepTheirOperator()
{
    press(Qt::Key_Greater);
    press(Qt::Key_C);
    m_grid->goTo(0, GridFixture::Age);
    press(Qt::Key_L);  // has an operator of its own
    press(Qt::Key_Equal);
    QCOMPARE(m_grid->filters(), "where AGE = 34|if AGE > 34");
    press(Qt::Key_Z);
    QCOMPARE(m_grid->filters(), "where AGE = 34|");
    press(Qt::Key_I);
    press(Qt::Key_C, Qt::AltModifier);
    QCOMPARE(m_grid->filters(), "|if AGE in (34)");
    QTest::keySequence(m_grid->view.get(), QKeySequence(QKeySequence::Undo));
    QCOMPARE(m_grid->filters(), "|");
}

void TestGridKeys::inFilterTakesTheSelectedCellsOfTheCurrentColumn()
{
    m_grid->goTo(4, GridFixture::Age);
    for (const int row : {1, 2, 5}) {
        m_grid->select(row, GridFixture::Age);
    }
    m_grid->select(0, GridFixture::Sex);
    press(Qt::Key_I);
    QCOMPARE(m_grid->filters(), "|if AGE in (51, ., 47)");
}

void TestGridKeys::refusalsAreTold()
{
    press(Qt::Key_L);
    press(Qt::Key_L);
    QCOMPARE(m_grid->notes.take(),
             QStringList("error|Library Filter supports one level only. "
                         "Please clear library filter first.|where AGE = 34"));
    m_grid->view->run(GridCommand::FilterContains);  // in a number
    QCOMPARE(m_grid->notes.take().filter("error|").size(), 1);
    m_grid->goTo(0, GridFixture::Site);
    m_grid->view->run(GridCommand::FilterContains);
    QCOMPARE(m_grid->filters(), "where AGE = 34|if index(SITE, \"X-1\") > 0");
}

void TestGridKeys::columnKeys()
{
    m_grid->goTo(2, GridFixture::Sex);
    press(Qt::Key_H);
    press(Qt::Key_Left, Qt::AltModifier);  // past the hidden column, too
    QCOMPARE(m_grid->columns(), "AGE USUBJID SITE");
    press(Qt::Key_Right, Qt::AltModifier);
    press(Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(m_grid->columns(), "USUBJID SITE AGE");
    press(Qt::Key_U);
    QCOMPARE(m_grid->columns(), "USUBJID SEX SITE AGE");

    m_grid->goTo(0, GridFixture::Usubjid);
    m_grid->select(4, GridFixture::Age);
    press(Qt::Key_H, Qt::AltModifier);
    QCOMPARE(m_grid->columns(), "SEX SITE");
    press(Qt::Key_H);
    press(Qt::Key_H);
    QCOMPARE(m_grid->columns(), "");
    for (const Qt::Key key : {Qt::Key_D, Qt::Key_I, Qt::Key_B}) {  // by a cell that nobody sees
        press(key);
    }
    QCOMPARE(m_grid->filters(), "|");
    QVERIFY(m_grid->opened().byVariables().empty());
}

void TestGridKeys::keysThatAskForAnotherWindow()
{
    QSignalSpy variables(m_grid->view.get(), &MainTableView::signalShowDockVar);
    QSignalSpy results(m_grid->view.get(), &MainTableView::signalSetFrequency);
    QSignalSpy docks(m_grid->view.get(), &MainTableView::signalShowDockFreq);
    QSignalSpy statistics(m_grid->view.get(), &MainTableView::signalShowDockDesc);
    press(Qt::Key_V);
    press(Qt::Key_G);
    QCOMPARE(variables.value(1).value(0), QVariant(int(GridFixture::Age)));

    press(Qt::Key_F);
    press(Qt::Key_N);
    QCOMPARE(docks.count(), 2);
    QCOMPARE(results.at(0).at(1).value<std::vector<int>>(), std::vector<int>({2}));
    QCOMPARE(results.at(0).at(3).toBool(), false);
    QCOMPARE(results.at(1).at(3).toBool(), true);
    press(Qt::Key_S);
    QCOMPARE(statistics.count(), 1);
}

void TestGridKeys::keysForClipboardByListAndLetters()
{
    QTest::keySequence(m_grid->view.get(), QKeySequence(QKeySequence::Copy));
    QCOMPARE(QGuiApplication::clipboard()->text(), "34");
    press(Qt::Key_B);
    QCOMPARE(m_grid->opened().byVariables(), std::vector<std::string>({"AGE"}));
    m_grid->view->setFontSize(10);
    press(Qt::Key_Plus, Qt::ControlModifier);
    press(Qt::Key_Equal, Qt::ControlModifier);
    press(Qt::Key_Plus, Qt::ControlModifier | Qt::KeypadModifier);
    press(Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(m_grid->notes.take(), QStringList({"font|11", "font|12", "font|13", "font|12"}));
}

void TestGridKeys::lettersThatAreNoCommandSearchNothing()
{
    m_grid->goTo(0, GridFixture::Site);
    QTest::keyClick(m_grid->view.get(), 'y');  // two sites begin with it
    QCOMPARE(m_grid->currentNumber(), 1);
}

void TestGridKeys::keysActOnTheGridAlone()
{
    QWidget window;
    QLineEdit box(&window);
    m_grid->view->setParent(&window);
    const auto takeOut = qScopeGuard([this] { m_grid->view->setParent(nullptr); });
    window.show();
    box.setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keyClicks(&box, "dhu>");
    QTest::keyClick(&box, Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(box.text(), "dhu>");
    QCOMPARE(m_grid->filters() + m_grid->columns(), "|USUBJID SEX AGE SITE");
}

void TestGridKeys::clickedHeaderIsTheVariableOfTheKeys()
{
    MainTableView& view = *m_grid->view;
    QHeaderView* header = view.horizontalHeader();
    m_grid->goTo(0, GridFixture::Usubjid);
    // The column stands half outside, and must not be scrolled away from under the mouse.
    const int edge = header->sectionPosition(1) + header->sectionSize(1) / 2;
    view.resize(edge + view.verticalHeader()->width() + 2 * view.frameWidth(), 300);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, {header->sectionPosition(1) + 8, 5});
    QCOMPARE(view.currentVariable(), int(GridFixture::Sex));
    QCOMPARE(view.horizontalScrollBar()->value(), 0);
    QCOMPARE(m_grid->opened().sortKeys(), SortKeys({{GridFixture::Sex, Qt::AscendingOrder}}));
    press(Qt::Key_H);
    QCOMPARE(m_grid->columns(), "USUBJID AGE SITE");
}

/// The selection, as the numbers of its observations in each variable: "SEX 1 4, AGE 1 4".
QString TestGridKeys::selected() const
{
    QStringList texts;
    const GridSelection selection = m_grid->view->selected();
    for (const int variable : selection.variables()) {
        texts << m_grid->opened().nameOf(variable);
        for (const int row : selection.rowsOf(variable)) {
            const int observation = m_grid->view->tableModel()->observationAt(row);
            texts.last() += ' ' + QString::number(observation + 1);
        }
    }
    return texts.join(", ");
}

void TestGridKeys::selectionIsExtendedFromWhereItBegan()
{
    MainTableView& view = *m_grid->view;
    view.resize(600, 400);
    const auto click = [&](int variable, Qt::KeyboardModifiers modifiers) {
        const QPoint place(view.horizontalHeader()->sectionViewportPosition(variable) + 8, 5);
        QTest::mouseClick(view.horizontalHeader()->viewport(), Qt::LeftButton, modifiers, place);
    };
    m_grid->goTo(1, GridFixture::Usubjid);
    view.setCurrentIndex(view.model()->index(1, GridFixture::Sex));
    press(Qt::Key_Right, Qt::ShiftModifier);
    press(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(selected(), "SEX 2 3, AGE 2 3");
    emit view.signalSort({{GridFixture::Age, Qt::DescendingOrder}});  // takes 3 to the end
    QCOMPARE(selected(), "SEX 2 3, AGE 2 3");
    QCOMPARE(m_grid->currentNumber(), 3);
    press(Qt::Key_Left, Qt::ShiftModifier);
    QVERIFY(selected().startsWith("SEX 2") && selected().endsWith("3"));
    view.cmdRunCommand("if AGE ^= 51");  // hides where it began
    QCOMPARE(m_grid->shown().right(1), "3");
    press(Qt::Key_Right, Qt::ShiftModifier);
    QVERIFY(selected().startsWith("SEX 5 ") && selected().contains("3, AGE 5 "));

    click(GridFixture::Sex, {});
    QCOMPARE(m_grid->currentNumber(), 3);
    const SortKeys keys = m_grid->opened().sortKeys();
    click(GridFixture::Site, Qt::ShiftModifier);
    QCOMPARE(selected().count(", "), 2);
    click(GridFixture::Age, Qt::ControlModifier);
    QVERIFY(selected().startsWith("SEX ") && selected().contains(", SITE "));
    QCOMPARE(selected().count(", "), 1);
    QCOMPARE(m_grid->opened().sortKeys(), keys);
    QCOMPARE(view.horizontalHeader()->sortIndicatorSection(), int(GridFixture::Sex));
    QVERIFY(view.isSortingEnabled());
}

void TestGridKeys::columnsMoveByTheMouse()
{
    MainTableView& view = *m_grid->view;
    view.resize(600, 400);
    QWidget* header = view.horizontalHeader()->viewport();
    const auto end = [&](int variable) {
        return QPoint(view.horizontalHeader()->sectionViewportPosition(variable)
                          + view.columnWidth(variable) - 10,
                      5);
    };
    QTest::mousePress(header, Qt::LeftButton, {}, end(GridFixture::Usubjid));
    QTest::mouseMove(header, end(GridFixture::Sex));
    QTest::mouseMove(header, end(GridFixture::Age));
    QTest::mouseRelease(header, Qt::LeftButton, {}, end(GridFixture::Age));
    QCOMPARE(m_grid->columns(), "SEX AGE USUBJID SITE");
    QCOMPARE(m_grid->opened().variables().order(), std::vector<int>({1, 2, 0, 3}));
    QVERIFY(m_grid->opened().sortKeys().empty());
}

void TestGridKeys::keysDoNothingWithoutCells()
{
    MainTableView none(nullptr);
    QSignalSpy rows(&none, &MainTableView::signalObsNo);
    QSignalSpy variables(&none, &MainTableView::signalVarNo);
    none.updateAll();
    QCOMPARE(rows.takeLast().at(0).toString(), "Rows: NA/NA");
    QCOMPARE(variables.takeLast().at(0).toString(), "Vars: NA/NA");
    none.cmdRunCommand("if A = 1");

    ScriptedDataset empty;
    empty.variable("A", TypeCode::Character).variable("B", TypeCode::Double);
    m_grid->view = m_grid->open(empty);
    QVERIFY(m_grid->activate());
    for (const auto& entry : gridcommands::table()) {
        none.run(entry.command);
        m_grid->view->run(entry.command);
    }
    QCOMPARE(m_grid->columns() + m_grid->filters(), "A B|");
    QCOMPARE(m_grid->notes.take().filter("error"), QStringList());

    m_grid->view->onHeaderClicked(1);  // which tells the variable where no cell can
    press(Qt::Key_H);
    QCOMPARE(m_grid->columns(), "A");
    m_grid->view.reset();
}

QTEST_MAIN(TestGridKeys)
#include "TestGridKeys.moc"

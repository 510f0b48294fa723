#include "analysis/panels/CheckBoxHeader.h"
#include "analysis/panels/DistributionChart.h"
#include "analysis/panels/FreqTableModel.h"
#include "analysis/panels/FreqTableView.h"
#include "analysis/panels/VariableTableModel.h"
#include "tests/support/GridFixture.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QFontInfo>
#include <QHelpEvent>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <QTableWidget>
#include <QToolTip>

/// The side views of a grid: what they show, and what they do to it.
class TestGridPanels : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void variablesAreListedWithTheirAttributes();
    void checkBoxesAndGridAgree();
    void variableIsFoundBothWays();
    void sortedVariablesGoBackToTheirOrder();
    void lettersOfTheVariablesChange();
    void frequenciesAreListed();
    void subjectsAreCountedUnderTheirName();
    void frequenciesAreSorted();
    void frequencyKeysFilterTheGrid_data();
    void frequencyKeysFilterTheGrid();
    void menuEntriesReadAsTheFiltersTheySet();
    void menuOfTheVariablesActsOnThem();
    void footTellsSharesAndWhatTheListIsOf();
    void statisticsTellWhenTheyAreOld();
    void statisticsAreDrawnFromLeftToRight();

private:
    [[nodiscard]] VariableTableView& variables() const
    {
        return *m_grid->view->panels().variables();
    }
    [[nodiscard]] FrequencyPanel& frequency() const { return *m_grid->view->panels().frequency(); }
    [[nodiscard]] FreqTableView& list() const { return frequency().table(); }
    [[nodiscard]] CheckBoxHeader& header() const
    {
        return *static_cast<CheckBoxHeader*>(variables().horizontalHeader());
    }
    static void bringUp(QWidget& panel)
    {
        panel.show();
        panel.activateWindow();
        panel.setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&panel));
    }
    static void press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::sendKeyEvent(QTest::Click, &widget, key, QString(), modifiers);
    }
    static void goTo(const QTableView& table, int row, int column)
    {
        table.selectionModel()->setCurrentIndex(table.model()->index(row, column),
                                                QItemSelectionModel::ClearAndSelect);
    }
    static void pressCorner(QWidget& table)
    {
        auto* corner = table.findChild<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly);
        QTest::mousePress(corner, Qt::LeftButton);
    }
    /// The texts of a column from top to bottom.
    static QString column(const QTableView& table, int column, int role = Qt::DisplayRole)
    {
        QStringList texts;
        for (int row = 0; row < table.model()->rowCount(); ++row) {
            texts << table.model()->index(row, column).data(role).toString();
        }
        return texts.join(' ');
    }
    static QString names(const QTableView& table, int role = Qt::DisplayRole)
    {
        QStringList texts;
        for (int at = 0; at < table.model()->columnCount(); ++at) {
            texts << table.model()->headerData(at, Qt::Horizontal, role).toString();
        }
        return texts.join('|');
    }
    [[nodiscard]] QString foot() const
    {
        return frequency().findChild<QLabel*>()->text().simplified();  // without blanks that hold
    }
    static QList<QAction*> menuOf(PanelTable& table, QPoint position = {})
    {
        emit table.customContextMenuRequested(position);
        return table.findChildren<QMenu*>().last()->actions();
    }
    void count(GridFixture::Variable variable, bool frequencyN = false) const
    {
        m_grid->goTo(0, variable);
        m_grid->view->showFrequencyOfSelected(frequencyN);
    }

    std::unique_ptr<GridFixture> m_grid;
};

void TestGridPanels::init()
{
    m_grid = std::make_unique<GridFixture>();
    for (QAbstractItemModel* model : {variables().model(), list().model()}) {
        new QAbstractItemModelTester(model, model);
    }
}

void TestGridPanels::cleanup()
{
    QCOMPARE(m_grid->close(), QStringList());
    m_grid.reset();
}

void TestGridPanels::variablesAreListedWithTheirAttributes()
{
    QCOMPARE(names(variables()), "|Variable|Type|Length|Format|Informat|Label");
    QCOMPARE(column(variables(), 1), "USUBJID SEX AGE SITE");
    QCOMPARE(column(variables(), 2), "Character Character Numeric Character");
    QCOMPARE(column(variables(), 6), "Subject Sex as recorded at the visit  ");
    QCOMPARE(variables().model()->headerData(3, Qt::Vertical).toString(), "4");
    for (int at = 0; at < 7; ++at) {
        const int alignment = variables().model()->index(0, at).data(Qt::TextAlignmentRole).toInt();
        QCOMPARE(alignment, int((at == 3 ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter));
    }
    variables().setOpened(nullptr);
    QCOMPARE(variables().model()->rowCount() + variables().model()->columnCount(), 0);
    QCOMPARE(header().checkState(), Qt::Checked);
}

void TestGridPanels::checkBoxesAndGridAgree()
{
    const QSignalSpy rows(&variables(), &VariableTableView::signalVarHideUnhide);
    const QSignalSpy changes(&m_grid->opened(), &OpenDataset::signalVariablesChanged);
    const auto states = [this] { return column(variables(), 0, Qt::CheckStateRole); };
    bringUp(variables());
    m_grid->goTo(0, GridFixture::Sex);
    m_grid->view->cmdHideColumn();
    QCOMPARE(states(), "2 0 2 2");
    QCOMPARE(header().checkState(), Qt::PartiallyChecked);
    QCOMPARE(rows.count(), 0);

    variables().sortByColumn(1, Qt::DescendingOrder);
    const auto click = [this](int row) {
        const QRect cell = variables().visualRect(variables().model()->index(row, 0));
        QTest::mouseClick(variables().viewport(), Qt::LeftButton, {}, cell.center());
    };
    click(3);  // AGE
    QCOMPARE(rows.back().front().toInt(), int(GridFixture::Age));
    QCOMPARE(m_grid->columns(), "USUBJID SITE");
    goTo(variables(), 0, 0);
    press(variables(), Qt::Key_Space);  // USUBJID
    QCOMPARE(header().checkState(), Qt::PartiallyChecked);
    click(1);  // SITE
    QCOMPARE(header().checkState(), Qt::Unchecked);
    QCOMPARE(changes.count(), 4);

    const auto pressBox = [this](QPoint at) {
        header().repaint();
        QTest::mouseClick(header().viewport(), Qt::LeftButton, {}, at);
    };
    pressBox({16, header().height() / 2});
    QCOMPARE(header().checkState(), Qt::Checked);
    QCOMPARE(m_grid->columns(), "USUBJID SEX AGE SITE");
    pressBox({16, header().height() / 2});
    pressBox({60, header().height() / 2});  // which sorts
    QCOMPARE(header().checkState(), Qt::Unchecked);
    QCOMPARE(m_grid->columns(), "");
    QCOMPARE(changes.count(), 6);
    QCOMPARE(rows.count(), 3 + 8);
}

void TestGridPanels::variableIsFoundBothWays()
{
    m_grid->goTo(3, GridFixture::Age);
    variables().sortByColumn(1, Qt::AscendingOrder);
    m_grid->view->cmdGotoVariable();
    QCOMPARE(variables().selectionModel()->selectedRows().size(), 1);
    QCOMPARE(variables().currentIndex().row(), 0);
    bringUp(variables());
    press(variables(), Qt::Key_Down);
    press(variables(), Qt::Key_Down);  // SITE, behind SEX
    press(variables(), Qt::Key_G);
    QCOMPARE(m_grid->view->currentVariable(), int(GridFixture::Site));
    QCOMPARE(m_grid->currentNumber(), 4);
    m_grid->view->cmdHideColumn();
    variables().cmdSelectRow(GridFixture::Site);
    press(variables(), Qt::Key_G);
    QCOMPARE(m_grid->view->currentVariable(), int(GridFixture::Age));
    QCOMPARE(m_grid->notes.take(), QStringList("message|The variable SITE is hidden."));
}

void TestGridPanels::sortedVariablesGoBackToTheirOrder()
{
    variables().sortByColumn(2, Qt::DescendingOrder);
    QCOMPARE(column(variables(), 1), "AGE USUBJID SEX SITE");
    variables().sortByColumn(3, Qt::DescendingOrder);
    QCOMPARE(column(variables(), 1), "SITE AGE USUBJID SEX");
    variables().cmdSelectRow(GridFixture::Sex);
    variables().copy();
    QCOMPARE(QGuiApplication::clipboard()->text(),
             "\tSEX\tCharacter\t8\t\t\tSex as recorded at the visit");
    pressCorner(variables());
    QCOMPARE(column(variables(), 1), "USUBJID SEX AGE SITE");
    QCOMPARE(header().sortIndicatorSection(), -1);
}

void TestGridPanels::lettersOfTheVariablesChange()
{
    const auto size = [this] { return QFontInfo(variables().font()).pointSize(); };
    bringUp(variables());
    QFont font = variables().font();
    font.setPointSize(6);
    variables().setFont(font);
    press(variables(), Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(size(), 5);
    press(variables(), Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(size(), 5);
    press(variables(), Qt::Key_Equal, Qt::ControlModifier);
    press(variables(), Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(size(), 7);
}

void TestGridPanels::frequenciesAreListed()
{
    QVERIFY(!frequency().hasList());
    m_grid->view->cmdRunCommand("table AGE*SEX");
    QCOMPARE(names(list()), "AGE|SEX|Frequency");
    QCOMPARE(names(list(), Qt::ToolTipRole), "|Sex as recorded at the visit|Frequency");
    QCOMPARE(column(list(), 0), "N/A 34 34 47 51 51");
    QCOMPARE(column(list(), 1), "F F M  F M");
    QCOMPARE(column(list(), 2), "1 1 1 1 1 1");
    const auto alignment = [this](int at) {
        return list().model()->index(0, at).data(Qt::TextAlignmentRole).toInt();
    };
    QVERIFY(alignment(0) & Qt::AlignRight && alignment(1) & Qt::AlignLeft);
    QVERIFY(alignment(2) & Qt::AlignRight);

    m_grid->opened().setShown({{GridFixture::Sex}}, false);
    (void)m_grid->opened().run("if AGE > 99", Dialect::Command);
    list().sortByColumn(2, Qt::AscendingOrder);
    count(GridFixture::Site);
    QCOMPARE(list().horizontalHeader()->sortIndicatorSection(), -1);
    QCOMPARE(names(list()), "SITE|Frequency");
    QCOMPARE(list().model()->rowCount(), 0);
}

void TestGridPanels::subjectsAreCountedUnderTheirName()
{
    m_grid->datasets.uniqueVarName = "usubjid";
    count(GridFixture::Sex, true);
    QCOMPARE(names(list()), "SEX|Freq (usubjid)");
    QCOMPARE(names(list(), Qt::ToolTipRole).section('|', 1), "Freq (USUBJID)");
    QCOMPARE(column(list(), 1), "1 3 2");
    goTo(list(), 1, 0);
    QCOMPARE(foot(), "Rows: 3 Sum: 6 Subjects: 4 Selected: 3 (75.0 %)");
    list().selectAll();
    QVERIFY(foot().endsWith("Selected: 6"));
    m_grid->datasets.uniqueVarName = "NOSUCH";  // for the next one
    QVERIFY(names(list()).endsWith("(usubjid)"));
    count(GridFixture::Sex, true);
    QCOMPARE(column(list(), 1), "1 3 2");
    QVERIFY(foot().contains("no variable NOSUCH"));
}

void TestGridPanels::frequenciesAreSorted()
{
    ScriptedDataset numbers;
    numbers.variable("N", TypeCode::Double);
    numbers.rows(22, [](int row, int) {
        return row < 9 ? 10.0 : row < 19 ? 9.0 : row < 20 ? ScriptedDataset::missing : -1.0;
    });
    auto grid = m_grid->open(numbers);
    FreqTableView& table = grid->panels().frequency()->table();
    new QAbstractItemModelTester(table.model(), table.model());
    grid->cmdRunCommand("table N");
    QCOMPARE(column(table, 0), "N/A -1 9 10");
    QCOMPARE(table.list().largestCount(), 10);
    table.sortByColumn(0, Qt::AscendingOrder);
    QCOMPARE(column(table, 0), "-1 9 10 N/A");
    goTo(table, 1, 0);
    table.sortByColumn(1, Qt::DescendingOrder);
    QCOMPARE(column(table, 1), "9 2 10 1");
    QCOMPARE(table.currentIndex().row(), 2);
    QCOMPARE(table.selectedRows(), std::vector<int>{2});
    QCOMPARE(table.model()->headerData(0, Qt::Vertical).toString(), "4");
    pressCorner(table);
    QCOMPARE(column(table, 1), "1 2 10 9");
    QCOMPARE(table.horizontalHeader()->sortIndicatorSection(), -1);
}

void TestGridPanels::frequencyKeysFilterTheGrid_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QString>("filters");
    const auto add = [](const char* name, Qt::Key key, const char* filters,
                        Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::newRow(name) << int(key) << modifiers << QString(filters);
    };
    add("=", Qt::Key_Equal, "|if AGE = 47");
    add("d", Qt::Key_D, "|if AGE = 47");
    add("^", Qt::Key_AsciiCircum, "|if AGE ^= 47");
    add("~", Qt::Key_AsciiTilde, "|if AGE ^= 47");
    add(">", Qt::Key_Greater, "|if AGE > 47");
    add("<", Qt::Key_Less, "|if AGE < 47");
    add(">=", Qt::Key_Greater, "|if AGE >= 47", Qt::AltModifier);
    add("<=", Qt::Key_Less, "|if AGE <= 47", Qt::AltModifier);
    add("i", Qt::Key_I, "|if AGE in (., 47)");
    add("l", Qt::Key_L, "where AGE = 47|");
}

void TestGridPanels::frequencyKeysFilterTheGrid()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QString, filters);
    count(GridFixture::Age);
    bringUp(frequency());
    list().sortByColumn(1, Qt::DescendingOrder);  // 34 51 N/A 47
    goTo(list(), 3, 1);
    list().selectionModel()->select(list().model()->index(2, 1), QItemSelectionModel::Select);
    press(list(), Qt::Key(key), modifiers);
    QCOMPARE(m_grid->filters(), filters);
    QCOMPARE(m_grid->shown().split(' ').size(), int(m_grid->opened().selectedCount()));
    press(list(), Qt::Key_C, Qt::AltModifier);
    press(list(), Qt::Key_Equal);
    press(list(), Qt::Key_Z);
    press(list(), Qt::Key_Greater);
    press(list(), Qt::Key_C);
    QCOMPARE(m_grid->filters(), "|");
}

void TestGridPanels::menuEntriesReadAsTheFiltersTheySet()
{
    count(GridFixture::Site);  // X-1 X-2 Y-1 y-1
    goTo(list(), 2, 0);
    list().selectionModel()->select(list().model()->index(1, 0), QItemSelectionModel::Select);
    const auto trigger = [this](int entry) { menuOf(list()).at(entry)->trigger(); };
    trigger(0);  // copy
    QCOMPARE(QGuiApplication::clipboard()->text(), "X-2\nY-1");
    QStringList texts;
    for (int entry = 6; entry < 15; ++entry) {
        texts << menuOf(list()).at(entry)->text().section('\t', 0, 0);
        trigger(entry);
        const bool isLibrary = texts.back().startsWith("where");
        QCOMPARE(m_grid->filters(), isLibrary ? texts.back() + '|' : "|if " + texts.back());
        trigger(isLibrary ? 2 : entry % 2 == 0 ? 3 : 4);  // cleared or undone
        QCOMPARE(m_grid->filters(), "|");
    }
    QCOMPARE(texts.join("; "),
             R"(SITE = "Y-1"; SITE ^= "Y-1"; SITE > "Y-1"; SITE < "Y-1"; SITE >= "Y-1"; )"
             R"(SITE <= "Y-1"; SITE in ("X-2", "Y-1"); index(SITE, "Y-1") > 0; )"
             R"(where SITE = "Y-1")");

    // Counts of several variables stand for none of their values.
    m_grid->view->cmdRunCommand("table SEX*AGE");
    goTo(list(), 0, 2);
    QCOMPARE(menuOf(list()).size(), 5);
    bringUp(frequency());
    for (const Qt::Key key : {Qt::Key_D, Qt::Key_I, Qt::Key_L}) {
        press(list(), key);
        QCOMPARE(m_grid->notes.take(),
                 QStringList("message|Choose a value of a variable to filter by."));
    }

    ScriptedDataset signs;
    signs.variable("T", TypeCode::Character).row({"a&b\tc"});
    const auto grid = m_grid->open(signs);
    grid->cmdRunCommand("table T");
    QCOMPARE(menuOf(grid->panels().frequency()->table()).at(6)->text(), "T = \"a&&b c\"\t=");
}

void TestGridPanels::menuOfTheVariablesActsOnThem()
{
    variables().sortByColumn(1, Qt::AscendingOrder);  // AGE SEX SITE USUBJID
    bringUp(variables());
    goTo(variables(), 2, 1);
    variables().selectionModel()->select(variables().model()->index(0, 3),
                                         QItemSelectionModel::Select);
    const auto menu = [this](int row) {
        const QModelIndex index = variables().model()->index(row, 1);
        return menuOf(variables(), variables().visualRect(index).center());
    };
    menu(1).at(1)->trigger();
    QCOMPARE(m_grid->view->currentVariable(), int(GridFixture::Sex));
    menu(1).at(2)->trigger();
    QCOMPARE(names(list()), "AGE|SITE|Frequency");
    menu(1).at(3)->trigger();
    QCOMPARE(names(list()), "AGE|SITE|Freq (USUBJID)");
    QCOMPARE(menu(1).at(3)->text(), "Frequency (USUBJID)");
}

void TestGridPanels::footTellsSharesAndWhatTheListIsOf()
{
    count(GridFixture::Sex);
    QCOMPARE(foot(), "Rows: 3 Sum: 6 Selected: 1 (16.7 %)");
    list().selectAll();
    QVERIFY(foot().endsWith("6 (100.0 %)"));
    list().filterBy(CompareOp::NotEqual);
    QVERIFY(foot().contains("other filters"));
    m_grid->opened().undo();
    QVERIFY(!foot().contains("other filters"));
}

void TestGridPanels::statisticsTellWhenTheyAreOld()
{
    StatisticsPanel& panel = *m_grid->view->panels().statistics();
    m_grid->goTo(0, GridFixture::Age);
    m_grid->opened().addByVariable("SEX");
    (void)m_grid->opened().run("if AGE > 1", Dialect::Command);
    m_grid->view->showStatistics();
    const auto* foot = panel.findChild<QLabel*>();
    QVERIFY(foot->isHidden());
    panel.table()->selectRow(1);
    bringUp(panel);
    press(*panel.table(), Qt::Key_C, Qt::ControlModifier);
    QVERIFY2(
        QGuiApplication::clipboard()->text().startsWith("F\t2\t42.5\t42.5\t34\t51\t17\t12.0208"),
        qPrintable(QGuiApplication::clipboard()->text()));
    m_grid->opened().clearByVariables();
    QVERIFY(!foot->isHidden());
    m_grid->opened().addByVariable("SEX");
    QVERIFY(foot->isHidden());
    m_grid->opened().undo();
    QVERIFY(!foot->isHidden());
}

void TestGridPanels::statisticsAreDrawnFromLeftToRight()
{
    m_grid->goTo(0, GridFixture::Age);
    m_grid->view->showStatistics();
    StatisticsPanel& panel = *m_grid->view->panels().statistics();
    bringUp(panel);
    auto* chart = panel.findChild<DistributionChart*>();
    const auto toolTip = [chart](int x) {
        QHelpEvent event(QEvent::ToolTip, QPoint(x, 50), chart->mapToGlobal(QPoint(x, 50)));
        QCoreApplication::sendEvent(chart, &event);
        return QToolTip::text();
    };
    constexpr int margin = 10;
    QCOMPARE(toolTip(margin), "From 30 to below 35: 2");
    QCOMPARE(toolTip(chart->width() - margin), "From 50 to below 55: 2");
}

QTEST_MAIN(TestGridPanels)
#include "TestGridPanels.moc"

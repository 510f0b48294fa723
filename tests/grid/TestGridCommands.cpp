#include "grid/filter/ParseError.h"
#include "grid/GridContextMenu.h"
#include "tests/support/GridFixture.h"

#include <QAction>
#include <QClipboard>
#include <QSignalSpy>
#include <QTableWidget>

class TestGridCommands : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void contextMenuHasItsEntriesInOrder();
    void contextMenuRunsTheCommandsOfItsKeys();
    void headerMenuActsOnTheHeadersVariable();
    void copyTakesWhatIsShownInScreenOrder();
    void copyHeaderTakesTheNamesOfTheSelection();
    void selectColumnKeepsTheCurrentCell();
    void goToVariableLeavesHiddenOnesHidden();
    void followsBitsThatOthersChange();
    void typedCommandsAct_data();
    void typedCommandsAct();
    void typedCommandErrorsReachTheCaller_data();
    void typedCommandErrorsReachTheCaller();
    void byListIsClearedAndTakesKnownNamesOnly();
    void frequencyOfSeveralVariablesComesInScreenOrder();
    void frequencyCountsSubjectsByTheHostsVariable();
    void statisticsAreKeptAndShownAgain();
    void statisticsTellWhyTheyAreNotMade();
    void statisticsFollowTheByList();
    void libraryFilterReachesAllGrids();
    void filterByValueOfAnotherView();
    void filtersAreRestoredFromTheirTexts();
    void waitCursorIsShownWhileRowsAreSelected();
    void headerModeKeepsFilterAndCurrentCell();
    void filterKeepsTheCurrentCellInSight();

private:
    [[nodiscard]] QString copy(bool includeNames)
    {
        view().cmdCopy(includeNames);
        return QGuiApplication::clipboard()->text();
    }
    [[nodiscard]] MainTableView& view() { return *m_grid->view; }
    [[nodiscard]] CommandOutcome restore(const QString& libraryFilter, const QString& datasetFilter)
    {
        ViewState state;
        state.libraryFilter = libraryFilter;
        state.datasetFilter = datasetFilter;
        return m_grid->opened().restore(state);
    }
    void select(int row, int variable)
    {
        view().selectionModel()->select(view().model()->index(row, variable),
                                        QItemSelectionModel::Select);
    }

    std::unique_ptr<GridFixture> m_grid;
};

namespace {

QAction* entryOf(const QMenu& menu, const QString& text)
{
    for (QAction* action : menu.actions()) {
        if (action->text().section('\t', 0, 0) == text) {
            return action;
        }
    }
    return nullptr;
}

QStringList tableTexts(const QTableWidget& table)
{
    QStringList lines;
    QStringList header;
    for (int column = 0; column < table.columnCount(); ++column) {
        header << table.horizontalHeaderItem(column)->text();
    }
    lines << header.join('|');
    for (int row = 0; row < table.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < table.columnCount(); ++column) {
            cells << table.item(row, column)->text();
        }
        lines << cells.join('|');
    }
    return lines;
}

}  // namespace

void TestGridCommands::init()
{
    m_grid = std::make_unique<GridFixture>();
}

void TestGridCommands::cleanup()
{
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    const QString log = QString::fromStdString(m_grid->log.take());
    const QStringList notes = m_grid->notes.take();
    m_grid.reset();
    QCOMPARE(log, QString());
    QCOMPARE(notes, QStringList());
}

void TestGridCommands::contextMenuHasItsEntriesInOrder()
{
    m_grid->datasets.uniqueVarName = "SUBJ&ID";
    m_grid->view->show();
    m_grid->view->showContextMenu(QPoint(10, 10));
    const auto* menu = m_grid->view->findChild<GridContextMenu*>();
    QVERIFY(menu != nullptr && menu->isVisible());
    QStringList entries;
    for (const QAction* action : menu->actions()) {
        if (!action->isSeparator()) {
            entries << action->text();
        }
    }
    const QStringList expected{"Hide Variable\tH",
                               "Unhide Variables\tU",
                               "Shift Variable Left\tAlt+Left",
                               "Shift Variable Right\tAlt+Right",
                               "Go to Variable\tG",
                               "Add By Variable\tB",
                               "Clear By Variable",
                               "Clear Library Filter\tAlt+C",
                               "Clear Dataset Filter\tC",
                               "Undo Dataset Filter\tZ",
                               "Frequency\tF",
                               "Frequency (SUBJ&&ID)\tN",
                               "Univariate\tS",
                               "Copy",
                               "Copy (include Var Name)"};
    QCOMPARE(entries, expected);
}

void TestGridCommands::contextMenuRunsTheCommandsOfItsKeys()
{
    GridContextMenu menu("USUBJID");
    connect(&menu, &GridContextMenu::signalCommand, &view(), &MainTableView::run);
    QSignalSpy frequencies(&view(), &MainTableView::signalSetFrequency);
    QSignalSpy variables(&view(), &MainTableView::signalShowDockVar);
    const auto choose = [&](const char* text) {
        QAction* action = entryOf(menu, text);
        QVERIFY2(action != nullptr, text);
        action->trigger();
    };
    m_grid->goTo(0, GridFixture::Sex);
    choose("Shift Variable Left");
    QCOMPARE(m_grid->columns(), "SEX USUBJID AGE SITE");
    choose("Shift Variable Right");
    QCOMPARE(m_grid->columns(), "USUBJID SEX AGE SITE");
    choose("Go to Variable");
    QCOMPARE(variables.count(), 1);
    choose("Add By Variable");
    QCOMPARE(view().opened()->byVariables().size(), std::size_t{1});
    choose("Clear By Variable");
    QVERIFY(view().opened()->byVariables().empty());
    choose("Frequency");
    choose("Frequency (USUBJID)");
    QCOMPARE(frequencies.at(0).at(3).toBool(), false);
    QCOMPARE(frequencies.at(1).at(3).toBool(), true);
    choose("Univariate");
    QCOMPARE(m_grid->notes.take(),
             QStringList("inform|Desciptive Stattistics|Selected variable is not numeric."));

    view().cmdRunCommand("if AGE > 34");
    view().cmdRunCommand("if SEX = 'M'");
    view().cmdRunCommand("where USUBJID = 'S2'");
    choose("Undo Dataset Filter");
    QCOMPARE(m_grid->shown(), "2 6");
    choose("Clear Library Filter");
    QCOMPARE(m_grid->shown(), "2 5 6");
    choose("Clear Dataset Filter");
    QCOMPARE(m_grid->shown(), "1 2 3 4 5 6");
    m_grid->goTo(0, GridFixture::Sex);
    choose("Copy");
    QCOMPARE(QGuiApplication::clipboard()->text(), "F");
    choose("Copy (include Var Name)");
    QCOMPARE(QGuiApplication::clipboard()->text(), "SEX\nF");
    choose("Hide Variable");
    QCOMPARE(m_grid->columns(), "USUBJID AGE SITE");
    choose("Unhide Variables");
    QCOMPARE(m_grid->columns(), "USUBJID SEX AGE SITE");
}

void TestGridCommands::headerMenuActsOnTheHeadersVariable()
{
    view().show();
    m_grid->goTo(3, GridFixture::Usubjid);
    QHeaderView* header = view().horizontalHeader();
    emit header->customContextMenuRequested(
        QPoint(header->sectionViewportPosition(GridFixture::Age) + 2, 2));
    QVERIFY(view().findChild<GridContextMenu*>() != nullptr);
    QCOMPARE(view().currentVariable(), int(GridFixture::Age));
    QCOMPARE(m_grid->currentNumber(), 4);
}

void TestGridCommands::copyTakesWhatIsShownInScreenOrder()
{
    QGuiApplication::clipboard()->setText("before");
    QCOMPARE(copy(false), "before");  // nothing is selected
    view().selectAll();
    view().cmdRunCommand("if AGE >= 47");
    view().cmdRunCommand("drop SITE");
    m_grid->goTo(1, GridFixture::Age);
    view().shiftVariableLeft();
    view().onHeaderClicked(GridFixture::Usubjid);
    view().selectAll();
    QCOMPARE(copy(false), "S2\t51\tM\nS2\t51\tF\nS4\t47\t");
    QCOMPARE(copy(true), "USUBJID\tAGE\tSEX\nS2\t51\tM\nS2\t51\tF\nS4\t47\t");

    // Cells between selected ones are left blank.
    view().cmdRunCommand("cdf");
    view().onHeaderClicked(GridFixture::Usubjid);
    view().onHeaderClicked(GridFixture::Usubjid);
    view().clearSelection();
    select(0, GridFixture::Usubjid);
    select(2, GridFixture::Sex);
    QCOMPARE(copy(true), "USUBJID\tSEX\nS1\t\n\tM");
}

void TestGridCommands::copyHeaderTakesTheNamesOfTheSelection()
{
    m_grid->goTo(0, GridFixture::Age);
    view().clearSelection();
    view().copyColHeader();
    QCOMPARE(QGuiApplication::clipboard()->text(), "AGE");
    select(0, GridFixture::Site);
    select(5, GridFixture::Sex);
    view().copyColHeader();
    QCOMPARE(QGuiApplication::clipboard()->text(), "SEX\tSITE");
}

void TestGridCommands::selectColumnKeepsTheCurrentCell()
{
    m_grid->goTo(3, GridFixture::Sex);
    view().cmdSelectCol();
    QCOMPARE(m_grid->currentNumber(), 4);
    QCOMPARE(copy(false), "F\nM\nF\nM\n\nF");
    view().cmdRunCommand("if SEX = 'M'");
    QCOMPARE(copy(false), "M\nM");
    view().onHeaderClicked(GridFixture::Age);
    QCOMPARE(copy(true), "SEX\nM\nM");
    view().cmdRunCommand("cdf");
    QCOMPARE(copy(false).count('\n'), 5);
}

void TestGridCommands::goToVariableLeavesHiddenOnesHidden()
{
    m_grid->goTo(2, GridFixture::Usubjid);
    view().cmdGotoVariable(GridFixture::Site);
    QCOMPARE(view().currentVariable(), int(GridFixture::Site));
    QCOMPARE(m_grid->currentNumber(), 3);

    view().cmdRunCommand("drop SEX");
    view().cmdGotoVariable(GridFixture::Sex);
    QCOMPARE(m_grid->notes.take(), QStringList("message|The variable SEX is hidden."));
    QCOMPARE(view().currentVariable(), int(GridFixture::Site));
    view().cmdGotoVariable(4);
    view().cmdGotoVariable(-1);
    QCOMPARE(view().currentVariable(), int(GridFixture::Site));
}

void TestGridCommands::followsBitsThatOthersChange()
{
    QSignalSpy variables(&view(), &MainTableView::signalVarNo);
    QSignalSpy changes(&view(), &MainTableView::signalVarHideUnhide);
    m_grid->goTo(0, GridFixture::Sex);
    m_grid->dataset.visibleVariables().reset(GridFixture::Sex);
    view().cmdHideUnhideColumn(GridFixture::Sex);
    QCOMPARE(m_grid->columns(), "USUBJID AGE SITE");
    QCOMPARE(view().currentVariable(), int(GridFixture::Age));
    QCOMPARE(variables.takeLast().at(0).toString(), "Vars: 3/4");
    m_grid->dataset.visibleVariables().set(GridFixture::Sex);
    view().cmdHideUnhideColumn(GridFixture::Sex);
    QCOMPARE(m_grid->columns(), "USUBJID SEX AGE SITE");
    QCOMPARE(changes.count(), 0);  // whoever changed the bit knows

    m_grid->dataset.visibleVariables().reset(0).reset(3);
    view().updateAll();
    QCOMPARE(m_grid->columns(), "SEX AGE");
    view().cmdHideUnhideColumn(17);
}

void TestGridCommands::typedCommandsAct_data()
{
    QTest::addColumn<QStringList>("commands");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("columns");
    QTest::addColumn<QString>("filters");
    const auto add = [](const char* name, const QStringList& commands, const char* shown,
                        const char* columns, const char* filters) {
        QTest::newRow(name) << commands << QString(shown) << QString(columns) << QString(filters);
    };
    const char* allRows = "1 2 3 4 5 6";
    const char* allColumns = "USUBJID SEX AGE SITE";
    add("keep", {"drop AGE", "keep site Sex"}, allRows, "SEX SITE", "|");
    add("drop", {"drop AGE", "DROP usubjid"}, allRows, "SEX SITE", "|");
    add("if twice", {"if AGE = 34 | AGE = 51", "if SEX = 'F'"}, "1 6", allColumns,
        "|if (AGE = 34 or AGE = 51) and SEX = 'F'");
    add("where", {"where USUBJID in ('S1', 'S2')", "if AGE > 40"}, "2 6", allColumns,
        "where USUBJID in ('S1', 'S2')|if AGE > 40");
    add("clear library", {"where AGE = 51", "if SEX = 'F'", "clear library filter"}, "1 3 6",
        allColumns, "|if SEX = 'F'");
    add("cdf", {"where AGE = 51", "if SEX = 'F'", "cdf"}, "2 6", allColumns, "where AGE = 51|");
    add("clf", {"where AGE = 51", "clf"}, allRows, allColumns, "|");
}

void TestGridCommands::typedCommandsAct()
{
    QFETCH(QStringList, commands);
    QFETCH(QString, shown);
    QFETCH(QString, columns);
    QFETCH(QString, filters);
    QSignalSpy rows(&view(), &MainTableView::signalObsNo);
    for (const QString& command : commands) {
        view().cmdRunCommand(command);
        QCOMPARE(view().lastCommand(), command);
    }
    QCOMPARE(m_grid->shown(), shown);
    QCOMPARE(m_grid->columns(), columns);
    QCOMPARE(view().opened()->libraryFilterText() + '|' + view().opened()->datasetFilterText(),
             filters);
}

void TestGridCommands::typedCommandErrorsReachTheCaller_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("message");
    QTest::newRow("no command") << "filter AGE"
                                << "unknown command";
    QTest::newRow("broken condition") << "if AGE = "
                                      << "expect value";
    QTest::newRow("types") << "if AGE = 'x'"
                           << "The variable types do not match.";
    QTest::newRow("unknown in where") << "where RACE = 1"
                                      << "There is no variable named RACE";
    QTest::newRow("unknown in keep") << "keep AGE RACE"
                                     << "There is no variable named RACE";
    QTest::newRow("unknown in drop") << "drop SEX RACE"
                                     << "There is no variable named RACE";
    QTest::newRow("unknown in table") << "table RACE"
                                      << "There is no variable named RACE";
}

void TestGridCommands::typedCommandErrorsReachTheCaller()
{
    QFETCH(QString, command);
    QFETCH(QString, message);
    QString caught;
    try {
        view().cmdRunCommand(command);
    } catch (const ParseError& error) {
        caught = error.what();
    }
    QCOMPARE(caught, message);
    QCOMPARE(view().lastCommand(), command);
    QCOMPARE(m_grid->shown(), "1 2 3 4 5 6");
    QCOMPARE(m_grid->columns(), "USUBJID SEX AGE SITE");
    QCOMPARE(view().opened()->libraryFilterText() + view().opened()->datasetFilterText(), "");

    // What follows a whole command is found once it has acted.
    QVERIFY_EXCEPTION_THROWN(view().cmdRunCommand("where AGE = 34 )"), ParseError);
    QCOMPARE(m_grid->shown(), "1 4");
}

void TestGridCommands::byListIsClearedAndTakesKnownNamesOnly()
{
    QSignalSpy added(&view(), &MainTableView::signalAddByVar);
    view().cmdAddByVar("age");
    view().cmdAddByVar("RACE");
    QCOMPARE(m_grid->log.take(),
             std::string("warning: Warning: there is no variable named RACE\n"));
    QCOMPARE(view().opened()->byVariables(), std::vector<std::string>({"AGE"}));
    view().cmdClearByVar();
    QVERIFY(view().opened()->byVariables().empty());
    QCOMPARE(added.count(), 2);
    QCOMPARE(added.at(0).at(0).toString(), "AGE");
    QCOMPARE(added.at(1).at(0).toString(), "");
}

void TestGridCommands::frequencyOfSeveralVariablesComesInScreenOrder()
{
    QStringList lines;
    connect(&view(), &MainTableView::signalSetFrequency, this,
            [&](const std::vector<WordsAndCounts>* rows, const std::vector<int>& variables,
                const StatDataset* dataset, bool) {
                QCOMPARE(variables, std::vector<int>({GridFixture::Age, GridFixture::Sex}));
                for (const WordsAndCounts& row : *rows) {
                    QStringList cells;
                    for (std::size_t i = 0; i < variables.size(); ++i) {
                        cells << QString::fromStdString(
                            frequencies::displayText(*dataset, variables[i], row.values[i]));
                    }
                    lines << cells.join(',') + ':' + QString::number(row.count);
                }
            });
    m_grid->goTo(0, GridFixture::Age);
    view().shiftVariableLeft();
    view().selectAll();
    view().cmdRunCommand("drop USUBJID SITE");
    view().cmdRunCommand("if AGE ^= 47");
    view().run(GridCommand::Frequency);
    QCOMPARE(lines, QStringList({"N/A,F:1", "34,F:1", "34,M:1", "51,F:1", "51,M:1"}));
}

void TestGridCommands::frequencyCountsSubjectsByTheHostsVariable()
{
    std::vector<int> counts;
    connect(&view(), &MainTableView::signalSetFrequency, this,
            [&](const std::vector<WordsAndCounts>* rows, const std::vector<int>&,
                const StatDataset*, bool) {
                counts.clear();
                for (const WordsAndCounts& row : *rows) {
                    counts.push_back(row.count);
                }
            });
    view().cmdRunCommand("tablen SITE");  // S1 twice, X-2: S2 twice, Y-1: S3, y-1: S4
    QCOMPARE(counts, std::vector<int>({1, 1, 1, 1}));
    m_grid->datasets.uniqueVarName = "sex";  // have F and M
    view().cmdRunCommand("tablen SITE");
    QCOMPARE(counts, std::vector<int>({2, 2, 1, 1}));
    view().cmdRunCommand("tables SITE");
    QCOMPARE(counts, std::vector<int>({2, 2, 1, 1}));
}

void TestGridCommands::statisticsAreKeptAndShownAgain()
{
    QSignalSpy docks(&view(), &MainTableView::signalShowDockDesc);
    view().refreshDescDock();
    QCOMPARE(docks.count(), 0);
    view().cmdRunCommand("if AGE > 34");  // 51 47 51
    m_grid->goTo(1, GridFixture::Age);
    view().run(GridCommand::Univariate);
    auto* table = docks.at(0).at(0).value<QTableWidget*>();
    QCOMPARE(tableTexts(*table),
             QStringList({"AGE|Value", "N|3", "Mean|49.6667", "Median|51", "Min|47", "Max|51",
                          "Range|4", "Std Dev|2.3094"}));

    m_grid->goTo(1, GridFixture::Sex);
    view().run(GridCommand::Univariate);
    QCOMPARE(m_grid->notes.take().size(), 1);
    QCOMPARE(docks.count(), 1);
    view().refreshDescDock();
    QCOMPARE(docks.at(1).at(0).value<QTableWidget*>(), table);
    QCOMPARE(tableTexts(*table).at(0), "AGE|Value");
}

void TestGridCommands::statisticsTellWhyTheyAreNotMade()
{
    const auto told = [this] {
        view().run(GridCommand::Univariate);
        return m_grid->notes.take().join('\n');
    };
    QCOMPARE(told(), "inform|Descriptive Statistics|Please select at least one column.");
    m_grid->goTo(0, GridFixture::Age);
    select(0, GridFixture::Sex);  // which stands before AGE
    QCOMPARE(told(), "inform|Desciptive Stattistics|Selected variable is not numeric.");
    view().cmdRunCommand("where AGE > 100");
    m_grid->goTo(0, GridFixture::Age);
    view().cmdSelectCol();
    QCOMPARE(told(), "inform|Desciptive Stattistics|No data available under current filters.");
}

void TestGridCommands::statisticsFollowTheByList()
{
    QSignalSpy docks(&view(), &MainTableView::signalShowDockDesc);
    view().cmdAddByVar("SEX");
    view().cmdRunCommand("if AGE >= 34");
    m_grid->goTo(0, GridFixture::Age);
    view().run(GridCommand::Univariate);
    QCOMPARE(tableTexts(*docks.at(0).at(0).value<QTableWidget*>()),
             QStringList({"SEX|N|Mean|Median|Min|Max|Range|Std Dev", "|1|47|47|47|47|0|0",
                          "F|2|42.5|42.5|34|51|17|12.0208", "M|2|42.5|42.5|34|51|17|12.0208"}));
}

void TestGridCommands::libraryFilterReachesAllGrids()
{
    ScriptedDataset second;
    second.variable("SEX", TypeCode::Character).row({"M"}).row({"F"}).row({"M"});
    ScriptedDataset other;
    other.variable("SEX", TypeCode::Double).row({1.0}).row({2.0});
    const auto secondGrid = m_grid->open(second);
    const auto otherGrid = m_grid->open(other);
    QSignalSpy texts(secondGrid.get(), &MainTableView::signalLibraryFilter);
    QSignalSpy rows(secondGrid.get(), &MainTableView::signalObsNo);

    m_grid->goTo(1, GridFixture::Sex);
    view().run(GridCommand::LibraryFilter);
    QCOMPARE(m_grid->shown(), "2 4");
    QCOMPARE(GridFixture::shown(*secondGrid), "1 3");
    QCOMPARE(texts.takeLast().at(0).toString(), "where SEX = \"M\"");
    QCOMPARE(rows.takeLast().at(0).toString(), "Rows: 2/3");
    QCOMPARE(GridFixture::shown(*otherGrid), "1 2");
    QCOMPARE(otherGrid->opened()->libraryFilterText(), "where SEX = \"M\"");
    QCOMPARE(otherGrid->opened()->libraryFilterProblem(), "The variable types do not match.");
    QCOMPARE(secondGrid->opened()->libraryFilterProblem(), "");

    ScriptedDataset third;
    third.variable("SEX", TypeCode::Character).row({"F"}).row({"M"});
    auto thirdGrid = m_grid->open(third);
    QCOMPARE(GridFixture::shown(*thirdGrid), "2");
    thirdGrid.reset();

    secondGrid->cmdRunCommand("if SEX = 'F'");
    QCOMPARE(GridFixture::shown(*secondGrid), "");
    otherGrid->run(GridCommand::ClearLibraryFilter);
    QCOMPARE(m_grid->shown(), "1 2 3 4 5 6");
    QCOMPARE(GridFixture::shown(*secondGrid), "2");
    QCOMPARE(otherGrid->opened()->libraryFilterProblem(), "");
    QCOMPARE(texts.takeLast().at(0).toString(), "");
}

void TestGridCommands::filterByValueOfAnotherView()
{
    QVERIFY(!m_grid->opened().filterByValue(GridFixture::Age, CompareOp::Greater, 34.0));
    QCOMPARE(m_grid->shown(), "2 5 6");
    const std::vector<QuickFilter::Value> values{std::string("F"), std::string("M")};
    QVERIFY(!m_grid->opened().filterByValues(GridFixture::Sex, values));
    QCOMPARE(m_grid->shown(), "2 6");
    QCOMPARE(view().opened()->datasetFilterText(), "if AGE > 34 and SEX in (\"F\", \"M\")");
    QVERIFY(m_grid->opened().filterByValue(GridFixture::Sex, CompareOp::Equal, std::string("'\"")));
    QCOMPARE(m_grid->shown(), "2 6");
}

void TestGridCommands::filtersAreRestoredFromTheirTexts()
{
    QVERIFY(!restore("where SEX = 'F'", "if AGE > -1e0 and AGE ^= 51"));
    QCOMPARE(m_grid->shown(), "1");
    QCOMPARE(view().opened()->libraryFilterText(), "where SEX = 'F'");
    view().cmdDfUndo();  // the texts are one step
    QCOMPARE(m_grid->shown(), "1 3 6");

    QVERIFY(restore("", "if RACE = 1"));
    QCOMPARE(m_grid->shown(), "1 3 6");
    QVERIFY(!restore("", ""));
    QCOMPARE(view().opened()->libraryFilterText(),
             "where SEX = 'F'");  // holds for other grids, too
}

void TestGridCommands::waitCursorIsShownWhileRowsAreSelected()
{
    bool waited = false;
    connect(&view(), &MainTableView::signalObsNo, this, [&] {
        const QCursor* cursor = QGuiApplication::overrideCursor();
        waited = cursor != nullptr && cursor->shape() == Qt::WaitCursor;
    });
    for (const char* command : {"if AGE = 34", "where SEX = 'F'", "clf", "cdf"}) {
        waited = false;
        view().cmdRunCommand(command);
        QVERIFY2(waited, command);
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    }
    // Not while the user reads why it failed.
    QVERIFY_EXCEPTION_THROWN(view().cmdRunCommand("if RACE = 1"), ParseError);
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

void TestGridCommands::headerModeKeepsFilterAndCurrentCell()
{
    view().cmdRunCommand("if SEX = 'M'");
    view().cmdRunCommand("drop SITE");
    m_grid->goTo(3, GridFixture::Age);
    view().setHeaderMode(HeaderMode::VariableLabels);
    QCOMPARE(view().tableModel()->headerMode(), HeaderMode::VariableLabels);
    QCOMPARE(m_grid->shown(), "2 4");
    QCOMPARE(m_grid->currentNumber(), 4);
    QVERIFY(view().isColumnHidden(GridFixture::Site));
}

void TestGridCommands::filterKeepsTheCurrentCellInSight()
{
    ScriptedDataset many;
    many.variable("N", TypeCode::Double).variable("ODD", TypeCode::Double);
    many.rows(30'000, [](int row, int column) {
        return ScriptedDataset::Value(column == 0 ? double(row) : double(row % 2));
    });
    m_grid->view = m_grid->open(many);
    view().resize(400, 300);
    view().show();
    m_grid->goTo(20'001, 1);
    const auto isInSight = [this] {
        return view().viewport()->rect().contains(view().visualRect(view().currentIndex()));
    };
    view().run(GridCommand::FilterAgain);
    QCOMPARE(view().shownRowCount(), 15'000);
    QCOMPARE(m_grid->currentNumber(), 20'002);
    QVERIFY(isInSight());
    view().run(GridCommand::ClearDatasetFilter);  // with a new row header
    QCOMPARE(m_grid->currentNumber(), 20'002);
    QVERIFY(isInSight());
    const int y = view().visualRect(view().currentIndex()).center().y();
    QCOMPARE(view().verticalHeader()->logicalIndexAt(y), 20'001);
    QCOMPARE(view().rowAt(y), 20'001);
    QVERIFY(view().verticalHeader()->isVisible());
    QCOMPARE(view().verticalHeader()->defaultAlignment(), Qt::AlignRight | Qt::AlignVCenter);

    view().cmdRunCommand("if N < 10");
    QCOMPARE(m_grid->currentNumber(), 10);
    QVERIFY(isInSight());
}

QTEST_MAIN(TestGridCommands)
#include "TestGridCommands.moc"

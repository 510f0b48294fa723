#include "tests/grid/GridExpectation.h"
#include "tests/support/GridFixture.h"

#include <QAbstractButton>

#include <array>
#include <random>

/// Random sequences of commands, with everything that has to hold looked at after each.
class TestGridSequences : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatItOughtToAfterEveryStep_data();
    void showsWhatItOughtToAfterEveryStep();

private:
    void start(unsigned seed);
    void fill(ScriptedDataset& dataset);
    QString step();
    QString filterStep(int choice);
    QString columnStep(int choice);
    QString orderStep(int choice);
    void expectWholeColumns(const Variables& columns);
    void goSomewhere();
    void stay();
    [[nodiscard]] MainTableView& view() const { return *m_grid->view; }
    [[nodiscard]] int random(int count)
    {
        return std::uniform_int_distribution<int>(0, count - 1)(m_random);
    }
    [[nodiscard]] int observationAt(int row) const
    {
        return view().tableModel()->observationAt(row);
    }
    void checkRows();
    void checkCurrentCell();
    void checkColumns();
    void checkSelection();
    void checkWhatWasTold();

    std::mt19937 m_random;
    std::unique_ptr<GridFixture> m_grid;
    GridExpectation m_expected;
    std::array<QString, 4> m_told;  ///< last: rows, variables, library filter, dataset filter
    int m_variablesTold = 0;
};

void TestGridSequences::fill(ScriptedDataset& dataset)
{
    for (int variable = 0; variable < variableCount; ++variable) {
        dataset.variable("V" + std::to_string(variable), TypeCode::Double);
    }
    dataset.rows(rowCount, [this](int row, int variable) -> ScriptedDataset::Value {
        const int value = random(2 + 3 * variable);
        m_expected.values[static_cast<std::size_t>(row)][static_cast<std::size_t>(variable)] =
            value == 0 ? -1e300 : value * 1.5;  // a missing number is below all others
        return value == 0 ? ScriptedDataset::missing : value * 1.5;
    });
}

void TestGridSequences::start(unsigned seed)
{
    m_random.seed(seed);
    m_expected = {};
    m_grid = std::make_unique<GridFixture>([this](ScriptedDataset& dataset) { fill(dataset); });
    const auto note = [this](auto signal, std::size_t place) {
        connect(&view(), signal, this,
                [this, place](const QString& text) { m_told.at(place) = text; });
    };
    note(&MainTableView::signalObsNo, 0);
    note(&MainTableView::signalVarNo, 1);
    note(&MainTableView::signalLibraryFilter, 2);
    note(&MainTableView::signalFilter, 3);
    m_variablesTold = 0;
    connect(&view(), &MainTableView::signalVarHideUnhide, this, [this] { ++m_variablesTold; });
    view().resize(500, 300);
    view().show();
    view().updateAll();
}

/// Makes a random cell that is shown the current one, if there is any.
void TestGridSequences::goSomewhere()
{
    const int row = random(rowCount);
    const int variable = random(variableCount);
    if (!view().isRowHidden(row) && !view().isColumnHidden(variable)) {
        m_grid->goTo(row, variable);
        m_expected.variable = variable;
        m_expected.nearest = observationAt(row);
        m_expected.stay();
    }
}

/// Selects the current cell alone, whatever was selected.
void TestGridSequences::stay()
{
    view().clearSelection();
    view().setCurrentIndex(view().currentIndex());
    m_expected.stay();
}

QString TestGridSequences::filterStep(int choice)
{
    struct Kind
    {
        GridCommand command;
        bool (*compares)(double, double);
    };
    using enum GridCommand;
    static constexpr std::array<Kind, 5> kinds{{
        {FilterNotEqual, [](double a, double b) { return a != b; }},
        {FilterGreater, [](double a, double b) { return a > b; }},
        {FilterLess, [](double a, double b) { return a < b; }},
        {FilterGreaterOrEqual, [](double a, double b) { return a >= b; }},
        {FilterLessOrEqual, [](double a, double b) { return a <= b; }},
    }};
    const auto kind = static_cast<std::size_t>(choice);
    const int observation = m_expected.nearest;
    if (kind < kinds.size()) {
        view().run(kinds[kind].command);
        m_expected.narrow(m_expected.matching(observation, kinds[kind].compares));
        return QStringLiteral("quick filter %1").arg(choice);
    }
    Observations matched = m_expected.matching(observation, std::equal_to<>());
    if (choice == 5) {
        stay();
        const int row = random(rowCount);
        if (!view().isRowHidden(row)) {
            m_grid->select(row, m_expected.variable);
            m_expected.cells->insert(observationAt(row));
            matched.merge(m_expected.matching(observationAt(row), std::equal_to<>()));
        }
        view().run(FilterIn);
        m_expected.narrow(matched);
        return QStringLiteral("in");
    }
    view().run(LibraryFilter);
    m_expected.refused += m_expected.library ? 1 : 0;
    m_expected.library = m_expected.library ? m_expected.library : matched;
    return QStringLiteral("library filter");
}

QString TestGridSequences::columnStep(int choice)
{
    Variables hidden = m_expected.hidden;
    if (choice > 2) {
        m_told[0].clear();  // the counters are told anew
    }
    const int variable = random(variableCount);
    switch (choice) {
    case 0:
        view().shiftVariableLeft();
        m_expected.shift(-1);
        return QStringLiteral("left");
    case 1:
        view().shiftVariableRight();
        m_expected.shift(1);
        return QStringLiteral("right");
    case 2: {
        const int to = random(variableCount);
        view().horizontalHeader()->moveSection(variable, to);
        m_expected.move(variable, to);
        return QStringLiteral("move column %1 to %2").arg(variable).arg(to);
    }
    case 3:  // by someone else, who tells one column or all
        m_grid->dataset.visibleVariables().flip(static_cast<std::size_t>(variable));
        random(2) == 0 ? view().updateAll() : view().cmdHideUnhideColumn(variable);
        if (hidden.erase(variable) == 0) {
            hidden.insert(variable);
        }
        m_expected.setHidden(hidden);
        ++m_expected.variablesTold;
        return QStringLiteral("flip %1").arg(variable);
    case 4:
        view().cmdRunCommand(QStringLiteral("keep v%1 V5").arg(variable));
        hidden = {0, 1, 2, 3, 4};
        hidden.erase(variable);
        break;
    case 5:
        if (m_expected.variable >= 0 && !hidden.contains(m_expected.variable)) {
            view().cmdHideColumn();
            hidden.insert(m_expected.variable);
            break;
        }
        [[fallthrough]];
    case 6:
        if (m_expected.wholeColumns) {
            view().cmdHideColumns();
            hidden.insert(m_expected.wholeColumns->begin(), m_expected.wholeColumns->end());
            break;
        }
        [[fallthrough]];
    default:
        view().cmdUnhidecolumns();
        hidden.clear();
    }
    m_expected.setHidden(hidden);
    ++m_expected.variablesTold;
    return QStringLiteral("hide and show %1").arg(choice);
}

QString TestGridSequences::orderStep(int choice)
{
    const bool again = random(2) == 0 && !m_expected.keys.empty();
    const int variable = again ? m_expected.keys.back().first : random(variableCount);
    if (choice < 3) {
        m_told[0].clear();  // every sort tells the rows anew
    }
    switch (choice) {
    case 0:
    case 1:
        view().onHeaderClicked(variable);
        m_expected.click(variable);
        if (m_expected.shownCount() == 0) {
            m_expected.variable = variable;
            m_expected.cells.reset();
            if (!m_expected.hidden.contains(variable)) {
                m_expected.wholeColumns = Variables{variable};
            }
        }
        return QStringLiteral("click %1").arg(variable);
    case 2:
        m_expected.keys = {{variable, Qt::DescendingOrder},
                           {(variable + 3) % variableCount, Qt::AscendingOrder}};
        emit view().signalSort(m_expected.keys);
        return QStringLiteral("sort by %1 and another").arg(variable);
    case 3:
    case 4:
        view().cmdDfUndo();
        if (!m_expected.steps.empty()) {
            m_expected.steps.pop_back();
        }
        return QStringLiteral("undo");
    case 5:
        view().run(GridCommand::ClearDatasetFilter);
        if (m_expected.isFiltered()) {
            m_expected.steps.emplace_back();
        }
        return QStringLiteral("clear dataset filter");
    case 6:
        view().run(GridCommand::ClearLibraryFilter);
        m_expected.library.reset();
        return QStringLiteral("clear library filter");
    case 7:
        view().run(GridCommand::LargerFont);
        return QStringLiteral("font");
    case 8:
        view().setHeaderMode(random(2) == 0 ? HeaderMode::VariableNames
                                            : HeaderMode::VariableLabels);
        return QStringLiteral("header mode");
    case 9:
        if (m_expected.variable >= 0 && !m_expected.hidden.contains(m_expected.variable)) {
            stay();
            view().cmdSelectCol();
            expectWholeColumns({m_expected.variable});
        }
        return QStringLiteral("select column");
    default:
        stay();
        view().findChild<QAbstractButton*>()->click();
        m_expected.keys.clear();
        expectWholeColumns({0, 1, 2, 3, 4, 5});
        return QStringLiteral("corner");
    }
}

/// A cell or two of one row are no whole columns.
void TestGridSequences::expectWholeColumns(const Variables& columns)
{
    m_expected.cells.reset();
    if (m_expected.shownCount() != 1) {
        m_expected.wholeColumns = columns;
    }
}

QString TestGridSequences::step()
{
    const QModelIndex current = view().currentIndex();
    const bool hasCell = current.isValid() && !view().isColumnHidden(current.column());
    const int kind = random(10);
    if (kind < 3 && hasCell) {
        return filterStep(random(7));
    }
    if (kind < 6) {
        return columnStep(random(9));
    }
    return orderStep(random(11));
}

void TestGridSequences::checkRows()
{
    Observations seen;
    for (int row = 0; row < rowCount; ++row) {
        seen.insert(observationAt(row));
        QCOMPARE(view().model()->headerData(row, Qt::Vertical).toInt(), observationAt(row) + 1);
        QCOMPARE(view().isRowHidden(row), !m_expected.isSelected(observationAt(row)));
        QVERIFY(row == 0 || m_expected.mayPrecede(observationAt(row - 1), observationAt(row)));
    }
    QCOMPARE(seen.size(), std::size_t{rowCount});
    QCOMPARE(m_grid->opened().sortKeys(), m_expected.keys);
    const SortKey first =
        m_expected.keys.empty() ? SortKey(-1, Qt::AscendingOrder) : m_expected.keys.front();
    QCOMPARE(view().horizontalHeader()->sortIndicatorSection(), first.first);
    QCOMPARE(view().horizontalHeader()->sortIndicatorOrder(), first.second);
    QVERIFY(view().updatesEnabled());
    QVERIFY(!view().verticalHeader()->signalsBlocked());
}

/// The current cell stays on the observation that the user has gone to, and on the nearest one that
/// is shown as long as that one is not.
void TestGridSequences::checkCurrentCell()
{
    QCOMPARE(view().currentVariable(), m_expected.variable);
    if (m_expected.observation < 0) {
        return;
    }
    const int row = view().tableModel()->rowOf(m_expected.observation);
    int nearest = -1;
    for (int candidate = 0; candidate < rowCount; ++candidate) {
        if (m_expected.isSelected(observationAt(candidate))
            && (nearest < 0 || std::abs(candidate - row) <= std::abs(nearest - row))) {
            nearest = candidate;
        }
    }
    QCOMPARE(view().currentIndex().row(), nearest);
    m_expected.nearest = nearest < 0 ? -1 : observationAt(nearest);
    QCOMPARE(view().currentObservation(), m_expected.nearest);
    QVERIFY(nearest < 0 || view().currentIndex().column() == m_expected.variable);
}

void TestGridSequences::checkColumns()
{
    QCOMPARE(m_grid->opened().variables().order(), m_expected.columns);
    for (int place = 0; place < variableCount; ++place) {
        const int variable = m_expected.columns[static_cast<std::size_t>(place)];
        const bool hidden = m_expected.hidden.contains(variable);
        QCOMPARE(view().horizontalHeader()->logicalIndex(place), variable);
        QCOMPARE(view().isColumnHidden(variable), hidden);
        QCOMPARE(m_grid->opened().variables().isShown(variable), !hidden);
    }
}

/// Whole columns stay selected, of which the rest of the program sees what is shown, and so do
/// single cells; the current one where all others are hidden.
void TestGridSequences::checkSelection()
{
    QVERIFY(!view().currentIndex().isValid() || view().selectionModel()->hasSelection());
    if (m_expected.cells && m_expected.nearest >= 0) {
        Observations cells = *m_expected.cells;
        std::erase_if(cells, [this](int each) { return !m_expected.isSelected(each); });
        Observations selected;
        for (const int row : view().selected().rowsOf(m_expected.variable)) {
            selected.insert(observationAt(row));
        }
        QCOMPARE(selected, cells.empty() ? Observations{m_expected.nearest} : cells);
    }
    if (!m_expected.wholeColumns) {
        return;
    }
    std::vector<int> variables = m_expected.columns;
    std::erase_if(variables, [this](int variable) {
        return m_expected.hidden.contains(variable) || !m_expected.wholeColumns->contains(variable);
    });
    QCOMPARE(view().selected().variables(), variables);
    QCOMPARE(int(view().selected().rows().size()), m_expected.shownCount());
}

void TestGridSequences::checkWhatWasTold()
{
    QCOMPARE(m_told[0], QStringLiteral("Rows: %1/60").arg(m_expected.shownCount()));
    QCOMPARE(m_told[1],
             QStringLiteral("Vars: %1/6").arg(variableCount - int(m_expected.hidden.size())));
    QCOMPARE(m_told[2], m_grid->opened().libraryFilterText());
    QCOMPARE(m_told[3], m_grid->opened().datasetFilterText());
    QCOMPARE(m_told[2].isEmpty(), !m_expected.library);
    QCOMPARE(m_told[3].isEmpty(), !m_expected.isFiltered());
    QCOMPARE(m_variablesTold, m_expected.variablesTold);
    QCOMPARE(m_grid->notes.take().filter("error").size(), m_expected.refused);
    m_expected.refused = 0;
}

void TestGridSequences::showsWhatItOughtToAfterEveryStep_data()
{
    QTest::addColumn<unsigned>("seed");
    for (const unsigned seed : {1U, 2U, 3U, 20U, 77U, 1234U}) {
        QTest::addRow("seed %u", seed) << seed;
    }
}

void TestGridSequences::showsWhatItOughtToAfterEveryStep()
{
    QFETCH(unsigned, seed);
    start(seed);
    QStringList history;
    for (int i = 0; i < 150 && !QTest::currentTestFailed(); ++i) {
        if (random(2) == 0) {
            goSomewhere();
        }
        history << step();
        checkRows();
        checkCurrentCell();
        checkColumns();
        checkSelection();
        checkWhatWasTold();
    }
    if (QTest::currentTestFailed()) {
        qWarning() << history;
    }
    QCOMPARE(m_grid->close(), QStringList());
    m_grid.reset();
}

QTEST_MAIN(TestGridSequences)
#include "TestGridSequences.moc"

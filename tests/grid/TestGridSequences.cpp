#include "tests/support/GridFixture.h"

#include <QAbstractButton>
#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <algorithm>
#include <numeric>
#include <random>
#include <set>

namespace {

constexpr int rowCount = 60;
constexpr int variableCount = 6;

using Observations = std::set<int>;

/// What a grid ought to show, told the plain way.
struct Expectation
{
    std::vector<std::vector<double>> values;  ///< by observation and variable; NaN where missing
    std::vector<Observations> steps;  ///< of the dataset filter: what each has left
    std::optional<Observations> library;
    std::vector<int> columns{0, 1, 2, 3, 4, 5};  ///< from left to right
    std::set<int> hidden;

    [[nodiscard]] bool isSelected(int observation) const
    {
        return (steps.empty() || steps.back().contains(observation))
            && (!library || library->contains(observation));
    }
    /// The observations that compare so with the value of one of them.
    template <typename Compares>
    [[nodiscard]] Observations matching(int variable, int observation, Compares compares) const
    {
        // A missing number is below all others.
        const auto comparable = [&](int row) {
            const double value =
                values[static_cast<std::size_t>(row)][static_cast<std::size_t>(variable)];
            return std::isnan(value) ? -1e300 : value;
        };
        Observations result;
        for (int row = 0; row < rowCount; ++row) {
            if (compares(comparable(row), comparable(observation))) {
                result.insert(row);
            }
        }
        return result;
    }
    void narrow(const Observations& matched)
    {
        Observations left;
        for (const int observation : matched) {
            if (steps.empty() || steps.back().contains(observation)) {
                left.insert(observation);
            }
        }
        steps.push_back(left);
    }
    void shift(int variable, int step)
    {
        const auto place = std::find(columns.begin(), columns.end(), variable) - columns.begin();
        for (auto next = place + step; next >= 0 && next < variableCount; next += step) {
            if (!hidden.contains(columns[static_cast<std::size_t>(next)])) {
                columns.erase(columns.begin() + place);
                columns.insert(columns.begin() + next, variable);
                return;
            }
        }
    }
};

}  // namespace

/// Random sequences of commands, with everything that has to hold looked at after each.
class TestGridSequences : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatItOughtToAfterEveryStep_data();
    void showsWhatItOughtToAfterEveryStep();

private:
    void start(unsigned seed);
    QString step();
    QString filterStep(int choice, int observation, int variable);
    QString columnStep(int choice, int variable);
    QString orderStep(int choice);
    void goSomewhere();
    [[nodiscard]] int random(int count)
    {
        return std::uniform_int_distribution<int>(0, count - 1)(m_random);
    }
    void checkRows(int observationBefore, int rowBefore);
    void checkColumns();
    void checkCounters();

    std::mt19937 m_random;
    ScriptedDataset* m_dataset = nullptr;
    std::unique_ptr<ScriptedDataset> m_owned;
    std::unique_ptr<LogCapture> m_log;
    OpenDatasets m_datasets;
    std::unique_ptr<OpenDataset> m_opened;
    std::unique_ptr<MainTableView> m_view;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
    Expectation m_expected;
    QString m_rowCounter;
    QString m_variableCounter;
};

void TestGridSequences::start(unsigned seed)
{
    m_tester.reset();
    m_view.reset();
    m_random.seed(seed);
    m_expected = {};
    m_datasets.libraryFilter.clear();
    m_opened.reset();
    m_owned = std::make_unique<ScriptedDataset>();
    for (int variable = 0; variable < variableCount; ++variable) {
        m_owned->variable("V" + std::to_string(variable), TypeCode::Double);
    }
    m_expected.values.assign(rowCount, std::vector<double>(variableCount));
    m_owned->rows(rowCount, [this](int row, int variable) {
        const int value = random(2 + 3 * variable);
        const double number = value == 0 ? ScriptedDataset::missing : value * 1.5;
        m_expected.values[static_cast<std::size_t>(row)][static_cast<std::size_t>(variable)] =
            number;
        return ScriptedDataset::Value(number);
    });
    m_dataset = m_owned.get();
    m_opened = std::make_unique<OpenDataset>(*m_dataset, &m_datasets);
    m_view = std::make_unique<MainTableView>(m_opened.get());
    m_view->setModel(new MainTableModel(m_opened.get(), m_view.get()));
    m_tester = std::make_unique<QAbstractItemModelTester>(m_view->tableModel());
    connect(m_view.get(), &MainTableView::signalObsNo, this,
            [this](const QString& text) { m_rowCounter = text; });
    connect(m_view.get(), &MainTableView::signalVarNo, this,
            [this](const QString& text) { m_variableCounter = text; });
    m_view->resize(500, 300);
    m_view->show();
    m_view->updateAll();
}

/// Makes a random cell that is shown the current one, if there is any.
void TestGridSequences::goSomewhere()
{
    const int row = random(rowCount);
    const int variable = random(variableCount);
    if (!m_view->isRowHidden(row) && !m_view->isColumnHidden(variable)) {
        m_view->setCurrentIndex(m_view->model()->index(row, variable));
    }
}

QString TestGridSequences::filterStep(int choice, int observation, int variable)
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
    const auto equal = [](double a, double b) { return a == b; };
    const auto kind = static_cast<std::size_t>(choice);
    if (kind < kinds.size()) {
        m_view->run(kinds[kind].command);
        m_expected.narrow(m_expected.matching(variable, observation, kinds[kind].compares));
        return QStringLiteral("quick filter %1 on %2").arg(choice).arg(variable);
    }
    if (choice == 5) {
        Observations matched = m_expected.matching(variable, observation, equal);
        m_view->setCurrentIndex(m_view->currentIndex());  // alone
        const int row = random(rowCount);
        m_view->selectionModel()->select(m_view->model()->index(row, variable),
                                         QItemSelectionModel::Select);
        if (!m_view->isRowHidden(row)) {
            matched.merge(
                m_expected.matching(variable, m_view->tableModel()->observationAt(row), equal));
        }
        m_view->run(GridCommand::FilterIn);
        m_expected.narrow(matched);
        return QStringLiteral("in on %1").arg(variable);
    }
    m_view->run(GridCommand::LibraryFilter);
    if (!m_expected.library) {
        m_expected.library = m_expected.matching(variable, observation, equal);
    }
    return QStringLiteral("library filter on %1").arg(variable);
}

QString TestGridSequences::columnStep(int choice, int variable)
{
    switch (choice) {
    case 0:
        m_view->run(GridCommand::HideVariable);
        m_expected.hidden.insert(variable);
        return QStringLiteral("hide %1").arg(variable);
    case 1:
        m_view->run(GridCommand::UnhideVariables);
        m_expected.hidden.clear();
        return QStringLiteral("unhide");
    case 2:
        m_view->run(GridCommand::ShiftLeft);
        m_expected.shift(variable, -1);
        return QStringLiteral("left %1").arg(variable);
    default:
        m_view->run(GridCommand::ShiftRight);
        m_expected.shift(variable, 1);
        return QStringLiteral("right %1").arg(variable);
    }
}

QString TestGridSequences::orderStep(int choice)
{
    const int variable = random(variableCount);
    switch (choice) {
    case 0:
        m_view->onHeaderClicked(variable);
        return QStringLiteral("sort %1").arg(variable);
    case 1:
        m_view->run(GridCommand::UndoDatasetFilter);
        if (!m_expected.steps.empty()) {
            m_expected.steps.pop_back();
        }
        return QStringLiteral("undo");
    case 2:
        m_view->run(GridCommand::ClearDatasetFilter);
        m_expected.steps.clear();
        return QStringLiteral("clear dataset filter");
    case 3:
        m_view->run(GridCommand::ClearLibraryFilter);
        m_expected.library.reset();
        return QStringLiteral("clear library filter");
    case 4:
        m_view->run(GridCommand::LargerFont);
        return QStringLiteral("font");
    default:
        m_view->findChild<QAbstractButton*>()->click();
        return QStringLiteral("corner");
    }
}

QString TestGridSequences::step()
{
    const QModelIndex current = m_view->currentIndex();
    const bool hasCell = current.isValid() && !m_view->isColumnHidden(current.column());
    const int kind = random(10);
    if (kind < 3 && hasCell) {
        return filterStep(random(7), m_view->tableModel()->observationAt(current.row()),
                          current.column());
    }
    if (kind < 6 && hasCell) {
        return columnStep(random(4), current.column());
    }
    if (kind < 6) {
        return columnStep(1, -1);
    }
    return orderStep(kind == 9 ? 3 + random(3) : random(3));
}

void TestGridSequences::checkRows(int observationBefore, int rowBefore)
{
    const auto rowMap = m_view->tableModel()->rowMap();
    Observations seen(rowMap.begin(), rowMap.end());
    QCOMPARE(seen.size(), std::size_t{rowCount});
    int nearest = -1;
    const int row = m_view->tableModel()->rowOf(std::max(observationBefore, 0));
    for (int candidate = 0; candidate < rowCount; ++candidate) {
        const bool selected = m_expected.isSelected(m_view->tableModel()->observationAt(candidate));
        QCOMPARE(m_view->isRowHidden(candidate), !selected);
        if (selected && (nearest < 0 || std::abs(candidate - row) <= std::abs(nearest - row))) {
            nearest = candidate;
        }
    }
    if (observationBefore >= 0) {
        QCOMPARE(m_view->currentIndex().row(), nearest);
    }
    QVERIFY(rowBefore < rowCount);
    QVERIFY(m_view->updatesEnabled());
    QVERIFY(!m_view->verticalHeader()->signalsBlocked());
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

void TestGridSequences::checkColumns()
{
    QCOMPARE(m_view->opened()->variables().order(), m_expected.columns);
    QCOMPARE(m_view->opened()->variables().hidden(),
             std::vector<int>(m_expected.hidden.begin(), m_expected.hidden.end()));
    for (int variable = 0; variable < variableCount; ++variable) {
        const bool hidden = m_expected.hidden.contains(variable);
        QCOMPARE(m_view->isColumnHidden(variable), hidden);
        QCOMPARE(m_dataset->visibleVariables().test(static_cast<std::size_t>(variable)), !hidden);
    }
}

void TestGridSequences::checkCounters()
{
    int shown = 0;
    for (int observation = 0; observation < rowCount; ++observation) {
        shown += m_expected.isSelected(observation) ? 1 : 0;
    }
    QCOMPARE(m_rowCounter, QStringLiteral("Rows: %1/%2").arg(shown).arg(rowCount));
    QCOMPARE(m_variableCounter,
             QStringLiteral("Vars: %1/%2")
                 .arg(variableCount - int(m_expected.hidden.size()))
                 .arg(variableCount));
    QCOMPARE(m_view->opened()->libraryFilterText().isEmpty(), !m_expected.library);
    QCOMPARE(m_view->opened()->datasetFilterText().isEmpty(), m_expected.steps.empty());
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
    m_log = std::make_unique<LogCapture>();
    start(seed);
    QStringList history;
    for (int i = 0; i < 150; ++i) {
        if (random(2) == 0) {
            goSomewhere();
        }
        const QModelIndex before = m_view->currentIndex();
        const int observation =
            before.isValid() ? m_view->tableModel()->observationAt(before.row()) : -1;
        history << step();
        checkRows(observation, before.row());
        checkColumns();
        checkCounters();
        if (QTest::currentTestFailed()) {
            qWarning() << history;
            break;
        }
    }
    QCOMPARE(m_log->take(), std::string());
    m_tester.reset();
    m_view.reset();
    m_log.reset();
}

QTEST_MAIN(TestGridSequences)
#include "TestGridSequences.moc"

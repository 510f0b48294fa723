#include "grid/opened/OpenDataset.h"
#include "grid/opened/OpenDatasets.h"
#include "tests/support/ScriptedDataset.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int rows = 300;

int valueA(int row)
{
    return row % 10;
}
int valueB(int row)
{
    return row % 7;
}

/// Two datasets over one library filter: the first has a and b, the second b alone.
class Filters : public testing::Test
{
protected:
    Filters()
    {
        fill(m_dataset.variable("a", TypeCode::Double).variable("b", TypeCode::Double), true);
        fill(m_other.variable("b", TypeCode::Double), false);
        m_opened = std::make_unique<OpenDataset>(m_dataset, &m_shared);
        m_second = std::make_unique<OpenDataset>(m_other, &m_shared);
    }

    static void fill(ScriptedDataset& dataset, bool hasA)
    {
        dataset.rows(rows, [hasA](int row, int column) -> ScriptedDataset::Value {
            return static_cast<double>(hasA && column == 0 ? valueA(row) : valueB(row));
        });
    }

    /// The message of a command that fails, or nothing.
    std::string run(const QString& command, Dialect dialect = Dialect::Command)
    {
        const CommandOutcome failure = m_opened->run(command, dialect);
        EXPECT_TRUE(!failure || failure->command == command);
        return failure ? failure->message.toStdString() : "";
    }

    /// Everything that a refused command must leave as it is.
    [[nodiscard]] std::string snapshot() const
    {
        const ViewState state = m_opened->state();
        std::string library;
        std::string dataset;
        boost::to_string(m_dataset.libraryFilterMask(), library);
        boost::to_string(m_dataset.datasetFilterMask(), dataset);
        return (state.libraryFilter + '|' + state.datasetFilter + '|').toStdString() + library + '|'
            + dataset;
    }

    OpenDatasets m_shared;
    ScriptedDataset m_dataset;
    ScriptedDataset m_other;
    std::unique_ptr<OpenDataset> m_opened;
    std::unique_ptr<OpenDataset> m_second;
};

TEST_F(Filters, areWrittenAsStatements)
{
    EXPECT_EQ(run("where a=1|b=2"), "");
    EXPECT_EQ(m_opened->libraryFilterText(), u"where a = 1 or b = 2"_s);
    EXPECT_EQ(run("if a=1|b=2"), "");
    EXPECT_EQ(m_opened->datasetFilterText(), u"if a = 1 or b = 2"_s);
    EXPECT_EQ(run("if b<-1.5|b>=0", Dialect::FilterText), "");
    EXPECT_EQ(run("if (a=1|a=2)"), "");
    EXPECT_EQ(m_opened->datasetFilterText(),
              u"if (a = 1 or b = 2) and (b < -1.5 or b >= 0) and (a = 1 or a = 2)"_s);
    EXPECT_EQ(m_dataset.libraryFilterMask().count(), 69U);
    EXPECT_EQ(m_dataset.matchedObservations().count(), 60U) << "what was evaluated last";

    ASSERT_FALSE(
        m_opened->run("if b = 3 or b = 4",
                      CommandReading{Dialect::Command, CommandReading::InForce::IsReplaced}));
    EXPECT_EQ(m_opened->datasetFilterText(), u"if b = 3 or b = 4"_s);
    EXPECT_EQ(run("if a = 1"), "");
    EXPECT_EQ(m_opened->datasetFilterText(), u"if (b = 3 or b = 4) and a = 1"_s);
    m_opened->undo();
    m_opened->undo();
    m_opened->undo();
    EXPECT_EQ(m_opened->datasetFilterText(), u"if (a = 1 or b = 2) and (b < -1.5 or b >= 0)"_s);
}

TEST_F(Filters, areUnchangedByWhatFails)
{
    for (const bool hasFilters : {false, true}) {
        if (hasFilters) {
            EXPECT_EQ(run("if a > 3") + run("if b > 1"), "");
        }
        const std::string before = snapshot();
        for (const char* condition : {"", "c = 1", "a = 'x'", "a = 'x", "a = 1 or"}) {
            EXPECT_NE(run(u"where "_s + condition), "") << condition;
            EXPECT_NE(run(u"if "_s + condition), "") << condition;
        }
        for (const auto& [library, dataset] : {std::pair{u"where a = 1"_s, u"if c = 1"_s},
                                               {u"where a ="_s, u"if a = 1"_s},
                                               {u"if a = 1"_s, QString()},
                                               {QString(), u"where a = 1"_s},
                                               {QString(), u"if a = 1 )"_s}}) {
            ViewState state;
            state.libraryFilter = library;
            state.datasetFilter = dataset;
            state.hiddenVariables = {"a"};
            EXPECT_TRUE(m_opened->restore(state)) << library.toStdString() << dataset.toStdString();
            EXPECT_TRUE(m_opened->variables().isShown(0));
        }
        EXPECT_EQ(snapshot(), before);
    }
}

TEST_F(Filters, actBeforeTrailingTextIsRefused)
{
    EXPECT_EQ(run("where a = 1 )"), "unexpected trailing text");
    EXPECT_EQ(m_opened->libraryFilterText(), u"where a = 1"_s);
    EXPECT_EQ(run("clf x"), "unexpected trailing text");
    EXPECT_EQ(m_opened->libraryFilterText(), QString());
}

TEST_F(Filters, libraryFilterIsOneForAllDatasets)
{
    int told = 0;
    QObject::connect(m_second.get(), &OpenDataset::signalFiltersChanged, [&] { ++told; });
    EXPECT_EQ(run("where b = 3"), "");
    EXPECT_EQ(m_second->selectedCount(), 43U);
    EXPECT_EQ(told, 1);
    m_second->undo();
    EXPECT_EQ(told, 1) << "there is nothing to take back";
    EXPECT_EQ(run("where b = 4"),
              "Library Filter supports one level only. Please clear library filter first.");
    EXPECT_EQ(m_opened->selectedCount(), 43U);

    auto late = std::make_unique<OpenDataset>(m_other, &m_shared);
    EXPECT_EQ(late->selectedCount(), 43U) << "holds for what is opened later";
    late.reset();
    m_second->clearLibraryFilter();
    EXPECT_EQ(m_opened->selectedCount(), 300U);

    // A dataset without the variable shows all its rows and knows why; where it asks, nothing is
    // filtered.
    EXPECT_EQ(run("where a = 3"), "");
    EXPECT_EQ(m_second->selectedCount(), 300U);
    EXPECT_EQ(m_second->libraryFilterProblem(), u"There is no variable named a"_s);
    EXPECT_EQ(m_second->libraryFilterText(), u"where a = 3"_s);
    m_opened->clearLibraryFilter();
    EXPECT_EQ(m_second->libraryFilterProblem(), QString());
    EXPECT_TRUE(m_second->run("where a = 3", Dialect::Command));
    EXPECT_FALSE(m_shared.libraryFilter.isInForce());
    EXPECT_EQ(m_opened->selectedCount(), 300U);
}

TEST_F(Filters, areMadeFromValues)
{
    EXPECT_FALSE(m_opened->filterByCell(0, CompareOp::Greater, 8));
    EXPECT_FALSE(m_opened->filterByValue(0, CompareOp::Greater, -1.0));  // which nobody can type
    EXPECT_EQ(m_opened->datasetFilterText(), u"if a > 8 and a > -1"_s);
    const std::vector<int> observations{3, 9, 10};
    EXPECT_FALSE(m_opened->filterByCells(1, observations, OpenDataset::FilterKind::Library));
    EXPECT_EQ(m_opened->libraryFilterText(), u"where b in (3, 2)"_s);
    const CommandOutcome refused =
        m_opened->filterByCell(0, CompareOp::Equal, 8, OpenDataset::FilterKind::Library);
    ASSERT_TRUE(refused);
    EXPECT_EQ(refused->command, u"where a = 8"_s);
}

struct Known
{
    const char* text;
    std::function<bool(int)> holds;
};

const std::vector<Known>& knownConditions()
{
    static const std::vector<Known> known{
        {"a > 2", [](int row) { return valueA(row) > 2; }},
        {"b <= 4", [](int row) { return valueB(row) <= 4; }},
        {"a = 3 or b = 1", [](int row) { return valueA(row) == 3 || valueB(row) == 1; }},
        {"b in (1, 2, 5)",
         [](int row) { return valueB(row) == 1 || valueB(row) == 2 || valueB(row) == 5; }},
        {"(a ^= 4) and b is not null", [](int row) { return valueA(row) != 4; }},
    };
    return known;
}

TEST_F(Filters, selectWhatAllConditionsInForceSelect)
{
    std::mt19937 random(7);
    const Known* library = nullptr;
    std::vector<std::vector<const Known*>> steps{{}};  // what is in force after each
    for (int i = 0; i < 2000; ++i) {
        const Known& condition = knownConditions()[random() % knownConditions().size()];
        switch (random() % 8) {
        case 0:
            EXPECT_EQ(run(u"where "_s + condition.text).empty(), library == nullptr);
            library = library == nullptr ? &condition : library;
            break;
        case 1:
            EXPECT_EQ(run("clf"), "");
            library = nullptr;
            break;
        case 2:
            ASSERT_FALSE(m_opened->run(
                u"if "_s + condition.text,
                CommandReading{Dialect::Command, CommandReading::InForce::IsReplaced}));
            steps.push_back({&condition});
            break;
        case 3:
        case 4:
            m_opened->undo();
            if (steps.size() > 1) {
                steps.pop_back();
            }
            break;
        case 5:
            if (random() % 4 == 0) {
                EXPECT_EQ(run("cdf"), "");
                if (!steps.back().empty()) {
                    steps.emplace_back();
                }
            }
            break;
        default:
            EXPECT_EQ(run(u"if "_s + condition.text), "");
            steps.push_back(steps.back());
            steps.back().push_back(&condition);
        }
        std::size_t count = 0;
        for (int row = 0; row < rows; ++row) {
            const auto bit = static_cast<std::size_t>(row);
            const bool inLibrary = library == nullptr || library->holds(row);
            const bool inDataset =
                std::all_of(steps.back().begin(), steps.back().end(),
                            [row](const Known* known) { return known->holds(row); });
            ASSERT_EQ(m_dataset.libraryFilterMask()[bit], inLibrary) << i;
            ASSERT_EQ(m_dataset.datasetFilterMask()[bit], inDataset) << i;
            count += inLibrary && inDataset ? 1 : 0;
        }
        ASSERT_EQ(m_opened->selectedCount(), count);
        ASSERT_EQ(m_opened->datasetFilterText().isEmpty(), steps.back().empty());
        // Whatever is published reads back to the same rows.
        if (i % 20 == 0) {
            const ViewState state = m_opened->state();
            const std::string before = snapshot();
            ASSERT_FALSE(m_opened->restore(state));
            ASSERT_EQ(snapshot(), before) << i;
            if (!steps.back().empty()) {
                steps.push_back(steps.back());
            }
        }
    }
}

}  // namespace

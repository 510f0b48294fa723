#include "grid/filter/FilterState.h"
#include "tests/support/ScriptedDataset.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <string>
#include <vector>

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

class FilterStateTest : public testing::Test
{
protected:
    FilterStateTest()
    {
        m_dataset.variable("a", TypeCode::Double)
            .variable("b", TypeCode::Double)
            .rows(rows, [](int row, int column) -> ScriptedDataset::Value {
                return static_cast<double>(column == 0 ? valueA(row) : valueB(row));
            });
    }

    /// Everything that a refused command must leave as it is.
    [[nodiscard]] std::string snapshot() const
    {
        std::string text = m_state.libraryFilterText().toStdString() + '|'
            + m_state.datasetFilterText().toStdString() + '|';
        std::string bits;
        boost::to_string(m_dataset.libraryFilterMask(), bits);
        text += bits + '|';
        boost::to_string(m_dataset.datasetFilterMask(), bits);
        return text + bits;
    }

    ScriptedDataset m_dataset;
    FilterState m_state{m_dataset};
};

TEST_F(FilterStateTest, startsWithAllRows)
{
    EXPECT_EQ(m_state.selectedCount(), 300U);
    EXPECT_TRUE(m_state.combinedMask().all());
    EXPECT_EQ(m_state.libraryFilterText(), QString());
    EXPECT_EQ(m_state.datasetFilterText(), QString());
    EXPECT_FALSE(m_state.undoDatasetFilter());
}

TEST_F(FilterStateTest, keepsTheTwoFiltersApart)
{
    const auto library = m_state.applyLibraryFilter(u"a=1|a=2");
    ASSERT_TRUE(library) << library.error();
    EXPECT_EQ(library.value(), 60U);
    const auto step = m_state.addDatasetFilterStep(u"a >= 2");
    ASSERT_TRUE(step) << step.error();
    EXPECT_EQ(step.value(), 30U);
    EXPECT_EQ(m_dataset.libraryFilterMask().count(), 60U);
    EXPECT_EQ(m_dataset.datasetFilterMask().count(), 240U);
    EXPECT_EQ(m_dataset.matchedObservations(), m_dataset.datasetFilterMask()) << "evaluated last";
    EXPECT_EQ(m_state.combinedMask().count(), 30U);

    m_state.clearLibraryFilter();
    EXPECT_EQ(m_state.selectedCount(), 240U);
    EXPECT_EQ(m_state.datasetFilterText(), QStringLiteral("if a >= 2"));
    m_state.clearDatasetFilter();
    EXPECT_EQ(m_state.selectedCount(), 300U);
    EXPECT_FALSE(m_state.undoDatasetFilter()) << "nothing is left to undo";
}

TEST_F(FilterStateTest, writesItsFiltersAsStatements)
{
    static_cast<void>(m_state.applyLibraryFilter(u"a=1|b=2"));
    EXPECT_EQ(m_state.libraryFilterText().toStdString(), "where a = 1 or b = 2");

    static_cast<void>(m_state.addDatasetFilterStep(u"a=1|b=2"));
    EXPECT_EQ(m_state.datasetFilterText().toStdString(), "if a = 1 or b = 2");
    static_cast<void>(m_state.addDatasetFilterStep(u"b<-1.5|b>=0"));
    EXPECT_EQ(m_state.datasetFilterText().toStdString(),
              "if (a = 1 or b = 2) and (b < -1.5 or b >= 0)");
    static_cast<void>(m_state.addDatasetFilterStep(u"(a=1|a=2)"));
    EXPECT_EQ(m_state.datasetFilterText().toStdString(),
              "if (a = 1 or b = 2) and (b < -1.5 or b >= 0) and (a = 1 or a = 2)");
    EXPECT_TRUE(m_state.undoDatasetFilter());
    EXPECT_TRUE(m_state.undoDatasetFilter());
    EXPECT_EQ(m_state.datasetFilterText().toStdString(), "if a = 1 or b = 2");
}

TEST_F(FilterStateTest, allowsOneLibraryFilterOnly)
{
    ASSERT_TRUE(m_state.applyLibraryFilter(u"a = 1"));
    const std::string before = snapshot();
    const auto second = m_state.applyLibraryFilter(u"b = 1");
    ASSERT_FALSE(second);
    EXPECT_EQ(second.error(),
              "Library Filter supports one level only. Please clear library filter first.");
    EXPECT_EQ(snapshot(), before);
    m_state.clearLibraryFilter();
    EXPECT_TRUE(m_state.applyLibraryFilter(u"b = 1"));
}

TEST_F(FilterStateTest, isUnchangedByWhatFails)
{
    for (const bool hasFilters : {false, true}) {
        if (hasFilters) {
            ASSERT_TRUE(m_state.addDatasetFilterStep(u"a > 3"));
            ASSERT_TRUE(m_state.addDatasetFilterStep(u"b > 1"));
        }
        const std::string before = snapshot();
        const BitVector matched = m_dataset.matchedObservations();
        for (const QStringView condition : {u"", u"c = 1", u"a = 'x'", u"a = 1 )", u"a = 'x"}) {
            EXPECT_FALSE(m_state.applyLibraryFilter(condition));
            EXPECT_FALSE(m_state.addDatasetFilterStep(condition));
        }
        EXPECT_FALSE(m_state.restore(u"where a = 1", u"if c = 1"));
        EXPECT_FALSE(m_state.restore(u"where c = 1", u"if a = 1"));
        EXPECT_EQ(snapshot(), before);
        EXPECT_EQ(m_dataset.matchedObservations(), matched);
        EXPECT_EQ(m_state.undoDatasetFilter(), hasFilters);
    }
    EXPECT_EQ(m_state.datasetFilterText().toStdString(), "if a > 3");
    EXPECT_EQ(m_state.selectedCount(), 180U);
}

TEST_F(FilterStateTest, restoresWhatItPublished)
{
    ASSERT_TRUE(m_state.applyLibraryFilter(u"a < 8 or b = 0"));
    ASSERT_TRUE(m_state.addDatasetFilterStep(u"a > 1 or b > 5"));
    ASSERT_TRUE(m_state.addDatasetFilterStep(u"b not in (1, -2e0)"));
    const QString library = m_state.libraryFilterText();
    const QString dataset = m_state.datasetFilterText();
    const std::string before = snapshot();

    m_state.clearLibraryFilter();
    m_state.clearDatasetFilter();
    ASSERT_TRUE(m_state.addDatasetFilterStep(u"a = 5"));
    const auto restored = m_state.restore(library, dataset);
    ASSERT_TRUE(restored) << restored.error();
    EXPECT_EQ(restored.value(), m_state.selectedCount());
    EXPECT_EQ(snapshot(), before);
    EXPECT_TRUE(m_state.undoDatasetFilter()) << "all of it is one step";
    EXPECT_TRUE(m_dataset.datasetFilterMask().all());

    ASSERT_TRUE(m_state.restore(u"  ", u""));
    EXPECT_EQ(m_state.selectedCount(), 300U);
    EXPECT_FALSE(m_state.hasLibraryFilter());
}

TEST_F(FilterStateTest, putsARestoredOrInParenthesesBeforeTheNextStep)
{
    ASSERT_TRUE(m_state.restore(u"", u"IF a = 1 or b = 2"));
    ASSERT_TRUE(m_state.addDatasetFilterStep(u"a < 5"));
    EXPECT_EQ(m_state.datasetFilterText().toStdString(), "if (a = 1 or b = 2) and a < 5");
}

TEST_F(FilterStateTest, restoresOnlyStatements)
{
    EXPECT_FALSE(m_state.restore(u"a = 1", u""));
    EXPECT_FALSE(m_state.restore(u"if a = 1", u""));
    EXPECT_FALSE(m_state.restore(u"", u"where a = 1"));
    EXPECT_FALSE(m_state.restore(u"wherea = 1", u""));
    EXPECT_FALSE(m_state.restore(u"where", u""));
    EXPECT_FALSE(m_state.restore(u"w", u""));
    EXPECT_EQ(m_state.selectedCount(), 300U);
}

struct Known
{
    const char16_t* text;
    std::function<bool(int)> holds;
};

const std::vector<Known>& knownConditions()
{
    static const std::vector<Known> known{
        {u"a > 2", [](int row) { return valueA(row) > 2; }},
        {u"b <= 4", [](int row) { return valueB(row) <= 4; }},
        {u"a = 3 or b = 1", [](int row) { return valueA(row) == 3 || valueB(row) == 1; }},
        {u"a in (1, 2, 5, 7)",
         [](int row) {
             const int a = valueA(row);
             return a == 1 || a == 2 || a == 5 || a == 7;
         }},
        {u"(a ^= 4) and b is not null", [](int row) { return valueA(row) != 4; }},
    };
    return known;
}

/// What the filters should be, kept in the plainest way.
struct Model
{
    std::vector<Known> library;
    std::vector<Known> steps;

    [[nodiscard]] static bool all(const std::vector<Known>& conditions, int row)
    {
        return std::all_of(conditions.begin(), conditions.end(),
                           [&](const Known& condition) { return condition.holds(row); });
    }
};

TEST_F(FilterStateTest, selectsWhatAllActiveConditionsSelect)
{
    std::mt19937 random(7);
    Model model;
    for (int i = 0; i < 3000; ++i) {
        const Known& condition = knownConditions()[random() % knownConditions().size()];
        switch (random() % 8) {
        case 0:
            EXPECT_EQ(m_state.applyLibraryFilter(condition.text).ok(), model.library.empty());
            if (model.library.empty()) {
                model.library.push_back(condition);
            }
            break;
        case 1:
            m_state.clearLibraryFilter();
            model.library.clear();
            break;
        case 2:
            EXPECT_FALSE(m_state.addDatasetFilterStep(u"c = 1"));
            break;
        case 3:
        case 4:
            EXPECT_EQ(m_state.undoDatasetFilter(), !model.steps.empty());
            if (!model.steps.empty()) {
                model.steps.pop_back();
            }
            break;
        case 5:
            if (random() % 4 == 0) {
                m_state.clearDatasetFilter();
                model.steps.clear();
            }
            break;
        default:
            EXPECT_TRUE(m_state.addDatasetFilterStep(condition.text));
            model.steps.push_back(condition);
        }
        const BitVector combined = m_state.combinedMask();
        std::size_t count = 0;
        for (int row = 0; row < rows; ++row) {
            const auto bit = static_cast<std::size_t>(row);
            const bool inLibrary = Model::all(model.library, row);
            const bool inDataset = Model::all(model.steps, row);
            ASSERT_EQ(m_dataset.libraryFilterMask()[bit], inLibrary) << i;
            ASSERT_EQ(m_dataset.datasetFilterMask()[bit], inDataset) << i;
            ASSERT_EQ(combined[bit], inLibrary && inDataset) << i;
            count += inLibrary && inDataset ? 1 : 0;
        }
        ASSERT_EQ(m_state.selectedCount(), count);
        ASSERT_EQ(m_state.datasetFilterText().isEmpty(), model.steps.empty());
    }
}

}  // namespace

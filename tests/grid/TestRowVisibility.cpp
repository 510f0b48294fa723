#include "grid/RowVisibility.h"
#include "tests/support/ScriptedDataset.h"

#include <gtest/gtest.h>

#include <numeric>
#include <string>
#include <vector>

namespace {

/// Five observations and a grid that shows them backwards.
class RowVisibilityTest : public testing::Test
{
protected:
    RowVisibilityTest()
    {
        m_dataset.variable("X", TypeCode::Double);
        m_dataset.rows(5, [](int row, int) { return ScriptedDataset::Value(double(row)); });
        m_rows.reset(5);
    }

    /// Updates and says what was changed: "3-" for row 3 hidden, "3+" for row 3 shown, "*" for all.
    std::string update(const std::vector<std::uint32_t>& rowMap)
    {
        std::string changes;
        m_rows.update(
            m_dataset, rowMap,
            [&](int row, bool shown) { changes += std::to_string(row) + (shown ? "+" : "-"); },
            [&] { changes += "*"; });
        return changes;
    }

    ScriptedDataset m_dataset;
    RowVisibility m_rows;
    const std::vector<std::uint32_t> m_forward{0, 1, 2, 3, 4};
    const std::vector<std::uint32_t> m_backward{4, 3, 2, 1, 0};
};

TEST_F(RowVisibilityTest, showsARowOnlyWhenBothMasksSelectItsObservation)
{
    m_dataset.libraryFilterMask().reset(0);
    m_dataset.datasetFilterMask().reset(1).reset(0);
    EXPECT_EQ(update(m_forward), "0-1-");
    EXPECT_EQ(m_rows.shownCount(), 3U);
    EXPECT_TRUE(m_dataset.libraryFilterMask().test(1)) << "the masks are only read";
}

TEST_F(RowVisibilityTest, touchesOnlyRowsWhoseStateChanges)
{
    m_dataset.datasetFilterMask().reset(1).reset(3);
    EXPECT_EQ(update(m_forward), "1-3-");
    EXPECT_EQ(update(m_forward), "");
    m_dataset.datasetFilterMask().set(1).reset(4);
    EXPECT_EQ(update(m_forward), "1+4-");
    m_dataset.datasetFilterMask().set();
    EXPECT_EQ(update(m_forward), "3+4+");
    EXPECT_EQ(m_rows.shownCount(), 5U);
}

TEST_F(RowVisibilityTest, followsObservationsToTheirNewRows)
{
    m_dataset.datasetFilterMask().reset(0).reset(1);
    EXPECT_EQ(update(m_forward), "0-1-");
    EXPECT_EQ(update(m_backward), "0+1+3-4-");
    EXPECT_EQ(m_rows.shownCount(), 3U);
}

TEST_F(RowVisibilityTest, findsTheNearestShownRow)
{
    EXPECT_EQ(m_rows.nearestShown(4), 4);
    m_dataset.datasetFilterMask().reset(1).reset(2).reset(4);
    update(m_forward);
    EXPECT_EQ(m_rows.nearestShown(0), 0);
    EXPECT_EQ(m_rows.nearestShown(1), 0);
    EXPECT_EQ(m_rows.nearestShown(2), 3);
    EXPECT_EQ(m_rows.nearestShown(4), 3);
    m_dataset.datasetFilterMask().reset(0);
    update(m_forward);
    EXPECT_EQ(m_rows.nearestShown(0), 3);
    m_dataset.datasetFilterMask().reset();
    update(m_forward);
    EXPECT_EQ(m_rows.nearestShown(2), -1);
}

TEST(RowVisibilityOfManyRows, startsOverWhereThatTouchesFarFewerRows)
{
    constexpr int count = 40'000;
    ScriptedDataset dataset;
    dataset.variable("X", TypeCode::Double);
    dataset.rows(count, [](int row, int) { return ScriptedDataset::Value(double(row)); });
    std::vector<std::uint32_t> rowMap(count);
    std::iota(rowMap.begin(), rowMap.end(), 0U);
    RowVisibility rows;
    rows.reset(count);
    int touched = 0;
    int startedOver = 0;
    const auto update = [&] {
        touched = 0;
        startedOver = 0;
        rows.update(
            dataset, rowMap, [&](int, bool) { ++touched; }, [&] { ++startedOver; });
    };

    dataset.datasetFilterMask().reset().set(17);
    update();
    EXPECT_EQ(touched, count - 1);
    EXPECT_EQ(startedOver, 0);

    dataset.datasetFilterMask().set(18);
    update();
    EXPECT_EQ(touched, 1);
    EXPECT_EQ(startedOver, 0);

    dataset.datasetFilterMask().set().reset(5).reset(6);
    update();
    EXPECT_EQ(touched, 2) << "in a grid that shows all rows, only the hidden ones are news";
    EXPECT_EQ(startedOver, 1);
    EXPECT_EQ(rows.shownCount(), std::size_t{count - 2});
    EXPECT_FALSE(rows.isShown(5));
    EXPECT_TRUE(rows.isShown(7));
}

}  // namespace

#include "grid/RowVisibility.h"
#include "tests/support/ScriptedDataset.h"

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

namespace {

TEST(RowVisibility, touchesFewRowsAndStartsOverWhereThatTouchesFarFewer)
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

    dataset.datasetFilterMask().set().reset(5).reset(6).reset(8);
    update();
    EXPECT_EQ(touched, 3) << "in a grid that shows all rows, only the hidden ones are news";
    EXPECT_EQ(startedOver, 1);
    EXPECT_EQ(rows.shownCount(), std::size_t{count - 3});
    EXPECT_FALSE(rows.isShown(5));
    EXPECT_TRUE(rows.isShown(7));
}

}  // namespace

#include "grid/RowVisibility.h"
#include "tests/support/ScriptedDataset.h"

#include <gtest/gtest.h>

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

    /// Updates and says what was changed: "3-" for row 3 hidden, "3+" for row 3 shown.
    std::string update(const std::vector<std::uint32_t>& rowMap)
    {
        std::string changes;
        m_rows.update(m_dataset, rowMap, [&](int row, bool shown) {
            changes += std::to_string(row) + (shown ? "+" : "-");
        });
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

}  // namespace

#include "samples/BigTable.h"
#include "tests/samples/ReadBack.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

namespace {

std::string storedText(const StatDataset& dataset, int row, int column)
{
    return dataset.isCharacter(column) ? dataset.stringValue(row, column)
                                       : std::to_string(dataset.numericValue(row, column));
}

TEST(BigTable, columnsHaveTheirSharesOfMissingCellsAndOfDistinctValues)
{
    constexpr int rows = 20'000;
    const TemporaryFolder folder;
    samples::writeBigTable(folder.file("big.dta"), rows);
    const auto table = readBack(folder.file("big.dta"));
    ASSERT_EQ(table->observationCount(), rows);
    std::map<std::string, std::size_t> distinct;
    for (int column = 0; column < table->variableCount(); ++column) {
        const auto& name = table->names()[static_cast<std::size_t>(column)];
        std::set<std::string> values;
        int gaps = 0;
        for (int row = 0; row < rows; ++row) {
            const auto value = storedText(*table, row, column);
            const bool isMissing = value.empty() || value == "nan";
            gaps += isMissing ? 1 : 0;
            values.insert(isMissing ? "" : value);
        }
        const double expected = name == "USUBJID" ? 0 : name == "COMMENT" ? 0.99 : 0.05;
        EXPECT_NEAR(double(gaps) / rows, expected, 0.01) << name;
        distinct[name] = values.size() - (gaps > 0 ? 1 : 0);
    }
    EXPECT_EQ(distinct["SITEID"], 40U);
    EXPECT_EQ(distinct["INVNAM"], 8U);
    // 19,000 draws from 10,000 leave some 1,496 out.
    EXPECT_NEAR(double(distinct["TERM"]), 8504, 100);
    EXPECT_NEAR(double(distinct["USUBJID"]), 0.98 * rows, 100);
}

}  // namespace

#include "FileReader.h"
#include "samples/BigTable.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace {

using namespace samples;

bool isMissing(const Cell& cell)
{
    const auto* const text = std::get_if<std::string>(&cell);
    return text != nullptr ? text->empty() : std::isnan(std::get<double>(cell));
}

class BigTable : public testing::Test
{
protected:
    Table write(const std::string& file, long rows, const WriteOptions& options = {})
    {
        writeBigTable(folder.file(file), rows, options);
        return readBack(folder.file(file));
    }

    static std::size_t distinct(const Table& table, const std::string& column)
    {
        std::set<Cell> values;
        for (const auto& row : table.rows) {
            const auto& cell = row[columnIndex(table, column)];
            if (!isMissing(cell)) {
                values.insert(cell);
            }
        }
        return values.size();
    }

    TemporaryFolder folder;
};

TEST_F(BigTable, hasTwelveTextsAndThirteenNumbersOfWhichAFewAreMissing)
{
    const auto table = write("big.dta", 20'000);
    ASSERT_EQ(table.rows.size(), 20'000U);
    ASSERT_EQ(table.columns.size(), 25U);
    EXPECT_EQ(std::ranges::count(table.columns, true, &Column::character), 12);
    for (std::size_t column = 0; column < table.columns.size(); ++column) {
        const auto& name = table.columns[column].name;
        const double expected = name == "USUBJID" ? 0 : name == "COMMENT" ? 0.99 : 0.05;
        const auto count = std::ranges::count_if(
            table.rows, [&](const Row& row) { return isMissing(row[column]); });
        EXPECT_NEAR(static_cast<double>(count) / 20'000, expected, 0.01) << name;
    }
}

TEST_F(BigTable, columnsHaveTheirNumbersOfDistinctValues)
{
    const auto table = write("big.sav", 60'000);
    for (const auto* const name : {"SITEID", "COUNTRY", "BODSYS", "VISIT", "TEST", "VISITNUM"}) {
        EXPECT_EQ(distinct(table, name), 40U) << name;
    }
    EXPECT_EQ(distinct(table, "INVNAM"), 8U);
    EXPECT_EQ(distinct(table, "SEX"), 2U);
    // 57,000 draws from 10,000 leave some 33 out.
    EXPECT_NEAR(static_cast<double>(distinct(table, "TERM")), 9967, 30);
    EXPECT_NEAR(static_cast<double>(distinct(table, "USUBJID")), 58'800, 300);
    EXPECT_GT(distinct(table, "AVAL"), 50'000U);
}

TEST_F(BigTable, fewerRowsAreTheBeginningOfMoreInEveryKindOfFile)
{
    const auto many = write("many.sas7bdat", 300);
    const auto few = write("few.sas7bdat", 50, {.compression = Compression::Rows});
    const auto transport = write("few.xpt", 50, {.release = 8});
    auto beginning = cellTexts(many);
    ASSERT_EQ(beginning.size(), 300U * 25);
    beginning.resize(50U * 25);
    EXPECT_EQ(cellTexts(few), beginning);
    EXPECT_EQ(cellTexts(transport), beginning);
}

TEST_F(BigTable, windows1252TextsAreStoredAndDeclaredAsSuch)
{
    const auto table = write("latin.sas7bdat", 500, {.encoding = TextEncoding::Windows1252});
    const auto bytes = bytesOf(folder.file("latin.sas7bdat"));
    EXPECT_EQ(bytes[70], 62);
    EXPECT_NE(bytes.find("M\xFCller, J\xF6rg"), std::string::npos);
    EXPECT_EQ(bytes.find("Müller"), std::string::npos);
    EXPECT_EQ(cellTexts(table), cellTexts(write("utf8.sas7bdat", 500)));
}

}  // namespace

#include "samples/FormatMapping.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using samples::FileKind;

TEST(FormatMapping, everyKindOfFileHasItsOwnNotation)
{
    struct Case
    {
        samples::Column column;
        const char* transport;
        const char* sas;
        const char* spss;
        const char* stata;
    };
    using samples::numberColumn;
    auto text = samples::textColumn("T", "", 12);
    auto formattedText = samples::textColumn("U", "", 300);
    formattedText.format = "$";
    formattedText.width = 20;
    const Case cases[] = {
        {numberColumn("A", "", "DATE", 9), "DATE9", "DATE", "DATE11", "%td"},
        {numberColumn("B", "", "YYMMDD", 10), "YYMMDD10", "YYMMDD", "SDATE10", "%tdCY-N-D"},
        {numberColumn("C", "", "DATETIME", 20), "DATETIME20", "DATETIME", "DATETIME20", "%tc"},
        {numberColumn("D", "", "TIME", 8), "TIME8", "TIME", "TIME8", "%tcHH:MM:SS"},
        {numberColumn("E", "", "", 8, 1), "8.1", "", "F8.1", "%8.1f"},
        {numberColumn("F", "", "COMMA", 12, 2), "COMMA12.2", "COMMA", "COMMA12.2", "%12.2fc"},
        {numberColumn("G", "", "BEST", 12), "BEST12", "BEST", "F8.2", "%12.0g"},
        {numberColumn("H", ""), "", "", "F8.2", "%9.0g"},
        {numberColumn("I", "", "DATE"), "DATE", "DATE", "DATE11", "%td"},
        {text, "", "", "A12", "%12s"},
        {formattedText, "$20", "$", "A300", "%244s"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(fileFormat(row.column, FileKind::Transport), row.transport) << row.column.name;
        EXPECT_EQ(fileFormat(row.column, FileKind::Sas), row.sas) << row.column.name;
        EXPECT_EQ(fileFormat(row.column, FileKind::Spss), row.spss) << row.column.name;
        EXPECT_EQ(fileFormat(row.column, FileKind::Stata), row.stata) << row.column.name;
    }
}

// 14 October 1582 is 137,775 days before 1960.
TEST(FormatMapping, countsFromTheDayOfTheFile)
{
    const auto date = samples::numberColumn("A", "", "DATE", 9);
    const auto time = samples::numberColumn("B", "", "TIME", 8);
    const auto dateTime = samples::numberColumn("C", "", "DATETIME", 20);
    const auto number = samples::numberColumn("D", "");
    EXPECT_EQ(numberMapping(date, FileKind::Spss)(0), 11903760000.0);
    EXPECT_EQ(numberMapping(date, FileKind::Stata)(-3), -3);
    EXPECT_EQ(numberMapping(date, FileKind::Transport)(7), 7);
    EXPECT_EQ(numberMapping(dateTime, FileKind::Spss)(90), 11903760090.0);
    EXPECT_EQ(numberMapping(dateTime, FileKind::Stata)(90), 90000);
    EXPECT_EQ(numberMapping(time, FileKind::Spss)(90), 90);
    EXPECT_EQ(numberMapping(time, FileKind::Stata)(90), 90000);
    EXPECT_EQ(numberMapping(number, FileKind::Spss)(0.5), 0.5);
    EXPECT_TRUE(std::isnan(numberMapping(date, FileKind::Spss)(samples::missing)));
}

}  // namespace

#include "data/values/SpssFormat.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

// Texts as SPSS prints them, less the padding. They differ where it prints asterisks, gives up
// seconds for a sign or shows a second as 60.

namespace {

struct Row
{
    const char* format;
    double value;
    const char* expected;
};

template <std::size_t size>
void expectTexts(const Row (&rows)[size])
{
    for (const Row& row : rows)
        EXPECT_EQ(spss::formatNumeric(row.value, row.format), row.expected)
            << row.format << ' ' << row.value;
}

constexpr double infinity = std::numeric_limits<double>::infinity();

// Seconds from 1582-10-14.
constexpr double october1990 = 12876451200;  // 1990-10-28 00:00
constexpr double leapDay = 13171161600;  // 2000-02-29 00:00
constexpr double february2024 = 13928543999;  // 2024-02-28 23:59:59
constexpr double year1899 = 10010304000;  // 1899-12-31 00:00
constexpr double lastDay = 265621593600;  // 9999-12-31 00:00

}  // namespace

TEST(SpssFormat, FixedNumbersHaveNoZeroBeforeThePointAndNoNegativeZero)
{
    expectTexts({
        {"F8.2", 0, ".00"},
        {"F8.2", -0.0, ".00"},
        {"F8.2", 0.5, ".50"},
        {"F8.2", -0.5, "-.50"},
        {"F8.2", -0.001, ".00"},
        {"F8.2", 1234.5, "1234.50"},
        {"F8.0", 0, "0"},
        {"F8.0", -0.001, "0"},
        {"f8.1", 7, "7.0"},
        {"F18.16", 0.234567890123456, ".2345678901234560"},
        {"F40.2", 1e20, "100000000000000000000.00"},
    });
}

TEST(SpssFormat, HalvesAreRoundedAwayFromZero)
{
    expectTexts({
        {"F8.2", 0.125, ".13"},
        {"F8.2", -0.125, "-.13"},
        {"F8.0", 0.5, "1"},
        {"F8.0", 2.5, "3"},
        {"F8.0", -2.5, "-3"},
        {"F8.0", 0.49999999999999994, "0"},
        {"F8.2", 1.005, "1.00"},  // stored as slightly less
        {"F8.1", 1.15, "1.1"},  // the same
        {"F8.2", 99.996, "100.00"},
    });
}

TEST(SpssFormat, DecimalsGiveWayUntilTheNumberFits)
{
    expectTexts({
        {"F8.2", -1234.5, "-1234.50"},
        {"F8.2", 1234567.89, "1234568"},
        {"F8.2", -1234567.89, "-1234568"},
        {"F8.2", 12345678.25, "12345678"},
        {"F8.2", 999999.996, "1000000"},
        {"F4.2", -2.5, "-2.5"},
        {"F3.2", 1, "1.0"},
        {"F3.2", -2.5, "-3"},
        {"F2.1", 0.5, ".5"},
        {"F2.1", -0.5, "-1"},
        {"DOLLAR10.2", 1234567.89, "$1234567.9"},
        {"PCT6.1", 1234.5, "1235%"},
    });
}

TEST(SpssFormat, NumbersThatNeverFitAreWrittenInFull)
{
    expectTexts({
        {"F4.2", -1234.5, "-1234.50"},
        {"F2.0", 12345, "12345"},
        {"F8.2", 123456789.25, "123456789.25"},
        {"COMMA8.2", 123456789.25, "123,456,789.25"},
        {"DOLLAR8.2", -1234567.89, "-$1,234,567.89"},
        {"PCT6.1", 1234567.75, "1234567.8%"},
        {"F8.2", 1e300, "1e+300"},
        {"F8.2", -1e21, "-1e+21"},
        {"N3", 12345, "12345"},
        {"N5", 1e22, "1e+22"},
    });
}

TEST(SpssFormat, GroupingAndCurrenciesComeWhereThereIsRoom)
{
    expectTexts({
        {"COMMA8.2", 1234.5, "1,234.50"},
        {"COMMA8.2", -1234.5, "-1234.50"},
        {"COMMA8.2", 1234567.89, "1234568"},
        {"COMMA12.2", 1234567.89, "1,234,567.89"},
        {"COMMA12.2", -1234567.89, "-1234567.89"},
        {"COMMA12.2", 100, "100.00"},
        {"COMMA12.2", 1e10, "10000000000"},
        {"COMMA9.0", 1234567.89, "1,234,568"},
        {"COMMA9.0", 12345678.25, "12345678"},
        {"COMMA16.2", 0.5, ".50"},
        {"DOT9.2", 1234.5, "1.234,50"},
        {"DOT12.2", 12345678.25, "12345678,25"},
        {"DOT9.2", -0.5, "-,50"},
        {"DOLLAR10.0", 1234.5, "$1,235"},
        {"DOLLAR10.2", -1234.5, "-$1,234.50"},
        {"DOLLAR8.2", 1234.5, "$1234.50"},
        {"DOLLAR17.2", 99.99, "$99.99"},
        {"DOLLAR10.2", 0, "$.00"},
        {"PCT10.1", 12.5, "12.5%"},
        {"PCT8.2", -0.5, "-.50%"},
        {"CCA12.2", -1234.5, "-1,234.50"},
        {"CCE12.2", 1234567.89, "1,234,567.89"},
    });
}

TEST(SpssFormat, ScientificNumbersHaveThreeDigitsOfExponent)
{
    expectTexts({
        {"E10.3", 0, "0.000E+000"},
        {"E10.3", 0.004, "4.000E-003"},
        {"E10.3", 1234567.89, "1.235E+006"},
        {"E10.3", -1234567.89, "-1.23E+006"},
        {"E12.5", 99.995, "9.99950E+001"},
        {"E12.4", 25e9, "2.5000E+010"},
        {"E12.4", 1e300, "1.0000E+300"},
        {"E6.0", -5, "-5E+000"},
    });
}

TEST(SpssFormat, RestrictedNumbersAreFilledWithZeros)
{
    expectTexts({
        {"N5", 0, "00000"},
        {"N5", 1, "00001"},
        {"N5", 1234.5, "01235"},
        {"N5", -3, "-0003"},
        {"N8.2", 12.5, "00012.50"},
        {"Z5", 42, "00042"},
    });
}

TEST(SpssFormat, WidthsDecideAboutTheCentury)
{
    expectTexts({
        {"DATE9", october1990, "28-OCT-90"},    {"DATE10", october1990, "28-OCT-90"},
        {"DATE11", october1990, "28-OCT-1990"}, {"DATE20", october1990, "28-OCT-1990"},
        {"DATE", october1990, "28-OCT-1990"},   {"ADATE8", october1990, "10/28/90"},
        {"ADATE10", october1990, "10/28/1990"}, {"EDATE8", october1990, "28.10.90"},
        {"EDATE10", october1990, "28.10.1990"}, {"SDATE8", october1990, "90/10/28"},
        {"SDATE10", october1990, "1990/10/28"}, {"JDATE5", october1990, "90301"},
        {"JDATE7", october1990, "1990301"},     {"QYR6", october1990, "4 Q 90"},
        {"QYR8", october1990, "4 Q 1990"},      {"MOYR6", october1990, "OCT 90"},
        {"MOYR8", october1990, "OCT 1990"},     {"WKYR8", october1990, "43 WK 90"},
        {"WKYR10", october1990, "43 WK 1990"},
    });
}

TEST(SpssFormat, DatesFollowTheCalendar)
{
    expectTexts({
        {"DATE11", leapDay, "29-FEB-2000"},
        {"DATE9", leapDay, "29-FEB-00"},
        {"JDATE5", leapDay, "00060"},
        {"WKYR8", leapDay, "9 WK 00"},
        {"DATE11", leapDay + 86399.996, "29-FEB-2000"},
        {"DATE11", leapDay + 86400, "01-MAR-2000"},
        {"EDATE10", year1899, "31.12.1899"},
        {"JDATE7", 13828752000, "2020366"},
        {"WKYR10", 13828060800, "52 WK 2020"},
        {"QYR8", 13528857600, "3 Q 2011"},
        {"ADATE10", lastDay, "12/31/9999"},
        {"DATE11", 86400, "15-OCT-1582"},
        {"SDATE10", 0, "1582/10/14"},
    });
}

TEST(SpssFormat, TwoDigitsOfAYearAreNotUsedWhereTheyWouldMislead)
{
    expectTexts({
        {"DATE9", year1899, "31-DEC-1899"},
        {"ADATE8", 11588140800, "12/31/1949"},
        {"ADATE8", 11588227200, "01/01/50"},
        {"JDATE5", 14743900800, "49365"},
        {"JDATE5", 14743987200, "2050001"},
        {"MOYR6", lastDay, "DEC 9999"},
    });
}

TEST(SpssFormat, DateTimesShowSecondsAndFractionsWhereThereIsRoom)
{
    expectTexts({
        {"DATETIME17", october1990 + 37395, "28-OCT-1990 10:23"},
        {"DATETIME19", october1990 + 37395, "28-OCT-1990 10:23"},
        {"DATETIME20", october1990 + 37395, "28-OCT-1990 10:23:15"},
        {"DATETIME20", february2024, "28-FEB-2024 23:59:59"},
        {"DATETIME20", october1990 + 86399.9, "28-OCT-1990 23:59:59"},
        {"DATETIME23.2", february2024 + 0.25, "28-FEB-2024 23:59:59.25"},
        {"DATETIME22.2", february2024 + 0.25, "28-FEB-2024 23:59:59.3"},
        {"DATETIME23.2", leapDay + 86399.996, "01-MAR-2000 00:00:00.00"},
        {"DATETIME40.3", leapDay + 86399.996, "29-FEB-2000 23:59:59.996"},
        {"YMDHMS16", february2024, "2024-02-28 23:59"},
        {"YMDHMS18", february2024, "2024-02-28 23:59"},
        {"YMDHMS19", february2024, "2024-02-28 23:59:59"},
        {"YMDHMS23.2", february2024 + 0.5, "2024-02-28 23:59:59.50"},
    });
}

TEST(SpssFormat, TimesMayExceedADayAndKeepTheirSeconds)
{
    expectTexts({
        {"TIME5", 90607, "25:10"},
        {"TIME6", -3600, "-01:00"},
        {"TIME8", 0, "00:00:00"},
        {"TIME8", 86399.999, "23:59:59"},
        {"TIME8", 90607, "25:10:07"},
        {"TIME8", -3600, "-01:00:00"},
        {"TIME8", 360000, "100:00:00"},
        {"TIME9", -59.9, "-00:00:59"},
        {"TIME12.3", 45296.789, "12:34:56.789"},
        {"MTIME5", 3599.999, "59:59"},
        {"MTIME5", 86399, "1439:59"},
        {"MTIME6", -3600, "-60:00"},
        {"MTIME8.2", 59.994, "00:59.99"},
        {"DTIME8", 90607, "1 01:10"},
        {"DTIME11", -3600, "-0 01:00:00"},
        {"DTIME14", 273906, "3 04:05:06"},
        {"DTIME14", -43200, "-0 12:00:00"},
        {"DTIME15", 1e9, "11574 01:46:40"},
        {"DTIME16.2", 45296.789, "0 12:34:56.79"},
    });
}

TEST(SpssFormat, NoSecondIsEverShownAsSixty)
{
    expectTexts({
        {"TIME8", 59.999, "00:00:59"},
        {"TIME11.2", 59.994, "00:00:59.99"},
        {"TIME11.2", 59.999, "00:01:00.00"},
        {"TIME10.1", 3599.999, "01:00:00.0"},
        {"TIME11.2", 86399.999, "24:00:00.00"},
        {"MTIME8.2", 59.999, "01:00.00"},
        {"DTIME16.2", 86399.999, "1 00:00:00.00"},
        {"TIME8", -0.4, "00:00:00"},
        {"TIME11.2", -0.4, "-00:00:00.40"},
    });
}

TEST(SpssFormat, WeekdaysAndMonthsAreNamesCutToTheWidth)
{
    expectTexts({
        {"WKDAY2", 1, "SU"},
        {"WKDAY3", 2.7, "MON"},
        {"WKDAY5", 7, "SATUR"},
        {"WKDAY9", 4, "WEDNESDAY"},
        {"WKDAY9", 3, "TUESDAY"},
        {"MONTH3", 12, "DEC"},
        {"MONTH5", 1, "JANUA"},
        {"MONTH9", 9, "SEPTEMBER"},
        {"WKDAY9", 0, "0"},
        {"WKDAY9", 8, "8"},
        {"MONTH9", 13, "13"},
        {"MONTH9", -1.5, "-1.5"},
    });
}

TEST(SpssFormat, WhatIsBeyondTheCalendarIsAPlainNumber)
{
    expectTexts({
        {"DATE11", -1, "-1"},
        {"DATE11", lastDay + 86400, "265621680000"},
        {"DATETIME20", 1e300, "1e+300"},
        {"QYR8", -86400.5, "-86400.5"},
        {"TIME8", 1e20, "1e+20"},
        {"DTIME15", -1e20, "-1e+20"},
        {"WKDAY9", 1e300, "1e+300"},
        {"DATE11", infinity, "inf"},
        {"F8.2", -infinity, "-inf"},
        {"E10.3", infinity, "inf"},
    });
}

TEST(SpssFormat, UnknownFormatsShowTheShortestText)
{
    expectTexts({
        {"", 0.1, "0.1"},
        {"F", 0.25, "0.25"},
        {"XYZ8.2", 1.5, "1.5"},
        {"F8.2.1", 1.5, "1.5"},
        {"F8.2x", 1.5, "1.5"},
        {"F99999999999.2", 1.5, "1.5"},
        {"DATE-11", 1.5, "1.5"},
        {"8.2", 1.5, "1.5"},
        {"RB8", 1.5, "1.5"},
        {"A8", -2, "-2"},
    });
}

TEST(SpssFormat, MissingIsAPointUnderEveryFormat)
{
    for (const char* format : {"", "F8.2", "E10.3", "N5", "DATE11", "DATETIME23.2", "TIME8",
                               "DTIME14", "WKDAY9", "MONTH3", "XYZ"})
        EXPECT_EQ(spss::formatNumeric(std::nan(""), format), ".") << format;
}

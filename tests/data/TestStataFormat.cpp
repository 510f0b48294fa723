#include "data/values/NumberText.h"
#include "data/values/StataFormat.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <limits>
#include <string>

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
        EXPECT_EQ(stata::formatNumeric(row.value, row.format), row.expected)
            << row.format << ' ' << row.value;
}

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double millisecondsPerDay = 86'400'000;

double readBack(const std::string& text)
{
    double value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

}  // namespace

TEST(StataFormat, GeneralNumbersShowWhatTheWidthHolds)
{
    expectTexts({
        {"%9.0g", 0, "0"},
        {"%9.0g", -0.0, "0"},
        {"%9.0g", 1000, "1000"},
        {"%9.0g", std::sqrt(2.0), "1.414214"},
        {"%10.0g", std::acos(-1.0), "3.1415927"},
        {"%9.0g", 14142.1356, "14142.14"},
        {"%9.0g", 1234567.891, "1234568"},
        {"%9.0g", -1234567.891, "-1234568"},
        {"%9.0g", 0.5, ".5"},
        {"%9.0g", -0.5, "-.5"},
        {"%9.0g", 1.0 / 8, ".125"},
        {"%9.0g", 0.123456789, ".1234568"},
        {"%9.0g", 0.00001234, ".0000123"},
        {"%8.0g", 32740, "32740"},
        {"%12.0g", 2147483620, "2147483620"},
        {"%12.0g", -2147483647, "-2147483647"},
        {"%-9.0g", 12, "12"},
        {"%20.0g", 0.1, ".1"},
        {"%9,0g", 0.25, ",25"},
        {"%2.0g", 45, "45"},
        {"%4.0g", 123456, "123456"},
        {"%3.0g", 1.5, "1.5"},
    });
}

TEST(StataFormat, GeneralNumbersTakeAnExponentWhereDigitsDoNotFit)
{
    expectTexts({
        {"%9.0g", 10000000, "1.00e+07"},
        {"%9.0g", 9999999.6, "1.00e+07"},
        {"%9.0g", 1234567891, "1.23e+09"},
        {"%9.0g", -12345678912, "-1.23e+10"},
        {"%10.0g", 123456789, "1.235e+08"},
        {"%9.0g", 0.000001234, "1.23e-06"},
        {"%10.0g", 1e100, "1.00e+100"},
        {"%10.0g", -std::numeric_limits<double>::max(), "-1.80e+308"},
        {"%10.0g", std::numeric_limits<double>::min(), "2.23e-308"},
        {"%5.0g", 1e300, "1e+300"},
    });
}

TEST(StataFormat, GeneralNumbersWithDigitsAskedForNeverLoseTheirIntegerPart)
{
    expectTexts({
        {"%9.3g", 1234.5678, "1235"},
        {"%9.3g", 12.3456, "12.3"},
        {"%9.3g", 0.0012345, ".00123"},
        {"%9.1g", 0.0999, ".1"},
        {"%9.2g", 1.23456e12, "1.2e+12"},
    });
}

TEST(StataFormat, GroupingGivesWayUnderGeneralFormats)
{
    expectTexts({
        {"%8.0gc", 15906, "15,906"},
        {"%9.0gc", 1234567.8, "1,234,568"},
        {"%9.0gc", -1234567.8, "-1234568"},
        {"%9.0gc", 12345.678, "12,345.68"},
        {"%9.0gc", -12345.678, "-12,345.7"},
        {"%9.0gc", 999, "999"},
    });
}

TEST(StataFormat, FixedAndExponentFormsAreKeptWhateverTheWidth)
{
    expectTexts({
        {"%9.2f", 0, "0.00"},
        {"%9.2f", 0.5, "0.50"},
        {"%9.2f", -1.25, "-1.25"},
        {"%9.0f", 2.6, "3"},
        {"%-9.2f", 1000, "1000.00"},
        {"%9.2f", 10000000, "10000000.00"},
        {"%16.0f", 1e15, "1000000000000000"},
        {"%12.2fc", 1234567.891, "1,234,567.89"},
        {"%8.0fc", -1234567, "-1,234,567"},
        {"%8.0fc", -123, "-123"},
        {"%9,2f", 1234.5, "1234,50"},
        {"%12,2fc", 1234567.891, "1.234.567,89"},
        {"%09.2f", 1.414, "000001.41"},
        {"%09.2f", -1.5, "-00001.50"},
        {"%05.0f", 1234567, "1234567"},
        {"%9.2e", 1000, "1.00e+03"},
        {"%10.3e", -0.000123456, "-1.235e-04"},
    });
}

TEST(StataFormat, DefaultLayoutsOfDates)
{
    expectTexts({
        {"%td", 0, "01jan1960"},
        {"%td", -1, "31dec1959"},
        {"%td", -0.5, "31dec1959"},
        {"%td", 14669.9, "29feb2000"},
        {"%td", -21855, "01mar1900"},
        {"%td", -679350, "01jan0100"},
        {"%td", 2936549, "31dec9999"},
        {"%d", 366, "01jan1961"},
        {"%-td", 0, "01jan1960"},
        {"%tc", 0, "01jan1960 00:00:00"},
        {"%tc", -1, "31dec1959 23:59:59"},
        {"%tc", 14670 * millisecondsPerDay - 1, "29feb2000 23:59:59"},
        {"%tC", 1000, "01jan1960 00:00:01"},
        {"%tw", 0, "1960w1"},
        {"%tw", 51, "1960w52"},
        {"%tw", -1, "1959w52"},
        {"%tm", 0, "1960m1"},
        {"%tm", 731, "2020m12"},
        {"%tm", -1, "1959m12"},
        {"%tq", 7, "1961q4"},
        {"%tq", -1, "1959q4"},
        {"%th", 1, "1960h2"},
        {"%th", -3, "1958h2"},
        {"%ty", 1960, "1960"},
        {"%ty", 100, "0100"},
    });
}

TEST(StataFormat, DetailCodesOfDays)
{
    constexpr double newYear2020 = 21915;  // a Wednesday
    expectTexts({
        {"%tdD_m_Y", newYear2020, "01 Jan 20"},
        {"%tdCCYY-NN-DD", newYear2020, "2020-01-01"},
        {"%tdnn/dd/YY", newYear2020, "1/1/20"},
        {"%tdDD/NN/CCYY", -22221, "28/02/1899"},
        {"%tdDayname,_Month_dd,_CCYY", newYear2020, "Wednesday, January 1, 2020"},
        {"%tdDa_Day_DAYNAME", newYear2020, "We Wed Wednesday"},
        {"%tdday-da", newYear2020, "wed-we"},
        {"%tdmon.month.MON.MONTH", newYear2020, "jan.january.JAN.JANUARY"},
        {"%tdM_d,_CY", 1645, "July 3, 1964"},
        {"%tdDlCY", 1645, "03jul1964"},
        {"%dN/D/Y", 1645, "07/03/64"},
        {"%tdCCYY.JJJ", 59, "1960.060"},
        {"%tdjjj\\j", 59, "60\\60"},
        {"%tdyy_cc", 14669, "0 20"},
        {"%tdCCYY!Qq!Hh!WWW", 16436, "2004Q4H2W52"},
        {"%tdww+q", 8, "21"},
        {"%td_DD_", 0, "01"},
        {"%tdHH:MM", 0, "00:00"},
    });
}

TEST(StataFormat, DetailCodesOfPeriods)
{
    expectTexts({
        {"%tmMon_CCYY", 731, "Dec 2020"},
        {"%tmNN/YY", -1, "12/59"},
        {"%tqCCYY!Qq", 7, "1961Q4"},
        {"%twCCYY-WW", 1, "1960-02"},
        {"%thh!H_CCYY", 1, "2H 1960"},
        {"%tyYY", 1999, "99"},
    });
}

TEST(StataFormat, DetailCodesOfTimes)
{
    constexpr double hour = 3'600'000;
    expectTexts({
        {"%tcHH:MM:SS", 86'399'999, "23:59:59"},
        {"%tcHH:MM:SS.sss", 3'661'007, "01:01:01.007"},
        {"%tc.s_.ss_.sss", 789, ".7 .78 .789"},
        {"%tcHH:MM:SS.sss", -1, "23:59:59.999"},
        {"%tcHH:MM:SS", 59'999, "00:00:59"},
        {"%tchh:MM_am", 0, "12:00 am"},
        {"%tchh:MM_am", 12 * hour, "12:00 pm"},
        {"%tcHh:MM_a.m.", 13 * hour, "01:00 p.m."},
        {"%tchH:mm:ss_AM", 3'661'000, "1:1:1 AM"},
        {"%tcHHMM_A.M.", 23 * hour, "2300 P.M."},
        {"%tcDDmonCCYY_HH:MM:SS", 14669 * millisecondsPerDay, "29feb2000 00:00:00"},
    });
}

TEST(StataFormat, WhatIsBeyondTheCalendarIsAPlainNumber)
{
    expectTexts({
        {"%td", -679351, "-679351"},
        {"%td", 2936550, "2936550"},
        {"%tc", 1e18, "1e+18"},
        {"%tm", -1e300, "-1e+300"},
        {"%tw", 2e6, "2000000"},
        {"%tq", -20000, "-20000"},
        {"%ty", 99, "99"},
        {"%ty", 65636 + 1960, "67596"},  // a year that would wrap round to a valid one in 16 bits
        {"%td", infinity, "inf"},
        {"%9.0g", -infinity, "-inf"},
    });
}

TEST(StataFormat, UnknownFormatsShowTheShortestText)
{
    expectTexts({
        {"", 0.5, "0.5"},
        {"%", 0.5, "0.5"},
        {"9.0g", 0.5, "0.5"},
        {"%9s", 42, "42"},
        {"%-20s", 0.1, "0.1"},
        {"%21x", 1.5, "1.5"},
        {"%16H", 1.5, "1.5"},
        {"%f", 1.5, "1.5"},
        {"%9.2", 1.5, "1.5"},
        {"%9.2fx", 1.5, "1.5"},
        {"%99999999999.2f", 1.5, "1.5"},
        {"%-1000000.2f", 1.5, "1.5"},
        {"%t", 3, "3"},
        {"%tbsimple", 3, "3"},
        {"%tdZZ", 3, "3"},
        {"%td!", 3, "3"},
    });
    EXPECT_EQ(stata::formatNumeric(3, "%td" + std::string(5000, 'M')), "3");
}

TEST(StataFormat, MissingIsAPointUnderEveryFormat)
{
    for (const char* format : {"", "%9.0g", "%9.2f", "%td", "%tcHH:MM", "%ty", "%9s", "%tdZZ"})
        EXPECT_EQ(stata::formatNumeric(std::nan(""), format), ".") << format;
}

TEST(NumberText, FixedTextHoldsTheLargestNumbersAndClampsDecimals)
{
    // 1e308 is not a power of ten in binary: its exact digits end in ...118336.
    const std::string huge = numbertext::fixed(-1e308, 40);
    EXPECT_EQ(huge.size(), 1U + 309U + 1U + 40U);
    EXPECT_EQ(huge.substr(0, 29), "-1000000000000000010979063629");
    EXPECT_EQ(huge.substr(297), "5430223118336." + std::string(40, '0'));
    EXPECT_EQ(numbertext::fixed(0.5, 1'000'000).size(), 102U);
    EXPECT_EQ(numbertext::fixed(2.6, -3), "3");
    EXPECT_EQ(numbertext::scientific(1.5, -1), "2e+00");
    EXPECT_EQ(numbertext::fixed(std::nan(""), 2), "nan");
    EXPECT_EQ(numbertext::fixed(-infinity, 2), "-inf");
}

TEST(NumberText, HalvesGoToTheEvenDigitOrAwayFromZero)
{
    numbertext::Buffer buffer;
    EXPECT_EQ(numbertext::fixed(2.5, 0), "2");
    EXPECT_EQ(numbertext::fixedHalfAway(2.5, 0, buffer), "3");
    EXPECT_EQ(numbertext::fixed(-0.125, 2), "-0.12");
    EXPECT_EQ(numbertext::fixedHalfAway(-0.125, 2, buffer), "-0.13");
    EXPECT_EQ(numbertext::fixedHalfAway(0.375, 2, buffer), "0.38");
    EXPECT_EQ(numbertext::fixedHalfAway(1.005, 2, buffer), "1.00");
    EXPECT_EQ(numbertext::fixedHalfAway(4503599627370495.5, 0, buffer), "4503599627370496");
    EXPECT_EQ(numbertext::fixedHalfAway(1e308, 0, buffer), numbertext::fixed(1e308, 0));
}

TEST(NumberText, ShortestTextReadsBackToTheSameNumber)
{
    const double values[] = {0.1, 1.0 / 3, -2.5, 1e-5, 123456789.123456789, 1e15, 5e-324, -1e308};
    for (const double value : values)
        EXPECT_EQ(readBack(numbertext::shortest(value)), value) << value;
    EXPECT_EQ(numbertext::shortest(0.00001), "0.00001");
    EXPECT_EQ(numbertext::shortest(0.000009), "9e-06");
    EXPECT_EQ(numbertext::shortest(999999999999999), "999999999999999");
    EXPECT_EQ(numbertext::shortest(1e15), "1e+15");
    EXPECT_EQ(numbertext::shortest(-0.0), "0");
}

TEST(NumberText, GroupsCountFromTheDecimalPoint)
{
    EXPECT_EQ(numbertext::grouped("1", ','), "1");
    EXPECT_EQ(numbertext::grouped("-123", ','), "-123");
    EXPECT_EQ(numbertext::grouped("-1234", ','), "-1,234");
    EXPECT_EQ(numbertext::grouped("1234567.8912", ','), "1,234,567.8912");
    EXPECT_EQ(numbertext::grouped("1234567.89", '.', ','), "1.234.567,89");
    EXPECT_EQ(numbertext::grouped("1.5e+10", ','), "1.5e+10");
}

TEST(NumberText, StackTextKeepsToItsCapacity)
{
    numbertext::StackText text;
    text.appendRepeated('x', 2000);
    text.append("y");
    text.appendInteger(12, 3);
    EXPECT_EQ(text.view(), std::string(numbertext::StackText::capacity, 'x'));
}

TEST(NumberText, StackTextPadsIntegersAndTrimsBlanks)
{
    numbertext::StackText text;
    text.append(' ');
    text.appendInteger(-7, 3);
    text.append(" aBc", numbertext::LetterCase::Upper);
    text.append("DeF ", numbertext::LetterCase::Lower);
    text.appendInteger(std::numeric_limits<std::int64_t>::min());
    text.append("  ");
    EXPECT_EQ(text.trimmed(), "-007 ABCdef -9223372036854775808");
    EXPECT_EQ(numbertext::StackText().trimmed(), "");
}

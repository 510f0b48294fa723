#include "data/values/NumberText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

TEST(NumberText, fixedTextHoldsTheLargestNumbersAndClampsDecimals)
{
    // 1e308 is not a power of ten in binary: its exact digits end in ...118336.
    const std::string huge = numbertext::fixed(-1e308, 40);
    EXPECT_EQ(huge.size(), 1U + 309U + 1U + 40U);
    EXPECT_EQ(huge.substr(0, 29), "-1000000000000000010979063629");
    EXPECT_EQ(huge.substr(297), "5430223118336." + std::string(40, '0'));
    EXPECT_EQ(numbertext::fixed(0.5, 1'000'000).size(), 102U);
    EXPECT_EQ(numbertext::fixed(2.6, -3), "3");
    EXPECT_EQ(numbertext::fixed(2.5, 0), "2") << "halves go to the even digit";
    EXPECT_EQ(numbertext::fixed(-HUGE_VAL, 2), "-inf");
}

TEST(NumberText, shortestTextReadsBackToTheSameNumber)
{
    for (const double value : {0.1, 1.0 / 3, -2.5, 123456789.123456789, -1e308}) {
        EXPECT_EQ(std::stod(numbertext::shortest(value)), value);
    }
    EXPECT_EQ(numbertext::shortest(0.00001), "0.00001");
    EXPECT_EQ(numbertext::shortest(0.000009), "9e-06");
    EXPECT_EQ(numbertext::shortest(999999999999999), "999999999999999");
    EXPECT_EQ(numbertext::shortest(1e15), "1e+15");
    EXPECT_EQ(numbertext::shortest(-0.0), "0");
}

TEST(NumberText, stackTextPadsTrimsAndKeepsToItsCapacity)
{
    numbertext::StackText text;
    text.append(' ');
    text.appendInteger(-7, 3);
    text.append(" aBc", numbertext::LetterCase::Upper);
    text.appendInteger(std::numeric_limits<std::int64_t>::min());
    text.append("  ");
    EXPECT_EQ(text.trimmed(), "-007 ABC-9223372036854775808");
    EXPECT_EQ(numbertext::StackText().trimmed(), "");
    text.appendRepeated('x', 2000);
    EXPECT_EQ(text.view().size(), numbertext::StackText::capacity);
}

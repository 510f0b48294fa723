#include "data/readers/SasDataset.h"
#include "data/readers/SasDoc.h"
#include "data/values/SasFormat.h"
#include "data/values/Texts.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <ostream>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

struct NumberCase
{
    const char* name;
    double number;
    const char* format;
    int width;
    int decimals;
    const char* shown;  ///< without blanks at the ends, as a cell shows it
};

std::ostream& operator<<(std::ostream& out, const NumberCase& one)
{
    return out << one.name;
}

class SasNumbers : public testing::TestWithParam<NumberCase>
{ };

TEST_P(SasNumbers, showAsSasWould)
{
    const NumberCase& one = GetParam();
    const std::string text =
        SasDoc().formatNumeric(one.number, one.format, one.width, one.decimals);
    EXPECT_EQ(texts::trimmed(text), one.shown);
}

INSTANTIATE_TEST_SUITE_P(
    Dates, SasNumbers,
    testing::Values(
        NumberCase{"epoch", 0, "DATE", 9, 0, "01Jan1960"},
        NumberCase{"dayBefore", -1, "DATE", 9, 0, "31Dec1959"},
        NumberCase{"fractionIsCut", 0.9, "DATE", 9, 0, "01Jan1960"},
        NumberCase{"negativeFractionIsCutTowardZero", -0.9, "DATE", 9, 0, "01Jan1960"},
        NumberCase{"leapDay", 14669, "DATE", 9, 0, "29Feb2000"},
        NumberCase{"widthInTheName", 0, "DATE9", 0, 0, "01Jan1960"},
        NumberCase{"lowerCaseName", 0, "date9", 0, 0, "01Jan1960"},
        NumberCase{"narrowWidthStillShowsAll", 0, "DATE", 5, 0, "01Jan1960"},
        NumberCase{"lastDayOfTheCalendar", 2936549, "DATE", 9, 0, "31Dec9999"},
        NumberCase{"beyondTheCalendarIsBest", 2936550, "DATE", 9, 0, "2936550"},
        NumberCase{"beyondTheIntegersIsBest", 1e10, "DATE", 12, 0, "10000000000"},
        NumberCase{"infinityIsBest", infinity, "DATE", 9, 0, "inf"},
        NumberCase{"dateTime", 0, "DATETIME", 20, 0, "01Jan1960:00:00:00"},
        NumberCase{"dateTimeBeforeTheEpoch", -1, "DATETIME", 20, 0, "31Dec1959:23:59:59"},
        NumberCase{"dateTimeFractionIsCut", -0.5, "DATETIME", 20, 0, "01Jan1960:00:00:00"},
        NumberCase{"lowerCaseDateTimeIsBest", 86400, "datetime", 20, 0, "86400"},
        NumberCase{"dateTimeWithWidthInTheNameIsBest", 86400, "DATETIME20", 20, 0, "86400"},
        NumberCase{"dateTimeBeyondTheIntegersIsBest", 1e30, "DATETIME", 3, 0, "100"},
        NumberCase{"time", 0, "TIME", 8, 0, "00:00:00"},
        NumberCase{"timeOfDayOnly", 90000, "TIME", 8, 0, "01:00:00"},
        NumberCase{"timeIsCutAtTheWidth", 90000, "TIME", 5, 0, "01:00"},
        NumberCase{"timeWithWidthZero", 3661, "TIME", 0, 0, "01:01:01"},
        NumberCase{"negativeTimeCountsBackFromMidnight", -1, "TIME", 8, 0, "23:59:59"}));

INSTANTIATE_TEST_SUITE_P(
    Numbers, SasNumbers,
    testing::Values(
        NumberCase{"bestWithoutDecimalsRounds", 3.14159, "BEST", 12, 0, "3"},
        NumberCase{"bestWithDecimals", 3.14159, "BEST", 12, 2, "3.14"},
        NumberCase{"bestIsCutAtItsWidth", 123456789012345, "BEST", 12, 0, "123456789012"},
        NumberCase{"widthZeroTakesTheDefault", 123456789012345, "BEST", 0, 0, "123456789012"},
        NumberCase{"noFormatWithWidthIsF", 2.5, "", 8, 2, "2.50"},
        NumberCase{"noFormatNoWidthIsBest", 2.75, "", 0, 1, "2.8"},
        NumberCase{"unknownFormatIsBest", 1234.5, "DOLLAR", 9, 2, "1234.50"},
        NumberCase{"date12IsUnknown", 0, "DATE12", 12, 0, "0"},
        NumberCase{"lowerCaseBest", 7, "best", 12, 0, "7"},
        NumberCase{"widthBeyondTheMaximum", 3, "BEST", 40, 0, "3"},
        NumberCase{"largest", 1e308, "F", 32, 0, "10000000000000000109790636294404"},
        NumberCase{"manyDecimals", 0.1, "F", 32, 40, "0.100000000000000005551115123125"},
        NumberCase{"absurdDecimals", 0.5, "F", 5, 65535, "0.500"},
        NumberCase{"negativeInfinityIsMissing", -infinity, "DATE", 9, 0, "."},
        NumberCase{"nan", notANumber, "BEST", 12, 0, "nan"},
        NumberCase{"nanDate", notANumber, "DATE", 9, 0, "nan"},
        NumberCase{"negativeNan", -notANumber, "DATETIME", 20, 0, "nan"},
        NumberCase{"nanTime", notANumber, "TIME", 2, 0, "nan"}));

TEST(SasNumberWidth, fixedPointFillsItsWidthFromTheRight)
{
    EXPECT_EQ(SasDoc().formatNumeric(2.5, "F", 8, 2), "    2.50");
    EXPECT_EQ(SasDoc().formatNumeric(-1, "BEST", 4, 0), "  -1");
}

TEST(SasTexts, dollarCutsToItsFirstCharacters)
{
    const SasDoc doc;
    EXPECT_EQ(doc.formatCharacter("abcdef", "$", 3, 0), "abc");
    EXPECT_EQ(doc.formatCharacter("abcdef", "$", 0, 0), "a") << "the default width of $ is 1";
    EXPECT_EQ(doc.formatCharacter("abcdef", "", 3, 0), "abcdef") << "no format shows all";
    EXPECT_EQ(doc.formatCharacter("M\xC3\xBCller", "$", 2, 0), "M\xC3\xBC")
        << "characters, not bytes";
    EXPECT_EQ(doc.formatCharacter("abc", "$", 40000, 0), "abc");
    EXPECT_EQ(doc.formatCharacter("abcdef", "$GENDER", 0, 0), "abcdef");
}

TEST(SasFormatNames, fallIntoFiveFamilies)
{
    using sasformat::Canonical;
    const auto canonical = [](const char* name) { return sasformat::normalise(name).canonical; };
    EXPECT_EQ(canonical("DATE"), Canonical::Date);
    EXPECT_EQ(canonical("DATE11"), Canonical::Date);
    EXPECT_EQ(canonical("DATE4"), Canonical::None);
    EXPECT_EQ(canonical("XDATE9"), Canonical::None) << "the whole name counts";
    EXPECT_EQ(canonical("TIME8"), Canonical::None);
    EXPECT_EQ(canonical("F"), Canonical::Fixed);
    EXPECT_EQ(canonical("f"), Canonical::None);
    EXPECT_EQ(canonical(""), Canonical::None);
    const sasformat::Descriptor date = sasformat::normalise("date7");
    EXPECT_EQ(sasformat::canonicalName(date.canonical), "DATE");
    EXPECT_EQ(date.minimumWidth, 5);
    EXPECT_EQ(date.maximumWidth, 11);
    EXPECT_EQ(date.defaultWidth, 7);
    EXPECT_EQ(date.upperLimit, 8);
}

TEST(SasFormatText, isPrintedAsSasPrintsIt)
{
    EXPECT_EQ(sasFormatText("DATE", 9, 0), "DATE9.");
    EXPECT_EQ(sasFormatText("", 8, 2), "8.2");
    EXPECT_EQ(sasFormatText("$", 0, 0), "$.");
    EXPECT_EQ(sasFormatText("", 0, 0), "");
}

}  // namespace

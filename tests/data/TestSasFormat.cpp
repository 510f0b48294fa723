#include "data/readers/SasDataset.h"
#include "data/readers/SasDoc.h"
#include "data/values/SasFormat.h"
#include "data/values/Texts.h"
#include "tests/data/FormatTable.h"

#include <sstream>

namespace {

/// What a cell shows under a format that is written as name, width and decimals; "-" for no name.
std::string shown(double number, std::string_view spec)
{
    std::istringstream parts{std::string(spec)};
    std::string name;
    int width = 0;
    int decimals = 0;
    parts >> name >> width >> decimals;
    return texts::trimmed(SasDoc().formatNumeric(number, name == "-" ? "" : name, width, decimals));
}

// Dates and times are cut toward zero, and what is beyond the calendar shows as a number. A name
// that is not known in these letters is BEST, and so is none at all unless there is a width.
TEST(SasNumbers, showAsSasWould)
{
    expectTexts(shown, R"(
        DATE 9 0 | 0 = 01Jan1960 | -1 = 31Dec1959 | 0.9 = 01Jan1960 | -0.9 = 01Jan1960
        DATE 9 0 | 14669 = 29Feb2000 | 2936549 = 31Dec9999 | 2936550 = 2936550
        DATE 9 0 | inf = inf | -inf = . | nan = nan
        DATE9 0 0 | 0 = 01Jan1960 || date9 0 0 | 0 = 01Jan1960 || DATE 5 0 | 0 = 01Jan1960
        DATE 9 0 | 1e10 = 10000000000 | -1e10 = -10000000000 | 1e20 = 1e+20
        DATETIME 20 0 | 0 = 01Jan1960:00:00:00 | -1 = 31Dec1959:23:59:59
        DATETIME 20 0 | -0.5 = 01Jan1960:00:00:00 | -nan = nan
        datetime 20 0 | 86400 = 86400 || DATETIME20 20 0 | 86400 = 86400
        DATETIME 3 0 | 1e30 = 1e+30 || TIME 5 2 | 1234567890123.5 = 1234567890123.50 || TIME 8 0 | 0 = 00:00:00 | 90000 = 01:00:00 | -1 = 23:59:59
        TIME 5 0 | 90000 = 01:00 || TIME 0 0 | 3661 = 01:01:01
        BEST 12 0 | 3.14159 = 3 | 123456789012345 = 123456789012 | nan = nan
        BEST 12 2 | 3.14159 = 3.14 || BEST 0 0 | 123456789012345 = 123456789012
        - 8 2 | 2.5 = 2.50 || - 0 1 | 2.75 = 2.8 || DOLLAR 9 2 | 1234.5 = 1234.50
        DATE12 12 0 | 0 = 0 || best 12 0 | 7 = 7 || BEST 40 0 | 3 = 3
        F 32 0 | 1e308 = 10000000000000000109790636294404
        F 32 40 | 0.1 = 0.100000000000000005551115123125 || F 5 65535 | 0.5 = 0.500
        TIME 2 0 | nan = nan)");
}

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

#include "data/values/DisplayFormat.h"
#include "data/values/IsoTime.h"
#include "tests/data/FormatTable.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

/// What a number shows under a format that is written as in a file; "-" for none.
std::string shown(double number, std::string_view format)
{
    const auto parts = displayformat::partsOf(format == "-" ? "" : format);
    return displayformat::number(number, parts.name, parts.width, parts.decimals);
}

// Days and seconds from 1960. 19718 is 26 December 2013, 1703680496.5 a moment of that day.
TEST(DisplayFormat, losesNothingOfANumberOrADate)
{
    expectTexts(shown, R"(
        - | 0.1 = 0.1 | 1e300 = 1e+300 | 123456789012345678 = 123456789012345680 | -0.0 = 0
        - | -1e17 = -100000000000000000 | nan = . | 1e18 = 1e+18
        8.2 | 2.5 = 2.50 | -0.0 = 0.00 | 123456789.125 = 123456789.12 || 8. | 1.6 = 2 || F5.1 | 0.25 = 0.2
        BEST12. | 3.14159 = 3.14159 || AGEGRP. | 1.5 = 1.5 || %tq | 2 = 2
        DATE9. | 0 = 01Jan1960 | 19718.9 = 26Dec2013 | -1 = 31Dec1959 | nan = . | 1e9 = 1000000000
        date9 | 19718 = 26Dec2013 || DATE | 19718 = 26Dec2013
        E8601DA. | 19718 = 2013-12-26 || B8601DA8. | 19718 = 20131226 || WEEKDATE29. | 19718 = 2013-12-26
        YYMMDD10. | 19718 = 2013-12-26 || YYMMDD8. | 19718 = 13-12-26 || YYMMDDN8. | 19718 = 20131226
        DDMMYY10. | 19718 = 26/12/2013 || DDMMYYP10. | 19718 = 26.12.2013 || MMDDYY6. | 19718 = 122613
        DATETIME20. | 1703680496.5 = 26Dec2013:12:34:56 | -1 = 31Dec1959:23:59:59
        DATETIME22.2 | 1703680496.599 = 26Dec2013:12:34:56.59 || DTDATE9. | 1703680496 = 26Dec2013
        E8601DT. | 1703680496.5 = 2013-12-26T12:34:56.5 | 0 = 1960-01-01T00:00:00 || E8601DT19. | 1703680496.5 = 2013-12-26T12:34:56
        B8601DT15. | 1703680496 = 20131226T123456 || E8601DN10. | 1703680496 = 2013-12-26
        TIME8. | 45296.5 = 12:34:56 | 86400 = 24:00:00 | -60 = -00:01:00 || TIME5. | 45296 = 12:34
        E8601TM. | 45296.25 = 12:34:56.25 | 0.999 = 00:00:00.999 || HHMM. | 45296 = 12:34
    )");
}

TEST(IsoTime, readsWholeDatesAndTimesOnly)
{
    const auto same = [](const std::optional<double>& count, double expected) {
        return std::isnan(expected) ? !count.has_value() : count == expected;
    };
    const double none = std::nan("");
    const std::pair<const char*, double> dates[] = {
        {"1960-01-01", 0},       {"1959-12-31", -1},
        {"2013-12-26", 19718},   {"2000-02-29", 14669},
        {"9999-12-31", 2936549}, {"1900-02-29", none},
        {"2013-04-31", none},    {"2013-13-01", none},
        {"2013-00-01", none},    {"2013-01-00", none},
        {"2013-12", none},       {"2013", none},
        {"13-12-26", none},      {"2013-12-26T", none},
        {"--02-28", none},       {"", none},
        {"2013-1-026", none},
    };
    for (const auto& [text, count] : dates) {
        EXPECT_TRUE(same(isotime::date(text), count)) << text;
    }
    const std::pair<const char*, double> times[] = {
        {"00:00", 0},        {"12:34:56.25", 45296.25}, {"24:00:00", 86400}, {"24:00:01", none},
        {"23:60", none},     {"23:59:60", none},        {"25:00", none},     {"12", none},
        {"12:34:56.", none}, {"12:34Z", 45240},         {"1:30", none},
    };
    for (const auto& [text, count] : times) {
        EXPECT_TRUE(same(isotime::time(text), count)) << text;
    }
    const std::pair<const char*, double> moments[] = {
        {"1960-01-02T00:00:01", 86401},
        {"1959-12-31T23:59", -60},
        {"1960-01-01T02:00:00.5+02:00", 7200.5},
        {"1960-01-01 01:00", 3600},
        {"1960-01-01T24:00:00", none},
        {"1960-01-01", none},
        {"1960-01-01T", none},
        {"1960-01-01T01:00:00+2", none},
    };
    for (const auto& [text, count] : moments) {
        EXPECT_TRUE(same(isotime::dateTime(text), count)) << text;
    }
    EXPECT_TRUE(isotime::hasOffset("1960-01-01T02:00-05:00"));
    EXPECT_FALSE(isotime::hasOffset("1960-01-01T02:00Z") || isotime::hasOffset("1960-01-01"));
}

}  // namespace

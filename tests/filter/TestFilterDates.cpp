#include "tests/filter/Selecting.h"

namespace {

using Rows = std::vector<int>;

// 2020-01-01: day 21915 from 1960, 18262 from 1970; 13 797 216 000 seconds from 1582-10-14.
constexpr double newYear = 21915;
constexpr double newYearInR = 18262;
constexpr double newYearInSpss = 13797216000.0;
constexpr double day = 86400;

TEST(FilterDates, areSasCountsInSasData)
{
    FormattedDataset dataset(SourceKind::Sas);
    dataset.variable("D", TypeCode::Double, "DATE")
        .variable("DT", TypeCode::Double, "DATETIME")
        .variable("T", TypeCode::Double, "TIME")
        .row({newYear - 1, (newYear - 1) * day, 0.0})
        .row({newYear, newYear * day + 45015, 45015.0})
        .row({ScriptedDataset::missing, ScriptedDataset::missing, 90000.0});
    EXPECT_EQ(selected(dataset, "D = '01JAN2020'd"), Rows{2});
    EXPECT_EQ(selected(dataset, "D < \"1-Jan-20\"D"), (Rows{1, 3})) << "missing is less";
    EXPECT_EQ(selected(dataset, "D in ('31DEC2019'd, '01JAN2020'd)"), (Rows{1, 2}));
    EXPECT_EQ(selected(dataset, "DT >= '01JAN2020:12:30:15'dt"), Rows{2});
    EXPECT_EQ(selected(dataset, "DT > '01JAN2020:12:30:15'dt"), Rows{});
    EXPECT_EQ(selected(dataset, "T >= '12:30:15't"), (Rows{2, 3}));
    EXPECT_EQ(selected(dataset, "T = '25:00't"), Rows{3});
    EXPECT_EQ(selected(dataset, "DT > '01JAN2020'd"), (Rows{1, 2}))
        << "seconds and days meet as plain numbers, as they do in SAS";
}

TEST(FilterDates, areSecondsFrom1582InSpssData)
{
    FormattedDataset dataset(SourceKind::Spss);
    dataset.variable("D", TypeCode::Double, "DATE11")
        .variable("DT", TypeCode::Double, "DATETIME20")
        .variable("T", TypeCode::Double, "TIME8")
        .row({newYearInSpss - day, newYearInSpss - 1, 3600.0})
        .row({newYearInSpss, newYearInSpss + 45000, 45000.0});
    EXPECT_EQ(selected(dataset, "D = '01JAN2020'd"), Rows{2});
    EXPECT_EQ(selected(dataset, "D < '01JAN2020'd"), Rows{1});
    EXPECT_EQ(selected(dataset, "D in ('31DEC2019'd)"), Rows{1});
    EXPECT_EQ(selected(dataset, "DT >= '01JAN2020'd"), Rows{2}) << "a date is its midnight";
    EXPECT_EQ(selected(dataset, "DT = '01JAN2020:12:30'dt"), Rows{2});
    EXPECT_EQ(selected(dataset, "DT = '31DEC2019:23:59:59'dt"), Rows{1});
    EXPECT_EQ(selected(dataset, "T = '12:30't"), Rows{2}) << "a time has no epoch";
    EXPECT_EQ(selected(dataset, "D = 13797216000"), Rows{2}) << "a number is a number";
}

TEST(FilterDates, countFrom1970InRData)
{
    FormattedDataset dataset(SourceKind::R);
    dataset.variable("d", TypeCode::Double, "%d%b%Y")
        .variable("p", TypeCode::Double, "%d%b%Y:%H:%M:%S")
        .variable("n", TypeCode::Double)
        .row({newYearInR, newYearInR * day + 45015, newYear})
        .row({newYearInR + 1, newYearInR * day - 1, newYear + 1});
    EXPECT_EQ(selected(dataset, "d = '01JAN2020'd"), Rows{1});
    EXPECT_EQ(selected(dataset, "d > '01JAN2020:12:00'dt"), Rows{2});
    EXPECT_EQ(selected(dataset, "d = '02JAN2020:00:00'dt"), Rows{2});
    EXPECT_EQ(selected(dataset, "p = '01JAN2020:12:30:15'dt"), Rows{1});
    EXPECT_EQ(selected(dataset, "p < '01JAN2020'd"), Rows{2});
    EXPECT_EQ(selected(dataset, "n = '01JAN2020'd"), Rows{1}) << "without a format a plain number";
}

TEST(FilterDates, followTheFormatInStataData)
{
    FormattedDataset dataset(SourceKind::Stata);
    dataset.variable("td", TypeCode::Int32, "%tdDD/NN/CCYY")
        .variable("old", TypeCode::Float, "%-dD_m_Y")
        .variable("tc", TypeCode::Double, "%tc")
        .variable("tC", TypeCode::Double, "%-tCHH:MM")
        .variable("tm", TypeCode::Int16, "%tm")
        .variable("n", TypeCode::Double, "%9.0g")
        .row({newYear, newYear, newYear * day * 1000, newYear * day * 1000, 720.0, newYear})
        .row({newYear + 1, newYear + 1, 45000000.0, 0.5, 721.0, 1.0});
    EXPECT_EQ(selected(dataset, "td = '01JAN2020'd"), Rows{1});
    EXPECT_EQ(selected(dataset, "td > '01JAN2020:12:00'dt"), Rows{2});
    EXPECT_EQ(selected(dataset, "old = '02JAN2020'd"), Rows{2});
    EXPECT_EQ(selected(dataset, "tc = '01JAN2020:00:00'dt"), Rows{1});
    EXPECT_EQ(selected(dataset, "tc >= '01JAN2020'd"), Rows{1});
    EXPECT_EQ(selected(dataset, "tc = '12:30't"), Rows{2}) << "a clock time in milliseconds";
    EXPECT_EQ(selected(dataset, "tC < '01JAN1960:00:00:01'dt"), Rows{2});
    EXPECT_EQ(selected(dataset, "tm = 721"), Rows{2});
    EXPECT_EQ(refusal(dataset, "tm = '01JAN2020'd"),
              "tm does not count days or seconds and cannot be compared with a date or time");
    EXPECT_EQ(selected(dataset, "n = '01JAN2020'd"), Rows{1});
}

}  // namespace

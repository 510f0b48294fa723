#include "grid/filter/DateLiteral.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

using Table = std::vector<std::pair<const char*, double>>;

void check(std::optional<double> (*parse)(std::string_view), const Table& counts,
           const std::vector<const char*>& refused)
{
    for (const auto& [text, count] : counts) {
        EXPECT_EQ(parse(text), count) << text;
    }
    for (const char* text : refused) {
        EXPECT_EQ(parse(text), std::nullopt) << text;
    }
}

// The day numbers come from another calendar: Python's datetime.date.
TEST(DateLiteral, readsDates)
{
    const Table dates{
        {"01JAN1960", 0},         {"31dec1959", -1},      {"01Jan2020", 21915},
        {"29FEB2020", 21974},     {"1-jan-20", 21915},    {"01 JAN 2020", 21915},
        {" 01/jan/2020 ", 21915}, {"1.Jan.2020", 21915},  {"01JAN26", -12418},
        {"01JAN25", 23742},       {"31DEC99", 14609},     {"01JAN00", 14610},
        {"01JAN1582", -138061},   {"31DEC9999", 2936549},
    };
    check(dateliteral::parseDate, dates,
          {"", "01JAN", "JAN2020", "01JAN2020x", "31FEB2020", "29FEB2019", "29FEB1900", "00JAN2020",
           "32JAN2020", "01XYZ2020", "01JAN020", "01JAN20200", "001JAN2020", "01JANUARY2020",
           "2020-01-01", "01JAN1581", "01JAN-2020-", "-1JAN2020", "01JAN2020:00:00"});
}

TEST(DateLiteral, readsTimes)
{
    const Table times{
        {"00:00", 0},         {"12:30", 45000},        {"9:05", 32700},
        {"23:59:59", 86399},  {"12:30:15.5", 45015.5}, {"0:00:0.1", 0.1},
        {"12:30am", 1800},    {"12:30 PM", 45000},     {"9:27:05am", 34025},
        {"9:27:05Pm", 77225}, {"25:00", 90000},        {"100:00", 360000},
        {"0:30pm", 45000},    {" 12:30 ", 45000},
    };
    check(dateliteral::parseTime, times,
          {"", "12", "12:", "12:60", "12:30:60", "12:30:", "13:00pm", "-1:00", "12:30x", "12:30amm",
           "12.30", ":30", "12:300", "12:30:15:00"});
}

TEST(DateLiteral, readsDateTimes)
{
    const Table dateTimes{
        {"01JAN1960:00:00", 0},
        {"31DEC1959:23:59:59", -1},
        {"01jan2020:12:30:15", 1893501015},
        {"01-JAN-2020 12:30", 1893501000},
        {"18jan2003:9:27:05am", 1358501225},
        {"01JAN1960:00:00:00.25", 0.25},
    };
    check(dateliteral::parseDateTime, dateTimes,
          {"", "01JAN2020", "01JAN2020:", "01JAN2020:12", "01JAN2020:24:00", "30FEB2020:12:00",
           "01JAN202012:00", "12:00"});
}

TEST(DateLiteral, writesOnlyWhatReadsBack)
{
    EXPECT_EQ(dateliteral::formatDate(-138061), "01JAN1582");
    for (const double days : {0.5, -138062.0, 2936550.0, 1e300, -1e15}) {
        EXPECT_EQ(dateliteral::formatDate(days), std::nullopt) << days;
    }
    for (const double seconds : {-1.0, 86400.0, 12.5, 1e300}) {
        EXPECT_EQ(dateliteral::formatTime(seconds), std::nullopt) << seconds;
    }
    EXPECT_EQ(dateliteral::formatDateTime(0.25), std::nullopt);
    EXPECT_EQ(dateliteral::formatDateTime(1e17), std::nullopt);
}

}  // namespace

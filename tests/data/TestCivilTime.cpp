#include "data/values/CivilTime.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

struct KnownDay
{
    const char* name;
    std::int64_t days;
    civil::Date date;
    int weekday;
    int dayOfYear;
};

constexpr KnownDay knownDays[] = {
    {"epoch", 0, {1970, 1, 1}, 4, 1},
    {"day before the epoch", -1, {1969, 12, 31}, 3, 365},
    {"start of 1960", -3653, {1960, 1, 1}, 5, 1},
    {"leap day of a century", 11016, {2000, 2, 29}, 2, 60},
    {"no leap day in 1900", -25508, {1900, 3, 1}, 4, 60},
    {"end of a leap year", 12783, {2004, 12, 31}, 5, 366},
    {"first Gregorian day", -141427, {1582, 10, 15}, 5, 288},
    {"last four-digit day", 2932896, {9999, 12, 31}, 5, 365},
    {"year one", -719162, {1, 1, 1}, 1, 1},
};

}  // namespace

TEST(CivilTime, KnownDaysHaveTheirDatesAndWeekdays)
{
    for (const KnownDay& known : knownDays) {
        SCOPED_TRACE(known.name);
        EXPECT_EQ(civil::dateFromDays(known.days), known.date);
        EXPECT_EQ(civil::daysFromDate(known.date), known.days);
        EXPECT_EQ(civil::weekday(known.days), known.weekday);
        EXPECT_EQ(civil::dayOfYear(known.date), known.dayOfYear);
    }
}

TEST(CivilTime, EveryDayOfFourCenturiesFollowsTheOneBefore)
{
    auto previous = civil::dateFromDays(civil::dayOf1582October14);
    ASSERT_EQ(previous, (civil::Date{1582, 10, 14}));
    for (std::int64_t days = civil::dayOf1582October14 + 1; days < 11017; ++days) {
        const auto date = civil::dateFromDays(days);
        ASSERT_TRUE(date);
        ASSERT_EQ(civil::daysFromDate(*date), days);
        const bool sameMonth = date->month == previous->month && date->day == previous->day + 1;
        const bool nextMonth = date->day == 1 && previous->day >= 28
            && date->month == previous->month % 12 + 1
            && date->year == previous->year + (date->month == 1 ? 1 : 0);
        ASSERT_TRUE(sameMonth || nextMonth) << days;
        previous = date;
    }
    EXPECT_EQ(previous, (civil::Date{2000, 2, 29}));
}

TEST(CivilTime, DaysBeyondTheCalendarHaveNoDate)
{
    EXPECT_TRUE(civil::dateFromDays(11248737));
    EXPECT_FALSE(civil::dateFromDays(11248738));
    EXPECT_TRUE(civil::dateFromDays(-12687428));
    EXPECT_FALSE(civil::dateFromDays(-12687429));
    EXPECT_FALSE(civil::dateFromDays(std::numeric_limits<std::int64_t>::min()));
}

TEST(CivilTime, SplitsSecondsTowardThePast)
{
    EXPECT_EQ(civil::floorDivide(-7, 7), -1);
    EXPECT_EQ(civil::floorModulo(-7, 7), 0);
    EXPECT_EQ(civil::splitSeconds(-1), (civil::DayAndSecond{-1, 86399}));
    EXPECT_EQ(civil::splitSeconds(86400), (civil::DayAndSecond{1, 0}));
    EXPECT_EQ(civil::timeOfDay(3661), (civil::TimeOfDay{1, 1, 1}));
}

TEST(CivilTime, OnlyNumbersInRangeBecomeIntegers)
{
    EXPECT_EQ(civil::floorToInteger(-0.5), -1);
    EXPECT_EQ(civil::floorToInteger(2.999), 2);
    EXPECT_FALSE(civil::floorToInteger(1e18));
    EXPECT_FALSE(civil::floorToInteger(std::nan("")));
}

TEST(CivilTime, NamesAreEmptyOutsideTheirRange)
{
    EXPECT_EQ(civil::monthName(0), "");
    EXPECT_EQ(civil::monthAbbreviation(13), "");
    EXPECT_EQ(civil::weekdayName(-1), "");
    EXPECT_EQ(civil::weekdayAbbreviation(7), "");
}

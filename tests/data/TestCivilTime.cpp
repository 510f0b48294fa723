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
    civil::IsoWeek isoWeek;
};

constexpr KnownDay knownDays[] = {
    {"epoch", 0, {1970, 1, 1}, 4, 1, {1970, 1}},
    {"day before the epoch", -1, {1969, 12, 31}, 3, 365, {1970, 1}},
    {"start of 1960", -3653, {1960, 1, 1}, 5, 1, {1959, 53}},
    {"leap day of a century", 11016, {2000, 2, 29}, 2, 60, {2000, 9}},
    {"no leap day in 1900", -25508, {1900, 3, 1}, 4, 60, {1900, 9}},
    {"end of a leap year", 12783, {2004, 12, 31}, 5, 366, {2004, 53}},
    {"week of the year before", 13879, {2008, 1, 1}, 2, 1, {2008, 1}},
    {"Sunday that ends a year", 19722, {2023, 12, 31}, 0, 365, {2023, 52}},
    {"first Gregorian day", -141427, {1582, 10, 15}, 5, 288, {1582, 41}},
    {"last four-digit day", 2932896, {9999, 12, 31}, 5, 365, {9999, 52}},
    {"year one", -719162, {1, 1, 1}, 1, 1, {1, 1}},
};

}  // namespace

TEST(CivilTime, KnownDaysHaveTheirDatesWeekdaysAndWeeks)
{
    for (const KnownDay& known : knownDays) {
        SCOPED_TRACE(known.name);
        EXPECT_EQ(civil::dateFromDays(known.days), known.date);
        EXPECT_EQ(civil::daysFromDate(known.date), known.days);
        EXPECT_EQ(civil::weekday(known.days), known.weekday);
        EXPECT_EQ(civil::dayOfYear(known.date), known.dayOfYear);
        EXPECT_EQ(civil::isoWeek(known.date), known.isoWeek);
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
    EXPECT_FALSE(civil::dateFromDays(std::numeric_limits<std::int64_t>::max()));
    EXPECT_FALSE(civil::dateFromDays(std::numeric_limits<std::int64_t>::min()));
}

TEST(CivilTime, DivisionRoundsTowardThePast)
{
    EXPECT_EQ(civil::floorDivide(7, 7), 1);
    EXPECT_EQ(civil::floorDivide(-1, 7), -1);
    EXPECT_EQ(civil::floorDivide(-7, 7), -1);
    EXPECT_EQ(civil::floorModulo(-1, 7), 6);
    EXPECT_EQ(civil::floorModulo(-7, 7), 0);
    EXPECT_EQ(civil::splitSeconds(-1), (civil::DayAndSecond{-1, 86399}));
    EXPECT_EQ(civil::splitSeconds(86400), (civil::DayAndSecond{1, 0}));
    EXPECT_EQ(civil::timeOfDay(86399), (civil::TimeOfDay{23, 59, 59}));
    EXPECT_EQ(civil::timeOfDay(3661), (civil::TimeOfDay{1, 1, 1}));
}

TEST(CivilTime, OnlyNumbersInRangeBecomeIntegers)
{
    EXPECT_EQ(civil::floorToInteger(-0.5), -1);
    EXPECT_EQ(civil::floorToInteger(2.999), 2);
    EXPECT_EQ(civil::floorToInteger(-9e17), -900'000'000'000'000'000);
    EXPECT_FALSE(civil::floorToInteger(1e18));
    EXPECT_FALSE(civil::floorToInteger(-1e300));
    EXPECT_FALSE(civil::floorToInteger(std::nan("")));
    EXPECT_FALSE(civil::floorToInteger(std::numeric_limits<double>::infinity()));
}

TEST(CivilTime, QuartersStartInJanuaryAprilJulyAndOctober)
{
    const int expected[] = {1, 1, 1, 2, 2, 2, 3, 3, 3, 4, 4, 4};
    for (int month = 1; month <= 12; ++month)
        EXPECT_EQ(civil::quarter({2021, month, 1}), expected[month - 1]) << month;
}

TEST(CivilTime, NamesAreEnglishAndEmptyOutsideTheirRange)
{
    EXPECT_EQ(civil::monthName(1), "January");
    EXPECT_EQ(civil::monthName(12), "December");
    EXPECT_EQ(civil::monthAbbreviation(9), "Sep");
    EXPECT_EQ(civil::weekdayName(0), "Sunday");
    EXPECT_EQ(civil::weekdayAbbreviation(6), "Sat");
    EXPECT_EQ(civil::monthName(0), "");
    EXPECT_EQ(civil::monthAbbreviation(13), "");
    EXPECT_EQ(civil::weekdayName(-1), "");
    EXPECT_EQ(civil::weekdayAbbreviation(7), "");
}

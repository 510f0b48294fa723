#include "data/values/CivilTime.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

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

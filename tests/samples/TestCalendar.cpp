#include "samples/Calendar.h"

#include <gtest/gtest.h>

namespace {

using namespace samples;

const auto noon = at(makeDate(2023, 5, 7), 9, 3);

TEST(Calendar, writesAMomentAsFarAsItIsKnown)
{
    EXPECT_EQ(isoText(noon, Precision::Year), "2023");
    EXPECT_EQ(isoText(noon, Precision::Month), "2023-05");
    EXPECT_EQ(isoText(noon, Precision::Day), "2023-05-07");
    EXPECT_EQ(isoText(noon, Precision::Minute), "2023-05-07T09:03");
}

TEST(Calendar, countsAsSasDoes)
{
    EXPECT_EQ(sasDate(makeDate(1960, 1, 1)), 0);
    EXPECT_EQ(sasDate(makeDate(1959, 12, 31)), -1);
    EXPECT_EQ(sasDate(makeDate(2020, 1, 1)), 21915);
    EXPECT_EQ(sasDateTime(at(makeDate(1960, 1, 2), 0, 1)), 86460);
    EXPECT_EQ(sasTime(noon), 32580);
}

TEST(Calendar, studyDaysHaveNoZero)
{
    const auto reference = makeDate(2024, 3, 1);
    EXPECT_EQ(studyDay(reference, reference), 1);
    EXPECT_EQ(studyDay(makeDate(2024, 2, 29), reference), -1);
    EXPECT_EQ(studyDay(makeDate(2024, 3, 31), reference), 31);
}

TEST(Calendar, boundsOfAPartlyKnownMoment)
{
    const auto inLeapYear = at(makeDate(2024, 2, 10), 12, 0);
    EXPECT_EQ(firstPossible(inLeapYear, Precision::Month), makeDate(2024, 2, 1));
    EXPECT_EQ(lastPossible(inLeapYear, Precision::Month), makeDate(2024, 2, 29));
    EXPECT_EQ(firstPossible(inLeapYear, Precision::Year), makeDate(2024, 1, 1));
    EXPECT_EQ(lastPossible(inLeapYear, Precision::Year), makeDate(2024, 12, 31));
    EXPECT_EQ(lastPossible(inLeapYear, Precision::Minute), makeDate(2024, 2, 10));
}

TEST(Calendar, ageGrowsOnTheBirthday)
{
    EXPECT_EQ(yearsBetween(makeDate(1980, 6, 15), makeDate(2023, 6, 14)), 42);
    EXPECT_EQ(yearsBetween(makeDate(1980, 6, 15), makeDate(2023, 6, 15)), 43);
}

}  // namespace

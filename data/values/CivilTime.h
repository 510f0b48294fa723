#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

/// Calendar arithmetic in the proleptic Gregorian calendar. Days are counted from 1970-01-01, which
/// is day 0; years before 1 are written astronomically (0 is 1 BC).
namespace civil {

struct Date
{
    int year = 1970;
    int month = 1;  ///< 1 to 12
    int day = 1;  ///< 1 to 31

    bool operator==(const Date&) const = default;
};

struct TimeOfDay
{
    int hour = 0;
    int minute = 0;
    int second = 0;

    bool operator==(const TimeOfDay&) const = default;
};

/// A count of seconds split at midnight.
struct DayAndSecond
{
    std::int64_t day = 0;
    std::int64_t second = 0;  ///< 0 to 86399

    bool operator==(const DayAndSecond&) const = default;
};

/// The days on which the other calendars of the file formats begin.
inline constexpr std::int64_t dayOf1582October14 = -141428;
inline constexpr std::int64_t dayOf1960January1 = -3653;

inline constexpr std::int64_t secondsPerDay = 86400;

/// Quotient and remainder that round toward minus infinity; the divisor is positive.
[[nodiscard]] constexpr std::int64_t floorDivide(std::int64_t value, std::int64_t divisor)
{
    return value / divisor - (value % divisor < 0 ? 1 : 0);
}
[[nodiscard]] constexpr std::int64_t floorModulo(std::int64_t value, std::int64_t divisor)
{
    return value - floorDivide(value, divisor) * divisor;
}

/// The largest whole number not above value; nothing for NaN, infinities and magnitudes of 1e18 and
/// more, so that sums of the result with any epoch cannot overflow.
[[nodiscard]] std::optional<std::int64_t> floorToInteger(double value);

/// Nothing for days outside the years -32767 to 32767.
[[nodiscard]] std::optional<Date> dateFromDays(std::int64_t days);

/// The date must exist and lie in the years -32767 to 32767; months and days are not normalised.
[[nodiscard]] std::int64_t daysFromDate(const Date& date);

[[nodiscard]] DayAndSecond splitSeconds(std::int64_t seconds);

/// @param secondOfDay  0 to 86399
[[nodiscard]] TimeOfDay timeOfDay(std::int64_t secondOfDay);

/// 0 is Sunday, 6 is Saturday.
[[nodiscard]] int weekday(std::int64_t days);

/// 1 to 366.
[[nodiscard]] int dayOfYear(const Date& date);

/// 1 to 4.
[[nodiscard]] int quarter(const Date& date);

/// English names with an initial capital, the same in every locale. An index outside the range
/// gives an empty text.
[[nodiscard]] std::string_view monthName(int month);  ///< 1 is "January"
[[nodiscard]] std::string_view monthAbbreviation(int month);  ///< 1 is "Jan"
[[nodiscard]] std::string_view weekdayName(int weekday);  ///< 0 is "Sunday"
[[nodiscard]] std::string_view weekdayAbbreviation(int weekday);  ///< 0 is "Sun"

}  // namespace civil

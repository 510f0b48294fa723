#include "data/values/CivilTime.h"

#include <array>
#include <chrono>
#include <cmath>

namespace civil {

namespace {

constexpr std::array<std::string_view, 12> monthNames{
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December",
};

constexpr std::array<std::string_view, 7> weekdayNames{
    "Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday",
};

template <std::size_t size>
std::string_view nameAt(const std::array<std::string_view, size>& names, int index)
{
    if (index < 0 || index >= static_cast<int>(size)) {
        return {};
    }
    return names.at(static_cast<std::size_t>(index));
}

/// The days that std::chrono's year type can name.
constexpr std::int64_t firstDay =
    std::chrono::sys_days{std::chrono::year::min() / std::chrono::January / 1}
        .time_since_epoch()
        .count();
constexpr std::int64_t lastDay =
    std::chrono::sys_days{std::chrono::year::max() / std::chrono::December / 31}
        .time_since_epoch()
        .count();

}  // namespace

std::optional<std::int64_t> floorToInteger(double value)
{
    constexpr double limit = 1e18;
    if (!(std::fabs(value) < limit)) {  // NaN, too
        return std::nullopt;
    }
    return static_cast<std::int64_t>(std::floor(value));
}

std::optional<Date> dateFromDays(std::int64_t days)
{
    if (days < firstDay || days > lastDay) {
        return std::nullopt;
    }
    const std::chrono::year_month_day date{
        std::chrono::sys_days{std::chrono::days{static_cast<int>(days)}}};
    return Date{static_cast<int>(date.year()),
                static_cast<int>(static_cast<unsigned>(date.month())),
                static_cast<int>(static_cast<unsigned>(date.day()))};
}

std::int64_t daysFromDate(const Date& date)
{
    const std::chrono::year_month_day chronoDate{
        std::chrono::year{date.year}, std::chrono::month{static_cast<unsigned>(date.month)},
        std::chrono::day{static_cast<unsigned>(date.day)}};
    return std::chrono::sys_days{chronoDate}.time_since_epoch().count();
}

DayAndSecond splitSeconds(std::int64_t seconds)
{
    return {floorDivide(seconds, secondsPerDay), floorModulo(seconds, secondsPerDay)};
}

TimeOfDay timeOfDay(std::int64_t secondOfDay)
{
    return {static_cast<int>(secondOfDay / 3600), static_cast<int>(secondOfDay / 60 % 60),
            static_cast<int>(secondOfDay % 60)};
}

int weekday(std::int64_t days)
{
    constexpr int thursday = 4;  // 1970-01-01
    return static_cast<int>((floorModulo(days, 7) + thursday) % 7);
}

int dayOfYear(const Date& date)
{
    return static_cast<int>(daysFromDate(date) - daysFromDate({date.year, 1, 1})) + 1;
}

int quarter(const Date& date)
{
    return (date.month - 1) / 3 + 1;
}

std::string_view monthName(int month)
{
    return nameAt(monthNames, month - 1);
}

std::string_view monthAbbreviation(int month)
{
    return monthName(month).substr(0, 3);
}

std::string_view weekdayName(int weekday)
{
    return nameAt(weekdayNames, weekday);
}

std::string_view weekdayAbbreviation(int weekday)
{
    return weekdayName(weekday).substr(0, 3);
}

}  // namespace civil

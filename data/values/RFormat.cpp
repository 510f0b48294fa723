#include "data/values/RFormat.h"

#include "data/values/CivilTime.h"
#include "data/values/NumberText.h"

#include <fmt/format.h>

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace rformat {
namespace {

/// The lower half of R's NA.
constexpr std::uint32_t missingMark = 1954;
constexpr std::uint64_t quietNan = 0x7FF8000000000000;
constexpr std::uint64_t notANumber = quietNan | 1;

std::string dateText(std::int64_t day)
{
    const auto date = civil::dateFromDays(day);
    return date
        ? fmt::format("{:02}{}{:04}", date->day, civil::monthAbbreviation(date->month), date->year)
        : std::string();
}

std::string timeText(std::int64_t hours, std::int64_t secondsOfHour)
{
    return fmt::format("{:02}:{:02}:{:02}", hours, secondsOfHour / 60, secondsOfHour % 60);
}

std::string dateTimeText(std::int64_t seconds)
{
    const civil::DayAndSecond split = civil::splitSeconds(seconds);
    const std::string day = dateText(split.day);
    return day.empty() ? day : day + ':' + timeText(split.second / 3600, split.second % 3600);
}

std::string plainText(double number)
{
    if (std::isinf(number)) {
        return number < 0 ? "-Inf" : "Inf";
    }
    return std::isnan(number) ? "NaN" : numbertext::shortest(number);
}

double numberOf(std::string_view text)
{
    double number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

/// The text by a format of dates or times; empty for other formats and beyond the calendar.
std::string calendarText(double number, std::string_view format)
{
    const auto whole = civil::floorToInteger(number);
    if (!whole) {
        return {};
    }
    if (format == date) {
        return dateText(*whole);
    }
    if (format == dateTime) {
        return dateTimeText(*whole);
    }
    if (format == time) {
        const auto seconds = static_cast<std::int64_t>(std::abs(number));
        return (number <= -1 ? "-" : "") + timeText(seconds / 3600, seconds % 3600);
    }
    return {};
}

}  // namespace

bool isMissing(double number)
{
    return std::isnan(number)
        && static_cast<std::uint32_t>(std::bit_cast<std::uint64_t>(number)) == missingMark;
}

double cellNumber(double number)
{
    if (!std::isnan(number)) {
        return number;
    }
    return std::bit_cast<double>(isMissing(number) ? quietNan : notANumber);
}

std::string formatNumber(double number, std::string_view format)
{
    if (std::isnan(number)) {
        const bool isPlain = format != date && format != dateTime && format != time;
        return isPlain && std::bit_cast<std::uint64_t>(number) == notANumber ? "NaN"
                                                                             : std::string(missing);
    }
    if (format == logical) {
        return number == 0 ? "FALSE" : "TRUE";
    }
    const std::string shown = calendarText(number, format);
    return shown.empty() ? plainText(number) : shown;
}

std::string formatComplex(double realPart, double imaginaryPart)
{
    const bool isNegative = std::signbit(imaginaryPart) && !std::isnan(imaginaryPart);
    return plainText(realPart) + (isNegative ? '-' : '+') + plainText(std::abs(imaginaryPart))
        + 'i';
}

std::string asCharacter(double number)
{
    if (!std::isfinite(number)) {
        return plainText(number);
    }
    constexpr int mostDigits = 15;
    const std::string full = fmt::format("{:.{}e}", number, mostDigits - 1);
    const double rounded = numberOf(full);
    std::string scientific = full;
    int digits = mostDigits;
    for (; digits > 1; --digits) {
        std::string shorter = fmt::format("{:.{}e}", number, digits - 2);
        if (numberOf(shorter) != rounded) {
            break;
        }
        scientific = std::move(shorter);
    }
    const int exponent = std::stoi(scientific.substr(scientific.find('e') + 1));
    const std::string fixed = fmt::format("{:.{}f}", number, std::max(digits - 1 - exponent, 0));
    return fixed.size() <= scientific.size() ? fixed : scientific;
}

}  // namespace rformat

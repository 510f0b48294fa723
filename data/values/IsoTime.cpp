#include "data/values/IsoTime.h"

#include "data/values/CivilTime.h"

namespace isotime {
namespace {

constexpr double secondsPerDay = civil::secondsPerDay;

/// Takes exactly that many digits from the front.
std::optional<int> takeDigits(std::string_view& text, std::size_t count)
{
    int number = 0;
    if (text.size() < count) {
        return std::nullopt;
    }
    for (const char digit : text.substr(0, count)) {
        if (digit < '0' || digit > '9') {
            return std::nullopt;
        }
        number = number * 10 + (digit - '0');
    }
    text.remove_prefix(count);
    return number;
}

bool take(std::string_view& text, char letter)
{
    if (text.empty() || text.front() != letter) {
        return false;
    }
    text.remove_prefix(1);
    return true;
}

/// Digits behind a point, as a share of a second; nothing where they are wrong.
std::optional<double> takeFraction(std::string_view& text)
{
    if (!take(text, '.') && !take(text, ',')) {
        return 0;
    }
    double fraction = 0;
    double unit = 1;
    const std::size_t before = text.size();
    while (const std::optional<int> digit = takeDigits(text, 1)) {
        fraction = fraction * 10 + *digit;
        unit *= 10;
    }
    return text.size() == before ? std::nullopt : std::optional(fraction / unit);
}

int daysInMonth(int year, int month)
{
    const bool isLeap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    if (month == 2) {
        return isLeap ? 29 : 28;
    }
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

std::optional<double> takeDate(std::string_view& text)
{
    const std::optional<int> year = takeDigits(text, 4);
    const bool hasMonth = year && take(text, '-');
    const std::optional<int> month = hasMonth ? takeDigits(text, 2) : std::nullopt;
    const bool hasDay = month && take(text, '-');
    const std::optional<int> day = hasDay ? takeDigits(text, 2) : std::nullopt;
    if (!day || *month < 1 || *month > 12 || *day < 1 || *day > daysInMonth(*year, *month)) {
        return std::nullopt;
    }
    return static_cast<double>(civil::daysFromDate({*year, *month, *day})
                               - civil::dayOf1960January1);
}

std::optional<double> takeTime(std::string_view& text)
{
    const std::optional<int> hour = takeDigits(text, 2);
    const bool hasMinute = hour && take(text, ':');
    const std::optional<int> minute = hasMinute ? takeDigits(text, 2) : std::nullopt;
    std::optional<int> second = 0;
    std::optional<double> fraction = 0;
    if (minute && take(text, ':')) {
        second = takeDigits(text, 2);
        fraction = takeFraction(text);
    }
    if (!minute || !second || !fraction || *hour > 24 || *minute > 59 || *second > 59) {
        return std::nullopt;
    }
    const double seconds = *hour * 3600 + *minute * 60 + *second + *fraction;
    return seconds > secondsPerDay ? std::nullopt : std::optional(seconds);
}

/// Where an offset from UTC begins, or the size of the text.
std::size_t offsetPlace(std::string_view text)
{
    if (!text.empty() && text.back() == 'Z') {
        return text.size() - 1;
    }
    std::string_view offset = text.substr(text.size() > 6 ? text.size() - 6 : 0);
    const bool hasSign = take(offset, '+') || take(offset, '-');
    const bool isOffset =
        hasSign && takeDigits(offset, 2) && take(offset, ':') && takeDigits(offset, 2);
    return isOffset && offset.empty() ? text.size() - 6 : text.size();
}

}  // namespace

std::optional<double> date(std::string_view text)
{
    const std::optional<double> days = takeDate(text);
    return text.empty() ? days : std::nullopt;
}

std::optional<double> time(std::string_view text)
{
    text = text.substr(0, offsetPlace(text));
    const std::optional<double> seconds = takeTime(text);
    return text.empty() ? seconds : std::nullopt;
}

std::optional<double> dateTime(std::string_view text)
{
    const std::optional<double> days = takeDate(text);
    if (!days || !(take(text, 'T') || take(text, ' '))) {
        return std::nullopt;
    }
    const std::optional<double> seconds = time(text);
    // The end of a day is the start of the next one, and is written so.
    if (!seconds || *seconds >= secondsPerDay) {
        return std::nullopt;
    }
    return *days * secondsPerDay + *seconds;
}

bool hasOffset(std::string_view text)
{
    return offsetPlace(text) + 1 < text.size() && text.find(':') < offsetPlace(text);
}

}  // namespace isotime

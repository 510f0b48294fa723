#include "data/values/SasFormat.h"

#include "data/values/CivilTime.h"
#include "data/values/NumberText.h"
#include "data/values/Texts.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <regex>

namespace sasformat {

namespace {

/// SAS counts from 1960-01-01 and the calendar functions from 1970-01-01.
constexpr std::int64_t epochDays = -civil::dayOf1960January1;
constexpr std::int64_t epochSeconds = epochDays * civil::secondsPerDay;

constexpr Descriptor characterFormat{Canonical::Character, 1, 32767, 1, 0};
constexpr Descriptor dateFormat{Canonical::Date, 5, 11, 7, 8};
constexpr Descriptor dateTimeFormat{Canonical::DateTime, 7, 40, 16, 39};
constexpr Descriptor timeFormat{Canonical::Time, 2, 20, 8, 19};
constexpr Descriptor fixedFormat{Canonical::Fixed, 1, 32, 12, 31};
constexpr Descriptor bestFormat{Canonical::Best, 1, 32, 12, 32};

/// A double has no more digits than this on either side of its point.
constexpr int mostDecimals = 1074;
constexpr int mostDigits = 310;

bool isDateName(std::string_view name)
{
    static const std::regex pattern("^DATE(?:[5-9]|1[01])?$",
                                    std::regex::ECMAScript | std::regex::icase);
    return std::regex_match(name.begin(), name.end(), pattern);
}

/// "%*.*f" of the C locale, cut at the width.
std::string fixedPoint(double number, int width, int decimals)
{
    std::array<char, mostDigits + mostDecimals + 8> digits;
    const int precision = std::clamp(decimals, 0, mostDecimals);
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number,
                                   std::chars_format::fixed, precision);
    const auto size = std::min(static_cast<std::size_t>(end.ptr - digits.data()),
                               static_cast<std::size_t>(width));
    std::string text(static_cast<std::size_t>(width) - size, ' ');
    text.append(digits.data(), size);
    return text;
}

std::string best(double number, int width, int decimals)
{
    const int wanted = width == 0 ? bestFormat.defaultWidth : width;
    return fixedPoint(number, std::clamp<int>(wanted, 1, bestFormat.maximumWidth), decimals);
}

/// A number under a format for dates or times that it is none of: as BEST would show it, but whole,
/// since the part of a number that a date has room for is another number.
std::string besidesCalendar(double number, int decimals)
{
    constexpr double wholeDigits = 1e15;
    return std::abs(number) < wholeDigits
        ? texts::trimmed(best(number, bestFormat.maximumWidth, decimals))
        : numbertext::shortest(number);
}

/// Text of fixed size that is filled from the left; the formats need 18 characters at most.
class Line
{
public:
    void date(std::int64_t days);
    void time(std::int64_t secondOfDay);
    void append(char letter) { m_letters[m_size++] = letter; }
    [[nodiscard]] std::string text(std::size_t limit) const
    {
        return {m_letters.data(), std::min(m_size, limit)};
    }

private:
    void digits(unsigned number, int count);

    std::array<char, 24> m_letters{};
    std::size_t m_size = 0;
};

void Line::digits(unsigned number, int count)
{
    for (int i = count - 1; i >= 0; --i) {
        m_letters[m_size + static_cast<std::size_t>(i)] = static_cast<char>('0' + number % 10);
        number /= 10;
    }
    m_size += static_cast<std::size_t>(count);
}

void Line::date(std::int64_t days)
{
    const civil::Date date = *civil::dateFromDays(days);
    digits(static_cast<unsigned>(date.day), 2);
    for (const char letter : civil::monthAbbreviation(date.month)) {
        append(letter);
    }
    digits(static_cast<unsigned>(date.year), 4);
}

void Line::time(std::int64_t secondOfDay)
{
    const auto second = static_cast<unsigned>(secondOfDay);
    digits(second / 3600, 2);
    append(':');
    digits(second / 60 % 60, 2);
    append(':');
    digits(second % 60, 2);
}

/// Whether the day lies in the years 1 to 9999, which four digits can show.
bool isInCalendar(std::int64_t days)
{
    constexpr std::int64_t firstDay = -719162;  // 0001-01-01
    constexpr std::int64_t lastDay = 2932896;  // 9999-12-31
    return days >= firstDay && days <= lastDay;
}

/// Days since 1970-01-01 of a SAS date, or false where that is no day of the calendar.
bool daysOf(double number, std::int64_t& days)
{
    constexpr double limit = std::numeric_limits<std::int32_t>::max();
    if (!(std::abs(number) <= limit)) {
        return false;
    }
    days = static_cast<std::int32_t>(number) - epochDays;
    return isInCalendar(days);
}

bool momentOf(double number, civil::DayAndSecond& moment)
{
    constexpr double limit = 1e15;  // far beyond the calendar, and whole seconds still are exact
    if (!(std::abs(number) <= limit)) {
        return false;
    }
    const std::int64_t seconds = static_cast<std::int64_t>(number) - epochSeconds;
    moment = civil::splitSeconds(seconds);
    return isInCalendar(moment.day);
}

}  // namespace

std::string_view canonicalName(Canonical canonical)
{
    constexpr std::array<std::string_view, 7> names{
        "", "$", "DATE", "DATETIME", "TIME", "F", "BEST",
    };
    return names.at(static_cast<std::size_t>(canonical));
}

Descriptor normalise(std::string_view name)
{
    if (isDateName(name)) {
        return dateFormat;
    }
    for (const Descriptor& one :
         {characterFormat, dateTimeFormat, timeFormat, fixedFormat, bestFormat}) {
        if (name == canonicalName(one.canonical)) {
            return one;
        }
    }
    return {};
}

bool isDateOrTime(Canonical canonical)
{
    return canonical == Canonical::Date || canonical == Canonical::DateTime
        || canonical == Canonical::Time;
}

std::string formatNumber(double number, Descriptor descriptor, int width, int decimals)
{
    if (number == -std::numeric_limits<double>::infinity()) {
        return ".";
    }
    if (std::isnan(number)) {
        return "nan";
    }
    Line line;
    civil::DayAndSecond moment;
    switch (descriptor.canonical) {
    case Canonical::Date:
        if (!daysOf(number, moment.day)) {
            break;
        }
        line.date(moment.day);
        return line.text(9);
    case Canonical::DateTime:
        if (!momentOf(number, moment)) {
            break;
        }
        line.date(moment.day);
        line.append(':');
        line.time(moment.second);
        return line.text(18);
    case Canonical::Time:
        if (!momentOf(number, moment)) {
            break;
        }
        line.time(moment.second);
        return line.text(static_cast<std::size_t>(width > 0 ? width : descriptor.defaultWidth));
    default:
        return best(number, std::max(width, 0), decimals);
    }
    return besidesCalendar(number, decimals);
}

std::string formatText(std::string_view text, Descriptor descriptor, int width)
{
    if (width <= 0) {
        if (descriptor.canonical != Canonical::Character) {
            return std::string(text);
        }
        width = descriptor.defaultWidth;
    }
    return std::string(
        text.substr(0, texts::bytesOfCharacters(text, static_cast<std::size_t>(width))));
}

Descriptor FormatTable::descriptorOf(std::string_view name)
{
    auto place = m_descriptors.find(name);
    if (place == m_descriptors.end()) {
        place = m_descriptors.emplace(std::string(name), normalise(name)).first;
    }
    return place->second;
}

}  // namespace sasformat

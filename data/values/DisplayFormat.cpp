#include "data/values/DisplayFormat.h"

#include "data/values/CivilTime.h"
#include "data/values/DateScale.h"
#include "data/values/NumberText.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <optional>

namespace displayformat {
namespace {

using numbertext::StackText;

constexpr int mostDigits = 4;  ///< of a width; more is no format

bool isDigit(char letter)
{
    return letter >= '0' && letter <= '9';
}

/// Takes the digits from the end; 0 where there are none.
int takeNumber(std::string_view& text)
{
    int number = 0;
    int unit = 1;
    for (int i = 0; i < mostDigits && !text.empty() && isDigit(text.back()); ++i) {
        number += unit * (text.back() - '0');
        unit *= 10;
        text.remove_suffix(1);
    }
    return number;
}

/// Digits of a fraction of a second behind a point: as many as the format has, or, for a format
/// without any width, as many as it takes.
void appendFraction(StackText& text, double fraction, int width, int decimals)
{
    numbertext::Buffer buffer;
    if (decimals > 0) {
        const double unit = std::pow(10.0, std::min(decimals, 9));
        const double cut = std::floor(fraction * unit) / unit;  // 59.9996 is not 60
        text.append(numbertext::fixed(cut, std::min(decimals, 9), buffer).substr(1));
    } else if (width == 0 && fraction > 0) {
        // What a double holds of the fraction beside a date's seconds is a microsecond at best.
        std::string_view digits =
            numbertext::fixed(std::floor(fraction * 1e6 + 0.5) / 1e6, 6, buffer);
        while (digits.back() == '0') {
            digits.remove_suffix(1);
        }
        if (digits.front() == '0' && digits.size() > 2) {
            text.append(digits.substr(1));
        }
    }
}

void appendDate(StackText& text, const civil::Date& date, char separator)
{
    text.appendInteger(date.year, 4);
    if (separator != '\0') {
        text.append(separator);
    }
    text.appendInteger(date.month, 2);
    if (separator != '\0') {
        text.append(separator);
    }
    text.appendInteger(date.day, 2);
}

void appendMonthName(StackText& text, const civil::Date& date)
{
    text.appendInteger(date.day, 2);
    text.append(civil::monthAbbreviation(date.month));
    text.appendInteger(date.year, 4);
}

/// The letter behind DDMMYY, MMDDYY and YYMMDD tells what stands between the numbers.
std::optional<char> separatorOf(std::string_view name, char usual)
{
    if (name.empty()) {
        return usual;
    }
    constexpr std::string_view letters = "BCDNPS";
    constexpr std::string_view separators{" :-\0./", 6};
    const std::size_t place = letters.find(name.front());
    return name.size() == 1 && place != std::string_view::npos ? std::optional(separators[place])
                                                               : std::nullopt;
}

/// DDMMYY, MMDDYY and YYMMDD with their separators; widths below ten have two digits of the year.
bool appendOrdered(StackText& text, const civil::Date& date, std::string_view name, int width)
{
    const std::string_view order = name.substr(0, 6);
    const bool isYearFirst = order == "YYMMDD";
    if (!isYearFirst && order != "DDMMYY" && order != "MMDDYY") {
        return false;
    }
    const std::optional<char> separator = separatorOf(name.substr(6), isYearFirst ? '-' : '/');
    if (!separator) {
        return false;
    }
    const bool hasSeparator = *separator != '\0' && (width == 0 || width >= 8);
    const bool isShort = width > 0 && width < (hasSeparator ? 10 : 8);
    const auto add = [&](char what) {
        if (what == 'Y') {
            isShort ? text.appendInteger(date.year % 100, 2) : text.appendInteger(date.year, 4);
        } else {
            text.appendInteger(what == 'M' ? date.month : date.day, 2);
        }
    };
    for (const std::size_t place : {std::size_t{0}, std::size_t{2}, std::size_t{4}}) {
        if (place > 0 && hasSeparator) {
            text.append(*separator);
        }
        add(order[place]);
    }
    return true;
}

std::string dateText(const civil::Date& date, std::string_view name, int width)
{
    StackText text;
    if (name == "DATE" || name == "DTDATE") {
        appendMonthName(text, date);
    } else if (!appendOrdered(text, date, name, width)) {
        appendDate(text, date, name.starts_with("B8601") ? '\0' : '-');
    }
    return std::string(text.view());
}

/// Hours, minutes and seconds; the hours may be more than a day has.
void appendTime(StackText& text, std::int64_t seconds, bool hasColons)
{
    text.appendInteger(seconds / 3600, 2);
    for (const std::int64_t part : {seconds / 60 % 60, seconds % 60}) {
        if (hasColons) {
            text.append(':');
        }
        text.appendInteger(part, 2);
    }
}

std::optional<std::string> dateTimeText(double value, std::string_view name, int width,
                                        int decimals)
{
    const std::optional<std::int64_t> seconds = civil::floorToInteger(value);
    if (!seconds) {
        return std::nullopt;
    }
    const civil::DayAndSecond moment = civil::splitSeconds(*seconds);
    const std::optional<civil::Date> date =
        civil::dateFromDays(moment.day + civil::dayOf1960January1);
    if (!date) {
        return std::nullopt;
    }
    if (name == "DTDATE" || name == "E8601DN" || name == "B8601DN" || name == "IS8601DN") {
        return dateText(*date, name, width);
    }
    StackText text;
    const bool isBasic = name.starts_with("B8601");
    if (name == "DATETIME") {
        appendMonthName(text, *date);
        text.append(':');
    } else {
        appendDate(text, *date, isBasic ? '\0' : '-');
        text.append('T');
    }
    appendTime(text, moment.second, !isBasic);
    appendFraction(text, value - static_cast<double>(*seconds), width, decimals);
    return std::string(text.view());
}

std::optional<std::string> timeText(double value, std::string_view name, int width, int decimals)
{
    const double magnitude = std::abs(value);
    const std::optional<std::int64_t> seconds = civil::floorToInteger(magnitude);
    if (!seconds) {
        return std::nullopt;
    }
    StackText text;
    if (value < 0) {
        text.append('-');
    }
    appendTime(text, *seconds, !name.starts_with("B8601"));
    if (name == "HHMM" || (name == "TIME" && width > 0 && width <= 5)) {
        return std::string(text.view().substr(0, text.size() - 3));
    }
    appendFraction(text, magnitude - static_cast<double>(*seconds), width, decimals);
    return std::string(text.view());
}

std::optional<std::string> momentText(double value, std::string_view name, int width, int decimals)
{
    switch (DateScale::ofSas(std::string(name)).content()) {
    case DateScale::Content::Date: {
        const std::optional<std::int64_t> days = civil::floorToInteger(value);
        const std::optional<civil::Date> date =
            days ? civil::dateFromDays(*days + civil::dayOf1960January1) : std::nullopt;
        return date ? std::optional(dateText(*date, name, width)) : std::nullopt;
    }
    case DateScale::Content::DateTime:
        return dateTimeText(value, name, width, decimals);
    case DateScale::Content::Time:
        return timeText(value, name, width, decimals);
    case DateScale::Content::Number:
        break;
    }
    return std::nullopt;
}

}  // namespace

Parts partsOf(std::string_view format)
{
    std::string_view rest = format;
    Parts parts;
    const std::size_t point = rest.rfind('.');
    if (point != std::string_view::npos) {
        std::string_view decimals = rest.substr(point + 1);
        parts.decimals = takeNumber(decimals);
        if (!decimals.empty()) {
            parts = {};
            parts.name = format;
            return parts;
        }
        rest = rest.substr(0, point);
    }
    parts.width = takeNumber(rest);
    parts.name = rest;
    std::transform(parts.name.begin(), parts.name.end(), parts.name.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
    return parts;
}

std::string plainNumber(double value)
{
    constexpr double beyondAllWhole = 1e18;
    const bool isWhole = std::abs(value) < beyondAllWhole && value == std::trunc(value);
    return isWhole && value != 0 ? numbertext::fixed(value, 0) : numbertext::shortest(value);
}

std::string number(double value, std::string_view name, int width, int decimals)
{
    if (std::isnan(value)) {
        return ".";
    }
    if ((name.empty() && width > 0) || name == "F") {
        return numbertext::fixed(value + 0.0, decimals);  // zero has no sign
    }
    if (name == booleanName) {
        return value == 0 ? "false" : "true";
    }
    if (!name.empty() && name != "BEST") {
        if (std::optional<std::string> text = momentText(value, name, width, decimals)) {
            return *std::move(text);
        }
    }
    return plainNumber(value);
}

}  // namespace displayformat

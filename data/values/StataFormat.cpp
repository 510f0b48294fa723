#include "data/values/StataFormat.h"

#include "data/values/CivilTime.h"
#include "data/values/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>
#include <system_error>
#include <utility>

namespace stata {

namespace {

using numbertext::Buffer;
using numbertext::LetterCase;
using numbertext::StackText;

/// Bounds what a format can expand to: no detail code gives more than nine characters.
constexpr std::size_t longestFormat = 64;

// ---- numbers ----

struct NumberFormat
{
    int width = 0;
    int decimals = 0;
    char kind = 'g';  ///< 'f', 'g' or 'e'
    char separator = '\0';
    char decimalPoint = '.';
    bool isZeroFilled = false;
};

/// Takes a whole number of up to 255 off the front of the text.
std::optional<int> takeNumber(std::string_view& text)
{
    constexpr int greatest = 255;
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || number < 0 || number > greatest) {
        return std::nullopt;
    }
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return number;
}

/// What follows the percent sign of a format, and the alignment.
std::string_view withoutAlignment(std::string_view format)
{
    for (const std::string_view mark : {"%", "-", "~"}) {
        format.remove_prefix(format.starts_with(mark) ? 1 : 0);
    }
    return format;
}

/// @param text  what follows the percent sign and the alignment
std::optional<NumberFormat> parseNumberFormat(std::string_view text)
{
    NumberFormat format;
    format.isZeroFilled = text.starts_with('0');
    const auto width = takeNumber(text);
    if (!width || text.empty() || (text.front() != '.' && text.front() != ',')) {
        return std::nullopt;
    }
    const bool isEuropean = text.front() == ',';
    text.remove_prefix(1);
    const auto decimals = takeNumber(text);
    if (!decimals || text.empty()) {
        return std::nullopt;
    }
    format.width = *width;
    format.decimals = *decimals;
    format.kind = text.front();
    format.decimalPoint = isEuropean ? ',' : '.';
    text.remove_prefix(1);
    if (text.starts_with('c')) {
        format.separator = isEuropean ? '.' : ',';
        text.remove_prefix(1);
    }
    const bool isKnown = format.kind == 'f' || format.kind == 'g' || format.kind == 'e';
    return isKnown && text.empty() ? std::optional(format) : std::nullopt;
}

std::string_view withoutTrailingZeros(std::string_view number)
{
    if (number.find('.') == std::string_view::npos) {
        return number;
    }
    number = number.substr(0, number.find_last_not_of('0') + 1);
    if (number.ends_with('.')) {
        number.remove_suffix(1);
    }
    return number;
}

/// The number in its final shape, without the zero before the point under %g.
void appendShaped(StackText& text, std::string_view number, const NumberFormat& format,
                  bool isGrouped)
{
    if (format.kind == 'g') {
        if (number.starts_with('-')) {
            text.append('-');
            number.remove_prefix(1);
        }
        if (number.starts_with("0.")) {
            number.remove_prefix(1);
        }
    }
    text.appendGrouped(number, isGrouped ? format.separator : '\0', format.decimalPoint);
}

/// The decimal exponent that the number has once it is rounded to so many significant digits.
int roundedExponent(double value, int significantDigits)
{
    Buffer buffer;
    const std::string_view text = numbertext::scientific(value, significantDigits - 1, buffer);
    const std::size_t position = text.find('e') + 1;
    const std::size_t digits = position + (text[position] == '+' ? 1 : 0);
    int exponent = 0;
    std::from_chars(text.data() + digits, text.data() + text.size(), exponent);
    return exponent;
}

/// @param exponent  of the rounded number; one of three digits costs a decimal
std::string generalWithExponent(double value, const NumberFormat& format, int exponent)
{
    const int exponentDigits = std::abs(exponent) >= 100 ? 3 : 2;
    // Sign, first digit, point, "e+", exponent.
    int decimals = std::max(0, format.width - 5 - exponentDigits);
    if (format.decimals > 0) {
        decimals = std::min(decimals, format.decimals - 1);
    }
    Buffer buffer;
    StackText text;
    appendShaped(text, numbertext::scientific(value, decimals, buffer), format, false);
    return text.trimmed();
}

std::string formatGeneral(double value, const NumberFormat& format)
{
    constexpr int narrowest =
        7;  // "1e+07" and a sign need one less; below it only digits are of use
    constexpr int mostDigits = 16;
    constexpr int smallestExponent = -5;
    const bool isNarrow = format.width < narrowest;
    const int digitRoom = std::max(1, format.width - (isNarrow ? 1 : 2));
    const int significant = std::min(digitRoom, mostDigits);
    const int exponent = value == 0 ? 0 : roundedExponent(value, significant);
    if (isNarrow && exponent >= mostDigits) {
        return numbertext::shortest(value);
    }
    if (exponent < smallestExponent || (exponent >= digitRoom && !isNarrow)) {
        return generalWithExponent(value, format, exponent);
    }

    int decimals = std::max(0, exponent < 0 ? significant : significant - 1 - exponent);
    if (format.decimals > 0) {
        decimals = std::clamp(format.decimals - 1 - exponent, 0, decimals);
    }
    for (;; --decimals) {
        Buffer buffer;
        StackText text;
        appendShaped(text, withoutTrailingZeros(numbertext::fixed(value, decimals, buffer)), format,
                     true);
        if (format.separator == '\0' || text.size() <= static_cast<std::size_t>(format.width)) {
            return text.trimmed();
        }
        if (decimals == 0) {
            StackText plain;
            appendShaped(plain, numbertext::fixed(value, 0, buffer), format, false);
            return plain.trimmed();
        }
    }
}

std::string formatNumber(double value, const NumberFormat& format)
{
    if (value == 0) {
        value = 0;  // a negative zero has no sign
    }
    if (format.kind == 'g') {
        return formatGeneral(value, format);
    }
    Buffer buffer;
    StackText number;
    appendShaped(number,
                 format.kind == 'f' ? numbertext::fixed(value, format.decimals, buffer)
                                    : numbertext::scientific(value, format.decimals, buffer),
                 format, format.kind == 'f');
    if (!format.isZeroFilled) {
        return number.trimmed();
    }
    std::string_view digits = number.view();
    StackText filled;
    if (digits.starts_with('-')) {
        filled.append('-');
        digits.remove_prefix(1);
    }
    filled.appendRepeated('0', format.width - static_cast<int>(number.size()));
    filled.append(digits);
    return filled.trimmed();
}

// ---- dates ----

constexpr int firstYear = 100;
constexpr int lastYear = 9999;

struct Moment
{
    civil::Date date;
    std::int64_t day = 0;  ///< since 1970-01-01
    int millisecond = 0;  ///< of the second
    civil::TimeOfDay time;
};

std::optional<Moment> momentOfDay(std::int64_t day)
{
    const auto date = civil::dateFromDays(day);
    if (!date || date->year < firstYear || date->year > lastYear) {
        return std::nullopt;
    }
    return Moment{*date, day, 0, {}};
}

std::optional<Moment> momentOfMilliseconds(std::int64_t milliseconds)
{
    const auto split = civil::splitSeconds(civil::floorDivide(milliseconds, 1000));
    auto moment = momentOfDay(split.day + civil::dayOf1960January1);
    if (moment) {
        moment->time = civil::timeOfDay(split.second);
        moment->millisecond = static_cast<int>(civil::floorModulo(milliseconds, 1000));
    }
    return moment;
}

/// The first day of a period, counted in periods from the start of 1960.
std::optional<Moment> momentOfPeriod(std::int64_t period, int periodsPerYear)
{
    constexpr std::int64_t beyondCalendar = 1'000'000;
    if (period <= -beyondCalendar || period >= beyondCalendar) {
        return std::nullopt;
    }
    const int year = static_cast<int>(1960 + civil::floorDivide(period, periodsPerYear));
    if (year < firstYear || year > lastYear) {
        return std::nullopt;
    }
    const int index = static_cast<int>(civil::floorModulo(period, periodsPerYear));
    if (periodsPerYear == 52) {
        return momentOfDay(civil::daysFromDate({year, 1, 1}) + std::int64_t{7} * index);
    }
    return momentOfDay(civil::daysFromDate({year, index * (12 / periodsPerYear) + 1, 1}));
}

std::optional<Moment> momentOf(double value, char unit)
{
    const auto count = civil::floorToInteger(value);
    if (!count) {
        return std::nullopt;
    }
    switch (unit) {
    case 'c':
    case 'C':
        return momentOfMilliseconds(*count);
    case 'w':
        return momentOfPeriod(*count, 52);
    case 'm':
        return momentOfPeriod(*count, 12);
    case 'q':
        return momentOfPeriod(*count, 4);
    case 'h':
        return momentOfPeriod(*count, 2);
    case 'y':
        return momentOfPeriod(*count - 1960, 1);
    default:
        return momentOfDay(*count + civil::dayOf1960January1);
    }
}

std::string_view defaultDetail(char unit)
{
    switch (unit) {
    case 'c':
    case 'C':
        return "DDmonCCYY_HH:MM:SS";
    case 'w':
        return "CCYY!www";
    case 'm':
        return "CCYY!mnn";
    case 'q':
        return "CCYY!qq";
    case 'h':
        return "CCYY!hh";
    case 'y':
        return "CCYY";
    default:
        return "DDmonCCYY";
    }
}

enum class Part
{
    Century,
    YearOfCentury,
    DayOfYear,
    MonthName,
    MonthShort,
    Month,
    Day,
    DayName,
    DayShort,
    DayTwoLetters,
    Half,
    Quarter,
    Week,
    Hour,
    HourOfTwelve,
    Minute,
    Second,
    Fraction,
    AmPm,
    AmPmWithPoints,
    Text,
};

struct Code
{
    std::string_view code;
    Part part;
    int digits = 0;  ///< at least so many; of a fraction, exactly
    LetterCase letterCase = LetterCase::AsIs;
    std::string_view text = {};
};

/// A code stands before those that it begins with. The one-letter codes are those of %d formats.
constexpr std::array<Code, 72> codes{{
    {"CC", Part::Century, 2},
    {"cc", Part::Century, 1},
    {"C", Part::Century, 2},
    {"c", Part::Century, 1},
    {"YY", Part::YearOfCentury, 2},
    {"yy", Part::YearOfCentury, 1},
    {"Y", Part::YearOfCentury, 2},
    {"y", Part::YearOfCentury, 1},
    {"JJJ", Part::DayOfYear, 3},
    {"jjj", Part::DayOfYear, 1},
    {"J", Part::DayOfYear, 3},
    {"j", Part::DayOfYear, 1},
    {"Month", Part::MonthName},
    {"MONTH", Part::MonthName, 0, LetterCase::Upper},
    {"month", Part::MonthName, 0, LetterCase::Lower},
    {"Mon", Part::MonthShort},
    {"MON", Part::MonthShort, 0, LetterCase::Upper},
    {"mon", Part::MonthShort, 0, LetterCase::Lower},
    {"MM", Part::Minute, 2},
    {"mm", Part::Minute, 1},
    {"M", Part::MonthName},
    {"m", Part::MonthShort},
    {"L", Part::MonthName, 0, LetterCase::Lower},
    {"l", Part::MonthShort, 0, LetterCase::Lower},
    {"NN", Part::Month, 2},
    {"nn", Part::Month, 1},
    {"N", Part::Month, 2},
    {"n", Part::Month, 1},
    {"DAYNAME", Part::DayName},
    {"Dayname", Part::DayName},
    {"dayname", Part::DayName, 0, LetterCase::Lower},
    {"Day", Part::DayShort},
    {"DAY", Part::DayShort, 0, LetterCase::Upper},
    {"day", Part::DayShort, 0, LetterCase::Lower},
    {"Da", Part::DayTwoLetters},
    {"da", Part::DayTwoLetters, 0, LetterCase::Lower},
    {"DD", Part::Day, 2},
    {"dd", Part::Day, 1},
    {"D", Part::Day, 2},
    {"d", Part::Day, 1},
    {"HH", Part::Hour, 2},
    {"hH", Part::Hour, 1},
    {"Hh", Part::HourOfTwelve, 2},
    {"hh", Part::HourOfTwelve, 1},
    {"h", Part::Half, 1},
    {"q", Part::Quarter, 1},
    {"WW", Part::Week, 2},
    {"ww", Part::Week, 1},
    {"W", Part::Week, 2},
    {"w", Part::Week, 1},
    {"SS", Part::Second, 2},
    {"ss", Part::Second, 1},
    {".sss", Part::Fraction, 3},
    {".ss", Part::Fraction, 2},
    {".s", Part::Fraction, 1},
    {"a.m.", Part::AmPmWithPoints},
    {"A.M.", Part::AmPmWithPoints, 0, LetterCase::Upper},
    {"p.m.", Part::AmPmWithPoints},
    {"P.M.", Part::AmPmWithPoints, 0, LetterCase::Upper},
    {"am", Part::AmPm},
    {"AM", Part::AmPm, 0, LetterCase::Upper},
    {"pm", Part::AmPm},
    {"PM", Part::AmPm, 0, LetterCase::Upper},
    {"_", Part::Text, 0, LetterCase::AsIs, " "},
    {".", Part::Text, 0, LetterCase::AsIs, "."},
    {",", Part::Text, 0, LetterCase::AsIs, ","},
    {":", Part::Text, 0, LetterCase::AsIs, ":"},
    {"-", Part::Text, 0, LetterCase::AsIs, "-"},
    {"/", Part::Text, 0, LetterCase::AsIs, "/"},
    {"\\", Part::Text, 0, LetterCase::AsIs, "\\"},
    {"'", Part::Text, 0, LetterCase::AsIs, "'"},
    {"+", Part::Text},
}};

int weekOfYear(const civil::Date& date)
{
    constexpr int lastWeek = 52;  // it has eight or nine days
    return std::min((civil::dayOfYear(date) - 1) / 7 + 1, lastWeek);
}

/// Tenths, hundredths or thousandths, cut.
int fractionOfSecond(int millisecond, int digits)
{
    return digits == 1 ? millisecond / 100 : (digits == 2 ? millisecond / 10 : millisecond);
}

int numberOf(Part part, const Moment& moment)
{
    switch (part) {
    case Part::Century:
        return moment.date.year / 100;
    case Part::YearOfCentury:
        return moment.date.year % 100;
    case Part::DayOfYear:
        return civil::dayOfYear(moment.date);
    case Part::Month:
        return moment.date.month;
    case Part::Day:
        return moment.date.day;
    case Part::Half:
        return moment.date.month <= 6 ? 1 : 2;
    case Part::Quarter:
        return civil::quarter(moment.date);
    case Part::Week:
        return weekOfYear(moment.date);
    case Part::Hour:
        return moment.time.hour;
    case Part::HourOfTwelve:
        return (moment.time.hour + 11) % 12 + 1;
    case Part::Minute:
        return moment.time.minute;
    default:
        return moment.time.second;
    }
}

void appendPart(StackText& text, const Code& code, const Moment& moment)
{
    const bool isMorning = moment.time.hour < 12;
    switch (code.part) {
    case Part::MonthName:
        return text.append(civil::monthName(moment.date.month), code.letterCase);
    case Part::MonthShort:
        return text.append(civil::monthAbbreviation(moment.date.month), code.letterCase);
    case Part::DayName:
        return text.append(civil::weekdayName(civil::weekday(moment.day)), code.letterCase);
    case Part::DayShort:
        return text.append(civil::weekdayAbbreviation(civil::weekday(moment.day)), code.letterCase);
    case Part::DayTwoLetters:
        return text.append(civil::weekdayName(civil::weekday(moment.day)).substr(0, 2),
                           code.letterCase);
    case Part::AmPm:
        return text.append(isMorning ? "am" : "pm", code.letterCase);
    case Part::AmPmWithPoints:
        return text.append(isMorning ? "a.m." : "p.m.", code.letterCase);
    case Part::Text:
        return text.append(code.text);
    case Part::Fraction:
        text.append('.');
        return text.appendInteger(fractionOfSecond(moment.millisecond, code.digits), code.digits);
    default:
        return text.appendInteger(numberOf(code.part, moment), code.digits);
    }
}

/// False if the detail holds what is no code.
bool appendDetail(StackText& text, std::string_view detail, const Moment& moment)
{
    while (!detail.empty()) {
        if (detail.front() == '!' && detail.size() > 1) {
            text.append(detail[1]);
            detail.remove_prefix(2);
            continue;
        }
        const auto* const code =
            std::find_if(codes.begin(), codes.end(), [detail](const Code& candidate) {
                return detail.front() == candidate.code.front()
                    && detail.starts_with(candidate.code);
            });
        if (code == codes.end()) {
            return false;
        }
        appendPart(text, *code, moment);
        detail.remove_prefix(code->code.size());
    }
    return true;
}

/// @param format  what follows the percent sign, the alignment and the t
std::optional<std::string> formatDate(double value, std::string_view format)
{
    constexpr std::string_view units = "cCdwmqhy";
    if (format.empty() || units.find(format.front()) == std::string_view::npos) {
        return std::nullopt;
    }
    const char unit = format.front();
    const auto moment = momentOf(value, unit);
    if (!moment) {
        return std::nullopt;
    }
    StackText text;
    const std::string_view detail = format.substr(1);
    if (!appendDetail(text, detail.empty() ? defaultDetail(unit) : detail, *moment)) {
        return std::nullopt;
    }
    return text.trimmed();
}

}  // namespace

std::string formatNumeric(double value, std::string_view format)
{
    if (std::isnan(value)) {
        return ".";
    }
    if (std::isinf(value) || !format.starts_with('%') || format.size() > longestFormat) {
        return numbertext::shortest(value);
    }
    format = withoutAlignment(format);
    if (format.starts_with('t') || format.starts_with('d')) {
        if (format.front() == 't') {
            format.remove_prefix(1);
        }
        if (auto date = formatDate(value, format)) {
            return *std::move(date);
        }
        return numbertext::shortest(value);
    }
    const auto number = parseNumberFormat(format);
    return number ? formatNumber(value, *number) : numbertext::shortest(value);
}

int decimalsOf(std::string_view format)
{
    const auto number = parseNumberFormat(withoutAlignment(format));
    return number ? number->decimals : 0;
}

}  // namespace stata

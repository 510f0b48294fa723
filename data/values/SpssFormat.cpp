#include "data/values/SpssFormat.h"

#include "data/values/CivilTime.h"
#include "data/values/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>
#include <system_error>

namespace spss {

namespace {

using numbertext::Buffer;
using numbertext::LetterCase;
using numbertext::StackText;

enum class Kind
{
    Plain,
    Comma,
    Dot,
    Dollar,
    Percent,
    ZeroFilled,
    Scientific,
    Date,
    AmericanDate,
    EuropeanDate,
    SortableDate,
    JulianDate,
    QuarterYear,
    MonthYear,
    WeekYear,
    DateTime,
    SortableDateTime,
    Time,
    MinuteTime,
    DayTime,
    Weekday,
    Month,
};

struct Format
{
    Kind kind = Kind::Plain;
    int width = 0;
    int decimals = 0;
};

struct NamedKind
{
    std::string_view name;
    Kind kind;
};

constexpr std::array<NamedKind, 29> namedKinds{{
    {"F", Kind::Plain},
    {"COMMA", Kind::Comma},
    {"DOT", Kind::Dot},
    {"DOLLAR", Kind::Dollar},
    {"PCT", Kind::Percent},
    {"PERCENT", Kind::Percent},
    {"CCA", Kind::Comma},
    {"CCB", Kind::Comma},
    {"CCC", Kind::Comma},
    {"CCD", Kind::Comma},
    {"CCE", Kind::Comma},
    {"N", Kind::ZeroFilled},
    {"Z", Kind::ZeroFilled},
    {"E", Kind::Scientific},
    {"DATE", Kind::Date},
    {"ADATE", Kind::AmericanDate},
    {"EDATE", Kind::EuropeanDate},
    {"SDATE", Kind::SortableDate},
    {"JDATE", Kind::JulianDate},
    {"QYR", Kind::QuarterYear},
    {"MOYR", Kind::MonthYear},
    {"WKYR", Kind::WeekYear},
    {"DATETIME", Kind::DateTime},
    {"YMDHMS", Kind::SortableDateTime},
    {"TIME", Kind::Time},
    {"MTIME", Kind::MinuteTime},
    {"DTIME", Kind::DayTime},
    {"WKDAY", Kind::Weekday},
    {"MONTH", Kind::Month},
}};

/// A date, time or currency without a width, which no file should hold, is taken as this wide.
constexpr int unlimitedWidth = 255;

/// From here on a number that does not fit takes an exponent.
constexpr double fullDigitsLimit = 1e21;

bool sameLetters(std::string_view text, std::string_view upperCase)
{
    return std::equal(text.begin(), text.end(), upperCase.begin(), upperCase.end(),
                      [](char left, char right) {
                          const bool lower = left >= 'a' && left <= 'z';
                          return (lower ? left - 'a' + 'A' : left) == right;
                      });
}

/// Takes a whole number of up to 255 off the front of the text.
std::optional<int> takeNumber(std::string_view& text)
{
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || number < 0 || number > unlimitedWidth) {
        return std::nullopt;
    }
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return number;
}

std::optional<Format> parseFormat(std::string_view text)
{
    const std::size_t digits = std::min(text.find_first_of("0123456789."), text.size());
    const auto* const named = std::find_if(namedKinds.begin(), namedKinds.end(),
                                           [name = text.substr(0, digits)](const NamedKind& kind) {
                                               return sameLetters(name, kind.name);
                                           });
    if (named == namedKinds.end()) {
        return std::nullopt;
    }
    Format format{named->kind, 0, 0};
    text.remove_prefix(digits);
    if (!text.empty() && text.front() != '.') {
        const auto width = takeNumber(text);
        if (!width) {
            return std::nullopt;
        }
        format.width = *width;
    }
    if (text.starts_with('.')) {
        text.remove_prefix(1);
        const auto decimals = takeNumber(text);
        if (!decimals) {
            return std::nullopt;
        }
        format.decimals = std::min(*decimals, numbertext::maximumDecimals);
    }
    if (format.width == 0 && format.kind == Kind::Plain) {
        return std::nullopt;
    }
    if (format.width == 0) {
        format.width = unlimitedWidth;
    }
    return text.empty() ? std::optional(format) : std::nullopt;
}

// ---- numbers ----

struct NumberStyle
{
    char separator = '\0';
    char decimalPoint = '.';
    std::string_view prefix;
    std::string_view suffix;
};

NumberStyle styleOf(Kind kind)
{
    switch (kind) {
    case Kind::Comma:
        return {',', '.', {}, {}};
    case Kind::Dot:
        return {'.', ',', {}, {}};
    case Kind::Dollar:
        return {',', '.', "$", {}};
    case Kind::Percent:
        return {'\0', '.', {}, "%"};
    default:
        return {};
    }
}

/// A fixed-point text without its sign, and the sign, which zero does not have.
struct Digits
{
    bool negative = false;
    std::string_view text;
    std::size_t integerDigits = 0;
};

Digits digitsOf(double value, int decimals, Buffer& buffer)
{
    std::string_view text = numbertext::fixedHalfAway(value, decimals, buffer);
    const bool negative = text.starts_with('-');
    if (negative) {
        text.remove_prefix(1);
    }
    const bool zero = text.find_first_not_of("0.") == std::string_view::npos;
    return {negative && !zero, text, std::min(text.find('.'), text.size())};
}

/// As digitsOf(), but SPSS writes no zero before the decimal point.
Digits bareDigitsOf(double value, int decimals, Buffer& buffer)
{
    Digits digits = digitsOf(value, decimals, buffer);
    if (digits.text.starts_with("0.")) {
        digits.text.remove_prefix(1);
        digits.integerDigits = 0;
    }
    return digits;
}

std::string decorated(const Digits& digits, const NumberStyle& style, bool isGrouped)
{
    StackText text;
    if (digits.negative) {
        text.append('-');
    }
    text.append(style.prefix);
    text.appendGrouped(digits.text, isGrouped ? style.separator : '\0', style.decimalPoint);
    text.append(style.suffix);
    return text.trimmed();
}

/// Decimals are given up one by one until the number fits. Separators are put in if there is room
/// for all of them, and not where the number has lost all its decimals.
std::string formatDecimal(double value, const Format& format, const NumberStyle& style)
{
    Buffer buffer;
    const auto affixes = style.prefix.size() + style.suffix.size();
    for (int decimals = format.decimals; decimals >= 0; --decimals) {
        const Digits digits = bareDigitsOf(value, decimals, buffer);
        const auto room = static_cast<std::size_t>(format.width);
        const auto width = digits.text.size() + (digits.negative ? 1 : 0) + affixes;
        if (width > room) {
            continue;
        }
        const auto separators = digits.integerDigits > 0 ? (digits.integerDigits - 1) / 3 : 0;
        const bool lostDecimals = decimals == 0 && format.decimals > 0;
        return decorated(digits, style, !lostDecimals && width + separators <= room);
    }
    if (std::fabs(value) >= fullDigitsLimit) {
        return numbertext::shortest(value);
    }
    return decorated(bareDigitsOf(value, format.decimals, buffer), style, true);
}

std::string formatZeroFilled(double value, const Format& format)
{
    if (std::fabs(value) >= fullDigitsLimit) {
        return numbertext::shortest(value);
    }
    Buffer buffer;
    const Digits digits = digitsOf(value, format.decimals, buffer);
    const int sign = digits.negative ? 1 : 0;
    // A missing width asks for no zeros.
    const int width = format.width == unlimitedWidth ? 0 : format.width;
    StackText text;
    if (digits.negative) {
        text.append('-');
    }
    text.appendRepeated('0', width - sign - static_cast<int>(digits.text.size()));
    text.append(digits.text);
    return text.trimmed();
}

/// The exponent has at least three digits: "1.235E+003".
std::string formatScientific(double value, const Format& format)
{
    constexpr int widthWithoutDecimals = 7;  // one digit, the point, and five for the exponent
    const int room = format.width - widthWithoutDecimals - (value < 0 ? 1 : 0);
    Buffer buffer;
    const int decimals = std::clamp(room, 0, format.decimals);
    const std::string_view number = numbertext::scientific(value, decimals, buffer);
    const std::size_t exponent = number.find('e');
    StackText text;
    text.append(number.substr(0, exponent));
    text.append('E');
    text.append(number[exponent + 1]);
    const std::string_view exponentDigits = number.substr(exponent + 2);
    text.appendRepeated('0', 3 - static_cast<int>(exponentDigits.size()));
    text.append(exponentDigits);
    return text.trimmed();
}

// ---- dates and times ----

/// A count of seconds, and its fraction as a number of so many decimals.
struct Seconds
{
    std::int64_t whole = 0;
    std::int64_t fraction = 0;
    int decimals = 0;
};

/// Cut without decimals, rounded with them, so that no second ever shows as 60.
/// @param value  not negative and below 1e18
Seconds splitFraction(double value, int decimals)
{
    constexpr int mostDecimals = 16;  // as SPSS has it
    Seconds seconds;
    seconds.whole = static_cast<std::int64_t>(value);
    seconds.decimals = std::clamp(decimals, 0, mostDecimals);
    if (seconds.decimals == 0) {
        return seconds;
    }
    std::int64_t scale = 1;
    for (int digit = 0; digit < seconds.decimals; ++digit) {
        scale *= 10;
    }
    const double fraction = value - std::floor(value);
    seconds.fraction = std::llround(fraction * static_cast<double>(scale));
    if (seconds.fraction == scale) {
        seconds.fraction = 0;
        ++seconds.whole;
    }
    return seconds;
}

void appendSecond(StackText& text, std::int64_t second, const Seconds& seconds)
{
    text.append(':');
    text.appendInteger(second, 2);
    if (seconds.decimals > 0) {
        text.append('.');
        text.appendInteger(seconds.fraction, seconds.decimals);
    }
}

void appendClock(StackText& text, std::int64_t clock, bool withSeconds, const Seconds& seconds)
{
    text.appendInteger(clock / 3600, 2);
    text.append(':');
    text.appendInteger(clock / 60 % 60, 2);
    if (withSeconds) {
        appendSecond(text, clock % 60, seconds);
    }
}

/// Fewer decimals where the width leaves no room for them and their point.
int roomForDecimals(const Format& format, int widthWithSeconds)
{
    return std::clamp(format.width - widthWithSeconds - 1, 0, format.decimals);
}

int durationWidthWithSeconds(Kind kind)
{
    switch (kind) {
    case Kind::MinuteTime:
        return 5;
    case Kind::DayTime:
        return 10;
    default:
        return 8;
    }
}

std::string formatDuration(double value, const Format& format)
{
    constexpr double limit = 1e15;  // whole seconds are still told apart
    if (std::fabs(value) >= limit) {
        return numbertext::shortest(value);
    }
    const int widthWithSeconds = durationWidthWithSeconds(format.kind);
    const bool withSeconds = format.width >= widthWithSeconds || format.kind == Kind::MinuteTime;
    const int decimals = withSeconds ? roomForDecimals(format, widthWithSeconds) : 0;
    const Seconds seconds = splitFraction(std::fabs(value), decimals);
    const std::int64_t shown = withSeconds ? seconds.whole : seconds.whole / 60;

    StackText text;
    if (value < 0 && (shown != 0 || seconds.fraction != 0)) {
        text.append('-');
    }
    if (format.kind == Kind::MinuteTime) {
        text.appendInteger(seconds.whole / 60, 2);
        appendSecond(text, seconds.whole % 60, seconds);
        return text.trimmed();
    }
    std::int64_t clock = seconds.whole;
    if (format.kind == Kind::DayTime) {
        text.appendInteger(clock / civil::secondsPerDay);
        text.append(' ');
        clock %= civil::secondsPerDay;
    }
    appendClock(text, clock, withSeconds, seconds);
    return text.trimmed();
}

struct Moment
{
    civil::Date date;
    std::int64_t secondOfDay = 0;
    Seconds seconds;
};

std::optional<Moment> momentOf(double value, int decimals)
{
    constexpr double beyondCalendar = 1e12;
    constexpr int lastYear = 9999;
    if (value < 0 || value >= beyondCalendar) {
        return std::nullopt;
    }
    const Seconds seconds = splitFraction(value, decimals);
    const civil::DayAndSecond split = civil::splitSeconds(seconds.whole);
    const auto date = civil::dateFromDays(split.day + civil::dayOf1582October14);
    if (!date || date->year > lastYear) {
        return std::nullopt;
    }
    return Moment{*date, split.second, seconds};
}

void appendYear(StackText& text, int year, bool fourDigits)
{
    // A fixed century: SPSS's own moves with the clock, and a number must not change its look
    // overnight.
    constexpr int firstShortYear = 1950;
    constexpr int lastShortYear = 2049;
    if (fourDigits || year < firstShortYear || year > lastShortYear) {
        text.appendInteger(year, 4);
    } else {
        text.appendInteger(year % 100, 2);
    }
}

void appendMonthName(StackText& text, const civil::Date& date)
{
    text.append(civil::monthAbbreviation(date.month), LetterCase::Upper);
}

/// Two-digit numbers with a character between them.
void appendPair(StackText& text, int first, char between, int second)
{
    text.appendInteger(first, 2);
    text.append(between);
    text.appendInteger(second, 2);
}

/// The narrowest format of its kind that shows years with four digits.
int widthWithFullYear(Kind kind)
{
    switch (kind) {
    case Kind::Date:
        return 11;
    case Kind::JulianDate:
        return 7;
    case Kind::QuarterYear:
    case Kind::MonthYear:
        return 8;
    default:
        return 10;
    }
}

std::string formatDate(double value, const Format& format)
{
    const auto moment = momentOf(value, 0);
    if (!moment) {
        return numbertext::shortest(value);
    }
    const civil::Date& date = moment->date;
    const bool fourDigits = format.width >= widthWithFullYear(format.kind);
    StackText text;
    switch (format.kind) {
    case Kind::AmericanDate:
        appendPair(text, date.month, '/', date.day);
        text.append('/');
        break;
    case Kind::EuropeanDate:
        appendPair(text, date.day, '.', date.month);
        text.append('.');
        break;
    case Kind::QuarterYear:
        text.appendInteger(civil::quarter(date));
        text.append(" Q ");
        break;
    case Kind::MonthYear:
        appendMonthName(text, date);
        text.append(' ');
        break;
    case Kind::WeekYear:
        // Weeks are runs of seven days from the first of January on.
        text.appendInteger((civil::dayOfYear(date) - 1) / 7 + 1);
        text.append(" WK ");
        break;
    case Kind::Date:
        text.appendInteger(date.day, 2);
        text.append('-');
        appendMonthName(text, date);
        text.append('-');
        break;
    default:  // the year comes first
        break;
    }
    appendYear(text, date.year, fourDigits);
    if (format.kind == Kind::SortableDate) {
        text.append('/');
        appendPair(text, date.month, '/', date.day);
    }
    if (format.kind == Kind::JulianDate) {
        text.appendInteger(civil::dayOfYear(date), 3);
    }
    return text.trimmed();
}

std::string formatDateTime(double value, const Format& format)
{
    const bool sortable = format.kind == Kind::SortableDateTime;
    const int widthWithSeconds = sortable ? 19 : 20;
    const bool withSeconds = format.width >= widthWithSeconds;
    const auto moment =
        momentOf(value, withSeconds ? roomForDecimals(format, widthWithSeconds) : 0);
    if (!moment) {
        return numbertext::shortest(value);
    }
    const civil::Date& date = moment->date;
    StackText text;
    if (sortable) {
        text.appendInteger(date.year, 4);
        text.append('-');
        appendPair(text, date.month, '-', date.day);
    } else {
        text.appendInteger(date.day, 2);
        text.append('-');
        appendMonthName(text, date);
        text.append('-');
        text.appendInteger(date.year, 4);
    }
    text.append(' ');
    appendClock(text, moment->secondOfDay, withSeconds, moment->seconds);
    return text.trimmed();
}

/// Weekdays and months are numbers from 1; their names are cut to the width.
std::string formatName(double value, const Format& format)
{
    const bool isWeekday = format.kind == Kind::Weekday;
    const int count = isWeekday ? 7 : 12;
    if (value < 1 || value >= count + 1) {
        return numbertext::shortest(value);
    }
    const int number = static_cast<int>(value);
    const std::string_view name =
        isWeekday ? civil::weekdayName(number - 1) : civil::monthName(number);
    StackText text;
    text.append(name.substr(0, static_cast<std::size_t>(format.width)), LetterCase::Upper);
    return text.trimmed();
}

}  // namespace

std::string formatNumeric(double value, std::string_view format)
{
    if (std::isnan(value)) {
        return ".";
    }
    const auto parsed = parseFormat(format);
    if (!parsed || std::isinf(value)) {
        return numbertext::shortest(value);
    }
    switch (parsed->kind) {
    case Kind::Plain:
    case Kind::Comma:
    case Kind::Dot:
    case Kind::Dollar:
    case Kind::Percent:
        return formatDecimal(value, *parsed, styleOf(parsed->kind));
    case Kind::ZeroFilled:
        return formatZeroFilled(value, *parsed);
    case Kind::Scientific:
        return formatScientific(value, *parsed);
    case Kind::DateTime:
    case Kind::SortableDateTime:
        return formatDateTime(value, *parsed);
    case Kind::Time:
    case Kind::MinuteTime:
    case Kind::DayTime:
        return formatDuration(value, *parsed);
    case Kind::Weekday:
    case Kind::Month:
        return formatName(value, *parsed);
    default:
        return formatDate(value, *parsed);
    }
}

int decimalsOf(std::string_view format)
{
    format.remove_prefix(std::min(format.rfind('.'), format.size()));
    format.remove_prefix(format.empty() ? 0 : 1);
    return takeNumber(format).value_or(0);
}

}  // namespace spss

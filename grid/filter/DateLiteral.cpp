#include "grid/filter/DateLiteral.h"

#include "data/values/CivilTime.h"
#include "data/values/Texts.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <charconv>
#include <chrono>
#include <cmath>

namespace dateliteral {

namespace {

constexpr int firstYear = 1582;
constexpr int lastYear = 9999;
constexpr std::string_view dateSeparators = " -/.,";
constexpr double secondsPerDay = civil::secondsPerDay;

/// Takes the parts of a literal off its front.
class Scanner
{
public:
    explicit Scanner(std::string_view text)
        : m_rest(texts::trimmedView(text))
    { }

    [[nodiscard]] bool isAtEnd() const { return m_rest.empty(); }

    /// Whether there were any.
    bool skip(std::string_view characters)
    {
        const std::size_t count = std::min(m_rest.find_first_not_of(characters), m_rest.size());
        m_rest.remove_prefix(count);
        return count > 0;
    }

    bool take(char character)
    {
        const bool found = m_rest.starts_with(character);
        m_rest.remove_prefix(found ? 1 : 0);
        return found;
    }

    /// All digits up to the next other character.
    std::string_view digits()
    {
        const std::size_t count = std::min(m_rest.find_first_not_of("0123456789"), m_rest.size());
        const std::string_view text = m_rest.substr(0, count);
        m_rest.remove_prefix(count);
        return text;
    }

    std::optional<int> number(std::size_t fewestDigits, std::size_t mostDigits)
    {
        const std::string_view text = digits();
        if (text.size() < fewestDigits || text.size() > mostDigits) {
            return std::nullopt;
        }
        int value = 0;
        std::from_chars(text.data(), text.data() + text.size(), value);
        return value;
    }

    /// Takes a word of ASCII letters, given in lower case, in any case.
    bool word(std::string_view lowerCase)
    {
        const bool found = m_rest.size() >= lowerCase.size()
            && std::equal(lowerCase.begin(), lowerCase.end(), m_rest.begin(),
                          [](char ours, unsigned char theirs) {
                              return std::tolower(theirs) == static_cast<unsigned char>(ours);
                          });
        m_rest.remove_prefix(found ? lowerCase.size() : 0);
        return found;
    }

private:
    std::string_view m_rest;
};

std::string monthWord(int month, int (*changeCase)(int))
{
    std::string word(civil::monthAbbreviation(month));
    std::transform(word.begin(), word.end(), word.begin(),
                   [&](unsigned char letter) { return static_cast<char>(changeCase(letter)); });
    return word;
}

std::optional<int> takeMonth(Scanner& scanner)
{
    for (int month = 1; month <= 12; ++month) {
        if (scanner.word(monthWord(month, std::tolower))) {
            return month;
        }
    }
    return std::nullopt;
}

std::optional<int> takeYear(Scanner& scanner)
{
    const std::string_view digits = scanner.digits();
    int year = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), year);
    if (digits.size() == 2) {
        constexpr int century = yearCutoff / 100 * 100;
        year += year < yearCutoff - century ? century + 100 : century;
        return year;
    }
    return digits.size() == 4 ? std::optional(year) : std::nullopt;
}

/// Days from 1960-01-01.
std::optional<std::int64_t> takeDate(Scanner& scanner)
{
    const std::optional<int> day = scanner.number(1, 2);
    scanner.skip(dateSeparators);
    const std::optional<int> month = takeMonth(scanner);
    scanner.skip(dateSeparators);
    const std::optional<int> year = takeYear(scanner);
    if (!day || !month || !year || *year < firstYear) {
        return std::nullopt;
    }
    const std::chrono::year_month_day date{std::chrono::year{*year},
                                           std::chrono::month{static_cast<unsigned>(*month)},
                                           std::chrono::day{static_cast<unsigned>(*day)}};
    if (!date.ok()) {
        return std::nullopt;
    }
    return civil::daysFromDate({*year, *month, *day}) - civil::dayOf1960January1;
}

/// ":ss[.f]", or nothing, which is 0.
std::optional<double> takeSeconds(Scanner& scanner)
{
    if (!scanner.take(':')) {
        return 0.0;
    }
    const std::optional<int> whole = scanner.number(1, 2);
    if (!whole || *whole > 59) {
        return std::nullopt;
    }
    // One reading of the whole number: a sum of its parts would be rounded twice.
    std::string text = std::to_string(*whole);
    if (scanner.take('.')) {
        text.append(1, '.').append(scanner.digits());
    }
    double seconds = 0;
    std::from_chars(text.data(), text.data() + text.size(), seconds);
    return seconds;
}

/// The hour of the day that a clock with "am" and "pm" shows.
std::optional<int> hourOfDay(int hour, bool isAfternoon)
{
    if (hour > 12) {
        return std::nullopt;
    }
    return hour % 12 + (isAfternoon ? 12 : 0);
}

/// Seconds from midnight.
std::optional<double> takeTime(Scanner& scanner, int mostHours)
{
    std::optional<int> hour = scanner.number(1, 5);
    const bool hasColon = scanner.take(':');
    const std::optional<int> minute = scanner.number(1, 2);
    const std::optional<double> second = takeSeconds(scanner);
    if (!hour || !hasColon || !minute || *minute > 59 || !second) {
        return std::nullopt;
    }
    scanner.skip(" ");
    const bool isMorning = scanner.word("am");
    const bool isAfternoon = !isMorning && scanner.word("pm");
    if (isMorning || isAfternoon) {
        hour = hourOfDay(*hour, isAfternoon);
    }
    if (!hour || *hour > mostHours) {
        return std::nullopt;
    }
    return *hour * 3600.0 + *minute * 60.0 + *second;
}

/// The number as an integer when it is a whole one.
std::optional<std::int64_t> whole(double number)
{
    const std::optional<std::int64_t> floor = civil::floorToInteger(number);
    return floor && static_cast<double>(*floor) == number ? floor : std::nullopt;
}

}  // namespace

std::optional<double> parseDate(std::string_view text)
{
    Scanner scanner(text);
    const std::optional<std::int64_t> days = takeDate(scanner);
    return days && scanner.isAtEnd() ? std::optional(static_cast<double>(*days)) : std::nullopt;
}

std::optional<double> parseTime(std::string_view text)
{
    constexpr int mostHours = 99999;
    Scanner scanner(text);
    const std::optional<double> seconds = takeTime(scanner, mostHours);
    return scanner.isAtEnd() ? seconds : std::nullopt;
}

std::optional<double> parseDateTime(std::string_view text)
{
    Scanner scanner(text);
    const std::optional<std::int64_t> days = takeDate(scanner);
    const bool isSeparated = scanner.skip(" ") || scanner.take(':');
    const std::optional<double> seconds = takeTime(scanner, 23);
    if (!days || !isSeparated || !seconds || !scanner.isAtEnd()) {
        return std::nullopt;
    }
    return static_cast<double>(*days) * secondsPerDay + *seconds;
}

std::optional<std::string> formatDate(double days)
{
    const std::optional<std::int64_t> count = whole(days);
    const auto date = count ? civil::dateFromDays(*count + civil::dayOf1960January1) : std::nullopt;
    if (!date || date->year < firstYear || date->year > lastYear) {
        return std::nullopt;
    }
    return fmt::format("{:02}{}{:04}", date->day, monthWord(date->month, std::toupper), date->year);
}

std::optional<std::string> formatTime(double seconds)
{
    const std::optional<std::int64_t> count = whole(seconds);
    if (!count || *count < 0 || *count >= civil::secondsPerDay) {
        return std::nullopt;
    }
    const civil::TimeOfDay time = civil::timeOfDay(*count);
    return fmt::format("{:02}:{:02}:{:02}", time.hour, time.minute, time.second);
}

std::optional<std::string> formatDateTime(double seconds)
{
    const std::optional<std::int64_t> count = whole(seconds);
    if (!count) {
        return std::nullopt;
    }
    const civil::DayAndSecond split = civil::splitSeconds(*count);
    const auto date = formatDate(static_cast<double>(split.day));
    const auto time = formatTime(static_cast<double>(split.second));
    return date ? std::optional(*date + ':' + *time) : std::nullopt;
}

}  // namespace dateliteral

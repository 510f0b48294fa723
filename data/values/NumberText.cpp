#include "data/values/NumberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace numbertext {

namespace {

constexpr bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

constexpr char changedCase(char character, LetterCase letterCase)
{
    if (letterCase == LetterCase::Upper && character >= 'a' && character <= 'z') {
        return static_cast<char>(character - 'a' + 'A');
    }
    if (letterCase == LetterCase::Lower && character >= 'A' && character <= 'Z') {
        return static_cast<char>(character - 'A' + 'a');
    }
    return character;
}

std::string_view nonFinite(double value)
{
    if (std::isnan(value)) {
        return "nan";
    }
    return value < 0 ? "-inf" : "inf";
}

std::string_view written(const Buffer& buffer, const std::to_chars_result& result)
{
    if (result.ec != std::errc()) {
        return {};
    }
    return {buffer.data(), static_cast<std::size_t>(result.ptr - buffer.data())};
}

std::string_view withDecimals(double value, std::chars_format format, int decimals, Buffer& buffer)
{
    if (!std::isfinite(value)) {
        return nonFinite(value);
    }
    const int precision = std::clamp(decimals, 0, maximumDecimals);
    return written(
        buffer,
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format, precision));
}

}  // namespace

std::string_view fixed(double value, int decimals, Buffer& buffer)
{
    return withDecimals(value, std::chars_format::fixed, decimals, buffer);
}

std::string fixed(double value, int decimals)
{
    Buffer buffer;
    return std::string(fixed(value, decimals, buffer));
}

std::string_view fixedHalfAway(double value, int decimals, Buffer& buffer)
{
    // A binary fraction lies half-way between two numbers of n decimals exactly when it is an odd
    // multiple of 2 to the power -(n + 1). The next number away from zero then rounds the right
    // way.
    const int precision = std::clamp(decimals, 0, maximumDecimals);
    if (std::fmod(std::ldexp(std::fabs(value), precision + 1), 2.0) == 1.0) {
        const double infinity = std::numeric_limits<double>::infinity();
        value = std::nextafter(value, std::copysign(infinity, value));
    }
    return fixed(value, precision, buffer);
}

std::string_view scientific(double value, int decimals, Buffer& buffer)
{
    return withDecimals(value, std::chars_format::scientific, decimals, buffer);
}

std::string_view shortest(double value, Buffer& buffer)
{
    if (!std::isfinite(value)) {
        return nonFinite(value);
    }
    if (value == 0) {
        return "0";
    }
    const double magnitude = std::fabs(value);
    const bool plain = magnitude >= 1e-5 && magnitude < 1e15;
    return written(buffer,
                   std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                 plain ? std::chars_format::fixed : std::chars_format::scientific));
}

std::string shortest(double value)
{
    Buffer buffer;
    return std::string(shortest(value, buffer));
}

void StackText::append(char character)
{
    if (m_size < capacity) {
        m_characters[m_size++] = character;
    }
}

void StackText::append(std::string_view text, LetterCase letterCase)
{
    for (const char character : text) {
        append(changedCase(character, letterCase));
    }
}

void StackText::appendInteger(std::int64_t value, int minimumDigits)
{
    std::array<char, 24> digits;
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    std::string_view text(digits.data(), static_cast<std::size_t>(result.ptr - digits.data()));
    if (value < 0) {
        append('-');
        text.remove_prefix(1);
    }
    appendRepeated('0', minimumDigits - static_cast<int>(text.size()));
    append(text);
}

void StackText::appendGrouped(std::string_view number, char separator, char decimalPoint)
{
    const std::size_t first = number.starts_with('-') ? 1 : 0;
    std::size_t last = first;
    while (last < number.size() && isDigit(number[last])) {
        ++last;
    }
    append(number.substr(0, first));
    for (std::size_t position = first; position < last; ++position) {
        if (separator != '\0' && position > first && (last - position) % 3 == 0) {
            append(separator);
        }
        append(number[position]);
    }
    for (const char character : number.substr(last)) {
        append(character == '.' ? decimalPoint : character);
    }
}

void StackText::appendRepeated(char character, int count)
{
    for (int done = 0; done < count; ++done) {
        append(character);
    }
}

std::string StackText::trimmed() const
{
    const std::string_view text = view();
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

}  // namespace numbertext

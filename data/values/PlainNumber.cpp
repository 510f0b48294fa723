#include "data/values/PlainNumber.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

namespace {

constexpr bool isDigit(char letter)
{
    return letter >= '0' && letter <= '9';
}

/// Every whole number of so many digits has a double of its own.
constexpr std::size_t digitsAlwaysHeld = 15;

bool isHeldExactly(std::string_view digits, double magnitude)
{
    if (digits.size() <= digitsAlwaysHeld || !std::ranges::all_of(digits, isDigit)) {
        return true;  // of a fraction only digits beyond all measuring are lost
    }
    std::array<char, 512> buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                       std::chars_format::fixed);
    return digits == std::string_view(buffer.data(), written.ptr);
}

/// What most numbers are, without a call of the library.
std::optional<double> shortWholeNumber(std::string_view digits)
{
    if (digits.size() > digitsAlwaysHeld) {
        return std::nullopt;
    }
    std::int64_t number = 0;
    for (const char digit : digits) {
        if (!isDigit(digit)) {
            return std::nullopt;
        }
        number = number * 10 + (digit - '0');
    }
    return static_cast<double>(number);
}

}  // namespace

std::optional<double> plainNumber(std::string_view text)
{
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    if (text.empty() || !(isDigit(text.front()) || text.front() == '.')) {
        return std::nullopt;  // "inf" and "nan" among others
    }
    if (text.size() > 1 && text[0] == '0' && isDigit(text[1])) {
        return std::nullopt;
    }
    if (const auto whole = shortWholeNumber(text)) {
        return isNegative ? -*whole : *whole;
    }
    double magnitude = 0.0;
    const char* const end = text.data() + text.size();
    const auto [last, error] = std::from_chars(text.data(), end, magnitude);
    if (error != std::errc() || last != end || !isHeldExactly(text, magnitude)) {
        return std::nullopt;
    }
    return isNegative ? -magnitude : magnitude;
}

#include "data/values/WrittenNumber.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace writtennumber {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

/// The digits of a number without the commas between its thousands; nothing where they stand
/// elsewhere: "1,5" is not 15.
std::optional<std::string> withoutThousands(std::string_view text)
{
    constexpr std::string_view digits = "0123456789";
    const std::size_t start = std::min(text.find_first_of(digits), text.size());
    std::string joined(text.substr(0, start));
    text.remove_prefix(start);
    bool isFirst = true;
    while (true) {
        const std::size_t group = std::min(text.find_first_not_of(digits), text.size());
        if (group == 0 || group > 3 || (!isFirst && group != 3)) {
            return std::nullopt;
        }
        joined += text.substr(0, group);
        text.remove_prefix(group);
        isFirst = false;
        if (!text.starts_with(',')) {
            break;
        }
        text.remove_prefix(1);
    }
    joined += text;
    return joined.find(',') == std::string::npos ? std::optional(joined) : std::nullopt;
}

}  // namespace

std::optional<double> valueOf(std::string_view text)
{
    std::string digits;
    if (text.find(',') != std::string_view::npos) {
        const std::optional<std::string> joined = withoutThousands(text);
        if (!joined) {
            return std::nullopt;
        }
        digits = *joined;
        text = digits;
    }
    const bool hasPlus = text.size() > 1 && text[0] == '+' && text[1] != '-';
    text.remove_prefix(hasPlus ? 1 : 0);
    if (text.find_first_not_of("0123456789+-.eE") != std::string_view::npos) {
        return std::nullopt;  // from_chars() would take "inf" and "nan"
    }
    double number = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, problem] = std::from_chars(text.data(), end, number);
    if (rest != end || problem == std::errc::invalid_argument) {
        return std::nullopt;
    }
    if (problem == std::errc::result_out_of_range) {
        const std::size_t exponent = text.find_first_of("eE");
        const bool isTiny = exponent != std::string_view::npos && exponent + 1 < text.size()
            && text[exponent + 1] == '-';
        const double size = isTiny ? 0 : infinity;
        return text.front() == '-' ? -size : size;
    }
    return number;
}

std::string significantDigits(std::string_view number)
{
    std::string digits;
    for (const char letter : number.substr(0, number.find_first_of("eE"))) {
        if (letter >= '0' && letter <= '9' && (letter != '0' || !digits.empty())) {
            digits += letter;
        }
    }
    return digits.substr(0, digits.find_last_not_of('0') + 1);
}

}  // namespace writtennumber

#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

/// The letter of a special missing value: .A to .Z and ._ of SAS, .a to .z of Stata. It lies in the
/// lowest byte of the NaN that stands for the missing number, where nobody who only asks whether a
/// number is missing comes across it: sorts, filters and counts take all NaN for one.
namespace missingtag {

/// A missing number with that letter.
[[nodiscard]] inline double number(char letter)
{
    const auto plain = std::bit_cast<std::uint64_t>(std::numeric_limits<double>::quiet_NaN());
    return std::bit_cast<double>(plain | static_cast<unsigned char>(letter));
}

/// The letter of a missing number; NUL where it has none, and for a number that is not missing.
[[nodiscard]] inline char of(double number)
{
    const auto byte = static_cast<char>(std::bit_cast<std::uint64_t>(number) & 0xFF);
    const bool isLetter = (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
    return std::isnan(number) && (isLetter || byte == '_') ? byte : '\0';
}

}  // namespace missingtag

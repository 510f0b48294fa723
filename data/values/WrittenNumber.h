#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Numbers written as texts in data files, the same in every locale.
namespace writtennumber {

/// The number that a text is: digits, perhaps with a sign, a point, an exponent, and commas between
/// groups of three digits. Infinite where it is too large for a double; nothing for "1,5" or "inf".
[[nodiscard]] std::optional<double> valueOf(std::string_view text);

/// The digits of a number that matter, without the zeros at either end of them.
[[nodiscard]] std::string significantDigits(std::string_view number);

}  // namespace writtennumber

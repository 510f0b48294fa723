#pragma once

#include <optional>
#include <string_view>

/// The number that a text is, if it is one and nothing of it would be lost: decimal digits, perhaps
/// with a sign, a point and an exponent, in any locale. No leading zeros, no infinity, nothing
/// beyond the range of a double, and no whole number that a double cannot hold to its last digit.
[[nodiscard]] std::optional<double> plainNumber(std::string_view text);

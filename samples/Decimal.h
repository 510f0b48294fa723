#pragma once

#include <string>

namespace samples {

/// The number with this many decimals, "." as the decimal point in every locale.
[[nodiscard]] std::string decimalText(double value, int decimals);

/// The number that such a text holds, so that a text and its numeric twin agree to the last bit.
[[nodiscard]] double decimalValue(const std::string& text);

}  // namespace samples

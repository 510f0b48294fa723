#pragma once

#include <string>
#include <string_view>
#include <vector>

/// A JSON string with its quotes; bytes that are no UTF-8 become U+FFFD.
[[nodiscard]] std::string jsonText(std::string_view text);

/// Such strings, parted by commas.
[[nodiscard]] std::string jsonTexts(const std::vector<std::string>& texts);

/// A number with 17 significant digits, which read back to the same double; null where missing.
[[nodiscard]] std::string jsonNumber(double number);

#pragma once

#include <string>

namespace samples {

/// A UTF-8 text in Windows-1252.
/// @throws std::runtime_error showing the text when it is not UTF-8 or Windows-1252 lacks a letter
[[nodiscard]] std::string toWindows1252(const std::string& text);

}  // namespace samples

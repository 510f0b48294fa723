#pragma once

#include <string>
#include <string_view>

namespace samples {

/// Writes a UTF-8 text in Windows-1252 into `target`, replacing what it holds.
/// @throws std::runtime_error showing the text when it is not UTF-8 or Windows-1252 lacks a letter
void toWindows1252(std::string_view text, std::string& target);

}  // namespace samples

#pragma once

#include <string_view>

/// The letter between the fields of a CSV text, told by its beginning: of comma, semicolon, tab and
/// bar the one that divides most of its records into as many fields as the first; the comma where
/// none divides the first.
[[nodiscard]] char csvDelimiter(std::string_view beginning);

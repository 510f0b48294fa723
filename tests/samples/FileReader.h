#pragma once

#include "samples/Table.h"

#include <filesystem>

/// A file as the format library reads it. The column's format is the whole text that it gives;
/// width and decimals stay 0, and so does the length.
/// @throws std::runtime_error with the library's message
[[nodiscard]] samples::Table readBack(const std::filesystem::path& path);

/// All cells row by row as texts, which unlike NaN are equal to themselves.
[[nodiscard]] std::vector<std::string> cellTexts(const samples::Table& table);

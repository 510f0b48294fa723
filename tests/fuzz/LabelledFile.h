#pragma once

#include <filesystem>
#include <vector>

namespace fuzz {

/// Writes SPSS and Stata files with what the sample tables do without: value labels, missing
/// ranges, notes, texts beyond 255 bytes, long strings, a weight, numbers narrower than a double,
/// and old releases.
/// @throws std::runtime_error with the file's name
[[nodiscard]] std::vector<std::filesystem::path>
writeLabelledFiles(const std::filesystem::path& folder);

}  // namespace fuzz

#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// The files of this project, for the tests that read them.
namespace sourcetree {

/// The names, from the root of the tree, of the files that belong to the project: what git tracks
/// or would track, or without git everything outside hidden folders and build/. Only those with one
/// of the suffixes; all of them without any. Sorted.
[[nodiscard]] std::vector<std::string> files(const std::vector<std::string>& suffixes = {});

/// The bytes of a file named from the root of the tree; throws std::runtime_error if it cannot be
/// read.
[[nodiscard]] std::string contentOf(const std::string& file);

[[nodiscard]] std::uintmax_t sizeOf(const std::string& file);

/// The folders of a list separated by "|".
[[nodiscard]] std::vector<std::filesystem::path> split(std::string_view folders);

}  // namespace sourcetree

#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace fuzz {

/// A healthy file that mutants are made from.
struct SeedFile
{
    std::string name;
    std::string suffix;  ///< lower case, with its point: ".sas7bdat"
    std::string bytes;
};

using Corpus = std::vector<SeedFile>;

/// Writes small files of every kind, release and compression into the folder, and reads them in.
/// @throws std::runtime_error when one cannot be written
[[nodiscard]] Corpus makeCorpus(const std::filesystem::path& folder);

/// Adds the data files of a folder and its subfolders, in the order of their names. Files that are
/// too big to be read thousands of times are left out.
void addFolder(Corpus& corpus, const std::filesystem::path& folder);

/// Keeps the files of one suffix.
void keepOnly(Corpus& corpus, std::string_view suffix);

[[nodiscard]] std::string bytesOfFile(const std::filesystem::path& path);

}  // namespace fuzz

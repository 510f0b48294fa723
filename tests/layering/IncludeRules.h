#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What each folder of the source tree may include.
namespace includerules {

/// One #include line.
struct Include
{
    int line = 0;  ///< from 1
    std::string path;  ///< as written between the quotes or brackets
    bool quoted = false;  ///< "path" rather than <path>
};

/// The #include lines of a source text in their order; those in comments do not count.
[[nodiscard]] std::vector<Include> includesOf(std::string_view source);

/// The folder that a file of ours belongs to: "data", "filter" (grid/filter/), "grid" and so on;
/// nothing for a path of no folder that has rules.
[[nodiscard]] std::optional<std::string> folderOf(std::string_view path);

/// Checks includes against the arrows between the folders.
class Checker
{
public:
    /// @param qtCoreFolders  where Qt Core's headers lie; every other Qt header is a module that
    /// the
    ///                       folders without widgets may not use
    explicit Checker(std::vector<std::filesystem::path> qtCoreFolders);

    /// Why the file, named from the root of the tree, may not have this include; nothing when it
    /// may.
    [[nodiscard]] std::optional<std::string> objection(std::string_view file,
                                                       const Include& include) const;

private:
    [[nodiscard]] bool isQtCore(std::string_view header) const;

    std::vector<std::filesystem::path> m_qtCoreFolders;
};

}  // namespace includerules

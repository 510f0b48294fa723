#include "tests/layering/SourceTree.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <utility>

namespace fs = std::filesystem;

namespace sourcetree {
namespace {

const fs::path root = QUORLANE_SOURCE_FOLDER;

struct PipeCloser
{
    void operator()(std::FILE* pipe) const noexcept { pclose(pipe); }
};

/// What git counts to the project; empty where there is no git or no repository.
std::vector<std::string> filesKnownToGit()
{
    // A checkout may belong to another user than the one who tests it.
    const std::string command = "cd '" + root.string()
        + "' && git -c \"safe.directory=$PWD\" ls-files --cached --others --exclude-standard -z "
          "2>/dev/null";
    const std::unique_ptr<std::FILE, PipeCloser> pipe(popen(command.c_str(), "r"));
    std::vector<std::string> names;
    std::string name;
    for (int byte = pipe ? std::fgetc(pipe.get()) : EOF; byte != EOF;
         byte = std::fgetc(pipe.get())) {
        if (byte != 0) {
            name.push_back(static_cast<char>(byte));
        } else if (fs::exists(root / name)) {  // a removed file is listed until the next commit
            names.push_back(std::exchange(name, {}));
        } else {
            name.clear();
        }
    }
    return names;
}

std::vector<std::string> filesInFolders()
{
    std::vector<std::string> names;
    for (auto entry = fs::recursive_directory_iterator(root);
         entry != fs::recursive_directory_iterator(); ++entry) {
        const std::string name = entry->path().lexically_relative(root).string();
        if (entry->is_directory() && (name == "build" || name == ".git")) {
            entry.disable_recursion_pending();
        } else if (entry->is_regular_file()) {
            names.push_back(name);
        }
    }
    return names;
}

}  // namespace

std::vector<std::string> files(const std::vector<std::string>& suffixes)
{
    std::vector<std::string> names = filesKnownToGit();
    if (names.empty()) {
        names = filesInFolders();
    }
    std::erase_if(names, [&](const std::string& name) {
        return !suffixes.empty() && std::ranges::none_of(suffixes, [&](const auto& suffix) {
            return name.ends_with(suffix);
        });
    });
    std::ranges::sort(names);
    return names;
}

std::string contentOf(const std::string& file)
{
    std::ifstream stream(root / file, std::ios::binary);
    if (!stream) {
        throw std::runtime_error("cannot read " + file);
    }
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::uintmax_t sizeOf(const std::string& file)
{
    return fs::file_size(root / file);
}

std::vector<fs::path> split(std::string_view folders)
{
    std::vector<fs::path> paths;
    while (!folders.empty()) {
        const auto end = std::min(folders.find('|'), folders.size());
        paths.emplace_back(folders.substr(0, end));
        folders.remove_prefix(std::min(end + 1, folders.size()));
    }
    return paths;
}

}  // namespace sourcetree

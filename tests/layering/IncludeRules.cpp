#include "tests/layering/IncludeRules.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <initializer_list>
#include <utility>

namespace includerules {
namespace {

struct Folder
{
    std::string_view name;
    std::string_view prefix;
    std::initializer_list<std::string_view> mayUse;  ///< besides itself
    bool qtCoreOnly;
};

// A folder within another stands before it.
const std::array folders{
    Folder{"data", "data/", {}, true},
    Folder{"filter", "grid/filter/", {"data"}, true},
    Folder{"analysis", "analysis/", {"data", "filter"}, false},
    Folder{"grid", "grid/", {"data", "filter", "analysis"}, false},
    Folder{"program", "workspace/program/", {"data"}, true},
    Folder{"workspace", "workspace/", {"data", "filter", "analysis", "program"}, false},
    Folder{"app", "app/", {"data", "filter", "analysis", "grid", "program", "workspace"}, false},
    Folder{"cli", "cli/", {"data", "filter", "analysis", "program"}, true},
    Folder{"samples", "samples/", {}, true},
    Folder{"benchmarks",
           "benchmarks/",
           {"data", "filter", "analysis", "grid", "workspace", "samples"},
           false},
};

struct Exception
{
    std::string_view folder;
    std::string_view header;
};

// Headers of grid/ without a view in them: plain values that the workspace stores.
constexpr std::array exceptions{
    Exception{"workspace", "grid/ViewState.h"},
};

const Folder* findFolder(std::string_view path)
{
    const auto found = std::ranges::find_if(
        folders, [&](const Folder& folder) { return path.starts_with(folder.prefix); });
    return found == folders.end() ? nullptr : &*found;
}

std::string_view withoutLeadingBlanks(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    return text;
}

/// The include on one line of source, or nothing.
std::optional<Include> includeOnLine(std::string_view line)
{
    line = withoutLeadingBlanks(line);
    if (!line.starts_with('#')) {
        return std::nullopt;
    }
    line = withoutLeadingBlanks(line.substr(1));
    constexpr std::string_view directive = "include";
    if (!line.starts_with(directive)) {
        return std::nullopt;
    }
    line = withoutLeadingBlanks(line.substr(directive.size()));
    if (!line.starts_with('"') && !line.starts_with('<')) {
        return std::nullopt;
    }
    const bool quoted = line.front() == '"';
    line.remove_prefix(1);
    return Include{0, std::string(line.substr(0, line.find(quoted ? '"' : '>'))), quoted};
}

/// The text with block comments blanked out, line ends kept.
std::string withoutBlockComments(std::string_view source)
{
    std::string text(source);
    for (auto start = text.find("/*"); start != std::string::npos; start = text.find("/*", start)) {
        const auto end = std::min(text.find("*/", start + 2), text.size() - 2) + 2;
        for (; start < end; ++start) {
            text[start] = text[start] == '\n' ? '\n' : ' ';
        }
    }
    return text;
}

bool isQtHeader(std::string_view header)
{
    return header.size() > 1 && header[0] == 'Q'
        && (std::isupper(static_cast<unsigned char>(header[1])) != 0 || header.starts_with("Qt"));
}

/// moc's output stands beside no source; the build folder holds it.
bool isGenerated(std::string_view path)
{
    return path.ends_with(".moc") || path.starts_with("moc_");
}

std::optional<std::string> objectionToOurs(const Folder& from, std::string_view path)
{
    const Folder* const to = findFolder(path);
    if (to == nullptr) {
        return isGenerated(path) ? std::nullopt
                                 : std::optional<std::string>("is not written from the root");
    }
    const bool excepted = std::ranges::any_of(exceptions, [&](const Exception& exception) {
        return exception.folder == from.name && exception.header == path;
    });
    if (to->name == from.name || excepted || std::ranges::count(from.mayUse, to->name) > 0) {
        return std::nullopt;
    }
    return std::string(from.name) + " may not use " + std::string(to->name);
}

}  // namespace

std::vector<Include> includesOf(std::string_view source)
{
    const std::string text = withoutBlockComments(source);
    std::vector<Include> includes;
    int number = 0;
    for (std::string_view rest = text; !rest.empty();) {
        ++number;
        const auto end = std::min(rest.find('\n'), rest.size());
        if (auto include = includeOnLine(rest.substr(0, end))) {
            include->line = number;
            includes.push_back(*std::move(include));
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return includes;
}

std::optional<std::string> folderOf(std::string_view path)
{
    const Folder* const folder = findFolder(path);
    return folder == nullptr ? std::nullopt : std::optional<std::string>(folder->name);
}

Checker::Checker(std::vector<std::filesystem::path> qtCoreFolders)
    : m_qtCoreFolders(std::move(qtCoreFolders))
{ }

bool Checker::isQtCore(std::string_view header) const
{
    constexpr std::string_view module = "QtCore/";
    if (header.starts_with(module)) {
        header.remove_prefix(module.size());
    }
    return std::ranges::any_of(m_qtCoreFolders, [&](const std::filesystem::path& folder) {
        return std::filesystem::exists(folder / header);
    });
}

std::optional<std::string> Checker::objection(std::string_view file, const Include& include) const
{
    const Folder* const from = findFolder(file);
    if (from == nullptr) {
        return std::nullopt;
    }
    if (include.quoted) {
        return objectionToOurs(*from, include.path);
    }
    if (findFolder(include.path) != nullptr) {
        return "a header of ours belongs in quotes";
    }
    if (from->qtCoreOnly && isQtHeader(include.path) && !isQtCore(include.path)) {
        return std::string(from->name) + " may use no Qt module but Qt Core";
    }
    return std::nullopt;
}

}  // namespace includerules

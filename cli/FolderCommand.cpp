#include "analysis/FolderVariables.h"
#include "cli/Commands.h"
#include "data/readers/DatasetFolder.h"

#include <fmt/format.h>

#include <array>
#include <cstdio>

namespace cli {

namespace {

using foldervariables::Attribute;

constexpr std::array<std::pair<Attribute, const char*>, foldervariables::attributeCount> words{{
    {Attribute::Type, "type"},
    {Attribute::Length, "length"},
    {Attribute::Format, "format"},
    {Attribute::Label, "label"},
}};

std::vector<std::string> differencesOf(const foldervariables::Variable& variable)
{
    std::vector<std::string> differences;
    for (const auto& [attribute, word] : words) {
        if (variable.isDifferent(attribute)) {
            differences.emplace_back(word);
        }
    }
    return differences;
}

std::string jsonLine(const foldervariables::Variable& variable)
{
    return fmt::format(
        R"({{"dataset":{},"file":{},"name":{},"type":{},"length":{},"format":{},"label":{},"differs":[{}]}})",
        jsonText(variable.dataset), jsonText(filepath::displayName(variable.path)),
        jsonText(variable.name), jsonText(variable.text(Attribute::Type)),
        variable.text(Attribute::Length), jsonText(variable.text(Attribute::Format)),
        jsonText(variable.text(Attribute::Label)), jsonTexts(differencesOf(variable)));
}

void printTable(const foldervariables::Contents& contents, OutputFormat format)
{
    TableWriter table(format, {false, false, false, false, true});
    table.add({"Dataset", "File", "Variable", "Type", "Length", "Format", "Differs", "Label"});
    for (const foldervariables::Variable& variable : contents.variables) {
        table.add({variable.dataset, filepath::displayName(variable.path), variable.name,
                   variable.text(Attribute::Type), variable.text(Attribute::Length),
                   variable.text(Attribute::Format),
                   fmt::format("{}", fmt::join(differencesOf(variable), ", ")),
                   variable.text(Attribute::Label)});
    }
    table.finish();
}

}  // namespace

Result<bool> printFolder(const std::string& folder, OutputFormat format)
{
    const auto files = datasetfolder::list(filepath::fromBytes(folder));
    if (!files) {
        return Failure{files.error()};
    }
    std::vector<QString> paths;
    for (const datasetfolder::File& file : files.value()) {
        paths.push_back(file.path);
    }
    const foldervariables::Contents contents = foldervariables::read(paths);
    if (format == OutputFormat::Json) {
        for (const foldervariables::Variable& variable : contents.variables) {
            print(jsonLine(variable) + '\n');
        }
    } else {
        printTable(contents, format);
    }
    for (const std::string& note : contents.notes) {
        fmt::print(stderr, "quorlane-cli: {}\n", note);
    }
    for (const std::string& failure : contents.failures) {
        fmt::print(stderr, "quorlane-cli: {}\n", failure);
    }
    return contents.failures.empty();
}

}  // namespace cli

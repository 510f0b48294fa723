#include "analysis/FolderVariables.h"

#include "data/FilePath.h"
#include "data/readers/DatasetFile.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <map>

namespace foldervariables {
namespace {

constexpr std::size_t indexOf(Attribute attribute)
{
    return static_cast<std::size_t>(attribute);
}

/// SAS takes names that differ in letter case only for the same.
std::string keyOf(std::string name)
{
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
    return name;
}

Variable variableOf(const StatDataset& dataset, int number)
{
    const auto v = static_cast<std::size_t>(number);
    Variable variable;
    variable.dataset = dataset.datasetName();
    variable.position = number + 1;
    variable.name = dataset.names()[v];
    variable.attributes[indexOf(Attribute::Type)] =
        dataset.isNumeric(number) ? "Numeric" : "Character";
    variable.attributes[indexOf(Attribute::Length)] = std::to_string(dataset.lengths()[v]);
    variable.attributes[indexOf(Attribute::Format)] = dataset.writtenFormat(number);
    variable.attributes[indexOf(Attribute::Label)] = dataset.labels()[v];
    return variable;
}

/// Adds what a dataset of a file tells.
/// @return  the names of all datasets of the file; none where it cannot be read
std::vector<std::string> addDataset(Contents& contents, const QString& path,
                                    const std::string& member)
{
    const Result<OpenedDataset> opened =
        openDataset(path, {.metadataOnly = true, .member = member});
    if (!opened) {
        contents.failures.push_back(opened.error());
        return {};
    }
    const StatDataset& dataset = *opened.value().dataset;
    const bool isOneOfSeveral = opened.value().members.size() > 1;
    for (int number = 0; number < dataset.variableCount(); ++number) {
        Variable variable = variableOf(dataset, number);
        variable.path = path;
        if (isOneOfSeveral) {
            variable.dataset = member.empty() ? opened.value().members.front() : member;
            variable.member = QString::fromStdString(variable.dataset);
        }
        contents.variables.push_back(std::move(variable));
    }
    ++contents.datasetCount;
    for (const std::string& note : dataset.damageNotes()) {
        contents.notes.push_back(fmt::format("{}: {}", filepath::displayName(path), note));
    }
    return opened.value().members;
}

}  // namespace

bool Variable::isDifferent() const
{
    return std::find(differs.begin(), differs.end(), true) != differs.end();
}

Contents read(const std::vector<QString>& paths)
{
    Contents contents;
    for (const QString& path : paths) {
        addFile(contents, path);
    }
    markDifferences(contents);
    return contents;
}

void addFile(Contents& contents, const QString& path)
{
    const std::vector<std::string> members = addDataset(contents, path, {});
    for (std::size_t m = 1; m < members.size(); ++m) {
        static_cast<void>(addDataset(contents, path, members[m]));
    }
}

void markDifferences(Contents& contents)
{
    std::map<std::string, std::vector<Variable*>> byName;
    for (Variable& variable : contents.variables) {
        byName[keyOf(variable.name)].push_back(&variable);
    }
    for (const auto& entry : byName) {
        const std::vector<Variable*>& alike = entry.second;
        for (std::size_t a = 0; a < attributeCount; ++a) {
            const bool differs = std::any_of(alike.begin(), alike.end(), [&](const Variable* one) {
                return one->attributes[a] != alike.front()->attributes[a];
            });
            for (Variable* variable : alike) {
                variable->differs[a] = differs;
            }
        }
    }
}

std::string valuesOf(const Contents& contents, const Variable& variable, Attribute attribute)
{
    std::vector<std::pair<std::string, std::string>> datasetsByValue;
    for (const Variable& other : contents.variables) {
        if (keyOf(other.name) != keyOf(variable.name)) {
            continue;
        }
        const std::string& value = other.text(attribute);
        const auto known = std::find_if(datasetsByValue.begin(), datasetsByValue.end(),
                                        [&](const auto& entry) { return entry.first == value; });
        if (known == datasetsByValue.end()) {
            datasetsByValue.emplace_back(value, other.dataset);
        } else {
            known->second += ", " + other.dataset;
        }
    }
    std::string text;
    for (const auto& [value, datasets] : datasetsByValue) {
        text += fmt::format("{}{}: {}", text.empty() ? "" : "\n", value, datasets);
    }
    return text;
}

}  // namespace foldervariables

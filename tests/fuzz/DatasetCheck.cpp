#include "tests/fuzz/DatasetCheck.h"

#include "data/FilePath.h"
#include "data/readers/DatasetFile.h"
#include "data/values/Texts.h"

#include <fmt/format.h>

#include <cmath>

namespace fuzz {

namespace {

std::string brokenSizes(const StatDataset& dataset)
{
    if (dataset.observationCount() < 0 || dataset.variableCount() < 0) {
        return "a count is negative";
    }
    const auto rows = static_cast<std::size_t>(dataset.observationCount());
    const auto variables = static_cast<std::size_t>(dataset.variableCount());
    const bool hasValues = dataset.valuesWanted();
    if (dataset.cellCount() != (hasValues ? rows * variables : 0)) {
        return fmt::format("{} cells for {} x {}", dataset.cellCount(), rows, variables);
    }
    for (const std::size_t entries :
         {dataset.names().size(), dataset.labels().size(), dataset.formats().size(),
          dataset.informats().size(), dataset.typeCodes().size(), dataset.lengths().size(),
          dataset.formatWidths().size(), dataset.formatDecimals().size(),
          dataset.visibleVariables().size()}) {
        if (entries != variables) {
            return fmt::format("{} entries for {} variables", entries, variables);
        }
    }
    for (const BitVector* const bits :
         {&dataset.libraryFilterMask(), &dataset.matchedObservations(),
          &dataset.datasetFilterMask()}) {
        if (bits->size() != (hasValues ? rows : 0)) {
            return fmt::format("{} bits for {} observations", bits->size(), rows);
        }
    }
    return {};
}

std::string brokenAttribute(const StatDataset& dataset)
{
    const DatasetHeader& header = dataset.header();
    for (const std::string* const text : {&header.tableName, &header.fileLabel, &header.memberType,
                                          &header.encoding, &header.release, &header.host}) {
        if (!texts::isUtf8(*text)) {
            return "a header text is no UTF-8: " + *text;
        }
    }
    for (int variable = 0; variable < dataset.variableCount(); ++variable) {
        for (int attribute = 0; attribute <= 7; ++attribute) {
            const auto text =
                dataset.variableAttribute(variable, static_cast<VariableAttribute>(attribute));
            if (!texts::isUtf8(text)) {
                return fmt::format("attribute {} of variable {} is no UTF-8", attribute, variable);
            }
        }
        const auto at = static_cast<std::size_t>(variable);
        if (!texts::isUtf8(dataset.informats()[at]) || dataset.lengths()[at] < 0
            || dataset.isNumeric(variable) == dataset.isCharacter(variable)) {
            return fmt::format("variable {} has an impossible informat, length or type", variable);
        }
    }
    return {};
}

std::string brokenCell(const StatDataset& dataset, int row, int variable)
{
    const CellValue& cell = dataset.cell(row, variable);
    if (dataset.isCharacter(variable) != (cell.index() == 0)) {
        return "holds the other type";
    }
    if (const auto* const text = std::get_if<PooledText*>(&cell)) {
        if (*text == nullptr) {
            return "holds no text";
        }
        if (dataset.textPool().find((*text)->text()) != *text) {
            return "holds a text of no pool";
        }
        if ((*text)->references() == 0 || !texts::isUtf8((*text)->text())) {
            return "holds a text without references, or one that is no UTF-8";
        }
    }
    return texts::isUtf8(dataset.cellText(row, variable)) ? "" : "shows no UTF-8";
}

std::string brokenDataset(const StatDataset& dataset)
{
    for (const auto& broken : {brokenSizes(dataset), brokenAttribute(dataset)}) {
        if (!broken.empty()) {
            return broken;
        }
    }
    const int rows = dataset.valuesWanted() ? dataset.observationCount() : 0;
    for (int row = 0; row < rows; ++row) {
        for (int variable = 0; variable < dataset.variableCount(); ++variable) {
            if (const auto broken = brokenCell(dataset, row, variable); !broken.empty()) {
                return fmt::format("cell {}, {} {}", row, variable, broken);
            }
        }
    }
    return {};
}

/// Whoever reads the description alone expects to find the same in the whole dataset.
std::string contradiction(const StatDataset& description, const StatDataset& whole)
{
    if (description.names() != whole.names() || description.typeCodes() != whole.typeCodes()
        || description.lengths() != whole.lengths() || description.formats() != whole.formats()) {
        return "the variables differ between the description and the whole";
    }
    if (description.observationCount() != whole.observationCount()) {
        return fmt::format("{} observations in the description, {} in the whole",
                           description.observationCount(), whole.observationCount());
    }
    return {};
}

std::string brokenMember(const QString& path, const std::string& member,
                         std::vector<std::string>& members)
{
    const auto description = openDataset(path, {.metadataOnly = true, .member = member});
    const auto whole = openDataset(path, {.metadataOnly = false, .member = member});
    for (const auto* const result : {&description, &whole}) {
        if (!*result
            && (!result->error().starts_with(filepath::displayName(path) + ": ")
                || !texts::isUtf8(result->error()))) {
            return "the failure names no file: " + result->error();
        }
        if (*result) {
            if (auto broken = brokenDataset(*result->value().dataset); !broken.empty()) {
                return broken;
            }
        }
    }
    if (!whole) {
        return {};
    }
    members = whole.value().members;
    return description ? contradiction(*description.value().dataset, *whole.value().dataset)
                       : "the whole can be read, the description cannot: " + description.error();
}

}  // namespace

std::string brokenPromise(const std::filesystem::path& path)
{
    const QString name = filepath::fromBytes(path.string());
    std::vector<std::string> members;
    std::string broken = brokenMember(name, {}, members);
    constexpr std::size_t mostMembers = 5;
    for (std::size_t i = 1; i < std::min(members.size(), mostMembers) && broken.empty(); ++i) {
        std::vector<std::string> ignored;
        broken = brokenMember(name, members[i], ignored);
    }
    return broken;
}

}  // namespace fuzz

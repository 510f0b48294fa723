#include "tests/fuzz/DatasetCheck.h"

#include "data/FilePath.h"
#include "data/readers/DatasetFile.h"
#include "data/values/Texts.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <set>

namespace {

/// The stack of the abort tells the rest.
void require(bool kept, const char* promise)
{
    if (!kept) {
        std::fprintf(stderr, "Broken promise: %s\n", promise);
        std::abort();
    }
}

void checkSizes(const StatDataset& dataset)
{
    require(dataset.observationCount() >= 0 && dataset.variableCount() >= 0, "counts");
    const auto rows = static_cast<std::size_t>(dataset.observationCount());
    const auto variables = static_cast<std::size_t>(dataset.variableCount());
    const bool hasValues = dataset.valuesWanted();
    require(dataset.cellCount() == (hasValues ? rows * variables : 0), "a cell for each value");
    for (const std::size_t entries :
         {dataset.names().size(), dataset.labels().size(), dataset.formats().size(),
          dataset.informats().size(), dataset.typeCodes().size(), dataset.lengths().size(),
          dataset.formatWidths().size(), dataset.formatDecimals().size(),
          dataset.visibleVariables().size()}) {
        require(entries == variables, "an entry for each variable");
    }
    for (const std::size_t bits :
         {dataset.libraryFilterMask().size(), dataset.matchedObservations().size(),
          dataset.datasetFilterMask().size()}) {
        require(bits == (hasValues ? rows : 0), "a bit for each observation");
    }
}

void checkDescription(const StatDataset& dataset)
{
    const DatasetHeader& header = dataset.header();
    for (const std::string* const text : {&header.tableName, &header.fileLabel, &header.memberType,
                                          &header.encoding, &header.release, &header.host}) {
        require(texts::isUtf8(*text), "header texts in UTF-8");
    }
    for (const std::string& note : dataset.damageNotes()) {
        require(texts::isUtf8(note), "notes in UTF-8");
    }
    const std::set<std::string> names(dataset.names().begin(), dataset.names().end());
    require(names.size() == dataset.names().size(), "no two variables of one name");
    for (int variable = 0; variable < dataset.variableCount(); ++variable) {
        for (int attribute = 0; attribute <= 7; ++attribute) {
            const auto which = static_cast<VariableAttribute>(attribute);
            require(texts::isUtf8(dataset.variableAttribute(variable, which)),
                    "attributes in UTF-8");
        }
        const auto at = static_cast<std::size_t>(variable);
        require(texts::isUtf8(dataset.informats()[at]), "informats in UTF-8");
        require(dataset.lengths()[at] >= 0, "lengths");
        require(dataset.isNumeric(variable) != dataset.isCharacter(variable), "one type");
    }
}

void checkCell(const StatDataset& dataset, int row, int variable)
{
    const CellValue& cell = dataset.cell(row, variable);
    require(dataset.isCharacter(variable) == (cell.index() == 0), "values of the variable's type");
    if (const auto* const held = std::get_if<PooledText*>(&cell)) {
        const PooledText* const text = *held;
        require(text != nullptr, "a text in each cell");
        require(dataset.textPool().find(text->text()) == text, "texts of the dataset's pool");
        require(text->references() > 0, "texts with references");
        require(texts::isUtf8(text->text()), "values in UTF-8");
    }
    require(texts::isUtf8(dataset.cellText(row, variable)), "cell texts in UTF-8");
}

void checkDataset(const StatDataset& dataset)
{
    checkSizes(dataset);
    checkDescription(dataset);
    const int rows = dataset.valuesWanted() ? dataset.observationCount() : 0;
    for (int row = 0; row < rows; ++row) {
        for (int variable = 0; variable < dataset.variableCount(); ++variable) {
            checkCell(dataset, row, variable);
        }
    }
}

/// Whoever reads the description alone expects to find the same in the whole dataset.
void checkAgreement(const StatDataset& description, const StatDataset& whole)
{
    require(description.names() == whole.names() && description.typeCodes() == whole.typeCodes()
                && description.lengths() == whole.lengths()
                && description.formats() == whole.formats(),
            "the same variables in the description and the whole");
    require(description.observationCount() == whole.observationCount(),
            "as many observations in the description as in the whole");
}

void checkMember(const QString& path, const std::string& member)
{
    const auto description = openDataset(path, {.metadataOnly = true, .member = member});
    const auto whole = openDataset(path, {.metadataOnly = false, .member = member});
    for (const auto* const result : {&description, &whole}) {
        if (*result) {
            checkDataset(*result->value().dataset);
        } else {
            require(result->error().starts_with(filepath::displayName(path) + ": "),
                    "a failure that names its file");
            require(texts::isUtf8(result->error()), "failures in UTF-8");
        }
    }
    if (whole) {
        require(static_cast<bool>(description), "a description of what can be read");
        checkAgreement(*description.value().dataset, *whole.value().dataset);
        require(member.empty() || whole.value().dataset->datasetName() == member,
                "the dataset of that name");
    }
}

}  // namespace

void checkDatasetFile(const QString& path)
{
    checkMember(path, {});
    const auto members = datasetNames(path);
    constexpr std::size_t mostMembers = 5;
    for (std::size_t i = 0; members && i < std::min(members.value().size(), mostMembers); ++i) {
        checkMember(path, members.value()[i]);
    }
}

#include "analysis/DatasetContents.h"
#include "cli/Commands.h"
#include "data/FilePath.h"

#include <fmt/format.h>

#include <variant>

namespace cli {

namespace {

/// As the file has it; a reader may keep a name of its own that says how values are shown.
std::string formatName(const StatDataset& dataset, std::size_t v)
{
    const bool isOfFile = !dataset.writtenFormat(static_cast<int>(v)).empty();
    return isOfFile || dataset.formatWidths()[v] > 0 ? dataset.formats()[v] : std::string();
}

std::string variableJson(const StatDataset& dataset, std::size_t v)
{
    return fmt::format(
        R"({{"name":{},"type":{},"length":{},"format":{},"width":{},"decimals":{},"informat":{},"label":{}}})",
        jsonText(dataset.names()[v]), static_cast<int>(dataset.typeCodes()[v]),
        dataset.lengths()[v], jsonText(formatName(dataset, v)), dataset.formatWidths()[v],
        dataset.formatDecimals()[v], jsonText(dataset.informats()[v]),
        jsonText(dataset.labels()[v]));
}

std::string attributesJson(const StatDataset& dataset)
{
    std::vector<std::string> out;
    for (const auto& [name, text] : dataset.fileAttributes()) {
        out.push_back(fmt::format("{}:{}", jsonText(name), jsonText(text)));
    }
    return fmt::format("{{{}}}", fmt::join(out, ","));
}

std::string keyVariablesJson(const StatDataset& dataset)
{
    std::vector<std::string> names;
    for (const int variable : dataset.keyVariables()) {
        names.push_back(dataset.names().at(static_cast<std::size_t>(variable)));
    }
    return jsonTexts(names);
}

void printJson(const OpenedDataset& opened, const QString& path)
{
    const StatDataset& dataset = *opened.dataset;
    std::string out = "{";
    for (const contents::Section& section : contents::sections(dataset, path)) {
        for (const contents::Field& field : section.fields) {
            const auto* text = std::get_if<std::string>(&field.value);
            if (*field.key != '\0') {
                out += fmt::format("\"{}\":{},", field.key,
                                   text != nullptr ? jsonText(*text)
                                                   : contents::valueText(field.value));
            }
        }
    }
    out += fmt::format("\"is64Bit\":{},", dataset.header().is64Bit ? 1 : 0);
    out += fmt::format(R"("attributes":{},"keyVariables":[{}],"notes":[{}],"members":[{}],)",
                       attributesJson(dataset), keyVariablesJson(dataset),
                       jsonTexts(dataset.damageNotes()), jsonTexts(opened.members));
    out += "\"variables\":[";
    for (std::size_t v = 0; v < dataset.names().size(); ++v) {
        out += (v == 0 ? "\n" : ",\n") + variableJson(dataset, v);
    }
    print(out + "\n]}\n");
}

std::vector<std::string> variableLine(const StatDataset& dataset, std::size_t v)
{
    return {std::to_string(v + 1),
            dataset.names()[v],
            std::to_string(static_cast<int>(dataset.typeCodes()[v])),
            std::to_string(dataset.lengths()[v]),
            formatName(dataset, v),
            std::to_string(dataset.formatWidths()[v]),
            std::to_string(dataset.formatDecimals()[v]),
            dataset.informats()[v],
            dataset.labels()[v]};
}

void printFields(const OpenedDataset& opened, const QString& path)
{
    print(contents::fieldsText(*opened.dataset, path));
    for (const std::string& member : opened.members) {
        print(fmt::format("  Member  {}\n", onOneLine(member)));
    }
    print("\n");
}

void printVariables(const StatDataset& dataset, OutputFormat format)
{
    TableWriter table(format, {true, false, true, true, false, true, true});
    table.add(
        {"#", "Variable", "Type", "Length", "Format", "Width", "Decimals", "Informat", "Label"});
    for (std::size_t v = 0; v < dataset.names().size(); ++v) {
        table.add(variableLine(dataset, v));
    }
    table.finish();
}

}  // namespace

void printContents(const OpenedDataset& opened, const std::string& file, OutputFormat format)
{
    const QString path = filepath::fromBytes(file);
    if (format == OutputFormat::Json) {
        printJson(opened, path);
        return;
    }
    if (format == OutputFormat::Text) {
        printFields(opened, path);
    }
    printVariables(*opened.dataset, format);
}

}  // namespace cli

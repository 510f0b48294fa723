#include "cli/Commands.h"

#include <fmt/chrono.h>
#include <fmt/format.h>

#include <ctime>
#include <optional>
#include <utility>
#include <variant>

namespace cli {

namespace {

using FieldValue = std::variant<std::string, std::int64_t>;

struct Field
{
    const char* key;  ///< in JSON
    const char* title;  ///< for people
    FieldValue value;
};

/// A time stamp as ISO 8601 text, without a zone: files tell none. Empty where there is none.
std::string timeText(std::int64_t seconds)
{
    constexpr std::int64_t year10000 = 253402300800;
    if (seconds <= -62135596800 || seconds >= year10000 || seconds == 0) {
        return {};
    }
    const auto time = static_cast<std::time_t>(seconds);
    std::tm parts{};
    gmtime_r(&time, &parts);
    return fmt::format("{:%Y-%m-%dT%H:%M:%S}", parts);
}

std::vector<Field> fieldsOf(const OpenedDataset& opened, const std::string& file)
{
    const StatDataset& dataset = *opened.dataset;
    const DatasetHeader& header = dataset.header();
    return {
        {"file", "File", file},
        {"table", "Data set", header.tableName},
        {"label", "Label", header.fileLabel},
        {"memberType", "Member type", header.memberType},
        {"rows", "Observations", std::int64_t{dataset.observationCount()}},
        {"columns", "Variables", std::int64_t{dataset.variableCount()}},
        {"encoding", "Encoding", header.encoding},
        {"created", "Created", timeText(header.creationTime)},
        {"modified", "Modified", timeText(header.modificationTime)},
        {"formatVersion", "Format version", header.formatVersion},
        {"compression", "Compression", std::string(nameOf(header.compression))},
        {"byteOrder", "Byte order", std::string(nameOf(header.byteOrder))},
        {"is64Bit", "64-bit layout", std::int64_t{header.is64Bit}},
        {"release", "Release", header.release},
        {"host", "Host", header.host},
        {"pageSize", "Page size", static_cast<std::int64_t>(header.pageSize)},
        {"pageCount", "Pages", static_cast<std::int64_t>(header.pageCount)},
        {"observationLength", "Observation length", header.observationLength},
        {"deletedObservations", "Deleted observations", header.deletedObservations},
    };
}

std::string variableJson(const StatDataset& dataset, std::size_t v)
{
    return fmt::format(
        R"({{"name":{},"type":{},"length":{},"format":{},"width":{},"decimals":{},"informat":{},"label":{}}})",
        jsonText(dataset.names()[v]), static_cast<int>(dataset.typeCodes()[v]),
        dataset.lengths()[v], jsonText(dataset.formats()[v]), dataset.formatWidths()[v],
        dataset.formatDecimals()[v], jsonText(dataset.informats()[v]),
        jsonText(dataset.labels()[v]));
}

void printJson(const OpenedDataset& opened, const std::vector<Field>& fields)
{
    std::string out = "{";
    for (const Field& field : fields) {
        const auto* text = std::get_if<std::string>(&field.value);
        out += fmt::format("\"{}\":{},", field.key,
                           text != nullptr ? jsonText(*text)
                                           : std::to_string(std::get<1>(field.value)));
    }
    out += fmt::format(R"("members":[{}],"variables":[)", jsonTexts(opened.members));
    for (std::size_t v = 0; v < opened.dataset->names().size(); ++v) {
        out += (v == 0 ? "\n" : ",\n") + variableJson(*opened.dataset, v);
    }
    print(out + "\n]}\n");
}

std::vector<std::string> variableLine(const StatDataset& dataset, std::size_t v)
{
    return {std::to_string(v + 1),
            dataset.names()[v],
            std::to_string(static_cast<int>(dataset.typeCodes()[v])),
            std::to_string(dataset.lengths()[v]),
            dataset.formats()[v],
            std::to_string(dataset.formatWidths()[v]),
            std::to_string(dataset.formatDecimals()[v]),
            dataset.informats()[v],
            dataset.labels()[v]};
}

void printFields(const OpenedDataset& opened, const std::vector<Field>& fields)
{
    TableWriter table(OutputFormat::Text);
    for (const Field& field : fields) {
        const auto* text = std::get_if<std::string>(&field.value);
        std::string value = text != nullptr ? *text : std::to_string(std::get<1>(field.value));
        if (!value.empty()) {
            table.add({field.title, std::move(value)});
        }
    }
    for (const std::string& member : opened.members) {
        table.add({"Member", member});
    }
    table.finish();
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
    if (format == OutputFormat::Json) {
        printJson(opened, fieldsOf(opened, file));
        return;
    }
    if (format == OutputFormat::Text) {
        printFields(opened, fieldsOf(opened, file));
    }
    printVariables(*opened.dataset, format);
}

}  // namespace cli

#include "analysis/DatasetContents.h"

#include "data/FilePath.h"
#include "data/values/AlignedText.h"

#include <fmt/chrono.h>
#include <fmt/format.h>

#include <QCoreApplication>
#include <QDateTime>

#include <algorithm>
#include <ctime>

namespace contents {
namespace {

std::string translated(const char* text)
{
    return QCoreApplication::translate("DatasetContents", text).toStdString();
}

Field field(const char* key, const char* title, Value value, bool isTold = true)
{
    return {key, translated(title), std::move(value), isTold};
}

/// A time stamp as ISO 8601 text, without a zone: files tell none. Empty where there is none.
std::string timeText(std::int64_t seconds)
{
    constexpr std::int64_t year1 = -62135596800;
    constexpr std::int64_t year10000 = 253402300800;
    if (seconds <= year1 || seconds >= year10000 || seconds == 0) {
        return {};
    }
    const auto time = static_cast<std::time_t>(seconds);
    std::tm parts{};
    gmtime_r(&time, &parts);
    return fmt::format("{:%Y-%m-%dT%H:%M:%S}", parts);
}

std::string keyNames(const StatDataset& dataset)
{
    std::vector<std::string> names;
    for (const int variable : dataset.keyVariables()) {
        names.push_back(dataset.names().at(static_cast<std::size_t>(variable)));
    }
    return fmt::format("{}", fmt::join(names, " "));
}

Section datasetSection(const StatDataset& dataset)
{
    const DatasetHeader& header = dataset.header();
    const bool hasPages = header.pageSize > 0;
    return {
        translated(QT_TRANSLATE_NOOP("DatasetContents", "Data Set")),
        {
            field("table", QT_TRANSLATE_NOOP("DatasetContents", "Data Set Name"), header.tableName),
            field("label", QT_TRANSLATE_NOOP("DatasetContents", "Label"), header.fileLabel),
            field("memberType", QT_TRANSLATE_NOOP("DatasetContents", "Member Type"),
                  header.memberType),
            field("rows", QT_TRANSLATE_NOOP("DatasetContents", "Observations"),
                  std::int64_t{dataset.observationCount()}),
            field("columns", QT_TRANSLATE_NOOP("DatasetContents", "Variables"),
                  std::int64_t{dataset.variableCount()}),
            field("key", QT_TRANSLATE_NOOP("DatasetContents", "Key Variables"), keyNames(dataset)),
            field("observationLength", QT_TRANSLATE_NOOP("DatasetContents", "Observation Length"),
                  header.observationLength, header.observationLength > 0),
            field("deletedObservations",
                  QT_TRANSLATE_NOOP("DatasetContents", "Deleted Observations"),
                  header.deletedObservations, hasPages),
            field("created", QT_TRANSLATE_NOOP("DatasetContents", "Created"),
                  timeText(header.creationTime)),
            field("modified", QT_TRANSLATE_NOOP("DatasetContents", "Last Modified"),
                  timeText(header.modificationTime)),
        }};
}

Section fileSection(const StatDataset& dataset, const QString& path)
{
    const DatasetHeader& header = dataset.header();
    const bool hasPages = header.pageSize > 0;
    const bool maybeCompressed = hasPages || dataset.sourceKind() == SourceKind::Spss;
    const filepath::FileState state = filepath::stateOf(path);
    return {
        translated(QT_TRANSLATE_NOOP("DatasetContents", "Engine and File")),
        {
            field("file", QT_TRANSLATE_NOOP("DatasetContents", "File Name"),
                  filepath::shown(path).toStdString()),
            field("fileSize", QT_TRANSLATE_NOOP("DatasetContents", "File Size (bytes)"), state.size,
                  state.exists),
            field("fileModified", QT_TRANSLATE_NOOP("DatasetContents", "File Last Modified"),
                  state.lastModified.toString(Qt::ISODate).toStdString(), state.exists),
            field("formatVersion", QT_TRANSLATE_NOOP("DatasetContents", "Format Version"),
                  header.formatVersion, header.formatVersion > 0),
            field("encoding", QT_TRANSLATE_NOOP("DatasetContents", "Encoding"), header.encoding),
            field("compression", QT_TRANSLATE_NOOP("DatasetContents", "Compressed"),
                  std::string(nameOf(header.compression)), maybeCompressed),
            field("byteOrder", QT_TRANSLATE_NOOP("DatasetContents", "Byte Order"),
                  std::string(nameOf(header.byteOrder))),
            field("layout", QT_TRANSLATE_NOOP("DatasetContents", "Layout"),
                  std::string(header.is64Bit ? "64-bit" : "32-bit"), hasPages),
            field("pageSize", QT_TRANSLATE_NOOP("DatasetContents", "Data Set Page Size"),
                  static_cast<std::int64_t>(header.pageSize), hasPages),
            field("pageCount", QT_TRANSLATE_NOOP("DatasetContents", "Number of Data Set Pages"),
                  static_cast<std::int64_t>(header.pageCount), hasPages),
            field("release", QT_TRANSLATE_NOOP("DatasetContents", "Release Created"),
                  header.release),
            field("host", QT_TRANSLATE_NOOP("DatasetContents", "Host Created"), header.host),
        }};
}

Section attributeSection(const StatDataset& dataset)
{
    Section section{translated(QT_TRANSLATE_NOOP("DatasetContents", "Further Attributes")), {}};
    for (const auto& [name, text] : dataset.fileAttributes()) {
        section.fields.push_back({"", name, text});
    }
    return section;
}

Section noteSection(const StatDataset& dataset)
{
    Section section{translated(QT_TRANSLATE_NOOP("DatasetContents", "Notes")), {}};
    for (const std::string& note : dataset.damageNotes()) {
        section.fields.push_back(
            field("", QT_TRANSLATE_NOOP("DatasetContents", "May Be Damaged"), note));
        section.fields.back().isMessage = true;
    }
    return section;
}

std::string quoted(const std::string& text)
{
    if (text.find_first_of(",\"\r\n") == std::string::npos) {
        return text;
    }
    std::string out = "\"";
    for (const char letter : text) {
        out += letter == '"' ? "\"\"" : std::string(1, letter);
    }
    return out + '"';
}

std::string csvLine(const std::vector<std::string>& cells)
{
    std::vector<std::string> out;
    std::ranges::transform(cells, std::back_inserter(out), quoted);
    return fmt::format("{}\n", fmt::join(out, ","));
}

}  // namespace

bool isTold(const Field& field)
{
    const auto* text = std::get_if<std::string>(&field.value);
    return field.isTold && (text == nullptr || !text->empty());
}

std::vector<Section> sections(const StatDataset& dataset, const QString& path)
{
    std::vector<Section> all{datasetSection(dataset), fileSection(dataset, path),
                             attributeSection(dataset), noteSection(dataset)};
    std::erase_if(
        all, [](const Section& section) { return std::ranges::none_of(section.fields, isTold); });
    return all;
}

namespace {

std::string typeText(const StatDataset& dataset, int column)
{
    if (dataset.sourceKind() == SourceKind::DatasetJson) {
        return dataset.variableAttribute(column, VariableAttribute::Type);
    }
    return dataset.isNumeric(column) ? "Num" : "Char";
}

}  // namespace

std::vector<Variable> variables(const StatDataset& dataset)
{
    std::vector<Variable> all;
    for (int column = 0; column < dataset.variableCount(); ++column) {
        const auto at = static_cast<std::size_t>(column);
        all.push_back({.name = dataset.names()[at],
                       .type = typeText(dataset, column),
                       .length = dataset.variableAttribute(column, VariableAttribute::Length),
                       .format = dataset.writtenFormat(column),
                       .informat = dataset.informats()[at],
                       .label = dataset.labels()[at]});
    }
    int key = 0;
    for (const int variable : dataset.keyVariables()) {
        all.at(static_cast<std::size_t>(variable)).key = ++key;
    }
    return all;
}

std::vector<std::string> variableTitles(const StatDataset& dataset)
{
    std::vector<std::string> titles{
        "#",
        translated(QT_TRANSLATE_NOOP("DatasetContents", "Variable")),
        translated(QT_TRANSLATE_NOOP("DatasetContents", "Type")),
        translated(QT_TRANSLATE_NOOP("DatasetContents", "Len")),
        translated(QT_TRANSLATE_NOOP("DatasetContents", "Format")),
        translated(QT_TRANSLATE_NOOP("DatasetContents", "Informat")),
        translated(QT_TRANSLATE_NOOP("DatasetContents", "Label")),
    };
    if (!dataset.keyVariables().empty()) {
        titles.push_back(translated(QT_TRANSLATE_NOOP("DatasetContents", "Key")));
    }
    return titles;
}

std::vector<std::vector<std::string>> variableRows(const StatDataset& dataset)
{
    std::vector<std::vector<std::string>> rows;
    for (const Variable& variable : variables(dataset)) {
        rows.push_back({std::to_string(rows.size() + 1), variable.name, variable.type,
                        variable.length, variable.format, variable.informat, variable.label});
        if (!dataset.keyVariables().empty()) {
            rows.back().push_back(variable.key > 0 ? std::to_string(variable.key) : "");
        }
    }
    return rows;
}

std::string valueText(const Value& value)
{
    const auto* text = std::get_if<std::string>(&value);
    return text != nullptr ? *text : std::to_string(std::get<std::int64_t>(value));
}

std::string fieldsText(const StatDataset& dataset, const QString& path)
{
    std::string out;
    for (const Section& section : sections(dataset, path)) {
        AlignedText lines;
        for (const Field& one : section.fields) {
            if (isTold(one)) {
                lines.add({"  " + one.title, valueText(one.value)});
            }
        }
        out += section.title + '\n' + lines.take();
    }
    return out;
}

std::string asText(const StatDataset& dataset, const QString& path)
{
    AlignedText list({true, false, false, true, false, false, false, true});
    list.add(variableTitles(dataset));
    for (const auto& row : variableRows(dataset)) {
        list.add(row);
    }
    return fieldsText(dataset, path) + '\n' + list.take();
}

std::string asCsv(const StatDataset& dataset, const QString& path)
{
    std::string out;
    for (const Section& section : sections(dataset, path)) {
        for (const Field& one : section.fields) {
            if (isTold(one)) {
                out += csvLine({one.title, valueText(one.value)});
            }
        }
    }
    out += '\n' + csvLine(variableTitles(dataset));
    for (const auto& row : variableRows(dataset)) {
        out += csvLine(row);
    }
    return out;
}

}  // namespace contents

#include "data/readers/DatasetJsonDoc.h"

#include "data/readers/DatasetJsonLoad.h"
#include "data/values/DisplayFormat.h"
#include "data/values/IsoTime.h"
#include "data/values/SasFormat.h"
#include "data/values/Texts.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <limits>
#include <stdexcept>

namespace {

using Content = DatasetJsonContent;

constexpr std::size_t mostVariables = 1000000;
constexpr std::string_view rowNumberOid = "ITEMGROUPDATASEQ";

std::string inSmallLetters(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return text;
}

/// What a variable holds; nothing for a data type that Dataset-JSON does not know.
std::optional<Content> contentOf(const DatasetJsonColumn& column)
{
    const std::string type = inSmallLetters(column.dataType);
    const std::string target = inSmallLetters(column.targetDataType);
    if (type == "date" || type == "datetime" || type == "time") {
        const bool isCount = target == "integer" || target == "decimal";
        return !isCount      ? Content::Text
            : type == "date" ? Content::Date
            : type == "time" ? Content::Time
                             : Content::DateTime;
    }
    if (type == "string" || type == "uri") {
        return Content::Text;
    }
    if (type == "float" || type == "double") {
        return Content::Number;
    }
    return type == "integer" ? std::optional(Content::Integer)
        : type == "decimal"  ? std::optional(Content::Decimal)
        : type == "boolean"  ? std::optional(Content::Boolean)
                             : std::nullopt;
}

/// The format of a variable that has none in the file.
displayformat::Parts usualFormat(Content content)
{
    switch (content) {
    case Content::Boolean:
        return {std::string(displayformat::booleanName), 0, 0};
    case Content::Date:
        return {"E8601DA", 10, 0};
    case Content::DateTime:
        return {"E8601DT", 0, 0};
    case Content::Time:
        return {"E8601TM", 0, 0};
    default:
        return {};
    }
}

bool isRowNumber(const DatasetJsonColumn& column)
{
    return column.oid == rowNumberOid || column.name == rowNumberOid;
}

/// Seconds since 1970; 0 for what is no date and time.
std::int64_t secondsOf(const std::string& text)
{
    constexpr std::int64_t from1960to1970 = 315619200;
    const std::optional<double> seconds = isotime::dateTime(text);
    return seconds ? static_cast<std::int64_t>(*seconds) - from1960to1970 : 0;
}

}  // namespace

DatasetJsonDoc::DatasetJsonDoc()
    : m_exactTexts(m_textPool)
{ }

int DatasetJsonDoc::load(const QString& path)
{
    m_described.clear();
    m_exactTexts.clear();
    m_hidesFirst = false;
    const int code = loadFrom(path, [&](const FileReader& file) {
        DatasetJsonLoad(*this, file).run();
        return std::string();
    });
    if (code == 0 && m_hidesFirst) {
        m_visibleVariables.reset(0);
    }
    return code;
}

std::string DatasetJsonDoc::cellText(int row, int column) const
{
    if (!inRange(row, column)) {
        return {};
    }
    const auto variable = static_cast<std::size_t>(column);
    const std::string& format = m_formats[variable];
    const int width = m_formatWidths[variable];
    const int decimals = m_formatDecimals[variable];
    if (m_typeCodes[variable] == TypeCode::Character) {
        return shownText(heldText(row, column), column);
    }
    if (m_exactTexts.size() > 0 && format.empty() && width == 0) {
        if (const std::string_view exact = m_exactTexts.find(cellIndex(row, column));
            !exact.empty()) {
            return std::string(exact);
        }
    }
    return formatNumeric(std::get<1>(cell(row, column)), format, width, decimals);
}

std::string DatasetJsonDoc::shownText(std::string_view text, int column) const
{
    const auto variable = static_cast<std::size_t>(column);
    return texts::trimmed(formatCharacter(text, m_formats[variable], m_formatWidths[variable],
                                          m_formatDecimals[variable]));
}

std::string DatasetJsonDoc::variableAttribute(int column, VariableAttribute attribute) const
{
    const Described& described = m_described[static_cast<std::size_t>(column)];
    switch (attribute) {
    case VariableAttribute::Type:
        return described.dataType;
    case VariableAttribute::Format:
        return described.displayFormat;
    case VariableAttribute::Length:
        return described.hasLength ? StatDataset::variableAttribute(column, attribute)
                                   : std::string();
    default:
        return StatDataset::variableAttribute(column, attribute);
    }
}

std::string DatasetJsonDoc::formatCharacter(std::string_view text, std::string_view format,
                                            int width, int) const
{
    // A format without a width shows the whole text, as one that SAS alone knows does.
    if (format != "$" || width == 0) {
        return std::string(text);
    }
    return sasformat::formatText(text, sasformat::normalise(format), width);
}

std::string DatasetJsonDoc::formatNumeric(double number, std::string_view format, int width,
                                          int decimals) const
{
    return displayformat::number(number, format, width, decimals);
}

bool DatasetJsonDoc::isNumeric(int column) const
{
    return isColumn(column) && StatDataset::isNumeric(column);
}

bool DatasetJsonDoc::isCharacter(int column) const
{
    return isColumn(column) && StatDataset::isCharacter(column);
}

std::string DatasetJsonDoc::writtenFormat(int column) const
{
    return m_described[static_cast<std::size_t>(column)].displayFormat;
}

std::vector<DatasetJsonRows::Column> DatasetJsonDoc::describe(const DatasetJsonMeta& meta)
{
    if (meta.columns.size() > mostVariables) {
        throw std::runtime_error(fmt::format("It describes {} variables; at most {} can be shown",
                                             meta.columns.size(), mostVariables));
    }
    resizeVariables(static_cast<int>(meta.columns.size()));
    m_described.resize(meta.columns.size());
    nameVariables(meta);
    std::vector<DatasetJsonRows::Column> columns;
    std::vector<std::string> unknown;
    for (std::size_t i = 0; i < meta.columns.size(); ++i) {
        const DatasetJsonColumn& column = meta.columns[i];
        const std::optional<Content> content = contentOf(column);
        if (!content) {
            unknown.push_back(m_names[i]);
        }
        describeVariable(i, column, content.value_or(Content::Text));
        columns.push_back({content.value_or(Content::Text), {column.name, column.oid}});
    }
    if (!unknown.empty()) {
        addDamageNote(fmt::format("{}: the data type is none of Dataset-JSON; read as texts",
                                  fmt::join(unknown, ", ")));
    }
    return columns;
}

void DatasetJsonDoc::describeVariable(std::size_t variable, const DatasetJsonColumn& column,
                                      DatasetJsonContent content)
{
    constexpr std::int64_t mostLength = std::numeric_limits<std::int32_t>::max();
    const bool isText = content == Content::Text;
    displayformat::Parts format = displayformat::partsOf(column.displayFormat);
    if (column.displayFormat.empty()) {
        format = usualFormat(content);
    }
    m_described[variable] = {column.dataType, column.displayFormat, column.length.has_value()};
    m_labels[variable] = column.label;
    m_formats[variable] = std::move(format.name);
    m_formatWidths[variable] = format.width;
    m_formatDecimals[variable] = format.decimals;
    m_typeCodes[variable] = isText ? TypeCode::Character : TypeCode::Double;
    m_lengths[variable] = static_cast<std::int32_t>(
        std::clamp<std::int64_t>(column.length.value_or(isText ? 0 : 8), 0, mostLength));
}

void DatasetJsonDoc::nameVariables(const DatasetJsonMeta& meta)
{
    std::vector<std::string> unnamed;
    for (std::size_t i = 0; i < meta.columns.size(); ++i) {
        m_names[i] = meta.columns[i].name;
        if (m_names[i].empty()) {
            // An OID ends in the name by custom: IT.DM.USUBJID.
            const std::string& oid = meta.columns[i].oid;
            m_names[i] = oid.substr(oid.rfind('.') + 1);
        }
        if (m_names[i].empty()) {
            m_names[i] = fmt::format("VAR{}", i + 1);
        }
        if (meta.columns[i].name.empty()) {
            unnamed.push_back(m_names[i]);
        }
    }
    if (!unnamed.empty()) {
        addDamageNote(fmt::format("It names {} of its variables not at all; the first is called {}",
                                  unnamed.size(), unnamed.front()));
    }
}

void DatasetJsonDoc::finishDescription(const DatasetJsonMeta& meta, const std::string& encoding)
{
    m_header.creationTime = secondsOf(meta.created);
    m_header.modificationTime = secondsOf(meta.modified);
    m_header.tableName = meta.name;
    m_header.fileLabel = meta.label;
    m_header.encoding = encoding;
    m_header.release = meta.systemVersion;
    m_header.host = meta.systemName;
    m_fileAttributes = meta.attributes;
    for (const FileAttribute& attribute : m_fileAttributes) {
        if (attribute.first == "datasetJSONVersion") {
            m_header.formatVersion = std::atoi(attribute.second.c_str());
        }
    }
    setKeys(meta);
    // It counts the rows and is no variable of the study.
    m_hidesFirst = m_variableCount > 1 && isRowNumber(meta.columns.front());
}

void DatasetJsonDoc::setKeys(const DatasetJsonMeta& meta)
{
    for (std::size_t i = 0; i < meta.columns.size(); ++i) {
        if (meta.columns[i].keySequence > 0) {
            m_keyVariables.push_back(static_cast<int>(i));
        }
    }
    std::stable_sort(m_keyVariables.begin(), m_keyVariables.end(), [&](int one, int other) {
        return meta.columns[static_cast<std::size_t>(one)].keySequence
            < meta.columns[static_cast<std::size_t>(other)].keySequence;
    });
}

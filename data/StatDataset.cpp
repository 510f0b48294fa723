#include "data/StatDataset.h"

#include "data/values/NumberText.h"
#include "data/values/Texts.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cwctype>

std::string_view nameOf(FileCompression compression)
{
    switch (compression) {
    case FileCompression::Rows:
        return "rows";
    case FileCompression::Binary:
        return "binary";
    case FileCompression::Gzip:
        return "gzip";
    case FileCompression::Bzip2:
        return "bzip2";
    case FileCompression::Xz:
        return "xz";
    case FileCompression::None:
        break;
    }
    return "none";
}

std::string_view nameOf(ByteOrder order)
{
    switch (order) {
    case ByteOrder::Little:
        return "little";
    case ByteOrder::Big:
        return "big";
    case ByteOrder::None:
        break;
    }
    return {};
}

StatDataset::~StatDataset() = default;

std::string StatDataset::cellText(int row, int column) const
{
    if (!inRange(row, column)) {
        return {};
    }
    const auto variable = static_cast<std::size_t>(column);
    switch (m_typeCodes[variable]) {
    case TypeCode::Character:
        return shownText(heldText(row, column), column);
    case TypeCode::Double:
        return texts::trimmed(formatNumeric(numericValue(row, column), m_formats[variable],
                                            m_formatWidths[variable], m_formatDecimals[variable]));
    default:
        return {};
    }
}

std::string StatDataset::variableAttribute(int column, VariableAttribute attribute) const
{
    const auto variable = static_cast<std::size_t>(column);
    switch (attribute) {
    case VariableAttribute::Name:
        return m_names[variable];
    case VariableAttribute::Type:
        // The narrower numeric types show as "Character" here, which is kept.
        return m_typeCodes[variable] == TypeCode::Double ? "Numeric" : "Character";
    case VariableAttribute::Length:
        return std::to_string(m_lengths[variable]);
    case VariableAttribute::Format:
        return m_formats[variable];
    case VariableAttribute::Label:
        return m_labels[variable];
    case VariableAttribute::Informat:
        break;
    }
    return {};
}

int StatDataset::findVariable(std::wstring_view name) const
{
    if (name.empty()) {
        return -1;
    }
    const auto sameLetter = [](char ours, wchar_t theirs) {
        const auto letter = static_cast<unsigned char>(ours);
        return static_cast<std::wint_t>(std::toupper(letter))
            == std::towupper(static_cast<std::wint_t>(theirs));
    };
    const auto found =
        std::find_if(m_names.begin(), m_names.end(), [&](const std::string& candidate) {
            return candidate.size() == name.size()
                && std::equal(candidate.begin(), candidate.end(), name.begin(), sameLetter);
        });
    return found == m_names.end() ? -1 : static_cast<int>(found - m_names.begin());
}

std::string StatDataset::formatCharacter(std::string_view text, std::string_view, int, int) const
{
    return std::string(text);
}

std::string StatDataset::formatNumeric(double number, std::string_view, int, int) const
{
    return std::isnan(number) ? "." : numbertext::shortest(number);
}

bool StatDataset::isNumeric(int column) const
{
    const TypeCode code = m_typeCodes[static_cast<std::size_t>(column)];
    return code >= TypeCode::Int8 && code <= TypeCode::Double;
}

bool StatDataset::isCharacter(int column) const
{
    return m_typeCodes[static_cast<std::size_t>(column)] == TypeCode::Character;
}

std::string StatDataset::stringValue(int row, int column) const
{
    return std::string(heldText(row, column));
}

double StatDataset::numericValue(int row, int column) const
{
    return std::get<1>(cell(row, column));
}

MissingMark StatDataset::missingMark(int) const
{
    return {};
}

std::string_view StatDataset::missingText(int) const
{
    return {};
}

std::string StatDataset::writtenFormat(int column) const
{
    return m_formats[static_cast<std::size_t>(column)];
}

std::string StatDataset::shownText(std::string_view text, int) const
{
    return std::string(texts::trimmedView(text));
}

std::string StatDataset::variableOrigin(int) const
{
    return {};
}

DateScale StatDataset::dateScale(int column) const
{
    return DateScale::ofSas(m_formats[static_cast<std::size_t>(column)]);
}

const CellValue& StatDataset::cell(int row, int column) const
{
    return m_cells[cellIndex(row, column)];
}

bool StatDataset::inRange(int row, int column) const
{
    // A dataset that was read without its values has observations, but no cells.
    return row >= 0 && row < m_observationCount && isColumn(column)
        && cellIndex(row, column) < m_cells.size();
}

std::size_t StatDataset::cellIndex(int row, int column) const
{
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_variableCount)
        + static_cast<std::size_t>(column);
}

std::string_view StatDataset::heldText(int row, int column) const
{
    const PooledText* record = std::get<0>(cell(row, column));
    return record == nullptr ? std::string_view() : record->text();
}

void StatDataset::reset()
{
    m_header = {};
    m_observationCount = 0;
    resizeVariables(0);
    m_cells = CellVector();
    m_visibleVariables.clear();
    for (BitVector* bits : {&m_libraryFilterMask, &m_matchedObservations, &m_datasetFilterMask}) {
        bits->clear();
    }
    m_textPool.clear();
    m_damageNotes.clear();
    m_fileAttributes.clear();
    m_keyVariables.clear();
}

void StatDataset::resizeVariables(int count)
{
    m_variableCount = count;
    const auto size = static_cast<std::size_t>(count);
    m_names.resize(size);
    m_labels.resize(size);
    m_formats.resize(size);
    m_informats.resize(size);
    m_typeCodes.resize(size);
    m_lengths.resize(size);
    m_formatWidths.resize(size);
    m_formatDecimals.resize(size);
}

void StatDataset::resizeBits()
{
    const auto variables = static_cast<std::size_t>(m_variableCount);
    m_visibleVariables = BitVector(variables);
    m_visibleVariables.set();
    if (!m_valuesWanted) {
        return;
    }
    const auto observations = static_cast<std::size_t>(m_observationCount);
    m_libraryFilterMask = BitVector(observations);
    m_libraryFilterMask.set();
    m_matchedObservations = BitVector(observations);
    m_datasetFilterMask = BitVector(observations);
    m_datasetFilterMask.set();
}

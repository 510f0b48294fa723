#include "data/DtaDoc.h"

#include "data/ByteView.h"
#include "data/StataFormat.h"
#include "data/Texts.h"

std::string DtaDoc::cellText(int row, int column) const
{
    if (!inRange(row, column)) {
        return {};
    }
    // Stata's narrower numbers have formats of their own and show like doubles.
    const auto variable = static_cast<std::size_t>(column);
    return isCharacter(column)
        ? StatDataset::cellText(row, column)
        : formatNumeric(numericValue(row, column), m_formats[variable], m_formatWidths[variable],
                        m_formatDecimals[variable]);
}

std::string DtaDoc::variableAttribute(int column, VariableAttribute attribute) const
{
    if (attribute == VariableAttribute::Type) {
        return isNumeric(column) ? "Numeric" : "Character";
    }
    return StatDataset::variableAttribute(column, attribute);
}

std::string DtaDoc::formatNumeric(double number, std::string_view format, int, int) const
{
    return stata::formatNumeric(number, format);
}

std::string DtaDoc::prepare(const FileReader& file, ParserInput& input)
{
    m_layout = readDtaLayout(file);
    // Before release 118 files declare no encoding; nearly all come from Windows.
    setDecoder(TextDecoder(m_layout.release >= 118 ? "UTF-8" : "WINDOWS-1252"));
    input.setReadAhead(std::size_t{256} << 10);
    return {};
}

readstat_error_t DtaDoc::parse(readstat_parser_t* parser, const char* path)
{
    return readstat_parse_dta(parser, path, this);
}

int DtaDoc::acceptMetadata(const readstat_metadata_t& metadata)
{
    copyCommonMetadata(metadata);
    m_header.fileLabel = decoded(metadata.file_label);
    m_header.is64Bit = metadata.is64bit != 0;
    m_header.observationLength = m_layout.rowLength;
    const std::int64_t size = std::max<std::int64_t>(m_layout.rowLength, 1);
    return resizeDataset(metadata.row_count, metadata.var_count, fileSize() / size);
}

std::string DtaDoc::complete(const FileReader& file)
{
    // The library takes the references of release 119 for those of 118 and finds nothing there.
    if (m_valuesWanted && m_layout.release >= 119 && !m_layout.longStringVariables.empty()) {
        resolveLongStrings(file);
    }
    m_layout = {};
    return {};
}

void DtaDoc::resolveLongStrings(const FileReader& file)
{
    const LongStrings strings = readLongStrings(file, m_layout);
    for (int row = 0; row < m_observationCount; ++row) {
        const std::vector<char> bytes =
            file.bytesAt(m_layout.dataOffset + row * m_layout.rowLength, m_layout.rowLength);
        const ByteView cells({bytes.data(), bytes.size()}, m_layout.littleEndian);
        for (const auto& [variable, offset] : m_layout.longStringVariables) {
            // Three bytes of variable number and five of observation number, in file byte order.
            const std::uint64_t reference = cells.u64(static_cast<std::size_t>(offset));
            const bool little = m_layout.littleEndian;
            const auto number =
                static_cast<std::uint32_t>(little ? reference & 0xFFFFFF : reference >> 40);
            const std::uint64_t observation = little ? reference >> 24 : reference & 0xFFFFFFFFFF;
            const auto found = strings.find({number, observation});
            if (found != strings.end() && isColumn(variable) && isCharacter(variable)) {
                setText(row, variable, texts::trimmedView(found->second));
            }
        }
    }
}

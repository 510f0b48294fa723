#include "data/readers/SasDoc.h"

std::string SasDoc::prepare(const FileReader& file, ParserInput& input)
{
    m_layout = readSas7bdatLayout(file);
    for (const Sas7bdatLayout::Byte& byte : m_layout.replacements) {
        input.replaceByte(byte.offset, byte.value);
    }
    setDecoder(TextDecoder(sasEncodingName(m_layout.encodingCode)));
    setSkippedRows(m_layout.deletedRows);
    return {};
}

readstat_error_t SasDoc::parse(readstat_parser_t* parser, const char* path)
{
    return readstat_parse_sas7bdat(parser, path, this);
}

int SasDoc::acceptMetadata(const readstat_metadata_t& metadata)
{
    m_header = m_layout.header;
    copyCommonMetadata(metadata);
    for (std::string* text : {&m_header.tableName, &m_header.fileLabel, &m_header.memberType,
                              &m_header.release, &m_header.host}) {
        *text = decoded(text->c_str());
    }
    m_header.encoding = sasEncodingName(m_layout.encodingCode);
    const auto deleted = static_cast<std::int64_t>(m_layout.deletedRows.size());
    return resizeDataset(metadata.row_count - deleted, metadata.var_count, m_layout.mostRows);
}

void SasDoc::completeVariable(int index)
{
    const auto at = static_cast<std::size_t>(index);
    if (at >= m_layout.columns.size()) {
        return;
    }
    const auto& [format, informat] = m_layout.columns[at];
    setFormats(index, decoded(format.name.c_str()), format.width, format.decimals,
               sasFormatText(decoded(informat.name.c_str()), informat.width, informat.decimals));
}

std::string SasDoc::complete(const FileReader&)
{
    clearEmptyColumns();
    if (m_valuesWanted) {
        normaliseFormats();
    }
    m_layout = {};
    return {};
}

void SasDoc::clearEmptyColumns()
{
    for (const int column : m_layout.emptyColumns) {
        if (!isColumn(column) || !isCharacter(column)) {
            continue;
        }
        m_lengths[static_cast<std::size_t>(column)] = 0;
        for (int row = 0; m_valuesWanted && row < m_observationCount; ++row) {
            setText(row, column, "");
        }
    }
}

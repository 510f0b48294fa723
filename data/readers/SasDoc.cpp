#include "data/readers/SasDoc.h"

#include "data/readers/ReadStatLoad.h"
#include "data/readers/Sas7bdatLayout.h"

class SasDoc::Load : public ReadStatLoad
{
public:
    explicit Load(SasDoc& dataset)
        : ReadStatLoad(dataset)
        , m_dataset(dataset)
    { }

private:
    std::string prepare(const FileReader& file, ParserInput& input) override;
    readstat_error_t parse(readstat_parser_t* parser, const char* path) override;
    int acceptMetadata(const readstat_metadata_t& metadata) override;
    void completeVariable(int index) override;
    std::string complete(const FileReader& file) override;

    void clearEmptyColumns();

    SasDoc& m_dataset;
    Sas7bdatLayout m_layout;
};

int SasDoc::load(const QString& path)
{
    return Load(*this).run(path);
}

std::string SasDoc::Load::prepare(const FileReader& file, ParserInput& input)
{
    m_layout = readSas7bdatLayout(file);
    for (const std::string& note : m_layout.notes) {
        m_dataset.addDamageNote(note);
    }
    for (const Sas7bdatLayout::Byte& byte : m_layout.replacements) {
        input.replaceByte(byte.offset, byte.value);
    }
    cells().setDecoder(TextDecoder(sasEncodingName(m_layout.encodingCode)));
    skippedRows() = SkippedRows(m_layout.deletedRows);
    return m_layout.damage;
}

readstat_error_t SasDoc::Load::parse(readstat_parser_t* parser, const char* path)
{
    return readstat_parse_sas7bdat(parser, path, this);
}

int SasDoc::Load::acceptMetadata(const readstat_metadata_t& metadata)
{
    DatasetHeader& header = m_dataset.m_header;
    header = m_layout.header;
    copyCommonMetadata(metadata);
    for (std::string* text : {&header.tableName, &header.fileLabel, &header.memberType,
                              &header.release, &header.host}) {
        *text = decoded(text->c_str());
    }
    header.encoding = sasEncodingName(m_layout.encodingCode);
    const auto deleted = static_cast<std::int64_t>(m_layout.deletedRows.size());
    return beginRows(metadata.row_count - deleted, metadata.var_count, m_layout.mostRows);
}

void SasDoc::Load::completeVariable(int index)
{
    const auto at = static_cast<std::size_t>(index);
    if (at >= m_layout.columns.size()) {
        return;
    }
    const auto& [format, informat] = m_layout.columns[at];
    m_dataset.setFormats(
        index, decoded(format.name.c_str()), format.width, format.decimals,
        sasFormatText(decoded(informat.name.c_str()), informat.width, informat.decimals));
}

std::string SasDoc::Load::complete(const FileReader&)
{
    clearEmptyColumns();
    if (m_dataset.m_valuesWanted) {
        m_dataset.normaliseFormats();
    }
    return {};
}

void SasDoc::Load::clearEmptyColumns()
{
    for (const int column : m_layout.emptyColumns) {
        if (!m_dataset.isColumn(column) || !m_dataset.isCharacter(column)) {
            continue;
        }
        m_dataset.m_lengths[static_cast<std::size_t>(column)] = 0;
        for (int row = 0; row < m_dataset.m_observationCount; ++row) {
            cells().putMissing(row, column);
        }
    }
}

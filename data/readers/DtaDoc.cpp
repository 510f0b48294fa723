#include "data/readers/DtaDoc.h"

#include "data/readers/ByteView.h"
#include "data/readers/DtaLayout.h"
#include "data/readers/ReadStatLoad.h"
#include "data/values/StataFormat.h"

#include <fmt/format.h>

class DtaDoc::Load : public ReadStatLoad
{
public:
    explicit Load(DtaDoc& dataset)
        : ReadStatLoad(dataset)
        , m_dataset(dataset)
    { }

private:
    std::string prepare(const FileReader& file, ParserInput& input) override;
    readstat_error_t parse(readstat_parser_t* parser, const char* path) override;
    int acceptMetadata(const readstat_metadata_t& metadata) override;
    void completeVariable(int index) override;
    std::string complete(const FileReader& file) override;

    void resolveLongStrings(const FileReader& file, const LongStrings& strings);
    [[nodiscard]] LongStrings::key_type longStringKey(std::uint64_t reference) const;

    DtaDoc& m_dataset;
    DtaLayout m_layout;
};

int DtaDoc::load(const QString& path)
{
    return Load(*this).run(path);
}

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

DateScale DtaDoc::dateScale(int column) const
{
    return DateScale::ofStata(m_formats[static_cast<std::size_t>(column)]);
}

std::string DtaDoc::Load::prepare(const FileReader& file, ParserInput& input)
{
    Result<DtaLayout> layout = readDtaLayout(file);
    if (!layout) {
        return layout.error();
    }
    m_layout = std::move(layout).value();
    // Before release 118 files declare no encoding; nearly all come from Windows.
    cells().setDecoder(TextDecoder(m_layout.release >= 118 ? "UTF-8" : "WINDOWS-1252"));
    if (m_layout.longStringsOffset > 0) {
        // The library reads past long strings that end without a NUL, and takes the references of
        // release 119 for those of 118. It is shown an empty section.
        input.replaceBytes(m_layout.longStringsOffset, "</strls>");
    }
    input.setReadAhead(std::size_t{256} << 10);
    return {};
}

readstat_error_t DtaDoc::Load::parse(readstat_parser_t* parser, const char* path)
{
    return readstat_parse_dta(parser, path, this);
}

int DtaDoc::Load::acceptMetadata(const readstat_metadata_t& metadata)
{
    copyCommonMetadata(metadata);
    DatasetHeader& header = m_dataset.m_header;
    header.fileLabel = decoded(metadata.file_label);
    header.is64Bit = metadata.is64bit != 0;
    header.observationLength = m_layout.rowLength;
    const std::int64_t mostRows = m_layout.rowLength > 0 ? fileSize() / m_layout.rowLength : 0;
    return beginRows(metadata.row_count, metadata.var_count, mostRows);
}

void DtaDoc::Load::completeVariable(int index)
{
    const auto at = static_cast<std::size_t>(index);
    m_dataset.m_formatDecimals[at] = stata::decimalsOf(m_dataset.m_formats[at]);
}

std::string DtaDoc::Load::complete(const FileReader& file)
{
    if (!m_dataset.m_valuesWanted || m_layout.longStringVariables.empty()) {
        return {};
    }
    const Result<LongStrings> strings = readLongStrings(file, m_layout);
    if (!strings) {
        return strings.error();
    }
    resolveLongStrings(file, strings.value());
    return {};
}

void DtaDoc::Load::resolveLongStrings(const FileReader& file, const LongStrings& strings)
{
    const std::int64_t length = m_layout.rowLength;
    const std::int64_t rowsAtOnce = std::max<std::int64_t>((256 << 10) / length, 1);
    std::vector<char> bytes;
    int missing = 0;
    for (int row = 0; row < m_dataset.m_observationCount; ++row) {
        const std::int64_t at = row % rowsAtOnce;
        if (at == 0) {
            bytes = file.bytesAt(m_layout.dataOffset + row * length, rowsAtOnce * length);
        }
        const ByteView rows({bytes.data(), bytes.size()}, m_layout.littleEndian);
        for (const auto& [variable, offset] : m_layout.longStringVariables) {
            const auto place = static_cast<std::size_t>(at * length + offset);
            const std::uint64_t reference = rows.u64(place);
            const auto found = strings.find(longStringKey(reference));
            if (found == strings.end()) {
                missing += reference == 0 ? 0 : 1;
            } else if (m_dataset.isColumn(variable) && m_dataset.isCharacter(variable)) {
                putText(row, variable, found->second);
            }
        }
    }
    if (missing > 0) {
        m_dataset.addDamageNote(
            fmt::format("{} of its long texts are missing; their cells are empty", missing));
    }
}

/// A reference is a variable number and, in the bytes left of eight, an observation number, in the
/// byte order of the file.
LongStrings::key_type DtaDoc::Load::longStringKey(std::uint64_t reference) const
{
    const unsigned bits = m_layout.release >= 119 ? 24 : m_layout.release == 118 ? 16 : 32;
    const std::uint64_t variable = m_layout.littleEndian
        ? reference & ((std::uint64_t{1} << bits) - 1)
        : reference >> (64 - bits);
    const std::uint64_t observation =
        m_layout.littleEndian ? reference >> bits : reference & (~std::uint64_t{0} >> bits);
    return {static_cast<std::uint32_t>(variable), observation};
}

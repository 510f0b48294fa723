#include "data/readers/SavDoc.h"

#include "data/readers/ByteView.h"
#include "data/readers/ReadStatLoad.h"
#include "data/readers/SavCases.h"
#include "data/values/SpssFormat.h"

#include <fmt/format.h>

#include <memory>

namespace {

constexpr std::int64_t headerSize = 176;
constexpr std::size_t layoutCodeAt = 64;
constexpr std::size_t compressionAt = 72;
constexpr std::size_t caseCountAt = 80;
constexpr std::uint32_t rowCompression = 1;
constexpr std::uint32_t zlibCompression = 2;

/// No zlib stream unpacks to more than about this many times its size.
constexpr std::int64_t largestZlibRatio = 1032;

/// Texts that are longer stand in several parts.
constexpr std::size_t longestWholeText = 252;

/// A look at the variables alone, before the file is read.
class Glance
{
public:
    Glance(ParserInput& input, const char* path)
    {
        const std::unique_ptr<readstat_parser_t, decltype(&readstat_parser_free)> parser(
            readstat_parser_init(), readstat_parser_free);
        if (parser != nullptr) {
            readstat_set_metadata_handler(parser.get(), onMetadata);
            readstat_set_variable_handler(parser.get(), onVariable);
            readstat_set_handler_character_encoding(parser.get(), nullptr);
            input.attachTo(parser.get());
            readstat_parse_sav(parser.get(), path, this);
        }
    }
    [[nodiscard]] bool needsOtherName() const { return m_isUtf8 && m_hasVeryLongTexts; }

private:
    static int onMetadata(readstat_metadata_t* metadata, void* context) noexcept
    {
        auto* self = static_cast<Glance*>(context);
        self->m_variablesLeft = metadata->var_count;
        self->m_isUtf8 = metadata->file_encoding != nullptr
            && std::string_view(metadata->file_encoding) == "UTF-8";
        return self->m_isUtf8 ? READSTAT_HANDLER_OK : READSTAT_HANDLER_ABORT;
    }
    static int onVariable(int, readstat_variable_t* variable, const char*, void* context) noexcept
    {
        auto* self = static_cast<Glance*>(context);
        self->m_hasVeryLongTexts = readstat_variable_get_storage_width(variable) > longestWholeText;
        const bool isEnough = self->m_hasVeryLongTexts || --self->m_variablesLeft <= 0;
        return isEnough ? READSTAT_HANDLER_ABORT : READSTAT_HANDLER_OK;
    }

    std::int64_t m_variablesLeft = 0;
    bool m_isUtf8 = false;
    bool m_hasVeryLongTexts = false;
};

}  // namespace

class SavDoc::Load : public ReadStatLoad
{
public:
    explicit Load(SavDoc& dataset)
        : ReadStatLoad(dataset)
        , m_dataset(dataset)
    { }

private:
    std::string prepare(const FileReader& file, ParserInput& input) override;
    readstat_error_t parse(readstat_parser_t* parser, const char* path) override;
    int acceptMetadata(const readstat_metadata_t& metadata) override;
    void completeVariable(int index) override;
    std::string complete(const FileReader& file) override;
    [[nodiscard]] bool isSuccess(readstat_error_t code) const override;

    SavDoc& m_dataset;
    ParserInput* m_input = nullptr;  ///< for the parse, which comes within its life
    bool m_isRenamedUtf8 = false;
    SavCases m_cases;
    bool m_isZlib = false;
};

int SavDoc::load(const QString& path)
{
    return Load(*this).run(path);
}

std::string SavDoc::formatNumeric(double number, std::string_view format, int, int) const
{
    return spss::formatNumeric(number, format);
}

DateScale SavDoc::dateScale(int column) const
{
    return DateScale::ofSpss(m_formats[static_cast<std::size_t>(column)]);
}

std::string SavDoc::Load::prepare(const FileReader& file, ParserInput& input)
{
    m_input = &input;
    const std::vector<char> bytes = file.bytesAt(0, headerSize);
    const std::string_view start(bytes.data(), bytes.size());
    const std::uint32_t layoutCode = ByteView(start, true).u32(layoutCodeAt);
    const ByteView header(start, layoutCode == 2 || layoutCode == 3);
    m_isZlib = start.starts_with("$FL3");
    const std::uint32_t compression = header.u32(compressionAt);
    m_cases.littleEndian = header.littleEndian();
    m_cases.isRowCompressed = compression == rowCompression || compression == zlibCompression;
    if (compression > zlibCompression) {
        m_dataset.addDamageNote(
            fmt::format("Its header names an unknown compression ({}); it was read as uncompressed",
                        compression));
    }

    // An unknown number of cases is legal, but the library then reads none: it is shown the largest
    // number, and its complaint that not all came is no failure.
    if (header.i32(caseCountAt) == -1) {
        setRowCountUnknown();
        const std::size_t topByte = header.littleEndian() ? caseCountAt + 3 : caseCountAt;
        input.replaceByte(static_cast<std::int64_t>(topByte), '\x7F');
    }
    input.setReadAhead(std::size_t{256} << 10);
    return {};
}

readstat_error_t SavDoc::Load::parse(readstat_parser_t* parser, const char* path)
{
    // Of UTF-8 texts the library drops NUL bytes, and where the first part of a very long text
    // holds nothing else, it writes in front of its buffer. It knows UTF-8 by this one spelling
    // only.
    if (Glance(*m_input, path).needsOtherName()) {
        m_isRenamedUtf8 = true;
        readstat_set_file_character_encoding(parser, "utf-8");
    }
    return readstat_parse_sav(parser, path, this);
}

int SavDoc::Load::acceptMetadata(const readstat_metadata_t& metadata)
{
    copyCommonMetadata(metadata);
    DatasetHeader& header = m_dataset.m_header;
    header.encoding = m_isRenamedUtf8       ? "UTF-8"
        : metadata.file_encoding == nullptr ? ""
                                            : metadata.file_encoding;
    cells().setDecoder(TextDecoder(header.encoding));
    header.fileLabel = decoded(metadata.file_label);
    header.is64Bit = metadata.is64bit != 0;
    if (rowCountIsUnknown()) {
        return beginUncountedRows(metadata.var_count);
    }
    // A compressed case takes a byte for each of its values at least, a plain one eight.
    const std::int64_t bytesPerValue = m_isZlib || m_cases.isRowCompressed ? 1 : 8;
    const std::int64_t unpacked = m_isZlib ? fileSize() * largestZlibRatio : fileSize();
    const std::int64_t values = std::max<std::int64_t>(metadata.var_count, 1);
    return beginRows(metadata.row_count, metadata.var_count, unpacked / bytesPerValue / values);
}

void SavDoc::Load::completeVariable(int index)
{
    const auto at = static_cast<std::size_t>(index);
    m_dataset.m_formatDecimals[at] = spss::decimalsOf(m_dataset.m_formats[at]);
    m_cases.start = m_input->position();  // the values follow on the dictionary, which is read now
}

std::string SavDoc::Load::complete(const FileReader& file)
{
    const bool isCut = rowCountIsUnknown() && !m_isZlib && endsWithinCase(file, m_cases);
    return isCut ? "It is cut short within an observation" : "";
}

bool SavDoc::Load::isSuccess(readstat_error_t code) const
{
    return code == READSTAT_OK
        || (rowCountIsUnknown() && code == READSTAT_ERROR_ROW_COUNT_MISMATCH);
}

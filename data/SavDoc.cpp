#include "data/SavDoc.h"

#include "data/ByteView.h"

#include <limits>

namespace {

constexpr std::int64_t headerSize = 176;
constexpr std::size_t layoutCodeAt = 64;
constexpr std::size_t compressionAt = 72;
constexpr std::size_t caseCountAt = 80;

/// No zlib stream unpacks to more than about this many times its size.
constexpr std::int64_t largestZlibRatio = 1032;

}  // namespace

std::string SavDoc::prepare(const FileReader& file, ParserInput& input)
{
    const std::vector<char> bytes = file.bytesAt(0, headerSize);
    const std::string_view start(bytes.data(), bytes.size());
    const std::uint32_t layoutCode = ByteView(start, true).u32(layoutCodeAt);
    const ByteView header(start, layoutCode == 2 || layoutCode == 3);
    m_isZlib = start.starts_with("$FL3");
    m_isRowCompressed = header.u32(compressionAt) != 0;

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

readstat_error_t SavDoc::parse(readstat_parser_t* parser, const char* path)
{
    return readstat_parse_sav(parser, path, this);
}

int SavDoc::acceptMetadata(const readstat_metadata_t& metadata)
{
    copyCommonMetadata(metadata);
    m_header.encoding = metadata.file_encoding == nullptr ? "" : metadata.file_encoding;
    setDecoder(TextDecoder(m_header.encoding));
    m_header.fileLabel = decoded(metadata.file_label);
    m_header.is64Bit = metadata.is64bit != 0;
    if (rowCountIsUnknown()) {
        resizeVariables(static_cast<int>(metadata.var_count));
        return reserveRows(0);
    }
    // A compressed case takes a byte for each of its values at least, a plain one eight.
    const std::int64_t bytesPerValue = m_isZlib || m_isRowCompressed ? 1 : 8;
    const std::int64_t unpacked = m_isZlib ? fileSize() * largestZlibRatio : fileSize();
    const std::int64_t values = std::max<std::int64_t>(metadata.var_count, 1);
    return resizeDataset(metadata.row_count, metadata.var_count, unpacked / bytesPerValue / values);
}

bool SavDoc::isSuccess(readstat_error_t code) const
{
    return code == READSTAT_OK
        || (rowCountIsUnknown() && code == READSTAT_ERROR_ROW_COUNT_MISMATCH);
}

#include "data/readers/Sas7bdatLayout.h"

#include "data/values/Texts.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <optional>
#include <string_view>

namespace {

constexpr std::string_view magic = "\xC2\xEA\x81\x60\xB3\x14\x11\xCF";

/// Offsets and signatures of the file, n = 4 in 32-bit and 8 in 64-bit layout.
constexpr std::int64_t smallestHeader = 1024;
constexpr std::int64_t largestPage = std::int64_t{1} << 24;

constexpr std::uint32_t rowSizeSignature = 0xF7F7F7F7;
constexpr std::uint32_t columnCountSignature = 0xF6F6F6F6;
constexpr std::uint32_t textSignature = 0xFFFFFFFD;
constexpr std::uint32_t attributesSignature = 0xFFFFFFFC;
constexpr std::uint32_t formatSignature = 0xFFFFFBFE;
constexpr std::uint32_t namesSignature = 0xFFFFFFFF;
constexpr std::uint32_t countsSignature = 0xFFFFFC00;
constexpr std::uint32_t listSignature = 0xFFFFFFFE;

constexpr unsigned dataPage = 0x100;
constexpr unsigned mixPage = 0x200;
constexpr unsigned amendmentPage = 0x400;
constexpr unsigned kindOfPage = 0x0F00;
constexpr unsigned compressionIndexPage = 0x9000;
constexpr unsigned deletedRowsOnPage = 0x80;

/// The COMP byte of a subheader pointer is a bit field.
constexpr unsigned compressedRow = 4;
constexpr unsigned deletedCompressedRow = 5;

/// The byte behind it, of rows and, in SAS's own files, of all metadata; other programs write 0 for
/// some of it.
constexpr unsigned typeOfRows = 1;

bool isMetadata(std::uint32_t signature)
{
    constexpr std::array known{rowSizeSignature, columnCountSignature, textSignature,
                               namesSignature,   attributesSignature,  formatSignature,
                               countsSignature,  listSignature};
    return std::find(known.begin(), known.end(), signature) != known.end();
}

/// Encoding codes that the packaged library takes; others end its parse at the header.
bool libraryKnows(int encodingCode)
{
    constexpr std::array known{0,  20, 28,  29,  33,  40,  60,  61,  62,  63,  64, 65,
                               66, 67, 118, 119, 123, 125, 126, 134, 138, 140, 205};
    return std::find(known.begin(), known.end(), encodingCode) != known.end();
}

class LayoutReader
{
public:
    explicit LayoutReader(const FileReader& file)
        : m_file(file)
    { }
    Sas7bdatLayout read();

private:
    struct Page
    {
        ByteView bytes;
        std::int64_t offset;
        unsigned type;
        unsigned blocks;
        unsigned subheaders;
    };
    struct Subheader
    {
        std::int64_t offset;  ///< in the file
        ByteView bytes;
        unsigned compression;
        unsigned type;
        std::int64_t pointerOffset;  ///< in the file
    };

    bool readHeader();
    void readHeaderTexts(const ByteView& header, std::size_t a1, std::size_t a2);
    [[nodiscard]] std::optional<Page> pageAt(std::int64_t number);
    [[nodiscard]] unsigned typeOfPage(std::int64_t number) const;
    [[nodiscard]] std::vector<Subheader> subheadersOf(const Page& page) const;
    [[nodiscard]] std::uint32_t signatureOf(const ByteView& subheader) const;
    [[nodiscard]] std::size_t wordSize() const { return m_is64Bit ? 8 : 4; }
    [[nodiscard]] std::size_t pageHeaderSize() const { return m_is64Bit ? 40 : 24; }
    [[nodiscard]] std::size_t pointerSize() const { return m_is64Bit ? 24 : 12; }
    [[nodiscard]] std::int64_t word(const ByteView& bytes, std::size_t number) const;

    void readMetadata();
    void readMetadataPage(const Page& page);
    void readRowSize(const ByteView& subheader);
    void readColumnFormat(const ByteView& subheader);
    void noteEmptyColumns(const Subheader& subheader);
    [[nodiscard]] bool metadataIsComplete() const;
    [[nodiscard]] std::string textAt(const ByteView& subheader, std::size_t reference) const;
    void estimateMostRows();

    void findDeletedRows();
    void findDeletedRowsOn(const Page& page);
    [[nodiscard]] bool isPlainRow(const Subheader& subheader) const;
    void noteRow(bool deleted);
    void findDamage();
    void repairForLibrary(const ByteView& header, std::size_t a1, std::size_t a2);
    void replace(std::int64_t offset, std::string_view bytes);

    const FileReader& m_file;
    Sas7bdatLayout m_layout;
    bool m_is64Bit = false;
    bool m_littleEndian = true;
    std::int64_t m_headerLength = 0;
    std::int64_t m_pageSize = 0;
    std::int64_t m_pageCount = 0;
    std::int64_t m_promisedPages = 0;
    bool m_hasRowSize = false;
    std::int64_t m_columnCount = -1;
    std::int64_t m_attributeCount = 0;
    std::vector<char> m_pageBytes;
    std::vector<std::string> m_texts;
    std::int64_t m_rowsSeen = 0;
};

Sas7bdatLayout LayoutReader::read()
{
    if (readHeader()) {
        readMetadata();
        estimateMostRows();
        if (m_layout.header.deletedObservations > 0) {
            findDeletedRows();
        }
        findDamage();
    }
    return std::move(m_layout);
}

void LayoutReader::findDamage()
{
    const auto described = static_cast<std::int64_t>(m_layout.columns.size());
    if (m_promisedPages > m_pageCount) {
        m_layout.damage = fmt::format(
            "Its header promises {} pages, but it is too short to hold them", m_promisedPages);
    } else if (m_columnCount < 0 || !m_hasRowSize) {
        m_layout.damage = "The description of its variables is missing";
    } else if (described > m_columnCount) {
        m_layout.damage =
            fmt::format("It counts {} variables, but describes {}", m_columnCount, described);
    } else if (m_layout.header.deletedObservations
               != static_cast<std::int64_t>(m_layout.deletedRows.size())) {
        m_layout.notes.push_back(fmt::format("It counts {} deleted observations, but marks {}",
                                             m_layout.header.deletedObservations,
                                             m_layout.deletedRows.size()));
    }
}

bool LayoutReader::readHeader()
{
    const std::vector<char> bytes = m_file.bytesAt(0, smallestHeader);
    const std::string_view start(bytes.data(), bytes.size());
    if (start.size() < 288 || start.substr(12, magic.size()) != magic) {
        return false;
    }
    const auto at = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const std::size_t a2 = at(32) == 0x33 ? 4 : 0;
    const std::size_t a1 = at(35) == 0x33 ? 4 : 0;
    m_is64Bit = a2 != 0;
    m_littleEndian = at(37) == 1;
    const ByteView header({bytes.data(), bytes.size()}, m_littleEndian);

    m_headerLength = header.u32(196 + a1);
    m_pageSize = header.u32(200 + a1);
    m_pageCount =
        m_is64Bit ? static_cast<std::int64_t>(header.u64(204 + a1)) : header.u32(204 + a1);
    m_layout.encodingCode = at(70);
    readHeaderTexts(header, a1, a2);
    repairForLibrary(header, a1, a2);
    if (m_headerLength < smallestHeader || m_pageSize < smallestHeader
        || m_pageSize > largestPage) {
        return false;
    }
    // A page count beyond the file's size is damage; what is there can still be described.
    m_promisedPages = m_pageCount;
    m_pageCount =
        std::clamp<std::int64_t>(m_pageCount, 0, (m_file.size() - m_headerLength) / m_pageSize);
    return m_file.size() > m_headerLength;
}

void LayoutReader::readHeaderTexts(const ByteView& header, std::size_t a1, std::size_t a2)
{
    const auto field = [&](std::size_t offset, std::size_t size) {
        return std::string(texts::headerField(header.text(offset, size)));
    };
    DatasetHeader& target = m_layout.header;
    target.is64Bit = m_is64Bit;
    target.tableName = field(92, 64);
    target.memberType = field(156, 8);
    target.pageSize = static_cast<std::uint64_t>(m_pageSize);
    target.pageCount = static_cast<std::uint64_t>(std::max<std::int64_t>(m_pageCount, 0));
    target.release = field(216 + a1 + a2, 8);
    target.host = field(224 + a1 + a2, 16);
    const std::string version = field(240 + a1 + a2, 16);
    const std::string maker = field(256 + a1 + a2, 16);
    const std::string machine = field(272 + a1 + a2, 16);
    for (const std::string& part : {machine.empty() ? maker : machine, version}) {
        if (!part.empty()) {
            target.host += target.host.empty() ? part : " " + part;
        }
    }
}

/// The library refuses encodings that it does not know, though its text conversion is off anyway,
/// and releases of another form than "9.0401M3". It takes the release for a text that ends in a NUL
/// somewhere behind it, so the host, which it does not use, is shown as one.
void LayoutReader::repairForLibrary(const ByteView& header, std::size_t a1, std::size_t a2)
{
    if (!libraryKnows(m_layout.encodingCode)) {
        replace(70, "\x14");
    }
    const std::string_view release = header.text(216 + a1 + a2, 8);
    constexpr std::string_view pattern = "d.ddddMd";
    const bool fits = release.size() == pattern.size()
        && std::equal(pattern.begin(), pattern.end(), release.begin(), [](char want, char have) {
                          return want == 'd' ? std::isdigit(static_cast<unsigned char>(have)) != 0
                                             : want == have;
                      });
    if (!fits) {
        replace(static_cast<std::int64_t>(216 + a1 + a2), "9.0401M0");
    }
    replace(static_cast<std::int64_t>(224 + a1 + a2), std::string(1, '\0'));
}

void LayoutReader::replace(std::int64_t offset, std::string_view bytes)
{
    for (const char byte : bytes) {
        m_layout.replacements.push_back({offset++, byte});
    }
}

std::optional<LayoutReader::Page> LayoutReader::pageAt(std::int64_t number)
{
    const std::int64_t offset = m_headerLength + number * m_pageSize;
    m_pageBytes.resize(static_cast<std::size_t>(m_pageSize));
    const std::int64_t got = m_file.readAt(offset, m_pageBytes);
    if (got < static_cast<std::int64_t>(pageHeaderSize())) {
        return std::nullopt;
    }
    const ByteView bytes({m_pageBytes.data(), static_cast<std::size_t>(got)}, m_littleEndian);
    const std::size_t at = m_is64Bit ? 32 : 16;
    return Page{bytes, offset, bytes.u16(at), bytes.u16(at + 2), bytes.u16(at + 4)};
}

unsigned LayoutReader::typeOfPage(std::int64_t number) const
{
    const std::vector<char> bytes = m_file.bytesAt(m_headerLength + number * m_pageSize, 40);
    return ByteView({bytes.data(), bytes.size()}, m_littleEndian).u16(m_is64Bit ? 32 : 16);
}

std::vector<LayoutReader::Subheader> LayoutReader::subheadersOf(const Page& page) const
{
    std::vector<Subheader> found;
    for (unsigned i = 0; i < page.subheaders; ++i) {
        const std::size_t at = pageHeaderSize() + i * pointerSize();
        if (at + pointerSize() > page.bytes.size()) {
            break;
        }
        const ByteView pointer = page.bytes.view(at, pointerSize());
        const std::int64_t offset = word(pointer, 0);
        const std::int64_t length = word(pointer, 1);
        const unsigned compression = pointer.u8(2 * wordSize());
        const unsigned type = pointer.u8(2 * wordSize() + 1);
        if (offset < 0 || offset > m_pageSize || length < 0 || length > m_pageSize - offset) {
            continue;
        }
        found.push_back(
            {page.offset + offset,
             page.bytes.view(static_cast<std::size_t>(offset), static_cast<std::size_t>(length)),
             compression, type, page.offset + static_cast<std::int64_t>(at)});
    }
    return found;
}

/// In 64-bit big-endian files the signature stands in the low word, behind zeros or ones.
std::uint32_t LayoutReader::signatureOf(const ByteView& subheader) const
{
    const std::uint32_t first = subheader.u32(0);
    const std::uint32_t second = subheader.u32(4);
    const bool inSecond = m_is64Bit && !m_littleEndian && (first == 0 || first == 0xFFFFFFFF);
    return inSecond ? second : first;
}

std::int64_t LayoutReader::word(const ByteView& bytes, std::size_t number) const
{
    return m_is64Bit ? static_cast<std::int64_t>(bytes.u64(number * 8)) : bytes.u32(number * 4);
}

/// Metadata stands on the first pages, up to the first data page; what did not fit there follows on
/// amendment pages at the end of the file.
void LayoutReader::readMetadata()
{
    std::int64_t number = 0;
    for (; number < m_pageCount && !metadataIsComplete(); ++number) {
        const std::optional<Page> page = pageAt(number);
        if (!page || (page->type & kindOfPage) == dataPage) {
            break;
        }
        if ((page->type & compressionIndexPage) != compressionIndexPage) {
            readMetadataPage(*page);
        }
    }
    if (metadataIsComplete()) {
        return;
    }
    std::int64_t first = m_pageCount;
    while (first > number && (typeOfPage(first - 1) & kindOfPage) == amendmentPage) {
        --first;
    }
    for (; first < m_pageCount; ++first) {
        if (const std::optional<Page> page = pageAt(first)) {
            readMetadataPage(*page);
        }
    }
}

bool LayoutReader::metadataIsComplete() const
{
    return m_columnCount >= 0 && m_layout.rowLength > 0 && m_attributeCount >= m_columnCount
        && static_cast<std::int64_t>(m_layout.columns.size()) >= m_columnCount;
}

void LayoutReader::readMetadataPage(const Page& page)
{
    const std::vector<Subheader> subheaders = subheadersOf(page);
    // Texts first: the other subheaders of a page refer to them.
    for (const Subheader& subheader : subheaders) {
        if (subheader.compression == 0 && signatureOf(subheader.bytes) == textSignature) {
            m_texts.emplace_back(subheader.bytes.text(wordSize(), subheader.bytes.size()));
        }
    }
    for (const Subheader& subheader : subheaders) {
        if (subheader.compression != 0) {
            continue;
        }
        switch (signatureOf(subheader.bytes)) {
        case rowSizeSignature:
            readRowSize(subheader.bytes);
            break;
        case columnCountSignature:
            m_columnCount = word(subheader.bytes, 1);
            break;
        case formatSignature:
            readColumnFormat(subheader.bytes);
            break;
        case attributesSignature:
            noteEmptyColumns(subheader);
            break;
        default:
            break;
        }
    }
}

void LayoutReader::readRowSize(const ByteView& subheader)
{
    m_hasRowSize = true;
    m_layout.rowLength = word(subheader, 5);
    m_layout.rowCount = word(subheader, 6);
    m_layout.header.observationLength = m_layout.rowLength;
    m_layout.header.deletedObservations = word(subheader, 7);
    if (subheader.size() < 130) {
        return;
    }
    // References to texts, counted from the end of the subheader.
    const auto referred = [&](std::size_t fromEnd) {
        return textAt(subheader, subheader.size() - fromEnd);
    };
    m_layout.header.fileLabel = referred(130);
    m_layout.compressed = referred(118).starts_with("SASYZCR");
    const std::string type = referred(124);
    if (!type.empty()) {
        m_layout.header.memberType += " " + type;
    }
}

void LayoutReader::readColumnFormat(const ByteView& subheader)
{
    const std::size_t n = wordSize();
    Sas7bdatLayout::Column column;
    column.format = {textAt(subheader, 3 * n + 22), subheader.u16(3 * n), subheader.u16(3 * n + 2)};
    column.informat = {textAt(subheader, 3 * n + 16), subheader.u16(3 * n + 4),
                       subheader.u16(3 * n + 6)};
    m_layout.columns.push_back(std::move(column));
}

/// A character column of width zero holds only empty texts; the library is shown a width of one at
/// the start of the row, and what it reads there is passed over.
void LayoutReader::noteEmptyColumns(const Subheader& subheader)
{
    const std::size_t n = wordSize();
    const std::size_t size = n + 8;
    for (std::size_t at = n + 8; at + size <= subheader.bytes.size() - n; at += size) {
        const unsigned type = subheader.bytes.u8(at + n + 6);
        if (type != 1 && type != 2) {
            break;
        }
        if (type == 2 && subheader.bytes.u32(at + n) == 0) {
            m_layout.emptyColumns.push_back(static_cast<int>(m_attributeCount));
            const std::int64_t place = subheader.offset + static_cast<std::int64_t>(at);
            replace(place, std::string(n, '\0'));
            const std::string one =
                m_littleEndian ? std::string("\1\0\0\0", 4) : std::string("\0\0\0\1", 4);
            replace(place + static_cast<std::int64_t>(n), one);
        }
        ++m_attributeCount;
    }
}

std::string LayoutReader::textAt(const ByteView& subheader, std::size_t reference) const
{
    const std::size_t index = subheader.u16(reference);
    const std::size_t offset = subheader.u16(reference + 2);
    const std::size_t size = subheader.u16(reference + 4);
    if (size == 0 || index >= m_texts.size()) {
        return {};
    }
    const std::string_view block = m_texts[index];
    return offset >= block.size() ? std::string()
                                  : std::string(texts::headerField(block.substr(offset, size)));
}

void LayoutReader::estimateMostRows()
{
    const auto smallest = m_layout.compressed ? static_cast<std::int64_t>(pointerSize())
                                              : std::max<std::int64_t>(m_layout.rowLength, 1);
    m_layout.mostRows = (m_file.size() - m_headerLength) / smallest;
}

void LayoutReader::findDeletedRows()
{
    for (std::int64_t number = 0; number < m_pageCount && m_rowsSeen < m_layout.rowCount;
         ++number) {
        const std::optional<Page> page = pageAt(number);
        if (page && (page->type & compressionIndexPage) != compressionIndexPage) {
            findDeletedRowsOn(*page);
        }
    }
}

void LayoutReader::findDeletedRowsOn(const Page& page)
{
    for (const Subheader& subheader : subheadersOf(page)) {
        const unsigned compression = subheader.compression;
        if (compression == deletedCompressedRow) {
            // The library does not know this mark: it reads the row, and the row is dropped here.
            const auto place = static_cast<std::int64_t>(2 * wordSize());
            replace(subheader.pointerOffset + place, std::string(1, char{compressedRow}));
        }
        const bool isRow = compression == compressedRow || compression == deletedCompressedRow;
        if (isRow || isPlainRow(subheader)) {
            noteRow(compression == deletedCompressedRow);
        }
    }
    const unsigned kind = page.type & kindOfPage;
    if ((kind != dataPage && kind != mixPage) || m_layout.compressed) {
        return;
    }
    const std::size_t rows = page.blocks - std::min(page.subheaders, page.blocks);
    const std::size_t pointers = page.subheaders * pointerSize();
    const std::size_t bitmap = pageHeaderSize() + page.bytes.u32(m_is64Bit ? 24 : 12) + pointers % 8
        + pointers + rows * static_cast<std::size_t>(m_layout.rowLength);
    const bool marked = (page.type & deletedRowsOnPage) != 0;
    for (std::size_t row = 0; row < rows && m_rowsSeen < m_layout.rowCount; ++row) {
        noteRow(marked && (page.bytes.u8(bitmap + row / 8) & (0x80U >> row % 8)) != 0);
    }
}

/// A row of a compressed file that stands as it is, since it would not have become shorter.
/// Metadata may be as long as a row.
bool LayoutReader::isPlainRow(const Subheader& subheader) const
{
    return m_layout.compressed && subheader.compression == 0 && subheader.type == typeOfRows
        && static_cast<std::int64_t>(subheader.bytes.size()) == m_layout.rowLength
        && !isMetadata(signatureOf(subheader.bytes));
}

void LayoutReader::noteRow(bool deleted)
{
    if (deleted) {
        m_layout.deletedRows.push_back(m_rowsSeen);
    }
    ++m_rowsSeen;
}

}  // namespace

Sas7bdatLayout readSas7bdatLayout(const FileReader& file)
{
    return LayoutReader(file).read();
}

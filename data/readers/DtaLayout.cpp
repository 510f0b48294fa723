#include "data/readers/DtaLayout.h"

#include "data/readers/ByteView.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <string_view>

namespace {

constexpr unsigned longStringType = 32768;
constexpr std::int64_t longestHeader = 4096;

/// Bytes that a value of a type takes, releases 117 to 119; 0 for an unknown type.
int widthOfType(unsigned type)
{
    switch (type) {
    case longStringType:
    case 65526:
        return 8;
    case 65527:
    case 65528:
        return 4;
    case 65529:
        return 2;
    case 65530:
        return 1;
    default:
        return type <= 2045 ? static_cast<int>(type) : 0;
    }
}

/// The same for releases 111 to 115, and with letters up to 110.
int widthOfOldType(unsigned type, int release)
{
    if (release >= 111) {
        switch (type) {
        case 255:
            return 8;
        case 254:
        case 253:
            return 4;
        case 252:
            return 2;
        case 251:
            return 1;
        default:
            return static_cast<int>(type);
        }
    }
    switch (type) {
    case 'd':
        return 8;
    case 'f':
    case 'l':
        return 4;
    case 'i':
        return 2;
    case 'b':
        return 1;
    default:
        return type > 0x7F ? static_cast<int>(type) - 0x7F : 0;
    }
}

Failure tooManyVariables(std::int64_t count)
{
    return {fmt::format("It promises {} variables, but it is too short to describe them", count)};
}

Result<DtaLayout> readOldLayout(const FileReader& file, std::string_view start)
{
    DtaLayout layout;
    layout.release = ByteView(start, true).u8(0);
    layout.littleEndian = ByteView(start, true).u8(1) == 2;
    const std::int64_t variables = ByteView(start, layout.littleEndian).u16(4);
    const std::int64_t labelSize = layout.release >= 108 ? 81 : 32;
    const std::int64_t stampSize = layout.release >= 105 ? 18 : 0;
    const std::vector<char> types = file.bytesAt(10 + labelSize + stampSize, variables);
    if (static_cast<std::int64_t>(types.size()) < variables) {
        return tooManyVariables(variables);
    }
    for (const char type : types) {
        layout.rowLength += widthOfOldType(static_cast<unsigned char>(type), layout.release);
    }
    return layout;
}

/// Walks over the tags of a header in their order, as the format library does: a label may hold
/// what looks like a tag.
class TagReader
{
public:
    explicit TagReader(std::string_view text)
        : m_text(text)
    { }

    /// The bytes behind a tag that must stand here; empty when it does not, or they are too few.
    std::string_view behind(std::string_view tag, std::size_t size)
    {
        if (m_text.substr(m_at, tag.size()) != tag || m_text.size() - m_at < tag.size() + size) {
            m_at = m_text.size();
            return {};
        }
        const std::string_view found = m_text.substr(m_at + tag.size(), size);
        m_at += tag.size() + size;
        return found;
    }
    void skip(std::size_t size) { m_at = std::min(m_at + size, m_text.size()); }

private:
    std::string_view m_text;
    std::size_t m_at = 0;
};

bool readTypes(const FileReader& file, std::int64_t offset, std::int64_t count, DtaLayout& layout)
{
    const std::vector<char> bytes = file.bytesAt(offset, 2 * count);
    const ByteView types({bytes.data(), bytes.size()}, layout.littleEndian);
    for (std::int64_t i = 0; i < static_cast<std::int64_t>(bytes.size()) / 2; ++i) {
        const unsigned type = types.u16(static_cast<std::size_t>(2 * i));
        if (type == longStringType) {
            layout.longStringVariables.push_back({static_cast<int>(i), layout.rowLength});
        }
        layout.rowLength += widthOfType(type);
    }
    return static_cast<std::int64_t>(bytes.size()) == 2 * count;
}

Result<DtaLayout> readTaggedLayout(const FileReader& file, std::string_view start)
{
    DtaLayout layout;
    TagReader tags(start);
    const std::string_view release = tags.behind("<stata_dta><header><release>", 3);
    std::from_chars(release.data(), release.data() + release.size(), layout.release);
    layout.littleEndian = tags.behind("</release><byteorder>", 3) == "LSF";
    const auto numberBehind = [&](std::string_view tag, std::size_t size) {
        const std::string_view bytes = tags.behind(tag, size);
        const ByteView view(bytes, layout.littleEndian);
        return size == 1 ? view.u8(0) : size == 2 ? view.u16(0) : view.u32(0);
    };
    const std::int64_t variables = numberBehind("</byteorder><K>", layout.release >= 119 ? 4 : 2);
    tags.behind("</K><N>", layout.release >= 118 ? 8 : 4);
    tags.skip(numberBehind("</N><label>", layout.release >= 118 ? 2 : 1));
    tags.skip(numberBehind("</label><timestamp>", 1));
    constexpr std::size_t entries = 14;
    const ByteView map(tags.behind("</timestamp></header><map>", 8 * entries), layout.littleEndian);
    if (map.size() == 0) {
        return Failure{"Its header is damaged"};
    }
    const auto mapped = [&](std::size_t entry) {
        const auto offset = static_cast<std::int64_t>(map.u64(8 * entry));
        return std::clamp<std::int64_t>(offset, 0, file.size());
    };
    constexpr std::int64_t typesTag = sizeof("<variable_types>") - 1;
    constexpr std::int64_t dataTag = sizeof("<data>") - 1;
    constexpr std::int64_t longStringsTag = sizeof("<strls>") - 1;
    layout.dataOffset = mapped(9) + dataTag;
    layout.longStringsOffset = mapped(10) + longStringsTag;
    return readTypes(file, mapped(2) + typesTag, variables, layout)
        ? Result<DtaLayout>(std::move(layout))
        : tooManyVariables(variables);
}

}  // namespace

Result<DtaLayout> readDtaLayout(const FileReader& file)
{
    const std::vector<char> bytes = file.bytesAt(0, longestHeader);
    const std::string_view start(bytes.data(), bytes.size());
    return start.starts_with("<stata_dta>") ? readTaggedLayout(file, start)
                                            : readOldLayout(file, start);
}

Result<LongStrings> readLongStrings(const FileReader& file, const DtaLayout& layout)
{
    // "GSO", variable, observation (four bytes in 117, eight later), type, length, contents.
    const std::int64_t observationSize = layout.release >= 118 ? 8 : 4;
    const std::int64_t headerSize = 3 + 4 + observationSize + 1 + 4;
    LongStrings strings;
    std::int64_t position = layout.longStringsOffset;
    for (;;) {
        const std::vector<char> bytes = file.bytesAt(position, headerSize);
        const ByteView header({bytes.data(), bytes.size()}, layout.littleEndian);
        if (header.text(0, 3) == "</s") {
            return strings;
        }
        const std::int64_t length = header.u32(static_cast<std::size_t>(headerSize - 4));
        if (header.text(0, 3) != "GSO" || position + headerSize + length > file.size()) {
            return Failure{"Its long strings are damaged"};
        }
        const std::vector<char> contents = file.bytesAt(position + headerSize, length);
        std::string text(contents.begin(), contents.end());
        text.resize(std::min(text.size(), text.find('\0')));
        const std::uint64_t observation = observationSize == 8 ? header.u64(7) : header.u32(7);
        strings.emplace(std::pair(header.u32(3), observation), std::move(text));
        position += headerSize + length;
    }
}

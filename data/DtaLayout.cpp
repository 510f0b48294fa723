#include "data/DtaLayout.h"

#include "data/ByteView.h"

#include <algorithm>
#include <optional>
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

/// Offset behind a tag, or nothing when the text lacks it.
std::optional<std::size_t> behind(std::string_view text, std::string_view tag)
{
    const std::size_t at = text.find(tag);
    return at == std::string_view::npos ? std::nullopt : std::optional(at + tag.size());
}

void readOldLayout(const FileReader& file, const ByteView& header, DtaLayout& layout)
{
    layout.release = header.u8(0);
    layout.littleEndian = header.u8(1) == 2;
    const ByteView ordered(header.text(0, header.size()), layout.littleEndian);
    const std::int64_t variables = ordered.u16(4);
    const std::int64_t labelSize = layout.release >= 108 ? 81 : 32;
    const std::int64_t stampSize = layout.release >= 105 ? 18 : 0;
    const std::vector<char> types = file.bytesAt(10 + labelSize + stampSize, variables);
    for (const char type : types) {
        layout.rowLength += widthOfOldType(static_cast<unsigned char>(type), layout.release);
    }
}

std::int64_t variableCount(const ByteView& header, std::size_t at, int release)
{
    return release >= 119 ? header.u32(at) : header.u16(at);
}

void readTypes(const FileReader& file, std::int64_t offset, std::int64_t count, DtaLayout& layout)
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
}

void readTaggedLayout(const FileReader& file, std::string_view start, DtaLayout& layout)
{
    const auto releaseAt = behind(start, "<release>");
    const auto orderAt = behind(start, "<byteorder>");
    const auto countAt = behind(start, "<K>");
    const auto mapAt = behind(start, "<map>");
    if (!releaseAt || !orderAt || !countAt || !mapAt) {
        return;
    }
    for (const char digit : start.substr(*releaseAt, 3)) {
        layout.release = layout.release * 10 + (digit - '0');
    }
    layout.littleEndian = start.substr(*orderAt, 3) == "LSF";
    const ByteView header(start, layout.littleEndian);
    const auto mapped = [&](std::size_t entry) {
        const auto offset = static_cast<std::int64_t>(header.u64(*mapAt + 8 * entry));
        return std::clamp<std::int64_t>(offset, 0, file.size());
    };
    constexpr std::int64_t typesTag = sizeof("<variable_types>") - 1;
    constexpr std::int64_t dataTag = sizeof("<data>") - 1;
    constexpr std::int64_t longStringsTag = sizeof("<strls>") - 1;
    layout.dataOffset = mapped(9) + dataTag;
    layout.longStringsOffset = mapped(10) + longStringsTag;
    layout.longStringsEnd = mapped(11);
    readTypes(file, mapped(2) + typesTag, variableCount(header, *countAt, layout.release), layout);
}

}  // namespace

DtaLayout readDtaLayout(const FileReader& file)
{
    DtaLayout layout;
    const std::vector<char> bytes = file.bytesAt(0, longestHeader);
    const std::string_view start(bytes.data(), bytes.size());
    if (start.starts_with("<stata_dta>")) {
        readTaggedLayout(file, start, layout);
    } else {
        readOldLayout(file, ByteView(start, true), layout);
    }
    return layout;
}

LongStrings readLongStrings(const FileReader& file, const DtaLayout& layout)
{
    // "GSO", variable, observation (four bytes in 117, eight later), type, length, contents.
    const std::int64_t observationSize = layout.release >= 118 ? 8 : 4;
    const std::int64_t headerSize = 3 + 4 + observationSize + 1 + 4;
    LongStrings strings;
    std::int64_t position = layout.longStringsOffset;
    while (position + headerSize <= layout.longStringsEnd) {
        const std::vector<char> bytes = file.bytesAt(position, headerSize);
        const ByteView header({bytes.data(), bytes.size()}, layout.littleEndian);
        const std::int64_t length = header.u32(static_cast<std::size_t>(headerSize - 4));
        if (header.text(0, 3) != "GSO" || position + headerSize + length > layout.longStringsEnd) {
            break;
        }
        const std::vector<char> contents = file.bytesAt(position + headerSize, length);
        std::string text(contents.begin(), contents.end());
        text.resize(std::min(text.size(), text.find('\0')));
        const std::uint64_t observation = observationSize == 8 ? header.u64(7) : header.u32(7);
        strings.emplace(std::pair(header.u32(3), observation), std::move(text));
        position += headerSize + length;
    }
    return strings;
}

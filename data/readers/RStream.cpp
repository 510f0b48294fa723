#include "data/readers/RStream.h"

#include "data/values/Texts.h"

#include <fmt/format.h>

#include <algorithm>
#include <bit>
#include <cctype>
#include <charconv>
#include <cstring>
#include <limits>

namespace {

constexpr std::size_t bufferBytes = std::size_t{128} << 10;
constexpr const char* cutShort = "It is cut short";
constexpr const char* damaged = "The objects in it are damaged";
constexpr const char* noRFile = "It is no file that R's saveRDS or save wrote";

/// What R calls latin1 is what Windows makes of it.
const std::string latin1 = "WINDOWS-1252";

constexpr std::uint32_t objectFlag = 1 << 8;
constexpr std::uint32_t attributeFlag = 1 << 9;
constexpr std::uint32_t tagFlag = 1 << 10;
constexpr std::uint32_t bytesFlag = 1 << 13;
constexpr std::uint32_t latin1Flag = 1 << 14;
constexpr std::uint32_t utf8Flag = 1 << 15;
constexpr std::uint32_t asciiFlag = 1 << 18;

template <typename Number>
Number swapped(Number number)
{
    if constexpr (sizeof(Number) == 4) {
        return __builtin_bswap32(number);
    } else {
        return __builtin_bswap64(number);
    }
}

template <typename Number>
Number inOrder(const char* bytes, bool bigEndian)
{
    Number number = 0;
    std::memcpy(&number, bytes, sizeof(number));
    return bigEndian == (std::endian::native == std::endian::big) ? number : swapped(number);
}

template <typename Number>
void putBigEndian(char* target, Number number)
{
    const Number bytes = std::endian::native == std::endian::big ? number : swapped(number);
    std::memcpy(target, &bytes, sizeof(bytes));
}

double realOf(std::string_view word)
{
    // R's own missing real is the NaN with 1954 in its lower half.
    constexpr std::uint64_t missingReal = 0x7FF00000000007A2;
    if (word == "NA") {
        return std::bit_cast<double>(missingReal);
    }
    const bool isNegative = word.starts_with('-');
    word.remove_prefix(isNegative ? 1 : 0);
    const bool isHexadecimal = word.starts_with("0x") || word.starts_with("0X");
    word.remove_prefix(isHexadecimal ? 2 : 0);
    double number = 0;
    const char* const end = word.data() + word.size();
    const auto [stop, code] =
        std::from_chars(word.data(), end, number,
                        isHexadecimal ? std::chars_format::hex : std::chars_format::general);
    if (stop != end || code == std::errc::invalid_argument) {
        throw FileDamage(damaged);
    }
    // R writes 15 digits: those of the largest numbers are rounded beyond what a double holds.
    const bool isHuge =
        word.find("e-") == std::string_view::npos && word.find("p-") == std::string_view::npos;
    if (code == std::errc::result_out_of_range && isHuge) {
        number = std::numeric_limits<double>::infinity();
    }
    return isNegative ? -number : number;
}

}  // namespace

RStream::RStream(UnpackedFile& file)
    : m_file(file)
    , m_buffer(bufferBytes)
{ }

void RStream::begin()
{
    chooseForm();
    m_version = integer();
    const auto writer = static_cast<std::uint32_t>(integer());
    (void)integer();  // the oldest release that can read it
    if (m_version != 2 && m_version != 3) {
        throw FileDamage(
            fmt::format("Its objects are serialised in version {}, which is unknown", m_version));
    }
    m_release = fmt::format("{}.{}.{}", writer >> 16, writer >> 8 & 0xFF, writer & 0xFF);
    if (m_version == 3) {
        const std::int32_t size = integer();
        if (size < 0 || size > 63) {
            throw FileDamage(damaged);
        }
        m_encoding =
            texts::repaired(m_form == Form::Ascii ? asciiBytes(static_cast<std::size_t>(size))
                                                  : view(static_cast<std::size_t>(size)));
    }
}

void RStream::chooseForm()
{
    if (!fill(7) && m_end == 0) {
        throw FileDamage("It is empty");
    }
    std::string_view start(m_buffer.data(), m_end);
    if (start.starts_with("RD") && start.size() >= 5 && start[4] == '\n') {
        if (start[3] != '2' && start[3] != '3') {
            throw FileDamage("It was saved by an R older than 1.4, or by none");
        }
        m_isWorkspace = true;
        m_at = 5;
        start.remove_prefix(5);
    }
    if (start.size() < 2 || start[1] != '\n') {
        throw FileDamage(noRFile);
    }
    m_at += 2;
    switch (start[0]) {
    case 'X':
        m_form = Form::BigEndian;
        return;
    case 'A':
        m_form = Form::Ascii;
        return;
    case 'B':
        // The version that follows is a small number.
        require(4);
        m_form = m_buffer[m_at] == 0 ? Form::BigEndian : Form::LittleEndian;
        return;
    default:
        throw FileDamage(noRFile);
    }
}

/// Sees to it that so many bytes lie in the buffer; false where the file ends before.
bool RStream::fill(std::size_t bytes)
{
    if (m_end - m_at >= bytes) {
        return true;
    }
    std::memmove(m_buffer.data(), m_buffer.data() + m_at, m_end - m_at);
    m_end -= m_at;
    m_at = 0;
    m_end += m_file.read(std::span(m_buffer).subspan(m_end));
    return m_end >= bytes;
}

void RStream::require(std::size_t bytes)
{
    if (m_end - m_at < bytes && !fill(bytes)) {
        throw FileDamage(cutShort);
    }
}

/// So many bytes as they stand.
std::string_view RStream::view(std::size_t bytes)
{
    if (bytes <= m_buffer.size()) {
        require(bytes);
        m_at += bytes;
        return {m_buffer.data() + m_at - bytes, bytes};
    }
    // Only what is there takes memory, whatever was promised.
    m_text.clear();
    while (m_text.size() < bytes) {
        m_text += view(std::min(bytes - m_text.size(), m_buffer.size()));
    }
    return m_text;
}

void RStream::skipBytes(std::int64_t bytes)
{
    while (bytes > 0) {
        require(1);
        const std::int64_t part = std::min(bytes, static_cast<std::int64_t>(m_end - m_at));
        m_at += static_cast<std::size_t>(part);
        bytes -= part;
    }
}

std::string_view RStream::word()
{
    const auto isBlank = [](char letter) { return texts::isSpace(letter); };
    char letter = asciiCharacter();
    while (isBlank(letter)) {
        letter = asciiCharacter();
    }
    m_text.clear();
    constexpr std::size_t longestWord = 128;
    while (!isBlank(letter)) {
        m_text += letter;
        if (m_text.size() > longestWord) {
            throw FileDamage(damaged);
        }
        if (!fill(1)) {
            break;  // the last word of a file may end with it
        }
        letter = m_buffer[m_at++];
    }
    return m_text;
}

char RStream::asciiCharacter()
{
    require(1);
    return m_buffer[m_at++];
}

/// A text of the text form, where what is not printable ASCII is escaped as in C.
std::string_view RStream::asciiBytes(std::size_t count)
{
    char letter = asciiCharacter();
    while (count > 0 && texts::isSpace(letter)) {
        letter = asciiCharacter();
    }
    m_text.clear();
    constexpr std::string_view names = "ntvbrfa\\?'\"";
    constexpr std::string_view values = "\n\t\v\b\r\f\a\\?'\"";
    while (count > 0) {
        if (letter != '\\') {
            m_text += letter;
        } else if (letter = asciiCharacter(); letter >= '0' && letter <= '7') {
            int code = 0;
            for (int digit = 0; digit < 3 && letter >= '0' && letter <= '7'; ++digit) {
                code = code * 8 + (letter - '0');
                letter = asciiCharacter();
            }
            m_text += static_cast<char>(code);
            --m_at;  // the letter behind the number
        } else {
            const std::size_t which = names.find(letter);
            m_text += which == std::string_view::npos ? letter : values[which];
        }
        if (--count > 0) {
            letter = asciiCharacter();
        }
    }
    return m_text;
}

RItem RStream::item()
{
    const auto flags = static_cast<std::uint32_t>(integer());
    return {static_cast<RType>(flags & 0xFF), (flags & objectFlag) != 0,
            (flags & attributeFlag) != 0, (flags & tagFlag) != 0, flags};
}

std::int32_t RStream::integer()
{
    if (m_form == Form::Ascii) {
        const std::string_view text = word();
        std::int32_t number = missingIntegerOfR;
        const char* const end = text.data() + text.size();
        const auto [stop, code] = std::from_chars(text.data(), end, number);
        if (text != "NA" && (stop != end || code != std::errc())) {
            throw FileDamage(damaged);
        }
        return number;
    }
    require(4);
    m_at += 4;
    return static_cast<std::int32_t>(
        inOrder<std::uint32_t>(m_buffer.data() + m_at - 4, m_form == Form::BigEndian));
}

double RStream::real()
{
    if (m_form == Form::Ascii) {
        return realOf(word());
    }
    require(8);
    m_at += 8;
    return std::bit_cast<double>(
        inOrder<std::uint64_t>(m_buffer.data() + m_at - 8, m_form == Form::BigEndian));
}

std::int64_t RStream::length(std::int64_t least)
{
    std::int64_t count = integer();
    if (count == -1) {
        const std::int64_t high = integer();
        count = high * (std::int64_t{1} << 32) + static_cast<std::uint32_t>(integer());
        constexpr std::int64_t mostElements = std::int64_t{1} << 52;
        if (high < 0 || count > mostElements) {
            throw FileDamage(damaged);
        }
    }
    if (count < 0) {
        throw FileDamage(damaged);
    }
    const std::int64_t bytesOfOne = m_form == Form::Ascii ? 2 : least;
    if (bytesOfOne > 0
        && count
            > (m_file.mostBytesLeft() + static_cast<std::int64_t>(m_end - m_at)) / bytesOfOne + 1) {
        throw FileDamage(cutShort);
    }
    return count;
}

void RStream::numbers(std::span<char> target, std::size_t width)
{
    if (m_form == Form::BigEndian) {
        bytes(target);
        return;
    }
    for (std::size_t at = 0; at < target.size(); at += width) {
        if (width == 4) {
            putBigEndian(&target[at], static_cast<std::uint32_t>(integer()));
        } else {
            putBigEndian(&target[at], std::bit_cast<std::uint64_t>(real()));
        }
    }
}

void RStream::bytes(std::span<char> target)
{
    if (m_form == Form::Ascii) {
        for (char& byte : target) {
            const std::string_view digits = word();
            unsigned int number = 0;
            std::from_chars(digits.data(), digits.data() + digits.size(), number, 16);
            byte = static_cast<char>(number);
        }
        return;
    }
    std::size_t done = 0;
    while (done < target.size()) {
        require(1);
        const std::size_t part = std::min(target.size() - done, m_end - m_at);
        std::memcpy(target.data() + done, m_buffer.data() + m_at, part);
        m_at += part;
        done += part;
    }
}

std::optional<std::string_view> RStream::text(const RItem& item)
{
    const std::int32_t size = integer();
    if (item.type != RType::Char || size < -1) {
        throw FileDamage(damaged);
    }
    std::optional<std::string_view> text;
    if (size >= 0) {
        const auto bytes = static_cast<std::size_t>(size);
        text = m_form == Form::Ascii ? asciiBytes(bytes) : view(bytes);
        text = inUtf8(*text, item.flags);
    }
    if (item.hasAttributes) {
        if (text) {
            m_converted = std::string(*text);
            text = m_converted;
        }
        skipItems(1);
    }
    return text;
}

std::string_view RStream::inUtf8(std::string_view raw, std::uint32_t flags)
{
    if ((flags & (asciiFlag | utf8Flag)) != 0) {
        return raw;
    }
    if ((flags & bytesFlag) != 0) {
        return escaped(raw);
    }
    const bool isLatin1 = (flags & latin1Flag) != 0;
    if ((!isLatin1 && (m_encoding.empty() || m_encoding == "UTF-8")) || texts::isAscii(raw)) {
        return raw;
    }
    const std::string& encoding = isLatin1 ? latin1 : m_encoding;
    if (!m_decoder || m_decoderEncoding != encoding) {
        m_decoder.emplace(encoding);
        m_decoderEncoding = encoding;
    }
    m_converted = m_decoder->decode(raw);
    return m_converted;
}

/// Bytes that are no text, as R shows them.
std::string_view RStream::escaped(std::string_view raw)
{
    std::string shown;
    for (const char letter : raw) {
        const auto byte = static_cast<unsigned char>(letter);
        if (byte < 0x80) {
            shown += letter;
        } else {
            shown += fmt::format("\\x{:02x}", byte);
        }
    }
    m_converted = std::move(shown);
    return m_converted;
}

std::string RStream::symbol()
{
    const RItem one = item();
    if (one.type == RType::Symbol) {
        const RItem name = item();
        m_references.emplace_back(text(name).value_or(std::string_view()));
        return m_references.back();
    }
    if (one.type == RType::Reference) {
        const std::uint32_t packed = one.flags >> 8;
        const auto which = packed == 0 ? static_cast<std::uint32_t>(integer()) : packed;
        return which >= 1 && which <= m_references.size() ? m_references[which - 1] : std::string();
    }
    skipRest(one);
    return {};
}

void RStream::finish()
{
    do {
        m_at = m_end;
    } while (fill(1));
}

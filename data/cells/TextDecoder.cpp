#include "data/cells/TextDecoder.h"

#include "data/values/Texts.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <utility>

namespace {

constexpr std::string_view replacement = "\xEF\xBF\xBD";

/// Converts with iconv, replacing byte by byte what it refuses.
std::string convert(iconv_t converter, std::string_view raw)
{
    std::string out;
    out.reserve(raw.size() * 2);
    std::string input(raw);  // iconv takes a pointer to char that it does not write through
    char* from = input.data();
    std::size_t left = input.size();
    iconv(converter, nullptr, nullptr, nullptr, nullptr);
    while (left > 0) {
        std::array<char, 1024> part{};
        char* to = part.data();
        std::size_t room = part.size();
        const std::size_t result = iconv(converter, &from, &left, &to, &room);
        const int problem = errno;
        out.append(part.data(), part.size() - room);
        if (result != static_cast<std::size_t>(-1) || problem == E2BIG) {
            continue;
        }
        if (problem == EINVAL) {
            break;  // the start of a character at the very end: the field's width cut it off
        }
        out += replacement;
        ++from;
        --left;
        iconv(converter, nullptr, nullptr, nullptr, nullptr);
    }
    return out;
}

/// One converter for files that declare no character set; it is never closed.
iconv_t windows1252()
{
    static iconv_t converter = iconv_open("UTF-8", "WINDOWS-1252");
    return converter;
}

std::string asciiOnly(std::string_view raw)
{
    std::string out;
    for (const char letter : raw) {
        if (static_cast<unsigned char>(letter) < 0x80) {
            out += letter;
        } else {
            out += replacement;
        }
    }
    return out;
}

bool namesUtf8(std::string encoding)
{
    std::transform(encoding.begin(), encoding.end(), encoding.begin(),
                   [](unsigned char letter) { return std::toupper(letter); });
    return encoding == "UTF-8" || encoding == "UTF8";
}

}  // namespace

TextDecoder::TextDecoder(const std::string& encoding)
{
    if (encoding.empty()) {
        return;
    }
    // Valid texts pass through unchanged, so that UTF-8 needs a converter for damaged ones only.
    m_converter = iconv_open("UTF-8", encoding.c_str());
    if (m_converter == noConverter()) {
        m_kind = Kind::AsciiOnly;
    } else {
        m_kind = namesUtf8(encoding) ? Kind::Utf8 : Kind::Iconv;
    }
}

TextDecoder::~TextDecoder()
{
    if (m_converter != noConverter()) {
        iconv_close(m_converter);
    }
}

TextDecoder::TextDecoder(TextDecoder&& other) noexcept
    : m_kind(other.m_kind)
    , m_converter(std::exchange(other.m_converter, noConverter()))
{ }

TextDecoder& TextDecoder::operator=(TextDecoder&& other) noexcept
{
    std::swap(m_kind, other.m_kind);
    std::swap(m_converter, other.m_converter);
    return *this;
}

bool TextDecoder::isUnchanged(std::string_view raw)
{
    return texts::isAscii(raw);
}

std::string TextDecoder::decode(std::string_view raw) const
{
    const bool mayBeUtf8 = m_kind == Kind::Guess || m_kind == Kind::Utf8;
    if (texts::isAscii(raw) || (mayBeUtf8 && texts::isUtf8(raw))) {
        return std::string(raw);
    }
    switch (m_kind) {
    case Kind::Guess:
        if (const std::string_view whole = texts::withoutCutCharacter(raw);
            !texts::isAscii(whole) && texts::isUtf8(whole)) {
            return std::string(whole);
        }
        return convert(windows1252(), raw);
    case Kind::AsciiOnly:
        return asciiOnly(raw);
    default: {
        // iconv writes characters beyond U+10FFFF, too.
        std::string text = convert(m_converter, raw);
        return texts::isUtf8(text) ? text : texts::repaired(text);
    }
    }
}

iconv_t TextDecoder::noConverter()
{
    return reinterpret_cast<iconv_t>(-1);  // NOLINT: the value iconv_open() returns on failure
}

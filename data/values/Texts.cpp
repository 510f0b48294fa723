#include "data/values/Texts.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace texts {

namespace {

/// Length of the well-formed sequence at the front of a text, or 0.
std::size_t sequenceLength(std::string_view text)
{
    const auto at = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const auto continues = [&](std::size_t i, unsigned low = 0x80, unsigned high = 0xBF) {
        return i < text.size() && at(i) >= low && at(i) <= high;
    };
    const unsigned first = at(0);
    if (first < 0x80) {
        return 1;
    }
    if (first >= 0xC2 && first <= 0xDF) {
        return continues(1) ? 2 : 0;
    }
    if (first >= 0xE0 && first <= 0xEF) {
        const unsigned low = first == 0xE0 ? 0xA0 : 0x80;
        const unsigned high = first == 0xED ? 0x9F : 0xBF;
        return continues(1, low, high) && continues(2) ? 3 : 0;
    }
    if (first >= 0xF0 && first <= 0xF4) {
        const unsigned low = first == 0xF0 ? 0x90 : 0x80;
        const unsigned high = first == 0xF4 ? 0x8F : 0xBF;
        return continues(1, low, high) && continues(2) && continues(3) ? 4 : 0;
    }
    return 0;
}

/// How many bytes at the start are ASCII, eight at a time.
std::size_t wholeAsciiWords(std::string_view text)
{
    constexpr std::uint64_t highBits = 0x8080808080808080U;
    std::size_t at = 0;
    for (; at + 8 <= text.size(); at += 8) {
        std::uint64_t word = 0;
        std::memcpy(&word, text.data() + at, 8);
        if ((word & highBits) != 0) {
            break;
        }
    }
    return at;
}

}  // namespace

bool isAscii(std::string_view text)
{
    const std::size_t at = wholeAsciiWords(text);
    return std::all_of(text.begin() + static_cast<std::ptrdiff_t>(at), text.end(),
                       [](char letter) { return static_cast<unsigned char>(letter) < 0x80; });
}

bool isUtf8(std::string_view text)
{
    while (!text.empty()) {
        text.remove_prefix(wholeAsciiWords(text));
        // Up to the first character beyond ASCII and behind it.
        for (bool isAsciiSoFar = true; isAsciiSoFar && !text.empty();) {
            const std::size_t length = sequenceLength(text);
            if (length == 0) {
                return false;
            }
            isAsciiSoFar = length == 1;
            text.remove_prefix(length);
        }
    }
    return true;
}

std::string repaired(std::string_view text)
{
    std::string whole;
    while (!text.empty()) {
        const std::size_t length = sequenceLength(text);
        whole += length == 0 ? std::string_view("\xEF\xBF\xBD") : text.substr(0, length);
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return whole;
}

std::string_view withoutCutCharacter(std::string_view text)
{
    constexpr std::size_t longestCharacter = 4;
    const std::size_t nearEnd = text.size() - std::min(text.size(), longestCharacter - 1);
    for (std::size_t at = text.size(); at-- > nearEnd;) {
        const auto byte = static_cast<unsigned char>(text[at]);
        if (byte >= 0xC0) {
            const std::size_t wanted = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : 2;
            return text.size() - at < wanted ? text.substr(0, at) : text;
        }
        if (byte < 0x80) {
            break;
        }
    }
    return text;
}

std::size_t bytesOfCharacters(std::string_view text, std::size_t count)
{
    if (text.size() <= count) {
        return text.size();
    }
    std::size_t at = 0;
    for (; at < text.size(); ++at) {
        const bool starts = (static_cast<unsigned char>(text[at]) & 0xC0) != 0x80;
        if (starts && count-- == 0) {
            break;
        }
    }
    return at;
}

std::string_view headerField(std::string_view text)
{
    text = text.substr(0, text.find('\0'));
    while (!text.empty() && text.back() == ' ') {
        text.remove_suffix(1);
    }
    return text;
}

}  // namespace texts

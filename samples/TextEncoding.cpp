#include "samples/TextEncoding.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <stdexcept>

namespace samples {

namespace {

// What Windows-1252 holds at 0x80 to 0x9F; 0 marks its five unused bytes.
constexpr std::array<char16_t, 32> c1Letters{
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

[[noreturn]] void refuse(std::string_view text)
{
    throw std::runtime_error("not a text that Windows-1252 can hold: " + std::string(text));
}

std::uint32_t nextLetter(std::string_view text, std::size_t& at)
{
    const auto byteAt = [&](std::size_t index) {
        return index < text.size() ? static_cast<unsigned char>(text[index]) : 0U;
    };
    const std::uint32_t lead = byteAt(at);
    if (lead < 0x80) {
        at += 1;
        return lead;
    }
    const std::uint32_t second = byteAt(at + 1);
    const std::uint32_t third = byteAt(at + 2);
    if ((lead & 0xE0U) == 0xC0 && (second & 0xC0U) == 0x80) {
        at += 2;
        return ((lead & 0x1FU) << 6U) | (second & 0x3FU);
    }
    if ((lead & 0xF0U) == 0xE0 && (second & 0xC0U) == 0x80 && (third & 0xC0U) == 0x80) {
        at += 3;
        return ((lead & 0x0FU) << 12U) | ((second & 0x3FU) << 6U) | (third & 0x3FU);
    }
    refuse(text);
}

}  // namespace

void toWindows1252(std::string_view text, std::string& target)
{
    target.clear();
    for (std::size_t at = 0; at < text.size();) {
        const auto letter = nextLetter(text, at);
        if (letter < 0x80 || (letter >= 0xA0 && letter <= 0xFF)) {
            target += static_cast<char>(letter);
            continue;
        }
        const auto* const found = std::ranges::find(c1Letters, letter);
        if (found == c1Letters.end()) {
            refuse(text);
        }
        target += static_cast<char>(0x80 + (found - c1Letters.begin()));
    }
}

}  // namespace samples

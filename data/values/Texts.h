#pragma once

#include <string>
#include <string_view>

/// Small helpers for 8-bit texts.
namespace texts {

/// What the classic locale calls space or blank.
[[nodiscard]] constexpr bool isSpace(char letter)
{
    return letter == ' ' || (letter >= '\t' && letter <= '\r');
}

/// The text without white space at either end; a view into it.
[[nodiscard]] constexpr std::string_view trimmedView(std::string_view text)
{
    while (!text.empty() && isSpace(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isSpace(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

/// The text without white space at either end, in the same storage.
[[nodiscard]] inline std::string trimmed(std::string text)
{
    const std::string_view view = trimmedView(text);
    if (view.size() != text.size()) {
        const auto start = static_cast<std::size_t>(view.data() - text.data());
        text.resize(start + view.size());
        text.erase(0, start);
    }
    return text;
}

/// Whether every byte is ASCII.
[[nodiscard]] bool isAscii(std::string_view text);

/// Whether the bytes are well-formed UTF-8 (no overlong forms, no surrogates, up to U+10FFFF).
[[nodiscard]] bool isUtf8(std::string_view text);

/// The text with U+FFFD for every byte that is no part of well-formed UTF-8.
[[nodiscard]] std::string repaired(std::string_view text);

/// The text without the start of a character at its very end, which a field's width cut off.
[[nodiscard]] std::string_view withoutCutCharacter(std::string_view text);

/// How many bytes the first `count` characters of a UTF-8 text take; all of it when it has fewer.
[[nodiscard]] std::size_t bytesOfCharacters(std::string_view text, std::size_t count);

/// The text cut at the first NUL and stripped of trailing blanks: a fixed-width header field.
[[nodiscard]] std::string_view headerField(std::string_view text);

}  // namespace texts

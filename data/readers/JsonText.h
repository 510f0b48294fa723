#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// What can be told of a JSON text without parsing it.
namespace jsontext {

[[nodiscard]] constexpr bool isBlank(char letter)
{
    return letter == ' ' || letter == '\n' || letter == '\r' || letter == '\t';
}

/// How many blanks there are at the start.
[[nodiscard]] std::size_t blanksAt(std::string_view text);
[[nodiscard]] std::string_view withoutBlanksBehind(std::string_view text);

/// Where one value ends, for a text that comes in pieces. Brackets and quotes are followed, and
/// nothing else is checked.
class ValueEnd
{
public:
    /// Goes on through the next piece of the text, which starts with the value.
    /// @return  how many bytes of the piece belong to the value
    std::size_t pass(std::string_view piece);
    /// Whether the value has ended. A number or word has only where another character follows.
    [[nodiscard]] bool isDone() const { return m_isDone; }
    /// Whether its brackets lie too deep to be data.
    [[nodiscard]] bool isTooDeep() const { return m_depth > mostDepth; }

private:
    static constexpr std::size_t mostDepth = 10000;

    std::size_t passText(std::string_view piece, std::size_t at);

    std::size_t m_depth = 0;
    bool m_isInText = false;
    bool m_isEscaped = false;
    bool m_isWord = false;
    bool m_isDone = false;
};

/// Replaces escapes of half a character, "\ud83d" without its second half, by those of U+FFFD.
/// @return  how many there were
std::size_t repairEscapes(char* text, std::size_t size);

/// What bytes stand for that are no UTF-8: U+FFFD each.
/// @param count  becomes how many there were
[[nodiscard]] std::string repairedBytes(std::string_view text, std::size_t& count);

}  // namespace jsontext

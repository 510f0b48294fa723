#include "data/readers/JsonText.h"

#include "data/values/Texts.h"

#include <algorithm>

namespace jsontext {
namespace {

constexpr std::string_view replacementEscape = "\\ufffd";
constexpr std::string_view replacement = "\xEF\xBF\xBD";

bool endsWord(char letter)
{
    return isBlank(letter) || letter == ',' || letter == ']' || letter == '}' || letter == ':';
}

std::size_t countOf(std::string_view text, std::string_view part)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string_view::npos;
         at = text.find(part, at + part.size())) {
        ++count;
    }
    return count;
}

/// The number of an escape such as "\ud83d"; 0 where there is none.
unsigned escapeAt(std::string_view text)
{
    constexpr std::size_t length = 6;
    if (text.size() < length || text[0] != '\\' || text[1] != 'u') {
        return 0;
    }
    unsigned number = 0;
    for (const char digit : text.substr(2, 4)) {
        const char small = static_cast<char>(digit | 0x20);
        const bool isLetter = small >= 'a' && small <= 'f';
        if (!isLetter && (digit < '0' || digit > '9')) {
            return 0;
        }
        number = number * 16 + static_cast<unsigned>(isLetter ? small - 'a' + 10 : digit - '0');
    }
    return number;
}

bool isFirstHalf(unsigned number)
{
    return number >= 0xD800 && number <= 0xDBFF;
}

bool isSecondHalf(unsigned number)
{
    return number >= 0xDC00 && number <= 0xDFFF;
}

}  // namespace

std::size_t blanksAt(std::string_view text)
{
    std::size_t count = 0;
    while (count < text.size() && isBlank(text[count])) {
        ++count;
    }
    return count;
}

std::string_view withoutBlanksBehind(std::string_view text)
{
    while (!text.empty() && isBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

std::size_t ValueEnd::passText(std::string_view piece, std::size_t at)
{
    for (; at < piece.size(); ++at) {
        if (m_isEscaped) {
            m_isEscaped = false;
        } else if (piece[at] == '\\') {
            m_isEscaped = true;
        } else if (piece[at] == '"') {
            m_isInText = false;
            return at + 1;
        }
    }
    return at;
}

std::size_t ValueEnd::pass(std::string_view piece)
{
    std::size_t at = 0;
    while (at < piece.size() && !m_isDone) {
        const char letter = piece[at];
        if (m_isInText) {
            at = passText(piece, at);
            m_isDone = !m_isInText && m_depth == 0;
            continue;
        }
        if (m_isWord && endsWord(letter)) {
            m_isDone = true;
            break;
        }
        ++at;
        switch (letter) {
        case '"':
            m_isInText = true;
            break;
        case '[':
        case '{':
            ++m_depth;
            break;
        case ']':
        case '}':
            m_depth -= m_depth == 0 ? 0 : 1;
            m_isDone = m_depth == 0;
            break;
        default:
            m_isWord = m_depth == 0;
        }
    }
    return at;
}

std::size_t repairEscapes(char* text, std::size_t size)
{
    std::size_t count = 0;
    const std::string_view view(text, size);
    for (std::size_t at = view.find('\\'); at < size; at = view.find('\\', at)) {
        const unsigned number = escapeAt(view.substr(at));
        const bool isPair =
            isFirstHalf(number) && isSecondHalf(escapeAt(view.substr(std::min(at + 6, size))));
        if (!isPair && (isFirstHalf(number) || isSecondHalf(number))) {
            std::copy(replacementEscape.begin(), replacementEscape.end(), text + at);
            ++count;
        }
        at += isPair ? 12 : 2;
    }
    return count;
}

std::string repairedBytes(std::string_view text, std::size_t& count)
{
    std::string repaired = texts::repaired(text);
    count = countOf(repaired, replacement) - countOf(text, replacement);
    return repaired;
}

}  // namespace jsontext

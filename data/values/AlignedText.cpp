#include "data/values/AlignedText.h"

#include <algorithm>

namespace {

/// How many columns of a terminal a UTF-8 text takes, counting a character as one.
std::size_t characterCount(std::string_view text)
{
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
    }));
}

}  // namespace

std::string onOneLine(std::string_view text)
{
    std::string out;
    out.reserve(text.size());
    for (const char letter : text) {
        switch (letter) {
        case '\t':
            out += "\\t";
            break;
        case '\n':
            out += "\\n";
            break;
        case '\r':
            out += "\\r";
            break;
        case '\\':
            out += "\\\\";
            break;
        default:
            out += letter;
        }
    }
    return out;
}

void AlignedText::add(const std::vector<std::string>& line)
{
    std::vector<std::string> cells;
    m_widths.resize(std::max(m_widths.size(), line.size()));
    for (const std::string& cell : line) {
        std::size_t& width = m_widths[cells.size()];
        cells.push_back(onOneLine(cell));
        width = std::max(width, characterCount(cells.back()));
    }
    m_lines.push_back(std::move(cells));
}

std::string AlignedText::take()
{
    std::string out;
    for (const auto& line : m_lines) {
        out += aligned(line);
    }
    m_lines.clear();
    return out;
}

std::string AlignedText::aligned(const std::vector<std::string>& line) const
{
    std::string out;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const std::string padding(m_widths[i] - characterCount(line[i]), ' ');
        const bool right = i < m_alignRight.size() && m_alignRight[i];
        out += i == 0 ? "" : "  ";
        out += right ? padding + line[i] : line[i] + padding;
    }
    out.erase(out.find_last_not_of(' ') + 1);
    return out + '\n';
}

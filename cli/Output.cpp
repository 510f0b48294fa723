#include "cli/Output.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <nlohmann/json.hpp>

namespace cli {

namespace {

constexpr std::size_t linesAlignedTogether = 1000;

std::string escaped(std::string_view text)
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

/// How many columns of a terminal a UTF-8 text takes, counting a character as one.
std::size_t characterCount(std::string_view text)
{
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
    }));
}

}  // namespace

std::string jsonText(std::string_view text)
{
    return nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

std::string jsonTexts(const std::vector<std::string>& texts)
{
    std::string out;
    for (const std::string& text : texts) {
        out += out.empty() ? "" : ",";
        out += jsonText(text);
    }
    return out;
}

std::string jsonNumber(double number)
{
    if (std::isnan(number)) {
        return "null";
    }
    if (std::isinf(number)) {
        return number > 0 ? "\"Infinity\"" : "\"-Infinity\"";  // JSON has no infinite numbers
    }
    return fmt::format("{:.17g}", number);
}

void print(std::string_view text)
{
    std::fwrite(text.data(), 1, text.size(), stdout);
}

void TableWriter::add(const std::vector<std::string>& line)
{
    std::vector<std::string> cells;
    m_widths.resize(std::max(m_widths.size(), line.size()));
    for (const std::string& cell : line) {
        std::size_t& width = m_widths[cells.size()];
        cells.push_back(escaped(cell));
        width = std::max(width, characterCount(cells.back()));
    }
    if (m_format == OutputFormat::Tsv) {
        print(fmt::format("{}\n", fmt::join(cells, "\t")));
        return;
    }
    m_waiting.push_back(std::move(cells));
    if (m_waiting.size() > linesAlignedTogether) {
        finish();
    }
}

void TableWriter::finish()
{
    for (const auto& line : m_waiting) {
        print(aligned(line));
    }
    m_waiting.clear();
}

std::string TableWriter::aligned(const std::vector<std::string>& line) const
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

}  // namespace cli

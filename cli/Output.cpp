#include "cli/Output.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <nlohmann/json.hpp>

namespace cli {

std::string jsonText(std::string_view text)
{
    return nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
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

std::string tsvText(std::string_view text)
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

void print(std::string_view text)
{
    std::fwrite(text.data(), 1, text.size(), stdout);
}

std::size_t characterCount(std::string_view text)
{
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
    }));
}

void TextTable::print(const std::vector<bool>& alignRight)
{
    for (const auto& line : m_lines) {
        m_widths.resize(std::max(m_widths.size(), line.size()));
        for (std::size_t i = 0; i < line.size(); ++i) {
            m_widths[i] = std::max(m_widths[i], characterCount(line[i]));
        }
    }
    for (const auto& line : m_lines) {
        std::string out;
        for (std::size_t i = 0; i < line.size(); ++i) {
            const std::string padding(m_widths[i] - characterCount(line[i]), ' ');
            const bool right = i < alignRight.size() && alignRight[i];
            out += i == 0 ? "" : "  ";
            out += right ? padding + line[i] : line[i] + padding;
        }
        out.erase(out.find_last_not_of(' ') + 1);
        cli::print(out + '\n');
    }
    m_lines.clear();
}

}  // namespace cli

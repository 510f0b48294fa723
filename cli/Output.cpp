#include "cli/Output.h"

#include <fmt/format.h>

#include <cmath>
#include <cstdio>
#include <nlohmann/json.hpp>

namespace cli {

namespace {

constexpr std::size_t linesAlignedTogether = 1000;

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
    if (m_format == OutputFormat::Tsv) {
        std::string out;
        for (const std::string& cell : line) {
            out += (&cell == line.data() ? "" : "\t") + onOneLine(cell);
        }
        print(out + '\n');
        return;
    }
    m_lines.add(line);
    if (m_lines.lineCount() > linesAlignedTogether) {
        finish();
    }
}

void TableWriter::finish()
{
    print(m_lines.take());
}

}  // namespace cli

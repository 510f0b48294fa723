#include "cli/Output.h"

#include <cstdio>

namespace cli {

namespace {

constexpr std::size_t linesAlignedTogether = 1000;

}  // namespace

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

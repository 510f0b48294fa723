#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace cli {

enum class OutputFormat
{
    Text,
    Json,
    Tsv
};

/// A JSON string with its quotes; bytes that are no UTF-8 become U+FFFD.
[[nodiscard]] std::string jsonText(std::string_view text);

/// A number with 17 significant digits, which read back to the same double; null where missing.
[[nodiscard]] std::string jsonNumber(double number);

/// A text for one field of a line of tab-separated values: tab, line break and backslash escaped.
[[nodiscard]] std::string tsvText(std::string_view text);

/// Writes to standard output.
void print(std::string_view text);

/// How many columns of a terminal a UTF-8 text takes, counting a character as one.
[[nodiscard]] std::size_t characterCount(std::string_view text);

/// Lines of cells, aligned by the widest of each column.
class TextTable
{
public:
    void add(std::vector<std::string> line) { m_lines.push_back(std::move(line)); }
    /// Aligns column numbers to the right that are listed; prints and forgets the lines.
    void print(const std::vector<bool>& alignRight);

private:
    std::vector<std::vector<std::string>> m_lines;
    std::vector<std::size_t> m_widths;
};

}  // namespace cli

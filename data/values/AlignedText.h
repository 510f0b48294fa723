#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// The text on one line: tabs, line breaks and backslashes as \t, \n, \r and \\.
[[nodiscard]] std::string onOneLine(std::string_view text);

/// Lays lines of cells out in columns, two blanks apart, for letters of one width.
class AlignedText
{
public:
    /// @param alignRight  whether each column holds numbers; columns beyond its end hold none
    explicit AlignedText(std::vector<bool> alignRight = {})
        : m_alignRight(std::move(alignRight))
    { }

    /// Each cell is put on one line.
    void add(const std::vector<std::string>& line);
    [[nodiscard]] std::size_t lineCount() const { return m_lines.size(); }
    /// The lines that were added since the last call, aligned with all before them.
    [[nodiscard]] std::string take();

private:
    [[nodiscard]] std::string aligned(const std::vector<std::string>& line) const;

    std::vector<bool> m_alignRight;
    std::vector<std::vector<std::string>> m_lines;
    std::vector<std::size_t> m_widths;
};

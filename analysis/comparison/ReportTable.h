#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace comparison {

/// How many columns of a page a UTF-8 text takes, one for each character.
[[nodiscard]] std::size_t widthOf(std::string_view text);
/// The text cut to so many characters.
[[nodiscard]] std::string_view cutTo(std::string_view text, std::size_t width);
/// The text in lines of so many characters, broken at blanks where there are some.
[[nodiscard]] std::vector<std::string> wrapped(std::string_view text, std::size_t width);
/// The lines, moved to the middle of a page as one block; those that are too long are wrapped.
[[nodiscard]] std::string centred(const std::vector<std::string>& whole, std::size_t lineSize);

/// A table of a report: titles over columns, as wide as a line at most.
class ReportTable
{
public:
    struct Column
    {
        std::string title;  ///< of several lines where it has line breaks
        bool alignsRight = false;
        bool wraps = false;  ///< gives way where the line is too short
        std::size_t minimum = 0;
    };
    /// Stands between two columns in every line.
    static constexpr std::string_view bar = "||";

    explicit ReportTable(std::vector<Column> columns)
        : m_columns(std::move(columns))
    { }

    void add(std::vector<std::string> cells) { m_rows.push_back(std::move(cells)); }
    /// A line above the titles, from the column after the bar on.
    void setCaption(std::string caption) { m_caption = std::move(caption); }
    [[nodiscard]] bool isEmpty() const { return m_rows.empty(); }

    /// Titles and rows without rules.
    [[nodiscard]] std::vector<std::string> lines(std::size_t lineSize) const;
    /// With a rule above, below, and under each title.
    [[nodiscard]] std::vector<std::string> ruledLines(std::size_t lineSize) const;

private:
    using Lines = std::vector<std::string>;

    [[nodiscard]] std::vector<std::size_t> widths(std::size_t lineSize) const;
    void addLine(const std::vector<Lines>& cells, const std::vector<std::size_t>& widths,
                 bool fromBelow, Lines& out) const;
    void addTitles(const std::vector<std::size_t>& widths, Lines& out) const;
    void addRows(const std::vector<std::size_t>& widths, Lines& out) const;
    [[nodiscard]] std::string captionLine(const std::vector<std::size_t>& widths) const;

    std::vector<Column> m_columns;
    std::string m_caption;
    std::vector<std::vector<std::string>> m_rows;
};

}  // namespace comparison

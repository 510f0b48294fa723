#include "analysis/comparison/ReportTable.h"

#include "data/values/AlignedText.h"
#include "data/values/Texts.h"

#include <algorithm>
#include <numeric>

namespace comparison {

namespace {

constexpr std::size_t gap = 2;

std::string padded(const std::string& text, std::size_t width, bool alignsRight)
{
    const std::string padding(width - std::min(width, widthOf(text)), ' ');
    return alignsRight ? padding + text : text + padding;
}

/// On one line; a text that has been put on one line already stays as it is.
std::string flat(const std::string& text)
{
    return text.find_first_of("\t\r\n") == std::string::npos ? text : onOneLine(text);
}

std::vector<std::string> splitLines(const std::string& text)
{
    std::vector<std::string> lines;
    for (std::size_t begin = 0;;) {
        const std::size_t end = text.find('\n', begin);
        lines.push_back(text.substr(begin, end - begin));
        if (end == std::string::npos) {
            return lines;
        }
        begin = end + 1;
    }
}

}  // namespace

std::size_t widthOf(std::string_view text)
{
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
    }));
}

std::string_view cutTo(std::string_view text, std::size_t width)
{
    return text.substr(0, texts::bytesOfCharacters(text, width));
}

std::vector<std::string> wrapped(std::string_view text, std::size_t width)
{
    std::vector<std::string> lines;
    width = std::max<std::size_t>(width, 1);
    while (widthOf(text) > width) {
        std::string_view line = cutTo(text, width);
        std::size_t next = line.size();
        const std::size_t blank = text[next] == ' ' ? next : line.rfind(' ');
        if (blank != std::string_view::npos && blank > 0) {
            line = line.substr(0, blank);
            next = blank + 1;
        }
        lines.emplace_back(line);
        text.remove_prefix(next);
    }
    lines.emplace_back(text);
    return lines;
}

std::string centred(const std::vector<std::string>& whole, std::size_t lineSize)
{
    std::size_t widest = 0;
    std::vector<std::string> lines;
    for (const std::string& line : whole) {
        for (std::string& part : wrapped(line, lineSize)) {
            widest = std::max(widest, widthOf(part));
            lines.push_back(std::move(part));
        }
    }
    const std::string margin((lineSize - std::min(lineSize, widest)) / 2, ' ');
    std::string out;
    for (const std::string& line : lines) {
        const std::size_t end = line.find_last_not_of(' ') + 1;
        out += end == 0 ? "\n" : margin + line.substr(0, end) + '\n';
    }
    return out;
}

std::vector<std::size_t> ReportTable::widths(std::size_t lineSize) const
{
    std::vector<std::size_t> widths;
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        std::size_t width = m_columns[i].minimum;
        for (const std::string& title : splitLines(m_columns[i].title)) {
            width = std::max(width, widthOf(title));
        }
        for (const auto& row : m_rows) {
            width = std::max(width, widthOf(flat(row[i])));
        }
        widths.push_back(width);
    }
    std::size_t total = std::accumulate(widths.begin(), widths.end(), gap * (widths.size() - 1));
    // The widest of the columns that may give way gives way first.
    while (total > lineSize) {
        std::size_t widest = m_columns.size();
        for (std::size_t i = 0; i < m_columns.size(); ++i) {
            const std::size_t least = std::max<std::size_t>(m_columns[i].minimum, 4);
            if (m_columns[i].wraps && widths[i] > least
                && (widest == m_columns.size() || widths[i] > widths[widest])) {
                widest = i;
            }
        }
        if (widest == m_columns.size()) {
            break;
        }
        --widths[widest];
        --total;
    }
    return widths;
}

/// @param fromBelow  whether cells of fewer lines stand at the bottom
void ReportTable::addLine(const std::vector<Lines>& cells, const std::vector<std::size_t>& widths,
                          bool fromBelow, Lines& out) const
{
    std::size_t height = 1;
    for (const Lines& cell : cells) {
        height = std::max(height, cell.size());
    }
    for (std::size_t line = 0; line < height; ++line) {
        std::string text;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            const std::size_t above = fromBelow ? height - cells[i].size() : 0;
            const bool isBar = m_columns[i].title == bar;
            const std::string cell = isBar                        ? std::string(bar)
                : line >= above && line - above < cells[i].size() ? cells[i][line - above]
                                                                  : std::string();
            text += (i == 0 ? "" : std::string(gap, ' '))
                + padded(cell, widths[i], m_columns[i].alignsRight);
        }
        out.push_back(std::move(text));
    }
}

void ReportTable::addTitles(const std::vector<std::size_t>& widths, Lines& out) const
{
    std::vector<Lines> titles;
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        Lines& title = titles.emplace_back();
        for (const std::string& line : splitLines(m_columns[i].title)) {
            for (std::string& part : wrapped(line, widths[i])) {
                title.push_back(std::move(part));
            }
        }
    }
    addLine(titles, widths, true, out);
}

void ReportTable::addRows(const std::vector<std::size_t>& widths, Lines& out) const
{
    for (const auto& row : m_rows) {
        std::vector<Lines> cells;
        for (std::size_t i = 0; i < row.size(); ++i) {
            cells.push_back(wrapped(flat(row[i]), widths[i]));
        }
        addLine(cells, widths, false, out);
    }
}

std::vector<std::string> ReportTable::lines(std::size_t lineSize) const
{
    const std::vector<std::size_t> widths = this->widths(lineSize);
    Lines out;
    addTitles(widths, out);
    out.emplace_back();
    addRows(widths, out);
    return out;
}

std::string ReportTable::captionLine(const std::vector<std::size_t>& widths) const
{
    std::size_t place = 0;
    for (std::size_t i = 0; i < m_columns.size() && m_columns[i].title != bar; ++i) {
        place += widths[i] + gap;
    }
    const std::size_t whole =
        std::accumulate(widths.begin(), widths.end(), gap * (widths.size() - 1));
    const std::size_t room = whole - std::min(whole, place + bar.size() + gap);
    return std::string(place, ' ')
        .append(bar)
        .append(gap, ' ')
        .append(cutTo(flat(m_caption), room));
}

std::vector<std::string> ReportTable::ruledLines(std::size_t lineSize) const
{
    const std::vector<std::size_t> widths = this->widths(lineSize);
    const std::size_t whole =
        std::accumulate(widths.begin(), widths.end(), gap * (widths.size() - 1));
    Lines out{std::string(whole, '_')};
    if (!m_caption.empty()) {
        out.push_back(captionLine(widths));
    }
    addTitles(widths, out);
    std::vector<Lines> rules;
    rules.reserve(widths.size());
    for (const std::size_t width : widths) {
        rules.push_back({std::string(width, '_')});
    }
    addLine(rules, widths, false, out);
    addLine(std::vector<Lines>(widths.size(), Lines{""}), widths, false, out);
    addRows(widths, out);
    out.emplace_back(whole, '_');
    return out;
}

}  // namespace comparison

#include "data/readers/JsonRowFeed.h"

#include "data/readers/JsonText.h"
#include "data/values/Texts.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace {

std::runtime_error cutShort(std::int64_t rowsBefore)
{
    return std::runtime_error(fmt::format("It is cut short within observation {}", rowsBefore + 1));
}

/// Where the last row ends that another one follows, to all appearances; 0 where none is seen.
std::size_t apparentRowEnd(std::string_view text)
{
    for (std::size_t comma = text.rfind(','); comma != std::string_view::npos && comma > 0;
         comma = text.rfind(',', comma - 1)) {
        const std::string_view before = jsontext::withoutBlanksBehind(text.substr(0, comma));
        if (!before.empty() && (before.back() == ']' || before.back() == '}')) {
            return before.size();
        }
    }
    return 0;
}

}  // namespace

void JsonRowFeed::readList()
{
    m_window.pass(1);
    while (m_window.next() != ']') {
        m_window.have(JsonWindow::usualBytes);
        if (m_window.isLast() || !readApparentRows()) {
            readExactRows();
        }
    }
    m_window.pass(1);
}

/// Looks for the end of a row from behind, which may turn out to be none: within a text, within a
/// row or behind the whole list. The parser then meets an end where there is none, or none where
/// there should be one, so that the attempt fails as a whole.
bool JsonRowFeed::readApparentRows()
{
    const std::size_t size = apparentRowEnd(m_window.text());
    if (size == 0 || !m_rows.read(m_window.data(), size, {})) {
        return false;
    }
    m_window.pass(size);
    passComma(m_window);
    return true;
}

void JsonRowFeed::readExactRows()
{
    std::vector<Piece> pieces = piecesOfList();
    while (pieces.empty()) {
        if (!m_window.haveMore()) {
            throw cutShort(m_rows.rowCount());
        }
        pieces = piecesOfList();
    }
    const char* const end = pieces.back().start + pieces.back().size;
    read(pieces);
    m_window.pass(static_cast<std::size_t>(end - m_window.data()));
    passComma(m_window);
}

/// The rows that are whole, up to the end of the list.
std::vector<JsonRowFeed::Piece> JsonRowFeed::piecesOfList()
{
    std::vector<Piece> pieces;
    const std::string_view text = m_window.text();
    std::size_t at = 0;
    while (at < text.size()) {
        at += jsontext::blanksAt(text.substr(at));
        if (at == text.size() || text[at] == ']') {
            break;
        }
        jsontext::ValueEnd end;
        const std::size_t size = end.pass(text.substr(at));
        if (!end.isDone() || size == 0) {
            break;
        }
        if (end.isTooDeep()) {
            refuse({m_window.data() + at, size, 0});
        }
        pieces.push_back({m_window.data() + at, size, 0});
        at += size;
        at += jsontext::blanksAt(text.substr(at));
        if (at >= text.size() || text[at] != ',') {
            break;
        }
        ++at;
    }
    return pieces;
}

void JsonRowFeed::passComma(JsonWindow& window)
{
    const char letter = window.next();
    if (letter == ',') {
        window.pass(1);
        if (window.next() != ']') {
            return;
        }
    } else if (letter == ']') {
        return;
    }
    if (window.next() == '\0') {
        throw std::runtime_error("It is cut short");
    }
    throw std::runtime_error("It is no valid JSON: its rows are not separated by commas");
}

void JsonRowFeed::readLines(std::int64_t line)
{
    while (m_window.next() != '\0') {
        m_window.have(JsonWindow::usualBytes);
        std::size_t size = m_window.isLast() ? m_window.size() : m_window.text().rfind('\n') + 1;
        while (size == 0) {
            m_window.haveMore();
            size = m_window.isLast() ? m_window.size() : m_window.text().rfind('\n') + 1;
        }
        read(piecesOfLines(size, line));
        m_window.pass(size);
    }
}

/// The lines that hold something. Commas take the place of the line ends between them.
std::vector<JsonRowFeed::Piece> JsonRowFeed::piecesOfLines(std::size_t size, std::int64_t& line)
{
    std::vector<Piece> pieces;
    char* at = m_window.data();
    char* const end = at + size;
    while (at < end) {
        auto* behind =
            static_cast<char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)));
        behind = behind == nullptr ? end : behind;
        const std::string_view whole(at, static_cast<std::size_t>(behind - at));
        const std::size_t blanks = jsontext::blanksAt(whole);
        if (blanks < whole.size()) {
            const std::string_view row = jsontext::withoutBlanksBehind(whole.substr(blanks));
            pieces.push_back({at + blanks, row.size(), line});
        }
        ++line;
        at = behind == end ? end : behind + 1;
    }
    for (std::size_t i = 0; i + 1 < pieces.size(); ++i) {
        pieces[i].start[pieces[i].size] = ',';
    }
    return pieces;
}

void JsonRowFeed::read(const std::vector<Piece>& pieces)
{
    if (pieces.empty()) {
        return;
    }
    // Joined by commas, two rows that are none on their own could make one.
    std::vector<const char*> starts(pieces.size());
    std::transform(pieces.begin(), pieces.end(), starts.begin(),
                   [](const Piece& piece) { return piece.start; });
    const char* const end = pieces.back().start + pieces.back().size;
    if (!m_rows.read(pieces.front().start, static_cast<std::size_t>(end - pieces.front().start),
                     starts)) {
        std::for_each(pieces.begin(), pieces.end(),
                      [this](const Piece& piece) { readAlone(piece); });
    }
}

/// Reads a row by itself, and, where it has letters that do not exist, without them.
void JsonRowFeed::readAlone(const Piece& piece)
{
    std::string_view text(piece.start, piece.size);
    std::string repaired;
    std::size_t count = 0;
    if (!texts::isUtf8(text)) {
        repaired = jsontext::repairedBytes(text, count);
        text = repaired;
    }
    m_alone.assign(1, ' ');
    m_alone += text;
    m_alone.append(JsonWindow::margin, ' ');
    char* const start = m_alone.data() + 1;
    count += jsontext::repairEscapes(start, text.size());
    if (!m_rows.read(start, text.size(), {start})) {
        refuse(piece);
    }
    if (count > 0) {
        m_rows.oddities().add(DatasetJsonOddities::Kind::InvalidText, m_rows.rowCount() - 1, -1, {},
                              count);
    }
}

void JsonRowFeed::refuse(const Piece& piece) const
{
    const std::string_view text(piece.start, piece.size);
    const bool isEnd =
        m_window.isLast() && text.end() == jsontext::withoutBlanksBehind(m_window.text()).end();
    jsontext::ValueEnd end;
    static_cast<void>(end.pass(text));
    if (isEnd && !end.isDone() && (text.front() == '[' || text.front() == '{')) {
        throw cutShort(m_rows.rowCount());
    }
    throw std::runtime_error(
        piece.line > 0 ? fmt::format("Line {} is damaged: {}", piece.line, m_rows.problem())
                       : fmt::format("Observation {} is damaged: {}", m_rows.rowCount() + 1,
                                     m_rows.problem()));
}

std::int64_t JsonRowFeed::countList(JsonWindow& window)
{
    std::int64_t count = 0;
    window.pass(1);
    while (window.next() != ']') {
        window.passValue(nullptr);
        passComma(window);
        ++count;
    }
    window.pass(1);
    return count;
}

std::int64_t JsonRowFeed::countLines(JsonWindow& window)
{
    std::int64_t count = 0;
    bool isBlank = true;
    while (window.size() > 0 || window.haveMore()) {
        for (const char letter : window.text()) {
            if (letter == '\n') {
                isBlank = true;
            } else if (isBlank && !jsontext::isBlank(letter)) {
                isBlank = false;
                ++count;
            }
        }
        window.pass(window.size());
    }
    return count;
}

#include "workspace/program/ProgramScanner.h"

#include <algorithm>

namespace {

bool startsQuoteOrEnd(QChar character)
{
    return character == u'\'' || character == u'"' || character == u';';
}

}  // namespace

std::optional<ProgramPiece> ProgramScanner::next()
{
    if (m_position >= m_text.size()) {
        return std::nullopt;
    }
    const qsizetype start = m_position;
    const ProgramPiece::Kind kind = open();
    m_position = endOfPiece(m_position);
    return ProgramPiece{kind, start, m_position - start};
}

/// Finds out what begins here, steps over what opens it and notes the place.
ProgramPiece::Kind ProgramScanner::open()
{
    switch (m_place) {
    case Place::SingleQuotes:
    case Place::DoubleQuotes:
        return ProgramPiece::Kind::Quoted;
    case Place::BlockComment:
    case Place::BlockCommentAtStart:
    case Place::StarComment:
        return ProgramPiece::Kind::Comment;
    default:
        break;
    }
    const QStringView rest = m_text.mid(m_position);
    const bool atStart = m_place == Place::StatementStart;
    if (rest.startsWith(u"/*")) {
        m_position += 2;
        m_place = atStart ? Place::BlockCommentAtStart : Place::BlockComment;
        return ProgramPiece::Kind::Comment;
    }
    if (atStart && (rest.startsWith(u'*') || rest.startsWith(u"%*"))) {
        m_place = Place::StarComment;
        return ProgramPiece::Kind::Comment;
    }
    if (rest.startsWith(u'\'') || rest.startsWith(u'"')) {
        m_place = rest.front() == u'"' ? Place::DoubleQuotes : Place::SingleQuotes;
        ++m_position;
        return ProgramPiece::Kind::Quoted;
    }
    return rest.startsWith(u';') ? ProgramPiece::Kind::End : ProgramPiece::Kind::Code;
}

/// Where the piece ends that goes on at a position, whatever opened it being behind that.
qsizetype ProgramScanner::endOfPiece(qsizetype from)
{
    switch (m_place) {
    case Place::BlockComment:
        return endOf(u"*/", from, Place::Statement);
    case Place::BlockCommentAtStart:
        return endOf(u"*/", from, Place::StatementStart);
    case Place::StarComment:
        return endOf(u";", from, Place::StatementStart);
    case Place::SingleQuotes:
        return endOf(u"'", from, Place::Statement);
    case Place::DoubleQuotes:
        return endOf(u"\"", from, Place::Statement);
    default:
        break;
    }
    if (m_text.at(from) == u';') {
        m_place = Place::StatementStart;
        return from + 1;
    }
    return endOfCode(from);
}

qsizetype ProgramScanner::endOf(QStringView closing, qsizetype from, Place after)
{
    const qsizetype found = m_text.indexOf(closing, from);
    if (found < 0) {
        return m_text.size();
    }
    m_place = after;
    return found + closing.size();
}

qsizetype ProgramScanner::endOfCode(qsizetype from)
{
    qsizetype end = from;
    // What leads up to a statement ends before it: only there an asterisk starts a comment.
    while (m_place == Place::StatementStart && end < m_text.size() && m_text.at(end).isSpace()) {
        ++end;
    }
    if (end > from) {
        return end;
    }
    m_place = Place::Statement;
    while (end < m_text.size() && !startsQuoteOrEnd(m_text.at(end))
           && !m_text.mid(end).startsWith(u"/*")) {
        ++end;
    }
    return end;
}

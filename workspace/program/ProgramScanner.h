#pragma once

#include <QStringView>

#include <optional>

/// A run of program text of one kind.
struct ProgramPiece
{
    enum class Kind
    {
        Code,  ///< text outside quotes and comments
        Quoted,  ///< with its quotes; of 'it''s' there are two
        Comment,  ///< "/* … */", or "* … ;" with the semicolon
        End  ///< the semicolon after a statement
    };

    Kind kind = Kind::Code;
    qsizetype start = 0;
    qsizetype length = 0;
};

/// Cuts the text of a SAS program into pieces, and so tells where quotes and comments are. Any part
/// of a text, as a line, can be scanned when the place is known in which the part before it ended.
class ProgramScanner
{
public:
    /// Where in a program a piece ends and the next one starts.
    enum class Place
    {
        StatementStart,
        Statement,
        BlockComment,  ///< within a statement
        BlockCommentAtStart,  ///< before one
        StarComment,
        SingleQuotes,
        DoubleQuotes
    };

    explicit ProgramScanner(QStringView text, Place place = Place::StatementStart)
        : m_text(text)
        , m_place(place)
    { }

    /// The next piece; nothing at the end of the text.
    [[nodiscard]] std::optional<ProgramPiece> next();
    /// Where the last piece has ended. In a quote or a comment at the end of a program: that one
    /// has not been closed.
    [[nodiscard]] Place place() const { return m_place; }

private:
    [[nodiscard]] ProgramPiece::Kind open();
    [[nodiscard]] qsizetype endOfPiece(qsizetype from);
    [[nodiscard]] qsizetype endOf(QStringView closing, qsizetype from, Place after);
    [[nodiscard]] qsizetype endOfCode(qsizetype from);

    QStringView m_text;
    qsizetype m_position = 0;
    Place m_place;
};

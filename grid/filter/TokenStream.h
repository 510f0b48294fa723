#pragma once

#include "grid/filter/CompareOp.h"
#include "grid/filter/Lexer.h"
#include "grid/filter/ParseError.h"

#include <utility>

/// The tokens of a text with the next one in view. Each is cut when the one before it is taken, so
/// that a text with an impossible character fails before the command it belongs to acts.
class TokenStream
{
public:
    explicit TokenStream(QStringView text, Dialect dialect)
        : m_lexer(text, dialect)
        , m_next(m_lexer.next())
    { }

    [[nodiscard]] const Token& next() const { return m_next; }
    [[nodiscard]] bool nextIs(TokenKind kind) const { return m_next.kind == kind; }
    /// Whether the next token is this word in any letter case.
    [[nodiscard]] bool nextIsWord(QStringView word) const
    {
        return nextIs(TokenKind::Identifier) && compareop::sameWord(m_next.text, word);
    }

    Token take() { return std::exchange(m_next, m_lexer.next()); }
    /// Takes a token of this kind; throws ParseError with the message for any other.
    Token take(TokenKind kind, const char* message)
    {
        if (!nextIs(kind)) {
            fail(message);
        }
        return take();
    }
    /// Throws ParseError about the next token.
    [[noreturn]] void fail(const char* message) const
    {
        throw ParseError(message, m_next.position);
    }

private:
    Lexer m_lexer;
    Token m_next;
};

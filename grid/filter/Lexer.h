#pragma once

#include "grid/filter/Token.h"

#include <QStringView>

/// Which numbers a text may hold.
enum class Dialect
{
    Command,  ///< what users type: digits and a point, no sign, no exponent
    FilterText,  ///< what is evaluated, published and saved: signs and exponents, too
};

/// Cuts a command text into tokens, which are views into it.
class Lexer
{
public:
    explicit Lexer(QStringView text, Dialect dialect = Dialect::Command)
        : m_text(text)
        , m_dialect(dialect)
    { }

    /// The next token; at the end of the text an end token, however often it is asked.
    /// Throws ParseError: "unterminated string literal", "unknown character in input".
    [[nodiscard]] Token next();

private:
    [[nodiscard]] char32_t characterAt(qsizetype position) const;
    [[nodiscard]] bool isDigitAt(qsizetype position) const;
    [[nodiscard]] bool startsIdentifier() const;
    [[nodiscard]] bool startsNumber() const;
    [[nodiscard]] Token take(TokenKind kind, qsizetype end);
    [[nodiscard]] Token takeIdentifier();
    [[nodiscard]] Token takeNumber();
    [[nodiscard]] Token takeString();
    [[nodiscard]] Token takeSymbol();

    QStringView m_text;
    Dialect m_dialect;
    qsizetype m_position = 0;
};

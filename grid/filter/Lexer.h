#pragma once

#include <QString>
#include <QStringView>

/// What a token is; the numbers are the codes of the kinds.
enum class TokenKind : int
{
    Identifier = 0,  ///< a word, or a name literal: 'my var'n
    String = 1,  ///< with its quotes and its date or time suffix
    Number = 2,
    Operator = 3,
    LeftParenthesis = 4,
    RightParenthesis = 5,
    Comma = 6,
    Star = 7,
    Bar = 8,
    Ampersand = 9,
    End = 10,
};

/// A piece of a command text; the text outlives it.
struct Token
{
    TokenKind kind = TokenKind::End;
    QStringView text;
    qsizetype position = 0;  ///< where it begins in the command text

    /// The name that an identifier stands for.
    [[nodiscard]] QString name() const;
};

/// Which numbers a text may hold.
enum class Dialect
{
    Command,  ///< what users type: digits and a point, no sign, no exponent
    FilterText,  ///< what is evaluated, published and saved: signs and exponents, too
};

/// Cuts a command text into tokens, which are views into it.
///
/// A quoted text with an "n" behind it is a name literal and reads as an identifier, but is never a
/// word of the language. Within it the quote itself is written twice.
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
    [[nodiscard]] Token takeQuoted();
    [[nodiscard]] qsizetype endOfNameLiteral() const;
    [[nodiscard]] Token takeSymbol();

    QStringView m_text;
    Dialect m_dialect;
    qsizetype m_position = 0;
};

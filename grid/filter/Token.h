#pragma once

#include <QStringView>

/// What a token is; the numbers are the codes of the kinds.
enum class TokenKind : int
{
    Identifier = 0,
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
};

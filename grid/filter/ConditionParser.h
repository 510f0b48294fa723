#pragma once

#include "grid/filter/Condition.h"
#include "grid/filter/TokenStream.h"

/// A condition read from a text.
struct ParsedCondition
{
    QString text;  ///< normalised; reads back to itself
    bool hasOuterOr = false;  ///< an "or" stands outside all parentheses
    Condition tree;
};

/// The recursive descent over conditions, from loosest to tightest:
///
///     or-condition   and-condition { ("or" | "|") and-condition }
///     and-condition  primary { ("and" | "&") primary }
///     primary        "(" or-condition ")" | comparison
///     comparison     variable ["not"] "in" "(" value { "," value } ")"
///                  | variable "is" ["not"] "null" | variable "isnull" | variable "isnotnull"
///                  | variable operator value
///                  | "index" "(" variable "," string ")" operator value
///
/// Words are read in any letter case. Throws ParseError.
///
/// The text is written while it is read: one blank between tokens, none inside parentheses, before
/// a comma and between a function and its parenthesis.
class ConditionParser
{
public:
    /// Takes a condition from the stream and leaves what follows it.
    [[nodiscard]] static ParsedCondition parse(TokenStream& tokens);
    /// Reads a text that is one condition and nothing else.
    [[nodiscard]] static ParsedCondition parseAll(QStringView text);

private:
    explicit ConditionParser(TokenStream& tokens)
        : m_tokens(tokens)
    { }

    Condition orCondition();
    Condition andCondition();
    Condition primary();
    Condition comparison();
    Condition indexComparison();
    Condition inList(WrittenName variable, bool negated);
    Condition nullTest(WrittenName variable);

    CompareOp compareOperator();
    Literal value();
    Literal literal(TokenKind kind, const char* message);
    Token copyNext();
    Token copy(TokenKind kind, const char* message);
    bool takeJunction(TokenKind symbol, QStringView word);

    enum class Spacing
    {
        Blank,
        JoinsLeft,
    };
    void write(QStringView piece, Spacing spacing);

    TokenStream& m_tokens;
    QString m_text;  ///< of what has been read
    int m_depth = 0;  ///< of open parentheses
    bool m_hasOuterOr = false;
};

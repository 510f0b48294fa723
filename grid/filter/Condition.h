#pragma once

#include "grid/filter/CompareOp.h"
#include "grid/filter/Lexer.h"

#include <QString>

#include <variant>
#include <vector>

/// A name as a command writes it, and where.
struct WrittenName
{
    QString name;  ///< without the dress of a name literal
    qsizetype position = 0;
};

/// A value as a condition writes it, and where.
struct Literal
{
    TokenKind kind = TokenKind::Number;  ///< String or Number
    QString text;  ///< with quotes and suffix
    qsizetype position = 0;
};

/// variable op value
struct CompareTerm
{
    WrittenName variable;
    CompareOp op = CompareOp::Equal;
    Literal value;
};

/// index(variable, needle) op value
struct IndexTerm
{
    WrittenName variable;
    Literal needle;
    CompareOp op = CompareOp::Equal;
    Literal value;
};

/// variable [not] in (values)
struct InTerm
{
    WrittenName variable;
    bool negated = false;
    std::vector<Literal> values;
};

/// variable is [not] null
struct NullTerm
{
    WrittenName variable;
    bool negated = false;
};

struct Condition;

/// Operands, two or more, that must all hold or of which one must.
struct Junction
{
    bool isAnd = true;
    std::vector<Condition> operands;
};

/// A condition as a tree, names and values still as written.
struct Condition
{
    std::variant<CompareTerm, IndexTerm, InTerm, NullTerm, Junction> node;
};

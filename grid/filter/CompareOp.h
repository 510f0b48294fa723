#pragma once

#include <QStringView>

#include <array>
#include <optional>

/// How a condition compares a variable with a value.
enum class CompareOp
{
    Equal,
    NotEqual,
    Less,
    LessOrEqual,
    Greater,
    GreaterOrEqual,
    Contains,
};

/// The ways to write the operators.
namespace compareop {

struct Spelling
{
    QStringView text;
    CompareOp op;
};

/// In the order in which they are tried, as some begin others.
inline constexpr std::array<Spelling, 14> spellings{{
    {u"contains", CompareOp::Contains},
    {u"<=", CompareOp::LessOrEqual},
    {u">=", CompareOp::GreaterOrEqual},
    {u"~=", CompareOp::NotEqual},
    {u"^=", CompareOp::NotEqual},
    {u"lt", CompareOp::Less},
    {u"le", CompareOp::LessOrEqual},
    {u"eq", CompareOp::Equal},
    {u"ge", CompareOp::GreaterOrEqual},
    {u"gt", CompareOp::Greater},
    {u"ne", CompareOp::NotEqual},
    {u">", CompareOp::Greater},
    {u"<", CompareOp::Less},
    {u"=", CompareOp::Equal},
}};

/// Whether two words are the same, letters lowered one by one.
[[nodiscard]] bool sameWord(QStringView one, QStringView other);

/// The operator of a spelling in any letter case; nothing for any other text.
[[nodiscard]] std::optional<CompareOp> fromText(QStringView text);

/// The spelling that generated conditions use: "=", "^=", "<", "<=", ">", ">=", "contains".
[[nodiscard]] QStringView textOf(CompareOp op);

}  // namespace compareop

#include "grid/filter/LiteralValue.h"

#include "grid/filter/DateLiteral.h"
#include "grid/filter/ParseError.h"

#include <fmt/format.h>

#include <charconv>
#include <optional>
#include <string_view>

namespace {

using Kind = LiteralValue::Kind;

LiteralValue numberOf(const std::string& text, qsizetype position)
{
    if (text == ".") {
        return {Kind::Missing, 0, {}, position};
    }
    LiteralValue value{Kind::Number, 0, {}, position};
    const char* first = text.data() + (text.starts_with('+') ? 1 : 0);
    const auto [end, error] = std::from_chars(first, text.data() + text.size(), value.number);
    if (error != std::errc() || end != text.data() + text.size()) {
        throw ParseError(fmt::format("The number {} is out of range", text), position);
    }
    return value;
}

LiteralValue dateOrTime(Kind kind, const Literal& literal, std::string_view content)
{
    std::optional<double> number;
    const char* meaning = "";
    switch (kind) {
    case Kind::Date:
        number = dateliteral::parseDate(content);
        meaning = "date";
        break;
    case Kind::Time:
        number = dateliteral::parseTime(content);
        meaning = "time";
        break;
    default:
        number = dateliteral::parseDateTime(content);
        meaning = "date-time";
        break;
    }
    if (!number) {
        throw ParseError(fmt::format("{} is not a valid {}", literal.text.toStdString(), meaning),
                         literal.position);
    }
    return {kind, *number, {}, literal.position};
}

Kind kindOfSuffix(QStringView suffix)
{
    if (suffix.isEmpty()) {
        return Kind::Text;
    }
    if (suffix.size() == 2) {
        return Kind::DateTime;
    }
    return compareop::sameWord(suffix, u"d") ? Kind::Date : Kind::Time;
}

}  // namespace

LiteralValue valueOf(const Literal& literal)
{
    if (literal.kind == TokenKind::Number) {
        return numberOf(literal.text.toStdString(), literal.position);
    }
    const qsizetype quote = literal.text.lastIndexOf(literal.text.front());
    const Kind kind = kindOfSuffix(QStringView(literal.text).sliced(quote + 1));
    std::string content = literal.text.mid(1, quote - 1).toStdString();
    if (kind == Kind::Text) {
        return {kind, 0, std::move(content), literal.position};
    }
    return dateOrTime(kind, literal, content);
}

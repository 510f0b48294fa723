#include "grid/filter/QuickFilter.h"

#include "data/values/NumberText.h"
#include "data/values/Texts.h"
#include "grid/filter/DateLiteral.h"
#include "grid/filter/TextPredicates.h"
#include "grid/filter/VariableNames.h"

#include <fmt/format.h>

#include <QStringList>

#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

using Content = DateScale::Content;

bool isBlank(const QuickFilter::Value& value)
{
    const auto* text = std::get_if<std::string>(&value);
    return text != nullptr && textpredicates::withoutTrailingBlanks(*text).empty();
}

Result<QString> quoted(std::string_view text)
{
    text = textpredicates::withoutTrailingBlanks(text);
    const bool hasDouble = text.find('"') != std::string_view::npos;
    if (hasDouble && text.find('\'') != std::string_view::npos) {
        return Failure{fmt::format(
            "A text with both kinds of quotes cannot be written in a filter: {}", text)};
    }
    if (!texts::isUtf8(text)) {
        return Failure{"A text with invalid characters cannot be written in a filter"};
    }
    const QChar quote = hasDouble ? u'\'' : u'"';
    return quote + QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())) + quote;
}

struct DateText
{
    std::string text;
    const char* suffix;
};

/// A SAS count as the content of a literal and its suffix.
std::optional<DateText> dateText(Content content, double count)
{
    std::optional<std::string> text;
    const char* suffix = "";
    switch (content) {
    case Content::Date:
        text = dateliteral::formatDate(count);
        suffix = "d";
        break;
    case Content::Time:
        text = dateliteral::formatTime(count);
        suffix = "t";
        break;
    case Content::DateTime:
        text = dateliteral::formatDateTime(count);
        suffix = "dt";
        break;
    default:
        break;
    }
    return text ? std::optional(DateText{*text, suffix}) : std::nullopt;
}

/// The literal of a date or time; nothing when no literal reads back to the same number.
std::optional<QString> dateLiteral(const DateScale& scale, double stored)
{
    const double count = scale.sasCount(stored);
    const auto written = dateText(scale.content(), count);
    const bool isSame = scale.storedCount(scale.content(), count) == stored;
    if (!written || !isSame) {
        return std::nullopt;
    }
    return QString::fromStdString(fmt::format("\"{}\"{}", written->text, written->suffix));
}

}  // namespace

QuickFilter::Value QuickFilter::valueAt(int observation) const
{
    if (m_dataset.isNumeric(m_variable)) {
        return m_dataset.numericValue(observation, m_variable);
    }
    return m_dataset.stringValue(observation, m_variable);
}

Result<QString> QuickFilter::compare(CompareOp op, const Value& value) const
{
    if (op == CompareOp::Contains) {
        return contains(value);
    }
    if (isBlank(value) && op == CompareOp::Equal) {
        return name() + u" is null"_s;
    }
    if (isBlank(value) && op == CompareOp::NotEqual) {
        return name() + u" is not null"_s;
    }
    Result<QString> written = literal(value);
    if (!written) {
        return written;
    }
    return name() + u' ' + compareop::textOf(op).toString() + u' ' + written.value();
}

Result<QString> QuickFilter::isIn(std::span<const Value> values) const
{
    QStringList list;
    for (const Value& value : values) {
        Result<QString> written = literal(value);
        if (!written) {
            return written;
        }
        list << written.value();
    }
    if (list.isEmpty()) {
        return Failure{"There is no value to filter by"};
    }
    list.removeDuplicates();
    return name() + u" in ("_s + list.join(u", ") + u')';
}

Result<QString> QuickFilter::contains(const Value& value) const
{
    if (isBlank(value)) {
        return compare(CompareOp::Equal, value);
    }
    const auto* text = std::get_if<std::string>(&value);
    if (text == nullptr) {
        return Failure{
            fmt::format("{} holds numbers, which contain no text", name().toStdString())};
    }
    Result<QString> written = quoted(*text);
    if (!written) {
        return written;
    }
    return u"index("_s + name() + u", "_s + written.value() + u") > 0"_s;
}

QString QuickFilter::name() const
{
    const std::string& name = m_dataset.names()[static_cast<std::size_t>(m_variable)];
    return variablenames::written(QString::fromStdString(name));
}

Result<QString> QuickFilter::literal(const Value& value) const
{
    const auto* text = std::get_if<std::string>(&value);
    return text == nullptr ? number(std::get<double>(value)) : quoted(*text);
}

Result<QString> QuickFilter::number(double value) const
{
    if (m_dataset.missingMark(m_variable).isMissing(value)) {
        return QString(u'.');
    }
    if (std::isinf(value)) {
        return Failure{"An infinite number cannot be written in a filter"};
    }
    if (const auto date = dateLiteral(m_dataset.dateScale(m_variable), value)) {
        return *date;
    }
    return QString::fromStdString(numbertext::shortest(value));
}

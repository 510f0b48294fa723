#include "grid/filter/VariableNames.h"

#include "grid/filter/Lexer.h"
#include "grid/filter/ParseError.h"

#include <algorithm>
#include <numeric>

namespace variablenames {
namespace {

QString nameOf(const StatDataset& dataset, int variable)
{
    return QString::fromStdString(dataset.names()[static_cast<std::size_t>(variable)]);
}

/// How many letters have to be typed, taken away, changed or swapped with the next to get from one
/// name to the other; `limit` if it is not fewer.
qsizetype distance(QStringView from, QStringView to, qsizetype limit)
{
    if (std::abs(from.size() - to.size()) >= limit) {
        return limit;
    }
    const auto width = static_cast<std::size_t>(to.size()) + 1;
    std::vector<qsizetype> before(width);
    std::vector<qsizetype> last(width);
    std::vector<qsizetype> now(width);
    std::iota(last.begin(), last.end(), qsizetype{0});
    for (qsizetype i = 0; i < from.size(); ++i) {
        now[0] = i + 1;
        for (qsizetype j = 0; j < to.size(); ++j) {
            const auto at = static_cast<std::size_t>(j);
            now[at + 1] =
                std::min({last[at + 1] + 1, now[at] + 1, last[at] + (from[i] == to[j] ? 0 : 1)});
            if (i > 0 && j > 0 && from[i] == to[j - 1] && from[i - 1] == to[j]) {
                now[at + 1] = std::min(now[at + 1], before[at - 1] + 1);
            }
        }
        before.swap(last);
        last.swap(now);
    }
    return std::min(last.back(), limit);
}

/// The name that is most like another one; empty where none is much like it.
QString closest(const StatDataset& dataset, const QString& name)
{
    const QString wanted = name.toUpper();
    // One letter of three may be wrong, and one of two.
    qsizetype limit = std::max(wanted.size() / 3, std::min<qsizetype>(wanted.size() / 2, 1)) + 1;
    QString found;
    for (int variable = 0; variable < dataset.variableCount(); ++variable) {
        const QString candidate = nameOf(dataset, variable);
        const qsizetype far = distance(wanted, candidate.toUpper(), limit);
        if (far < limit) {
            limit = far;
            found = candidate;
        }
    }
    return found;
}

/// The identifier that a text begins with.
std::optional<Token> identifier(QStringView text)
{
    try {
        const Token token = Lexer(text).next();
        return token.kind == TokenKind::Identifier ? std::optional(token) : std::nullopt;
    } catch (const ParseError&) {
        return std::nullopt;
    }
}

bool isIdentifier(const QString& name)
{
    const std::optional<Token> token = identifier(name);
    return token && token->text.size() == name.size() && token->name() == name;
}

/// The name literal that a text begins with.
std::optional<Token> nameLiteral(QStringView text)
{
    const bool isQuoted = text.front() == u'\'' || text.front() == u'"';
    return isQuoted ? identifier(text) : std::nullopt;
}

}  // namespace

std::optional<int> find(const StatDataset& dataset, QStringView name)
{
    std::optional<int> similar;
    for (int variable = 0; variable < dataset.variableCount(); ++variable) {
        const QString candidate = nameOf(dataset, variable);
        if (candidate == name) {
            return variable;
        }
        if (!similar && name.compare(candidate, Qt::CaseInsensitive) == 0) {
            similar = variable;
        }
    }
    return similar;
}

int require(const StatDataset& dataset, const WrittenName& name)
{
    const std::optional<int> variable = find(dataset, name.name);
    if (!variable) {
        const QString similar = closest(dataset, name.name);
        throw ParseError("There is no variable named " + name.name.toStdString(), name.position,
                         similar.isEmpty() ? std::string() : written(similar).toStdString());
    }
    return *variable;
}

QString written(const QString& name)
{
    if (isIdentifier(name)) {
        return name;
    }
    const QChar quote = name.contains(u'\'') && !name.contains(u'"') ? u'"' : u'\'';
    QString inside = name;
    inside.replace(quote, QString(2, quote));
    return quote + inside + quote + u'n';
}

std::vector<WrittenName> split(QStringView list)
{
    std::vector<WrittenName> names;
    for (qsizetype position = 0; position < list.size(); ++position) {
        if (list[position].isSpace()) {
            continue;
        }
        const QStringView rest = list.sliced(position);
        const auto* const blank = std::find_if(rest.begin(), rest.end(),
                                               [](QChar character) { return character.isSpace(); });
        QStringView text = rest.first(blank - rest.begin());
        QString name = text.toString();
        if (const std::optional<Token> token = nameLiteral(rest)) {
            text = token->text;
            name = token->name();
        }
        names.push_back({name, position});
        position += text.size() - 1;
    }
    return names;
}

}  // namespace variablenames

#include "grid/filter/CommandParser.h"

#include <algorithm>
#include <array>
#include <span>

namespace {

constexpr std::array<QStringView, 10> commandWords{
    u"clear", u"clf", u"cdf", u"keep", u"drop", u"table", u"tables", u"tablen", u"where", u"if"};

bool isOneOf(QStringView word, std::span<const QStringView> words)
{
    return std::any_of(words.begin(), words.end(),
                       [word](QStringView other) { return compareop::sameWord(word, other); });
}

/// Whether a text without a command's word is a condition by its first two tokens. No command goes
/// on with an operator, so a variable may even have the name of one.
bool beginsCondition(QStringView text, Dialect dialect)
{
    constexpr std::array<QStringView, 5> tests{u"in", u"not", u"is", u"isnull", u"isnotnull"};
    Lexer lexer(text, dialect);
    const Token first = lexer.next();
    if (first.kind == TokenKind::LeftParenthesis) {
        return true;
    }
    const Token second = lexer.next();
    if (first.kind != TokenKind::Identifier || isOneOf(first.text, commandWords)) {
        return first.kind == TokenKind::Identifier && second.kind == TokenKind::Operator;
    }
    const bool isFunction =
        compareop::sameWord(first.text, u"index") && second.kind == TokenKind::LeftParenthesis;
    return isFunction || isOneOf(second.text, tests)
        || compareop::fromText(second.text).has_value();
}

}  // namespace

Command CommandParser::parse(QStringView commandText, Dialect dialect, BareCondition bare)
{
    CommandParser parser(commandText, dialect);
    const bool isBare = bare != BareCondition::IsNone && beginsCondition(commandText, dialect);
    Command command{isBare ? parser.actionOf(bare == BareCondition::IsIf ? u"if" : u"where")
                           : parser.action(),
                    std::nullopt};
    if (!parser.m_tokens.nextIs(TokenKind::End)) {
        command.trailingText = parser.m_tokens.next().position;
    }
    return command;
}

bool CommandParser::beginsCommand(QStringView text)
{
    const qsizetype word =
        std::find_if_not(text.begin(), text.end(), [](QChar c) { return c.isLetter(); })
        - text.begin();
    return isOneOf(text.first(word), commandWords);
}

Command::Action CommandParser::action()
{
    const Token word = m_tokens.next();
    if (word.kind != TokenKind::Identifier) {
        m_tokens.fail("command must start with identifier");
    }
    if (!isOneOf(word.text, commandWords)) {
        m_tokens.fail("unknown command");
    }
    m_tokens.take();
    return actionOf(word.text);
}

Command::Action CommandParser::actionOf(QStringView word)
{
    const auto is = [&](QStringView command) { return compareop::sameWord(word, command); };
    if (is(u"clear")) {
        return clearedFilter();
    }
    if (is(u"clf")) {
        return Command::ClearLibraryFilter();
    }
    if (is(u"cdf")) {
        return Command::ClearDatasetFilter();
    }
    if (is(u"keep")) {
        return Command::KeepVariables{listedVariables()};
    }
    if (is(u"drop")) {
        return Command::DropVariables{listedVariables()};
    }
    if (is(u"where")) {
        return Command::SetLibraryFilter{ConditionParser::parse(m_tokens)};
    }
    if (is(u"if")) {
        return Command::AddDatasetFilter{ConditionParser::parse(m_tokens)};
    }
    return Command::FrequencyTable{crossedVariables(), is(u"tablen")};
}

Command::Action CommandParser::clearedFilter()
{
    const bool isLibrary = m_tokens.nextIsWord(u"library");
    if (!isLibrary && !m_tokens.nextIsWord(u"dataset")) {
        m_tokens.fail("clear must follow library|dataset");
    }
    m_tokens.take();
    m_tokens.take(TokenKind::Identifier, "expect 'filter'");
    if (isLibrary) {
        return Command::ClearLibraryFilter();
    }
    return Command::ClearDatasetFilter();
}

std::vector<WrittenName> CommandParser::listedVariables()
{
    std::vector<WrittenName> names;
    do {
        names.push_back(variable("expect variable name"));
    } while (m_tokens.nextIs(TokenKind::Identifier));
    return names;
}

std::vector<WrittenName> CommandParser::crossedVariables()
{
    std::vector<WrittenName> names{variable("table needs variable(s)")};
    while (m_tokens.nextIs(TokenKind::Star)) {
        m_tokens.take();
        names.push_back(variable("expect variable"));
    }
    return names;
}

WrittenName CommandParser::variable(const char* message)
{
    const Token token = m_tokens.take(TokenKind::Identifier, message);
    return {token.name(), token.position};
}

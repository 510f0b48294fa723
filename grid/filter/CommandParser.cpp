#include "grid/filter/CommandParser.h"

Command CommandParser::parse(QStringView commandText, Dialect dialect)
{
    CommandParser parser(commandText, dialect);
    Command::Action action = parser.action();
    return {std::move(action), !parser.m_tokens.nextIs(TokenKind::End)};
}

Command::Action CommandParser::action()
{
    const Token word = m_tokens.take(TokenKind::Identifier, "command must start with identifier");
    const auto is = [&](QStringView command) { return compareop::sameWord(word.text, command); };
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
    if (is(u"table") || is(u"tables") || is(u"tablen")) {
        return Command::FrequencyTable{crossedVariables(), is(u"tablen")};
    }
    if (is(u"where")) {
        return Command::SetLibraryFilter{ConditionParser::parse(m_tokens)};
    }
    if (is(u"if")) {
        return Command::AddDatasetFilter{ConditionParser::parse(m_tokens)};
    }
    throw ParseError("unknown command");
}

Command::Action CommandParser::clearedFilter()
{
    const bool isLibrary = m_tokens.nextIsWord(u"library");
    if (!isLibrary && !m_tokens.nextIsWord(u"dataset")) {
        throw ParseError("clear must follow library|dataset");
    }
    m_tokens.take();
    m_tokens.take(TokenKind::Identifier, "expect 'filter'");
    if (isLibrary) {
        return Command::ClearLibraryFilter();
    }
    return Command::ClearDatasetFilter();
}

QStringList CommandParser::listedVariables()
{
    QStringList names;
    do {
        names << m_tokens.take(TokenKind::Identifier, "expect variable name").text.toString();
    } while (m_tokens.nextIs(TokenKind::Identifier));
    return names;
}

QStringList CommandParser::crossedVariables()
{
    QStringList names;
    names << m_tokens.take(TokenKind::Identifier, "table needs variable(s)").text.toString();
    while (m_tokens.nextIs(TokenKind::Star)) {
        m_tokens.take();
        names << m_tokens.take(TokenKind::Identifier, "expect variable").text.toString();
    }
    return names;
}

#include "grid/filter/CommandParser.h"

#include "grid/filter/ConditionParser.h"

void CommandParser::run()
{
    act();
    if (!m_tokens.nextIs(TokenKind::End)) {
        throw ParseError("unexpected trailing text");
    }
}

void CommandParser::act()
{
    const Token word = m_tokens.take(TokenKind::Identifier, "command must start with identifier");
    const auto is = [&](QStringView command) { return compareop::sameWord(word.text, command); };
    if (is(u"clear")) {
        clear();
    } else if (is(u"clf")) {
        m_target.clearLibraryFilter();
    } else if (is(u"cdf")) {
        m_target.clearDatasetFilter();
    } else if (is(u"keep") || is(u"drop")) {
        keepOrDrop(is(u"keep"));
    } else if (is(u"table") || is(u"tables") || is(u"tablen")) {
        table(is(u"tablen"));
    } else if (is(u"where")) {
        m_target.applyLibraryFilter(ConditionParser::parse(m_tokens).text);
    } else if (is(u"if")) {
        m_target.addDatasetFilter(ConditionParser::parse(m_tokens).text);
    } else {
        throw ParseError("unknown command");
    }
}

void CommandParser::clear()
{
    const bool isLibrary = m_tokens.nextIsWord(u"library");
    if (!isLibrary && !m_tokens.nextIsWord(u"dataset")) {
        throw ParseError("clear must follow library|dataset");
    }
    m_tokens.take();
    m_tokens.take(TokenKind::Identifier, "expect 'filter'");
    if (isLibrary) {
        m_target.clearLibraryFilter();
    } else {
        m_target.clearDatasetFilter();
    }
}

void CommandParser::keepOrDrop(bool keep)
{
    QStringList names;
    do {
        names << m_tokens.take(TokenKind::Identifier, "expect variable name").text.toString();
    } while (m_tokens.nextIs(TokenKind::Identifier));
    if (keep) {
        m_target.keepVariables(names);
    } else {
        m_target.dropVariables(names);
    }
}

void CommandParser::table(bool frequencyN)
{
    QStringList names;
    names << m_tokens.take(TokenKind::Identifier, "table needs variable(s)").text.toString();
    while (m_tokens.nextIs(TokenKind::Star)) {
        m_tokens.take();
        names << m_tokens.take(TokenKind::Identifier, "expect variable").text.toString();
    }
    m_target.frequencyTable(names, frequencyN);
}

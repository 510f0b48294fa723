#include "grid/filter/ConditionParser.h"

#include <utility>

namespace {

/// Deeper nesting is nobody's condition and would use up the stack.
constexpr int deepestNesting = 500;

WrittenName nameOf(const Token& token)
{
    return {token.name(), token.position};
}

Condition joined(bool isAnd, std::vector<Condition> operands)
{
    if (operands.size() == 1) {
        return std::move(operands.front());
    }
    return {Junction{isAnd, std::move(operands)}};
}

}  // namespace

ParsedCondition ConditionParser::parse(TokenStream& tokens)
{
    ConditionParser parser(tokens);
    Condition tree = parser.orCondition();
    return {std::move(parser.m_text), parser.m_hasOuterOr, std::move(tree)};
}

ParsedCondition ConditionParser::parseAll(QStringView text)
{
    TokenStream tokens(text, Dialect::FilterText);
    ParsedCondition condition = parse(tokens);
    if (!tokens.nextIs(TokenKind::End)) {
        tokens.fail(ParseError::trailingText);
    }
    return condition;
}

Condition ConditionParser::orCondition()
{
    std::vector<Condition> operands;
    operands.push_back(andCondition());
    while (takeJunction(TokenKind::Bar, u"or")) {
        m_hasOuterOr = m_hasOuterOr || m_depth == 0;
        operands.push_back(andCondition());
    }
    return joined(false, std::move(operands));
}

Condition ConditionParser::andCondition()
{
    std::vector<Condition> operands;
    operands.push_back(primary());
    while (takeJunction(TokenKind::Ampersand, u"and")) {
        operands.push_back(primary());
    }
    return joined(true, std::move(operands));
}

Condition ConditionParser::primary()
{
    if (!m_tokens.nextIs(TokenKind::LeftParenthesis)) {
        return comparison();
    }
    if (m_depth == deepestNesting) {
        m_tokens.fail("too many parentheses");
    }
    copyNext();
    ++m_depth;
    Condition inner = orCondition();
    copy(TokenKind::RightParenthesis, "expect ')'");
    --m_depth;
    return inner;
}

Condition ConditionParser::comparison()
{
    const Token word = copy(TokenKind::Identifier, "expect variable name or a function");
    if (compareop::sameWord(word.text, u"index") && m_tokens.nextIs(TokenKind::LeftParenthesis)) {
        return indexComparison();
    }
    if (m_tokens.nextIsWord(u"in")) {
        return inList(nameOf(word), false);
    }
    if (m_tokens.nextIsWord(u"not")) {
        copyNext();
        if (!m_tokens.nextIsWord(u"in")) {
            m_tokens.fail("expect operator");
        }
        return inList(nameOf(word), true);
    }
    if (m_tokens.nextIsWord(u"is") || m_tokens.nextIsWord(u"isnull")
        || m_tokens.nextIsWord(u"isnotnull")) {
        return nullTest(nameOf(word));
    }
    const CompareOp op = compareOperator();
    return {CompareTerm{nameOf(word), op, value()}};
}

Condition ConditionParser::indexComparison()
{
    write(m_tokens.take().text, Spacing::JoinsLeft);
    const WrittenName name = nameOf(copy(TokenKind::Identifier, "expect variable name"));
    copy(TokenKind::Comma, "expect ','");
    const Literal needle = literal(TokenKind::String, "expect string literal");
    copy(TokenKind::RightParenthesis, "expect ')'");
    const CompareOp op = compareOperator();
    return {IndexTerm{name, needle, op, value()}};
}

Condition ConditionParser::inList(WrittenName variable, bool negated)
{
    copyNext();
    copy(TokenKind::LeftParenthesis, "expect '(' after in");
    InTerm term{std::move(variable), negated, {}};
    term.values.push_back(value());
    while (m_tokens.nextIs(TokenKind::Comma)) {
        copyNext();
        term.values.push_back(value());
    }
    copy(TokenKind::RightParenthesis, "expect ')'");
    return {std::move(term)};
}

Condition ConditionParser::nullTest(WrittenName variable)
{
    const QStringView word = copyNext().text;
    bool negated = compareop::sameWord(word, u"isnotnull");
    if (compareop::sameWord(word, u"is")) {
        if (m_tokens.nextIsWord(u"not")) {
            copyNext();
            negated = true;
        }
        if (!m_tokens.nextIsWord(u"null")) {
            m_tokens.fail("expect null");
        }
        copyNext();
    }
    return {NullTerm{std::move(variable), negated}};
}

CompareOp ConditionParser::compareOperator()
{
    // The word operators arrive as identifiers.
    const bool mayBe =
        m_tokens.nextIs(TokenKind::Operator) || m_tokens.nextIs(TokenKind::Identifier);
    const auto op = mayBe ? compareop::fromText(m_tokens.next().text) : std::nullopt;
    if (!op) {
        m_tokens.fail("expect operator");
    }
    copyNext();
    return *op;
}

Literal ConditionParser::value()
{
    const TokenKind kind =
        m_tokens.nextIs(TokenKind::String) ? TokenKind::String : TokenKind::Number;
    return literal(kind, "expect value");
}

Literal ConditionParser::literal(TokenKind kind, const char* message)
{
    const Token token = copy(kind, message);
    return {kind, token.text.toString(), token.position};
}

/// Takes the next token and writes it as it stands.
Token ConditionParser::copyNext()
{
    const Token token = m_tokens.take();
    const bool joinsLeft =
        token.kind == TokenKind::RightParenthesis || token.kind == TokenKind::Comma;
    write(token.text, joinsLeft ? Spacing::JoinsLeft : Spacing::Blank);
    return token;
}

/// Copies a token of this kind; throws ParseError with the message for any other.
Token ConditionParser::copy(TokenKind kind, const char* message)
{
    if (!m_tokens.nextIs(kind)) {
        m_tokens.fail(message);
    }
    return copyNext();
}

bool ConditionParser::takeJunction(TokenKind symbol, QStringView word)
{
    if (!m_tokens.nextIs(symbol) && !m_tokens.nextIsWord(word)) {
        return false;
    }
    m_tokens.take();
    write(word, Spacing::Blank);
    return true;
}

void ConditionParser::write(QStringView piece, Spacing spacing)
{
    if (spacing == Spacing::Blank && !m_text.isEmpty() && !m_text.endsWith(u'(')) {
        m_text += u' ';
    }
    m_text += piece;
}

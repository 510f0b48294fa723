#include "grid/filter/Lexer.h"

#include "grid/filter/CompareOp.h"
#include "grid/filter/ParseError.h"

#include <algorithm>

namespace {

/// How many UTF-16 units the character takes.
qsizetype unitsOf(char32_t character)
{
    return QChar::requiresSurrogates(character) ? 2 : 1;
}

bool continuesIdentifier(char32_t character)
{
    // Vowel signs and accents of their own belong to the letter before them.
    return character == U'_' || QChar::isLetterOrNumber(character) || QChar::isMark(character);
}

TokenKind kindOfSymbol(QChar symbol, qsizetype position)
{
    switch (symbol.unicode()) {
    case u'(':
        return TokenKind::LeftParenthesis;
    case u')':
        return TokenKind::RightParenthesis;
    case u',':
        return TokenKind::Comma;
    case u'*':
        return TokenKind::Star;
    case u'|':
        return TokenKind::Bar;
    case u'&':
        return TokenKind::Ampersand;
    default:
        throw ParseError("unknown character in input", position);
    }
}

bool isQuote(QChar character)
{
    return character == u'\'' || character == u'"';
}

bool startsWithWord(QStringView text, QStringView word)
{
    return text.size() >= word.size() && compareop::sameWord(text.first(word.size()), word);
}

}  // namespace

QString Token::name() const
{
    if (text.isEmpty() || !isQuote(text.front())) {
        return text.toString();
    }
    const QChar quote = text.front();
    return text.sliced(1, text.size() - 3).toString().replace(QString(2, quote), quote);
}

Token Lexer::next()
{
    while (m_position < m_text.size() && m_text[m_position].isSpace()) {
        ++m_position;
    }
    if (m_position == m_text.size()) {
        return {TokenKind::End, m_text.sliced(m_position), m_position};
    }
    if (startsIdentifier()) {
        return takeIdentifier();
    }
    if (startsNumber()) {
        return takeNumber();
    }
    return isQuote(m_text[m_position]) ? takeQuoted() : takeSymbol();
}

/// The character that begins at the position; 0 at the end of the text.
char32_t Lexer::characterAt(qsizetype position) const
{
    if (position >= m_text.size()) {
        return 0;
    }
    const QChar unit = m_text[position];
    const bool isPair = unit.isHighSurrogate() && position + 1 < m_text.size()
        && m_text[position + 1].isLowSurrogate();
    return isPair ? QChar::surrogateToUcs4(unit, m_text[position + 1])
                  : static_cast<char32_t>(unit.unicode());
}

bool Lexer::isDigitAt(qsizetype position) const
{
    return position < m_text.size() && m_text[position] >= u'0' && m_text[position] <= u'9';
}

bool Lexer::startsIdentifier() const
{
    const char32_t character = characterAt(m_position);
    return character == U'_' || QChar::isLetter(character);
}

bool Lexer::startsNumber() const
{
    if (isDigitAt(m_position) || m_text[m_position] == u'.') {
        return true;
    }
    const bool isSign = m_text[m_position] == u'-' || m_text[m_position] == u'+';
    if (m_dialect != Dialect::FilterText || !isSign) {
        return false;
    }
    return isDigitAt(m_position + 1)
        || (characterAt(m_position + 1) == U'.' && isDigitAt(m_position + 2));
}

Token Lexer::take(TokenKind kind, qsizetype end)
{
    const Token token{kind, m_text.sliced(m_position, end - m_position), m_position};
    m_position = end;
    return token;
}

Token Lexer::takeIdentifier()
{
    qsizetype end = m_position;
    for (char32_t character = characterAt(end);
         end < m_text.size() && continuesIdentifier(character); character = characterAt(end)) {
        end += unitsOf(character);
    }
    return take(TokenKind::Identifier, end);
}

Token Lexer::takeNumber()
{
    qsizetype end = m_position;
    if (m_text[end] == u'-' || m_text[end] == u'+') {
        ++end;
    }
    bool hasPoint = false;
    bool hasDigit = false;
    for (; isDigitAt(end) || (!hasPoint && characterAt(end) == U'.'); ++end) {
        (isDigitAt(end) ? hasDigit : hasPoint) = true;
    }
    if (m_dialect == Dialect::FilterText && hasDigit && QChar::toLower(characterAt(end)) == U'e') {
        const char32_t sign = characterAt(end + 1);
        qsizetype digits = end + (sign == U'-' || sign == U'+' ? 2 : 1);
        for (; isDigitAt(digits); ++digits) {
            end = digits + 1;
        }
    }
    return take(TokenKind::Number, end);
}

Token Lexer::takeQuoted()
{
    if (const qsizetype end = endOfNameLiteral(); end > 0) {
        return take(TokenKind::Identifier, end);
    }
    const qsizetype quote = m_text.indexOf(m_text[m_position], m_position + 1);
    if (quote < 0) {
        throw ParseError("unterminated string literal", m_position);
    }
    const QStringView rest = m_text.sliced(quote + 1);
    qsizetype suffix = 0;
    if (startsWithWord(rest, u"dt")) {
        suffix = 2;
    } else if (startsWithWord(rest, u"d") || startsWithWord(rest, u"t")) {
        suffix = 1;
    }
    return take(TokenKind::String, quote + 1 + suffix);
}

/// Where the name literal ends that begins here; 0 for a text or none at all.
qsizetype Lexer::endOfNameLiteral() const
{
    const QChar quote = m_text[m_position];
    qsizetype end = m_text.indexOf(quote, m_position + 1);
    while (end >= 0 && characterAt(end + 1) == quote.unicode()) {
        end = m_text.indexOf(quote, end + 2);
    }
    return end >= 0 && QChar::toLower(characterAt(end + 1)) == U'n' ? end + 2 : 0;
}

Token Lexer::takeSymbol()
{
    const QStringView rest = m_text.sliced(m_position);
    const auto* const found =
        std::find_if(compareop::spellings.begin(), compareop::spellings.end(),
                     [&](const auto& spelling) { return startsWithWord(rest, spelling.text); });
    if (found != compareop::spellings.end()) {
        return take(TokenKind::Operator, m_position + found->text.size());
    }
    return take(kindOfSymbol(rest.front(), m_position), m_position + 1);
}

#include "grid/filter/ConditionWriter.h"

void ConditionWriter::add(const Token& token)
{
    const bool joinsLeft =
        token.kind == TokenKind::RightParenthesis || token.kind == TokenKind::Comma;
    append(token.text, !joinsLeft);
}

void ConditionWriter::append(QStringView piece, bool blankBefore)
{
    if (blankBefore && !m_text.isEmpty() && !m_text.endsWith(u'(')) {
        m_text += u' ';
    }
    m_text += piece;
}

#include "app/code/ProgramHighlighter.h"

#include "app/look/Theme.h"
#include "workspace/program/ProgramScanner.h"

#include <QColor>
#include <QFont>
#include <QPalette>

#include <algorithm>
#include <array>
#include <string_view>

namespace {

/// In lower case and alphabetical order, to be searched by halves.
constexpr std::array<std::u16string_view, 40> keywords{
    u"and",   u"array",   u"by",     u"contains", u"data", u"delete", u"do",      u"drop",
    u"else",  u"end",     u"eq",     u"format",   u"ge",   u"gt",     u"if",      u"in",
    u"index", u"is",      u"keep",   u"label",    u"le",   u"length", u"libname", u"lt",
    u"merge", u"missing", u"ne",     u"not",      u"null", u"or",     u"output",  u"proc",
    u"quit",  u"rename",  u"retain", u"run",      u"set",  u"then",   u"where",   u"work",
};
static_assert(std::ranges::is_sorted(keywords));

bool isWordCharacter(QChar character)
{
    return character.isLetterOrNumber() || character == u'_';
}

bool isNumber(QStringView word)
{
    return word.front().isDigit()
        || (word.size() > 1 && word.front() == u'.' && word.at(1).isDigit());
}

bool isKeyword(QStringView word)
{
    const std::u16string lower = word.toString().toLower().toStdU16String();
    return std::ranges::binary_search(keywords, std::u16string_view(lower));
}

}  // namespace

ProgramHighlighter::ProgramHighlighter(QTextDocument* document, const QPalette& palette)
    : QSyntaxHighlighter(document)
{
    setColours(theme::isDark(palette));
}

void ProgramHighlighter::setPalette(const QPalette& palette)
{
    setColours(theme::isDark(palette));
    rehighlight();
}

void ProgramHighlighter::setColours(bool dark)
{
    m_keyword.setForeground(QColor(dark ? 0x7ab8ff : 0x0b4fa8));
    m_keyword.setFontWeight(QFont::DemiBold);
    m_quoted.setForeground(QColor(dark ? 0xe0a3c8 : 0x8c1d5b));
    m_comment.setForeground(QColor(dark ? 0x8fbf8a : 0x2f6b2a));
    m_comment.setFontItalic(true);
    m_number.setForeground(QColor(dark ? 0x56c7be : 0x0b6b66));
}

void ProgramHighlighter::highlightBlock(const QString& text)
{
    const int previous = previousBlockState();
    const auto place = previous < 0 ? ProgramScanner::Place::StatementStart
                                    : static_cast<ProgramScanner::Place>(previous);
    ProgramScanner scanner(text, place);
    while (const auto piece = scanner.next()) {
        const int start = static_cast<int>(piece->start);
        const int length = static_cast<int>(piece->length);
        if (piece->kind == ProgramPiece::Kind::Comment) {
            setFormat(start, length, m_comment);
        } else if (piece->kind == ProgramPiece::Kind::Quoted) {
            setFormat(start, length, m_quoted);
        } else if (piece->kind == ProgramPiece::Kind::Code) {
            highlightCode(QStringView(text).mid(start, length), start);
        }
    }
    setCurrentBlockState(static_cast<int>(scanner.place()));
}

void ProgramHighlighter::highlightCode(QStringView code, int start)
{
    for (qsizetype from = 0; from < code.size();) {
        qsizetype end = from + 1;
        if (!isWordCharacter(code.at(from)) && code.at(from) != u'.') {
            from = end;
            continue;
        }
        // A point belongs to a number, and only to one: "a.b" is a library and a dataset.
        while (end < code.size()
               && (isWordCharacter(code.at(end))
                   || (code.at(end) == u'.' && code.at(from).isDigit()))) {
            ++end;
        }
        const QStringView word = code.mid(from, end - from);
        const int position = start + static_cast<int>(from);
        if (isNumber(word)) {
            setFormat(position, static_cast<int>(word.size()), m_number);
        } else if (isKeyword(word)) {
            setFormat(position, static_cast<int>(word.size()), m_keyword);
        }
        from = end;
    }
}

#include "workspace/program/ProgramStatements.h"

#include "workspace/program/ProgramScanner.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

using Kind = ProgramStatement::Kind;

/// A statement as it is read: its text, and for each piece of code or quotes how far it goes.
class StatementReader
{
public:
    explicit StatementReader(QStringView program)
        : m_program(program)
    { }

    [[nodiscard]] std::vector<ProgramStatement> read();

private:
    void add(const ProgramPiece& piece);
    void addCode(QStringView code);
    void addQuoted(QStringView quoted);
    void finish();
    void finishUnclosed(ProgramScanner::Place place, const ProgramPiece& last);
    [[nodiscard]] int lineAt(qsizetype position);

    QStringView m_program;
    std::vector<ProgramStatement> m_statements;
    ProgramStatement m_statement;
    qsizetype m_lineStart = 0;  ///< up to where line ends have been counted
    int m_line = 1;
};

struct KnownWord
{
    QStringView word;
    Kind kind;
};

constexpr std::array knownWords{
    KnownWord{u"where", Kind::Command},   KnownWord{u"if", Kind::Command},
    KnownWord{u"keep", Kind::Command},    KnownWord{u"drop", Kind::Command},
    KnownWord{u"by", Kind::By},           KnownWord{u"libname", Kind::PassedOver},
    KnownWord{u"data", Kind::PassedOver}, KnownWord{u"set", Kind::PassedOver},
    KnownWord{u"run", Kind::PassedOver},
};

bool isWordCharacter(QChar character)
{
    return character.isLetterOrNumber() || character == u'_';
}

bool equalWords(QStringView left, QStringView right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

QStringView firstWord(QStringView text)
{
    const auto* end = std::find_if_not(text.begin(), text.end(), isWordCharacter);
    return text.left(end - text.begin());
}

/// Whether a word stands in the text outside its quotes.
bool holdsWord(QStringView text, QStringView word)
{
    ProgramScanner scanner(text, ProgramScanner::Place::Statement);
    while (const auto piece = scanner.next()) {
        if (piece->kind != ProgramPiece::Kind::Code) {
            continue;
        }
        QStringView code = text.mid(piece->start, piece->length);
        while (!code.isEmpty()) {
            const QStringView next = firstWord(code);
            if (equalWords(next, word)) {
                return true;
            }
            code = code.mid(std::max<qsizetype>(next.size(), 1));
        }
    }
    return false;
}

Kind kindOf(QStringView text)
{
    const QStringView word = firstWord(text);
    const auto* known = std::ranges::find_if(knownWords, [word](const KnownWord& candidate) {
        return equalWords(candidate.word, word);
    });
    const QStringView rest = text.mid(word.size()).trimmed();
    // A variable may have the name of a statement: "data = 1" assigns.
    if (known == knownWords.end() || rest.startsWith(u'=')) {
        return Kind::Unknown;
    }
    // "if … then …" chooses what is done and not which observations are kept.
    return equalWords(word, u"if") && holdsWord(rest, u"then") ? Kind::Unknown : known->kind;
}

/// One name at the start of a list, taken off it; 'a name'n loses its quotes.
QString takeName(QStringView& list)
{
    const QChar quote = list.front();
    if (quote != u'\'' && quote != u'"') {
        const qsizetype end =
            std::find_if(list.begin(), list.end(),
                         [](QChar character) {
                             return character == u' ' || character == u'\'' || character == u'"';
                         })
            - list.begin();
        QString name = list.left(end).toString();
        list = list.mid(end).trimmed();
        return name;
    }
    QString name;
    qsizetype end = 1;
    for (; end < list.size(); ++end) {
        if (list.at(end) == quote && list.mid(end + 1).startsWith(quote)) {
            ++end;
        } else if (list.at(end) == quote) {
            break;
        }
        name += list.at(end);
    }
    list = list.mid(end + 1);
    if (list.startsWith(u'n', Qt::CaseInsensitive)) {
        list = list.mid(1);
    }
    list = list.trimmed();
    return name;
}

/// The variables of a BY statement. How their values are ordered does not matter to the groups.
QStringList namesOf(QStringView list)
{
    QStringList names;
    list = list.trimmed();
    while (!list.isEmpty()) {
        const bool quoted = !isWordCharacter(list.front());
        const QString name = takeName(list);
        const bool order = !quoted && equalWords(name, u"descending") && !list.isEmpty();
        const bool unordered =
            !quoted && equalWords(name, u"notsorted") && list.isEmpty() && !names.isEmpty();
        if (!order && !unordered) {
            names << name;
        }
    }
    return names;
}

std::vector<ProgramStatement> StatementReader::read()
{
    ProgramScanner scanner(m_program);
    ProgramPiece last;
    while (const auto piece = scanner.next()) {
        last = *piece;
        add(last);
    }
    finishUnclosed(scanner.place(), last);
    finish();
    return std::move(m_statements);
}

void StatementReader::add(const ProgramPiece& piece)
{
    const QStringView text = m_program.mid(piece.start, piece.length);
    const bool blank = text.trimmed().isEmpty();
    if (m_statement.text.isEmpty() && !blank) {
        m_statement.line = lineAt(piece.start);
        m_statement.start = piece.start;
    }
    const bool isText =
        piece.kind == ProgramPiece::Kind::Code || piece.kind == ProgramPiece::Kind::Quoted;
    if (isText && !blank) {
        m_statement.end = piece.start + piece.length;
        while (m_program.at(m_statement.end - 1).isSpace()) {
            --m_statement.end;
        }
    }
    switch (piece.kind) {
    case ProgramPiece::Kind::Code:
        addCode(text);
        break;
    case ProgramPiece::Kind::Quoted:
        addQuoted(text);
        break;
    case ProgramPiece::Kind::Comment:
        addCode(u" ");
        break;
    case ProgramPiece::Kind::End:
        finish();
        break;
    }
}

void StatementReader::addCode(QStringView code)
{
    for (const QChar character : code) {
        const bool blank = character.isSpace();
        if (!blank) {
            m_statement.text += character;
        } else if (!m_statement.text.isEmpty() && !m_statement.text.endsWith(u' ')) {
            m_statement.text += u' ';
        }
    }
}

void StatementReader::addQuoted(QStringView quoted)
{
    QString text = quoted.toString();
    text.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    text.replace(u'\n', u' ');
    text.replace(u'\r', u' ');
    m_statement.text += text;
}

void StatementReader::finish()
{
    ProgramStatement statement = std::exchange(m_statement, {});
    statement.text = statement.text.trimmed();
    if (statement.text.isEmpty()) {
        return;
    }
    if (statement.kind != Kind::Unclosed) {
        statement.kind = kindOf(statement.text);
    }
    if (statement.kind == Kind::By) {
        statement.names =
            namesOf(QStringView(statement.text).mid(firstWord(statement.text).size()));
    }
    m_statements.push_back(std::move(statement));
}

void StatementReader::finishUnclosed(ProgramScanner::Place place, const ProgramPiece& last)
{
    using Place = ProgramScanner::Place;
    const bool closed = place == Place::StatementStart || place == Place::Statement;
    if (closed) {
        return;
    }
    m_statement.kind = Kind::Unclosed;
    if (last.kind == ProgramPiece::Kind::Comment) {
        if (m_statement.text.trimmed().isEmpty()) {
            m_statement.line = lineAt(last.start);
            m_statement.start = last.start;
        }
        m_statement.end = last.start + last.length;
        addQuoted(m_program.mid(last.start, last.length));
    }
}

/// @param position  not before the one asked for last
int StatementReader::lineAt(qsizetype position)
{
    for (; m_lineStart < position; ++m_lineStart) {
        const QChar character = m_program.at(m_lineStart);
        const bool pair = character == u'\r' && m_program.mid(m_lineStart + 1).startsWith(u'\n');
        if (character == u'\n' || (character == u'\r' && !pair)) {
            ++m_line;
        }
    }
    return m_line;
}

}  // namespace

namespace programstatements {

std::vector<ProgramStatement> split(QStringView program)
{
    return StatementReader(program).read();
}

}  // namespace programstatements

#include "workspace/program/ProgramText.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace programtext {
namespace {

QString sasNames(const QStringList& texts)
{
    QStringList names;
    for (const QString& text : texts) {
        names << makeSasName(text);
    }
    return names.join(u' ');
}

/// A statement within the data step.
QString statement(const QString& text)
{
    return u"    "_s + text + (text.endsWith(u';') ? u""_s : u";"_s);
}

}  // namespace

QString makeSasName(const QString& text, qsizetype maximumLength, const QString& fallback)
{
    QString name;
    for (const QChar character : text.trimmed()) {
        const bool isJoint = character == u'-' || character == u' ' || character == u'_';
        const bool isKept = isJoint || character.isLetter() || !name.isEmpty();
        if (isKept && isJoint) {
            name += u'_';
        } else if (isKept && character.isLetterOrNumber()) {
            name += character.toLower();
        }
    }
    if (name.isEmpty()) {
        const bool hasFallback = !fallback.isEmpty() && fallback != text;
        return hasFallback ? makeSasName(fallback, maximumLength) : u"temp"_s.left(maximumLength);
    }
    return name.left(maximumLength);
}

QString makeLibref(const Library& library, const QString& filePath)
{
    constexpr qsizetype longestLibref = 8;
    const QString folder = QFileInfo(filePath).absolutePath().section(u'/', -1);
    const QString named = library.name.isEmpty() ? folder : library.name;
    return makeSasName(library.alias.isEmpty() ? named : library.alias, longestLibref, u"temp"_s);
}

QString of(const View& view)
{
    const QFileInfo file(view.filePath);
    const QString folder =
        view.library.folder.isEmpty() ? file.absolutePath() : view.library.folder;
    const QString libref = makeLibref(view.library, view.filePath);
    const QString member = makeSasName(view.datasetName, longestName, file.completeBaseName());
    const QString output = makeSasName(member + u"_view"_s, longestName, member);

    QStringList lines{u"/* Auto-generated SAS code for the current table view */"_s};
    if (!folder.isEmpty()) {
        QString quoted = folder;
        quoted.replace(u'\'', u"''"_s);
        lines << u"libname "_s + libref + u" '"_s + quoted + u"';"_s << QString();
    }
    lines << u"data work."_s + output + u';';
    lines << u"    set "_s + libref + u'.' + member + u';';
    for (const QString& filter : {view.libraryFilter.trimmed(), view.datasetFilter.trimmed()}) {
        if (!filter.isEmpty()) {
            lines << statement(filter);
        }
    }
    if (!view.byVariables.isEmpty()) {
        lines << statement(u"by "_s + sasNames(view.byVariables));
    }
    const qsizetype kept = view.shownVariables.size();
    if (kept > 0 && kept < view.variableCount) {
        lines << statement(u"keep "_s + sasNames(view.shownVariables));
    }
    lines << u"run;"_s;
    return lines.join(u'\n');
}

}  // namespace programtext

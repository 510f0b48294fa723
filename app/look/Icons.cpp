#include "app/look/Icons.h"

#include "app/look/SvgIconEngine.h"
#include "data/readers/FileKinds.h"

#include <QDir>
#include <QFile>

namespace {

constexpr QStringView folder = u":/icons/resources/icons";
constexpr QStringView suffix = u".svg";

}  // namespace

namespace icons {

QIcon icon(const QString& name)
{
    QFile file(QStringLiteral("%1/%2%3").arg(folder, name, suffix));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QIcon(new SvgIconEngine(name, file.readAll()));  // the icon owns the engine
}

QIcon forDataset(const QString& path)
{
    const filekinds::Suffix* known = filekinds::suffixOf(path);
    return icon(QString::fromLatin1(known == nullptr ? "type-other" : known->icon));
}

QIcon application()
{
    return QIcon(QStringLiteral(":quorlane/resources/icons/Quorlane.ico"));
}

QStringList names()
{
    QStringList result =
        QDir(folder.toString()).entryList({u'*' + suffix.toString()}, QDir::Files, QDir::Name);
    for (QString& name : result) {
        name.chop(suffix.size());
    }
    return result;
}

}  // namespace icons

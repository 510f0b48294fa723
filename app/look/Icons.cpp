#include "app/look/Icons.h"

#include "app/look/SvgIconEngine.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace {

constexpr QStringView folder = u":/icons/resources/icons";
constexpr QStringView suffix = u".svg";

struct DatasetIcon
{
    QStringView fileSuffix;
    QStringView name;
};

constexpr std::array datasetIcons{
    DatasetIcon{u"sas7bdat", u"type-sas7bdat"},
    DatasetIcon{u"xpt", u"type-xpt"},
    DatasetIcon{u"sav", u"type-sav"},
    DatasetIcon{u"dta", u"type-dta"},
    DatasetIcon{u"rds", u"type-r"},
    DatasetIcon{u"rdata", u"type-r"},
    DatasetIcon{u"rda", u"type-r"},
    DatasetIcon{u"csv", u"type-csv"},
    DatasetIcon{u"json", u"type-json"},
    DatasetIcon{u"ndjson", u"type-json"},
    DatasetIcon{u"dsjc", u"type-json"},
};

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
    const QString fileSuffix = QFileInfo(path).suffix();
    const auto* found = std::ranges::find_if(datasetIcons, [&](const DatasetIcon& candidate) {
        return fileSuffix.compare(candidate.fileSuffix, Qt::CaseInsensitive) == 0;
    });
    return icon(found == datasetIcons.end() ? QStringLiteral("type-other")
                                            : found->name.toString());
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

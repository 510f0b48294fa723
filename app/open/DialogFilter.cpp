#include "app/open/DialogFilter.h"

#include <QDir>

#include <algorithm>

namespace dialogfilter {
namespace {

/// "*.rds" and so on of "R Data Files (*.rds)".
QStringList patternsOf(const QString& filter)
{
    return filter.section(u'(', 1).section(u')', 0, 0).split(u' ', Qt::SkipEmptyParts);
}

QString filterOfLast(const QStringList& filters, const QStringList& recent)
{
    for (const QString& path : recent) {
        for (const QString& filter : filters) {
            if (QDir::match(patternsOf(filter), path.section(u'/', -1))) {
                return filter;
            }
        }
    }
    return filters.constFirst();
}

}  // namespace

QString firstOf(const QString& filters, const QStringList& recent, const QString& folder)
{
    const QStringList all = filters.split(QStringLiteral(";;"));
    QString last = filterOfLast(all, recent);
    if (folder.isEmpty()) {
        return last;
    }
    const auto hasFiles = [&](const QString& filter) {
        return !QDir(folder).entryList(patternsOf(filter), QDir::Files).isEmpty();
    };
    if (hasFiles(last)) {
        return last;
    }
    const auto fitting = std::find_if(all.begin(), all.end(), hasFiles);
    return fitting == all.end() ? last : *fitting;
}

}  // namespace dialogfilter

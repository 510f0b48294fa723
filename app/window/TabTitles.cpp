#include "app/window/TabTitles.h"

#include "app/window/DatasetWindow.h"

#include <QMdiArea>
#include <QTabBar>

#include <algorithm>

namespace tabtitles {
namespace {

/// The last folders of a path, "study/data" for two of "/home/study/data/dm.xpt".
QString lastFolders(const QString& path, int count)
{
    return path.section(u'/', -1 - count, -2, QString::SectionSkipEmpty);
}

QString placeOf(const QString& path, const QStringList& alike)
{
    const auto depth = static_cast<int>(path.count(u'/'));
    for (int count = 1; count < depth; ++count) {
        QString place = lastFolders(path, count);
        const bool isItsOwn = std::none_of(alike.begin(), alike.end(), [&](const QString& other) {
            return lastFolders(other, count) == place;
        });
        if (isItsOwn) {
            return place;
        }
    }
    return path.section(u'/', 0, -2);
}

}  // namespace

QStringList placesOf(const QStringList& paths)
{
    QStringList places;
    for (const QString& path : paths) {
        QStringList alike = paths;
        alike.removeIf([&](const QString& other) {
            return other == path || other.section(u'/', -1) != path.section(u'/', -1);
        });
        places << (alike.isEmpty() ? QString() : placeOf(path, alike));
    }
    return places;
}

void show(const QMdiArea& area, const QList<DatasetWindow*>& windows)
{
    QStringList paths;
    for (const DatasetWindow* window : windows) {
        paths << window->path();
    }
    const QStringList places = placesOf(paths);
    const QList<QMdiSubWindow*> inTabs = area.subWindowList();
    auto* tabs = area.findChild<QTabBar*>();
    for (qsizetype i = 0; i < windows.size(); ++i) {
        windows[i]->setPlace(places[i]);
        if (tabs != nullptr) {
            tabs->setTabToolTip(static_cast<int>(inTabs.indexOf(windows[i])), windows[i]->tip());
        }
    }
}

}  // namespace tabtitles

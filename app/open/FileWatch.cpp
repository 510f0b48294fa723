#include "app/open/FileWatch.h"

#include <QFileInfo>

FileWatch::FileWatch(QObject* parent)
    : QObject(parent)
{
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &FileWatch::signalChanged);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &FileWatch::signalChanged);
}

void FileWatch::setFiles(const QStringList& paths)
{
    QStringList wanted;
    for (const QString& path : paths) {
        wanted << path << QFileInfo(path).path();
    }
    wanted.removeDuplicates();
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    for (const QString& path : watched) {
        if (!wanted.contains(path)) {
            m_watcher.removePath(path);
        }
    }
    for (const QString& path : std::as_const(wanted)) {
        if (!watched.contains(path) && QFileInfo::exists(path)) {
            m_watcher.addPath(path);
        }
    }
}

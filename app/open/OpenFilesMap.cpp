#include "app/open/OpenFilesMap.h"

#include <spdlog/spdlog.h>

void OpenFilesMap::add(const QString& key, QMdiSubWindow* window)
{
    m_windows.insert_or_assign(key, window);
    spdlog::info("Added to openFilesMap: {}", key.toStdString());
}

void OpenFilesMap::remove(const QString& key, const QMdiSubWindow* window)
{
    const auto entry = m_windows.find(key);
    if (entry == m_windows.end() || entry->second != window) {
        return;
    }
    m_windows.erase(entry);
    spdlog::info("Removed from openFilesMap: {}", key.toStdString());
}

QMdiSubWindow* OpenFilesMap::find(const QString& key) const
{
    const auto entry = m_windows.find(key);
    return entry == m_windows.end() ? nullptr : entry->second;
}

QList<QMdiSubWindow*> OpenFilesMap::windows() const
{
    QList<QMdiSubWindow*> windows;
    for (const auto& [key, window] : m_windows) {
        windows << window;
    }
    return windows;
}

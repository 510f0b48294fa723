#pragma once

#include <QList>
#include <QString>

#include <map>

class QMdiSubWindow;

/// Which sub-window shows which file. A file that holds several datasets has a key for each of
/// them, "path::name". The windows are not owned.
class OpenFilesMap
{
public:
    void add(const QString& key, QMdiSubWindow* window);
    /// Removes the key, if it still stands for that window and not for one opened since.
    void remove(const QString& key, const QMdiSubWindow* window);

    /// The window of the key, or nullptr.
    [[nodiscard]] QMdiSubWindow* find(const QString& key) const;
    [[nodiscard]] QList<QMdiSubWindow*> windows() const;
    [[nodiscard]] bool isEmpty() const { return m_windows.empty(); }
    [[nodiscard]] std::size_t size() const { return m_windows.size(); }

private:
    std::map<QString, QMdiSubWindow*> m_windows;
};

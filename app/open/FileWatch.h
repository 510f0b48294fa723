#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>

/// Tells when something may have become of one of some files. A file that is replaced is another
/// one to the system, so that its folder is watched, too.
class FileWatch : public QObject
{
    Q_OBJECT

public:
    explicit FileWatch(QObject* parent = nullptr);

    /// Watches these files from now on and no others. To be called after each signal, too: a file
    /// that has been replaced is no longer watched.
    void setFiles(const QStringList& paths);

signals:
    /// @param path  of the file, or of its folder
    void signalChanged(const QString& path);

private:
    QFileSystemWatcher m_watcher;
};

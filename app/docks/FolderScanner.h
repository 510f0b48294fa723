#pragma once

#include "data/readers/DatasetFolder.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QSet>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>

/// Lists folders, and follows some of them, without ever waiting for one: a folder on a share that
/// has gone may take minutes to say so. Each listing runs in a thread of its own, which touches
/// nothing but the folder and may outlive the scanner.
class FolderScanner : public QObject
{
    Q_OBJECT

public:
    using Listing = Result<std::vector<datasetfolder::File>>;

    using Lister = std::function<Listing(const QString& folder)>;

    /// @param list  called from other threads, and perhaps after the scanner has gone
    explicit FolderScanner(Lister list = &datasetfolder::list, QObject* parent = nullptr);
    ~FolderScanner() override;
    FolderScanner(const FolderScanner&) = delete;
    FolderScanner& operator=(const FolderScanner&) = delete;

    /// Lists a folder anew; signalListed() tells what it holds.
    void scan(const QString& folder);
    /// Lists these folders again and again, about each second, a slow one more rarely;
    /// signalListed() tells only what is new.
    void setWatched(const QStringList& folders);

signals:
    /// @param isAsked  whether somebody asked for it, or the folder has changed by itself
    void signalListed(const QString& folder, const FolderScanner::Listing& listing, bool isAsked);
    /// A folder has not answered for two seconds; it may do so yet.
    void signalSilent(const QString& folder);

private:
    /// Where threads find the scanner as long as it is there.
    struct Mailbox
    {
        std::mutex mutex;
        FolderScanner* scanner = nullptr;
    };
    struct Folder
    {
        bool isRunning = false;
        bool isAsked = false;
        bool isSilent = false;
        QElapsedTimer started;
        QDeadlineTimer next;  ///< when it is listed again, if it is watched
        std::optional<Listing> known;
    };

    void start(const QString& folder, Folder& state);
    void finish(const QString& folder, const Listing& listing);
    void look();

    Lister m_list;
    std::shared_ptr<Mailbox> m_mailbox;
    std::map<QString, Folder> m_folders;
    QSet<QString> m_watched;
    QTimer m_clock;
};

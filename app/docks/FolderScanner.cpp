#include "app/docks/FolderScanner.h"

#include <QMetaObject>

#include <algorithm>
#include <exception>
#include <thread>

namespace {

bool isSame(const FolderScanner::Listing& left, const FolderScanner::Listing& right)
{
    return left.ok() && right.ok() ? left.value() == right.value()
                                   : !left.ok() && !right.ok() && left.error() == right.error();
}

FolderScanner::Listing listed(const FolderScanner::Lister& list, const QString& folder)
{
    try {
        return list(folder);
    } catch (const std::exception& error) {
        return Failure{error.what()};
    }
}

}  // namespace

FolderScanner::FolderScanner(Lister list, QObject* parent)
    : QObject(parent)
    , m_list(std::move(list))
    , m_mailbox(std::make_shared<Mailbox>())
{
    m_mailbox->scanner = this;
    constexpr int milliseconds = 250;
    m_clock.setInterval(milliseconds);
    connect(&m_clock, &QTimer::timeout, this, &FolderScanner::look);
}

FolderScanner::~FolderScanner()
{
    const std::scoped_lock lock(m_mailbox->mutex);
    m_mailbox->scanner = nullptr;
}

void FolderScanner::scan(const QString& folder)
{
    Folder& state = m_folders[folder];
    state.isAsked = true;
    if (!state.isRunning) {
        start(folder, state);
    }
}

void FolderScanner::setWatched(const QStringList& folders)
{
    m_watched = {folders.begin(), folders.end()};
    std::erase_if(m_folders, [this](const auto& entry) {
        return !entry.second.isRunning && !m_watched.contains(entry.first);
    });
    for (const QString& folder : folders) {
        m_folders.try_emplace(folder);
    }
    if (!m_folders.empty()) {
        m_clock.start();
    }
}

void FolderScanner::start(const QString& folder, Folder& state)
{
    state.isRunning = true;
    state.isSilent = false;
    state.started.start();
    m_clock.start();
    const auto work = [mailbox = m_mailbox, list = m_list, folder] {
        const Listing listing = listed(list, folder);
        const std::scoped_lock lock(mailbox->mutex);
        if (FolderScanner* scanner = mailbox->scanner) {
            QMetaObject::invokeMethod(
                scanner, [scanner, folder, listing] { scanner->finish(folder, listing); },
                Qt::QueuedConnection);
        }
    };
    try {
        std::thread(work).detach();
    } catch (const std::system_error&) {
        work();  // the system has no thread left: better late than never
    }
}

void FolderScanner::finish(const QString& folder, const Listing& listing)
{
    const auto found = m_folders.find(folder);
    if (found == m_folders.end()) {
        return;
    }
    Folder& state = found->second;
    constexpr qint64 usual = 1000;  // milliseconds
    constexpr qint64 share = 20;  // of the time, at most a twentieth is spent on a folder
    state.next.setRemainingTime(std::max(usual, share * state.started.elapsed()));
    state.isRunning = false;
    const bool isAsked = std::exchange(state.isAsked, false);
    const bool isNew = state.isSilent || !state.known || !isSame(*state.known, listing);
    state.known = listing;
    if (!m_watched.contains(folder)) {
        m_folders.erase(found);
    }
    if (isAsked || isNew) {
        emit signalListed(folder, listing, isAsked);
    }
}

/// Starts what is due and tells of folders that are silent.
void FolderScanner::look()
{
    constexpr qint64 patience = 2000;  // milliseconds
    QStringList silent;
    for (auto& [folder, state] : m_folders) {
        if (state.isRunning && !state.isSilent && state.started.hasExpired(patience)) {
            state.isSilent = true;
            silent << folder;
        } else if (!state.isRunning && m_watched.contains(folder) && state.next.hasExpired()) {
            start(folder, state);
        }
    }
    if (m_folders.empty()) {
        m_clock.stop();
    }
    for (const QString& folder : silent) {
        emit signalSilent(folder);
    }
}

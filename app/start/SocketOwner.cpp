#include "app/start/SocketOwner.h"

#include <QFile>

#ifdef Q_OS_UNIX
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace socketowner {

#ifdef Q_OS_UNIX

namespace {

/// A link is looked at itself: another user may have laid one that leads to a file of ours.
std::optional<struct stat> statusOf(const QString& path)
{
    struct stat status
    { };
    if (lstat(QFile::encodeName(path).constData(), &status) != 0) {
        return std::nullopt;
    }
    return status;
}

}  // namespace

uint currentUser()
{
    return geteuid();
}

bool isHeldByOther(const QString& path, uint user)
{
    const auto status = statusOf(path);
    return status && status->st_uid != user;
}

std::optional<FileId> fileAt(const QString& path)
{
    const auto status = statusOf(path);
    return status ? std::optional(FileId{status->st_dev, status->st_ino}) : std::nullopt;
}

#else

uint currentUser()
{
    return 0;
}

bool isHeldByOther(const QString&, uint)
{
    return false;
}

std::optional<FileId> fileAt(const QString&)
{
    return std::nullopt;
}

#endif

#ifdef Q_OS_LINUX

bool isPeer(qintptr socket, uint user)
{
    ucred peer{};
    socklen_t size = sizeof peer;
    const int result = getsockopt(static_cast<int>(socket), SOL_SOCKET, SO_PEERCRED, &peer, &size);
    return result == 0 && peer.uid == user;
}

#else

bool isPeer(qintptr, uint)
{
    return true;
}

#endif

}  // namespace socketowner

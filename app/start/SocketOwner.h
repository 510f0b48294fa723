#pragma once

#include <QString>

#include <optional>

/// To whom local sockets belong. Where the system has no such notion (named pipes), everything is
/// the user's own.
namespace socketowner {

/// Which file it is that bears a path; two files that exist at the same time differ in it.
struct FileId
{
    quint64 device = 0;
    quint64 number = 0;

    bool operator==(const FileId&) const = default;
};

/// The id of the user as whom the program runs.
[[nodiscard]] uint currentUser();
/// Whether a path is taken by a file, link or folder of another user than the given one.
[[nodiscard]] bool isHeldByOther(const QString& path, uint user);
/// Whether the program at the other end of a connected socket runs as the given user.
[[nodiscard]] bool isPeer(qintptr socket, uint user);
/// Nothing when no file bears the path.
[[nodiscard]] std::optional<FileId> fileAt(const QString& path);

}  // namespace socketowner

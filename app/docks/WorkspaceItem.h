#pragma once

#include <Qt>

/// What the items of the workspace tree keep. The path stands in the user role, where Quick Open
/// looks for it, and only datasets have one.
namespace workspaceitem {

enum Role
{
    PathRole = Qt::UserRole,
    KindRole = Qt::UserRole + 1,
    FolderRole = Qt::UserRole + 2,  ///< of a library
    IdRole = Qt::UserRole + 3,  ///< of a library or a session in the store
};

/// The numbers are fixed.
enum Kind
{
    None = 0,
    Libraries = 1,  ///< the top item of them
    Sessions = 2,
    LibraryFolder = 3,
    Dataset = 4,
    Note = 5,  ///< says something of the library above it
    Session = 7,
};

}  // namespace workspaceitem

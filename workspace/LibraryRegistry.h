#pragma once

#include "data/Result.h"
#include "workspace/Library.h"

#include <QCoreApplication>
#include <QList>

#include <optional>

class QSqlQuery;
class WorkspaceStore;

/// The libraries in the workspace store. Every statement about them stands here.
///
/// What fails leaves the store as it was, is logged, and comes back as a sentence for the user.
class LibraryRegistry
{
    Q_DECLARE_TR_FUNCTIONS(LibraryRegistry)

public:
    /// @param store  outlives the registry
    explicit LibraryRegistry(const WorkspaceStore& store)
        : m_store(store)
    { }

    /// All libraries in their order, for the tree.
    [[nodiscard]] Result<QList<Library>> load() const;
    /// The same without their bookmarks, for the dialog in which they are edited.
    [[nodiscard]] Result<QList<Library>> loadForEditing() const;
    /// The library of a folder, if it is one; folders within it are others.
    [[nodiscard]] std::optional<Library> find(const QString& dir) const;
    /// The library of a folder, which becomes the last one unless it is registered already.
    [[nodiscard]] Result<Library> add(const QString& dir) const;
    [[nodiscard]] Result<bool> rename(qint64 id, const QString& name) const;
    /// Takes a library out; one that is gone already is no failure.
    [[nodiscard]] Result<bool> remove(qint64 id) const;
    /// Writes all libraries in this order, in one transaction: those with an id are updated, the
    /// others inserted.
    /// @param removed  the ids of those that are to go
    [[nodiscard]] Result<bool> save(const QList<Library>& libraries,
                                    const QList<qint64>& removed) const;

    /// A folder as the store knows it: absolute, without "." and "..", without a slash at its end.
    [[nodiscard]] static QString normalized(const QString& dir);

private:
    [[nodiscard]] Result<QList<Library>> loadAll(const char* statement) const;
    [[nodiscard]] Result<std::optional<Library>> lookUp(const QString& dir) const;
    [[nodiscard]] Result<bool> insertLast(Library& library) const;
    [[nodiscard]] Result<bool> write(const QList<Library>& libraries,
                                     const QList<qint64>& removed) const;

    const WorkspaceStore& m_store;
};

#pragma once

#include "data/Result.h"
#include "workspace/SavedSession.h"

#include <QCoreApplication>
#include <QStringView>

#include <optional>

class QSqlDatabase;
class WorkspaceStore;

/// The saved sessions in the workspace store. Every statement about them stands here.
///
/// What fails leaves the store as it was, and comes back as a sentence for the user with the
/// database's own words in a line below.
class SessionRegistry
{
    Q_DECLARE_TR_FUNCTIONS(SessionRegistry)

public:
    /// @param store  outlives the registry
    explicit SessionRegistry(const WorkspaceStore& store)
        : m_store(store)
    { }

    /// Writes a session in one transaction, over the one of that name if there is one.
    [[nodiscard]] Result<bool> save(const SavedSession& session) const;
    [[nodiscard]] Result<SavedSession> load(qint64 id) const;
    /// All sessions, the one that was saved last first; none when they cannot be read, and nothing
    /// while the store is closed. Either is told to the log.
    [[nodiscard]] std::optional<QList<SessionEntry>> list() const;
    /// Deletes a session with its datasets; one that is gone already is no failure.
    [[nodiscard]] Result<bool> remove(qint64 id) const;

    /// The names in a list of hidden variables as the store keeps it, a JSON array of texts. None,
    /// and a warning in the log, where it is no such thing.
    [[nodiscard]] static QStringList parseHiddenVariables(QStringView text);

private:
    [[nodiscard]] static Result<bool> write(const QSqlDatabase& database,
                                            const SavedSession& session);
    [[nodiscard]] static Result<qint64> settleName(const QSqlDatabase& database,
                                                   const QString& name);
    [[nodiscard]] static Result<qint64> insertName(const QSqlDatabase& database,
                                                   const QString& name);
    [[nodiscard]] static Result<bool> clear(const QSqlDatabase& database, qint64 id);

    const WorkspaceStore& m_store;
};

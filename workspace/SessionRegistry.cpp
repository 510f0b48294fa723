#include "workspace/SessionRegistry.h"

#include "workspace/WorkspaceStore.h"

#include <spdlog/spdlog.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonParseError>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* findByName = "SELECT id FROM session WHERE name = :name";
constexpr const char* insertSession = "INSERT INTO session (name) VALUES (:name)";
constexpr const char* touchSession =
    "UPDATE session SET updatedAt = CURRENT_TIMESTAMP WHERE id = :id";
constexpr const char* clearDatasets = "DELETE FROM session_dataset WHERE session_id = :id";
constexpr const char* insertDataset = R"(
    INSERT INTO session_dataset (session_id, position, filePath, datasetName, libraryFilter,
                                 datasetFilter, hiddenVariables)
    VALUES (:session_id, :position, :filePath, :datasetName, :libraryFilter, :datasetFilter,
            :hiddenVariables))";
constexpr const char* findName = "SELECT name FROM session WHERE id = :id";
constexpr const char* loadDatasets = R"(
    SELECT filePath, datasetName, libraryFilter, datasetFilter, hiddenVariables
    FROM session_dataset
    WHERE session_id = :id
    ORDER BY position ASC, id ASC)";
constexpr const char* listSessions = "SELECT id, name, updatedAt FROM session "
                                     "ORDER BY datetime(updatedAt) DESC, name COLLATE NOCASE ASC";
constexpr const char* deleteSession = "DELETE FROM session WHERE id = :id";

QSqlQuery prepared(const QSqlDatabase& database, const char* statement)
{
    QSqlQuery query(database);
    static_cast<void>(query.prepare(QString::fromLatin1(statement)));  // execute() notices
    return query;
}

/// A statement that could not be prepared is not run: that would put a complaint about its values
/// in the place of the reason.
bool execute(QSqlQuery& query)
{
    return !query.lastError().isValid() && query.exec();
}

QSqlQuery preparedFor(const QSqlDatabase& database, const char* statement, qint64 id)
{
    QSqlQuery query = prepared(database, statement);
    query.bindValue(u":id"_s, id);
    return query;
}

Failure failure(const QString& message)
{
    return Failure{message.toStdString()};
}

/// The message, and below it what the database says.
Failure failure(const QString& message, const QSqlQuery& query)
{
    return failure(message + u'\n' + query.lastError().text().trimmed());
}

QString written(const QStringList& hiddenVariables)
{
    const QJsonDocument document(QJsonArray::fromStringList(hiddenVariables));
    return QString::fromUtf8(document.toJson(QJsonDocument::Compact));
}

/// A text that is none in the store is an empty one, as it is nowhere else.
QString notNull(const QString& text)
{
    return text.isNull() ? u""_s : text;
}

}  // namespace

Result<bool> SessionRegistry::save(const SavedSession& session) const
{
    QSqlDatabase database = m_store.database();
    if (!database.isOpen()) {
        return failure(tr("Unable to access the session database."));
    }
    if (!database.transaction()) {
        return failure(tr("Failed to start a database transaction."));
    }
    Result<bool> done = write(database, session);
    if (done && !database.commit()) {
        done = failure(tr("Failed to commit the session data."));
    }
    if (!done) {
        database.rollback();
    }
    return done;
}

Result<bool> SessionRegistry::write(const QSqlDatabase& database, const SavedSession& session)
{
    const Result<qint64> id = settleName(database, session.name);
    if (!id) {
        return Failure{id.error()};
    }
    QSqlQuery query = prepared(database, insertDataset);
    for (qsizetype position = 0; position < session.datasets.size(); ++position) {
        const SavedDataset& dataset = session.datasets.at(position);
        query.bindValue(u":session_id"_s, id.value());
        query.bindValue(u":position"_s, position);
        query.bindValue(u":filePath"_s, dataset.filePath);
        query.bindValue(u":datasetName"_s, notNull(dataset.datasetName));
        query.bindValue(u":libraryFilter"_s, notNull(dataset.libraryFilter));
        query.bindValue(u":datasetFilter"_s, notNull(dataset.datasetFilter));
        query.bindValue(u":hiddenVariables"_s, written(dataset.hiddenVariables));
        if (!execute(query)) {
            return failure(tr("Failed to persist dataset information for the session."), query);
        }
    }
    return true;
}

/// The id of the session of that name, which has no datasets then.
Result<qint64> SessionRegistry::settleName(const QSqlDatabase& database, const QString& name)
{
    QSqlQuery query = prepared(database, findByName);
    query.bindValue(u":name"_s, name);
    if (!execute(query)) {
        return failure(tr("Failed to look up existing sessions."), query);
    }
    if (!query.next()) {
        return insertName(database, name);
    }
    const qint64 id = query.value(0).toLongLong();
    const Result<bool> cleared = clear(database, id);
    return cleared ? Result<qint64>(id) : Failure{cleared.error()};
}

Result<qint64> SessionRegistry::insertName(const QSqlDatabase& database, const QString& name)
{
    QSqlQuery query = prepared(database, insertSession);
    query.bindValue(u":name"_s, name);
    if (!execute(query)) {
        return failure(tr("Failed to create a new session record."), query);
    }
    return query.lastInsertId().toLongLong();
}

/// Marks a session as saved now and takes its datasets out.
Result<bool> SessionRegistry::clear(const QSqlDatabase& database, qint64 id)
{
    QSqlQuery touched = preparedFor(database, touchSession, id);
    if (!execute(touched)) {
        return failure(tr("Failed to update the session timestamp."), touched);
    }
    QSqlQuery cleared = preparedFor(database, clearDatasets, id);
    if (!execute(cleared)) {
        return failure(tr("Failed to clear existing session datasets."), cleared);
    }
    return true;
}

Result<SavedSession> SessionRegistry::load(qint64 id) const
{
    const QSqlDatabase database = m_store.database();
    if (!database.isOpen()) {
        return failure(tr("Unable to access the session database."));
    }
    QSqlQuery named = preparedFor(database, findName, id);
    if (!execute(named)) {
        return failure(tr("Failed to read the session information.\n%1")
                           .arg(named.lastError().text().trimmed()));
    }
    if (!named.next()) {
        return failure(tr("The selected session no longer exists."));
    }
    SavedSession session{named.value(0).toString()};
    QSqlQuery query = preparedFor(database, loadDatasets, id);
    if (!execute(query)) {
        return failure(tr("Failed to load datasets for the session.\n%1")
                           .arg(query.lastError().text().trimmed()));
    }
    while (query.next()) {
        session.datasets << SavedDataset{query.value(0).toString(), query.value(1).toString(),
                                         query.value(2).toString(), query.value(3).toString(),
                                         parseHiddenVariables(query.value(4).toString())};
    }
    return session;
}

std::optional<QList<SessionEntry>> SessionRegistry::list() const
{
    const QSqlDatabase database = m_store.database();
    if (!database.isOpen()) {
        spdlog::warn("Database not open while loading sessions");
        return std::nullopt;
    }
    QSqlQuery query = prepared(database, listSessions);
    if (!execute(query)) {
        spdlog::error("Failed to load sessions: {}", query.lastError().text().toStdString());
        return QList<SessionEntry>();
    }
    QList<SessionEntry> entries;
    while (query.next()) {
        entries << SessionEntry{query.value(0).toLongLong(), query.value(1).toString()};
    }
    return entries;
}

Result<bool> SessionRegistry::remove(qint64 id) const
{
    const QSqlDatabase database = m_store.database();
    if (!database.isOpen()) {
        return failure(tr("Unable to access the session database."));
    }
    QSqlQuery query = preparedFor(database, deleteSession, id);
    if (!execute(query)) {
        return failure(tr("Failed to delete the session."), query);
    }
    return true;
}

QStringList SessionRegistry::parseHiddenVariables(QStringView text)
{
    if (text.isEmpty()) {
        return {};
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError || !document.isArray()) {
        spdlog::warn("Failed to parse hidden variables payload: {}",
                     error.errorString().toStdString());
        return {};
    }
    QStringList names;
    for (const QJsonValue element : document.array()) {
        if (element.isString()) {
            names << element.toString();
        }
    }
    return names;
}

#include "workspace/StoreSchema.h"

#include <spdlog/spdlog.h>

#include <QList>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>
#include <QVariant>

#include <optional>
#include <string_view>

namespace storeschema {
namespace {

constexpr const char* createLibrary = R"(
    CREATE TABLE IF NOT EXISTS library (
        id INTEGER PRIMARY KEY AUTOINCREMENT,
        dir TEXT NOT NULL,
        libAlias TEXT,
        libName TEXT,
        libFilter TEXT,
        watchChangesFlag INTEGER,
        autoOpenFlag INTEGER,
        color TEXT,
        sortOrder INTEGER,
        bookmarkData BLOB
    );)";

constexpr const char* createOption = R"(
    CREATE TABLE IF NOT EXISTS option (
        key TEXT PRIMARY KEY,
        value TEXT
    );)";

constexpr const char* createSession = R"(
    CREATE TABLE IF NOT EXISTS session (
        id INTEGER PRIMARY KEY AUTOINCREMENT,
        name TEXT NOT NULL UNIQUE,
        createdAt TEXT DEFAULT CURRENT_TIMESTAMP,
        updatedAt TEXT DEFAULT CURRENT_TIMESTAMP
    );)";

constexpr const char* createSessionDataset = R"(
    CREATE TABLE IF NOT EXISTS session_dataset (
        id INTEGER PRIMARY KEY AUTOINCREMENT,
        session_id INTEGER NOT NULL,
        position INTEGER NOT NULL DEFAULT 0,
        filePath TEXT NOT NULL,
        datasetName TEXT,
        libraryFilter TEXT,
        datasetFilter TEXT,
        hiddenVariables TEXT,
        FOREIGN KEY(session_id) REFERENCES session(id) ON DELETE CASCADE
    );)";

void logFailure(std::string_view message, const QSqlQuery& query)
{
    spdlog::error("{} {}", message, query.lastError().text().toStdString());
}

bool execute(const QSqlDatabase& database, const char* statement, std::string_view failure)
{
    QSqlQuery query(database);
    if (!query.exec(QString::fromLatin1(statement))) {
        logFailure(failure, query);
        return false;
    }
    return true;
}

QStringList libraryColumns(const QSqlDatabase& database)
{
    QStringList names;
    QSqlQuery query(database);
    query.exec(QStringLiteral("PRAGMA table_info(library)"));
    while (query.next()) {
        names << query.value(QStringLiteral("name")).toString();
    }
    return names;
}

/// The ids of all libraries, ascending; nothing when they cannot be read.
std::optional<QList<qint64>> libraryIds(const QSqlDatabase& database)
{
    QSqlQuery query(database);
    if (!query.exec(QStringLiteral("SELECT id FROM library ORDER BY id"))) {
        logFailure("Error: Failed to seed sortOrder values:", query);
        return std::nullopt;
    }
    QList<qint64> ids;
    while (query.next()) {
        ids << query.value(0).toLongLong();
    }
    return ids;
}

/// Numbers the libraries 0, 1, 2, ... in the order in which they were added.
bool seedSortOrder(const QSqlDatabase& database)
{
    const auto ids = libraryIds(database);
    if (!ids) {
        return false;
    }
    QSqlQuery query(database);
    query.prepare(QStringLiteral("UPDATE library SET sortOrder = :order WHERE id = :id"));
    for (qsizetype order = 0; order < ids->size(); ++order) {
        query.bindValue(QStringLiteral(":order"), order);
        query.bindValue(QStringLiteral(":id"), ids->at(order));
        if (!query.exec()) {
            logFailure("Error: Failed to seed sortOrder values:", query);
            return false;
        }
    }
    return true;
}

bool addMissingLibraryColumns(const QSqlDatabase& database)
{
    const QStringList columns = libraryColumns(database);
    const auto isMissing = [&](QLatin1StringView name) {
        return !columns.contains(name, Qt::CaseInsensitive);
    };
    if (isMissing(QLatin1StringView("sortOrder"))
        && !(execute(database, "ALTER TABLE library ADD COLUMN sortOrder INTEGER",
                     "Error: Failed to add sortOrder column:")
             && seedSortOrder(database))) {
        return false;
    }
    return !isMissing(QLatin1StringView("bookmarkData"))
        || execute(database, "ALTER TABLE library ADD COLUMN bookmarkData BLOB",
                   "Error: Failed to add bookmarkData column:");
}

}  // namespace

bool update(const QSqlDatabase& database)
{
    return execute(database, createLibrary, "Error: Failed to create table: library.")
        && addMissingLibraryColumns(database)
        && execute(database, createOption, "Error: Failed to create table: option.")
        && execute(database, createSession, "Error: Failed to create table: session.")
        && execute(database, createSessionDataset,
                   "Error: Failed to create table: session_dataset.");
}

}  // namespace storeschema

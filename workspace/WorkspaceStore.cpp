#include "workspace/WorkspaceStore.h"

#include "workspace/StoreSchema.h"

#include <spdlog/spdlog.h>

#include <QDir>
#include <QSqlError>
#include <QSqlQuery>
#include <QStandardPaths>
#include <QUuid>
#include <QVariant>

#include <utility>

namespace {

void enableForeignKeys(const QSqlDatabase& database)
{
    QSqlQuery query(database);
    if (!query.exec(QStringLiteral("PRAGMA foreign_keys = ON"))) {
        spdlog::warn("Warning: Failed to enable foreign key support: {}",
                     query.lastError().text().toStdString());
    }
}

}  // namespace

StoreLocations StoreLocations::standard()
{
    return {QStandardPaths::writableLocation(QStandardPaths::HomeLocation),
            QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)};
}

WorkspaceStore::WorkspaceStore(StoreLocations locations)
    : m_locations(std::move(locations))
    , m_connection(QStringLiteral("workspace-") + QUuid::createUuid().toString(QUuid::Id128))
{ }

WorkspaceStore::~WorkspaceStore()
{
    QSqlDatabase::removeDatabase(m_connection);
}

bool WorkspaceStore::initDatabase()
{
    const QString folder = findFolder();
    if (folder.isEmpty() || !open(QDir(folder).filePath(QStringLiteral("quorlane.db")))) {
        return false;
    }
    enableForeignKeys(database());
    return storeschema::update(database());
}

/// The folder of the store, which exists then; empty when there is none.
QString WorkspaceStore::findFolder() const
{
    QString folder = m_locations.home;
    if (folder.isEmpty()) {
        spdlog::warn("Warning: No writable home location, falling back to AppDataLocation.");
        folder = m_locations.appData;
    }
    if (folder.isEmpty()) {
        spdlog::error("Error: Unable to determine writable location for session database.");
        return {};
    }
    if (!QDir(folder).exists() && !QDir().mkpath(folder)) {
        spdlog::error("Error: Failed to create writable directory for session database: {}",
                      folder.toStdString());
        return {};
    }
    return folder;
}

bool WorkspaceStore::open(const QString& file)
{
    QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connection);
    connection.setDatabaseName(file);
    // Milliseconds. Qt's own five seconds would pass for a start that hangs.
    connection.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=1000"));
    if (!connection.open()) {
        spdlog::error("Error: Unable to open database! {}: {}", file.toStdString(),
                      connection.lastError().text().toStdString());
        return false;
    }
    return true;
}

// It changes the store. NOLINTNEXTLINE(readability-make-member-function-const)
void WorkspaceStore::saveOption(const QString& key, const QString& value)
{
    if (!database().isOpen()) {
        spdlog::error("Error: Failed to save option to database.");
        return;
    }
    QSqlQuery query(database());
    query.prepare(
        QStringLiteral("INSERT OR REPLACE INTO option (key, value) VALUES (:key, :value)"));
    query.bindValue(QStringLiteral(":key"), key);
    query.bindValue(QStringLiteral(":value"), value);
    if (!query.exec()) {
        spdlog::error("Error: Failed to save option to database. {}",
                      query.lastError().text().toStdString());
    }
}

QString WorkspaceStore::loadOption(const QString& key, const QString& defaultValue) const
{
    if (!database().isOpen()) {
        return defaultValue;
    }
    QSqlQuery query(database());
    query.prepare(QStringLiteral("SELECT value FROM option WHERE key = :key"));
    query.bindValue(QStringLiteral(":key"), key);
    return query.exec() && query.next() ? query.value(0).toString() : defaultValue;
}

QSqlDatabase WorkspaceStore::database() const
{
    return QSqlDatabase::database(m_connection, false);
}

#include "workspace/LibraryRegistry.h"

#include "data/FilePath.h"
#include "workspace/WorkspaceStore.h"

#include <spdlog/spdlog.h>

#include <QDir>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

namespace {

constexpr const char* loadForTree =
    "SELECT id, dir, libAlias, libName, libFilter, watchChangesFlag, autoOpenFlag, color, "
    "sortOrder, bookmarkData FROM library ORDER BY sortOrder ASC, id ASC;";
constexpr const char* loadForDialog = R"(
    SELECT id, dir, libAlias, libName, libFilter, watchChangesFlag, autoOpenFlag, color, sortOrder
    FROM library
    ORDER BY sortOrder ASC, id ASC;)";
constexpr const char* findByFolder =
    "SELECT id, libAlias, libName, libFilter, watchChangesFlag, autoOpenFlag, color, sortOrder, "
    "bookmarkData FROM library WHERE dir = :dir;";
constexpr const char* nextPosition = "SELECT COALESCE(MAX(sortOrder), -1) + 1 FROM library";
constexpr const char* addFolder = R"(
    INSERT INTO library (dir, libAlias, libName, libFilter, watchChangesFlag, autoOpenFlag, color,
                         sortOrder)
    VALUES (:dir, :libAlias, :libName, :libFilter, :watchChangesFlag, :autoOpenFlag, :color,
            :sortOrder))";
constexpr const char* insertEdited = R"(
    INSERT INTO library (dir, libAlias, libName, libFilter, watchChangesFlag, autoOpenFlag, color,
                         sortOrder)
    VALUES (:dir, :alias, :name, :filter, :watch, :auto, :color, :order);)";
constexpr const char* updateEdited = R"(
    UPDATE library
    SET dir = :dir, libAlias = :alias, libName = :name, libFilter = :filter,
        watchChangesFlag = :watch, autoOpenFlag = :auto, color = :color, sortOrder = :order
    WHERE id = :id;)";
constexpr const char* deleteEdited = "DELETE FROM library WHERE id = :id";
constexpr const char* deleteFromTree = "DELETE FROM library WHERE id = :id;";
constexpr const char* renameFromTree = "UPDATE library SET libName = ? WHERE id = ?";

QSqlQuery prepared(const QSqlDatabase& database, const char* statement)
{
    QSqlQuery query(database);
    // What cannot be prepared cannot be run either, which is where it is noticed.
    static_cast<void>(query.prepare(QString::fromLatin1(statement)));
    return query;
}

/// The columns that a query has; others keep what the library has.
void read(const QSqlQuery& query, Library& library)
{
    library.id = query.value(QStringLiteral("id")).toLongLong();
    library.alias = query.value(QStringLiteral("libAlias")).toString();
    library.name = query.value(QStringLiteral("libName")).toString();
    library.filter = query.value(QStringLiteral("libFilter")).toString();
    library.watchesChanges = query.value(QStringLiteral("watchChangesFlag")).toInt() != 0;
    library.opensItself = query.value(QStringLiteral("autoOpenFlag")).toInt() != 0;
    library.color = query.value(QStringLiteral("color")).toString();
    library.sortOrder = query.value(QStringLiteral("sortOrder")).toInt();
}

void bindEdited(QSqlQuery& query, const Library& library, qsizetype order)
{
    query.bindValue(QStringLiteral(":dir"), library.dir);
    query.bindValue(QStringLiteral(":alias"), library.alias);
    query.bindValue(QStringLiteral(":name"), library.name);
    query.bindValue(QStringLiteral(":filter"), library.filter);
    query.bindValue(QStringLiteral(":watch"), library.watchesChanges ? 1 : 0);
    query.bindValue(QStringLiteral(":auto"), library.opensItself ? 1 : 0);
    query.bindValue(QStringLiteral(":color"), library.color);
    query.bindValue(QStringLiteral(":order"), order);
}

/// @param message  what the user is told, with %1 for the database's own words
Failure failure(const QString& message, const QSqlError& error)
{
    return Failure{message.arg(error.text().trimmed()).toStdString()};
}

/// Takes back what has not been committed.
class Transaction
{
public:
    explicit Transaction(const QSqlDatabase& database)
        : m_database(database)
        , m_isOpen(m_database.transaction())
    { }
    ~Transaction()
    {
        if (m_isOpen) {
            m_database.rollback();
        }
    }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    [[nodiscard]] bool isOpen() const { return m_isOpen; }
    [[nodiscard]] bool commit()
    {
        const bool isDone = m_database.commit();
        m_isOpen = !isDone;
        return isDone;
    }
    [[nodiscard]] QSqlError lastError() const { return m_database.lastError(); }

private:
    QSqlDatabase m_database;
    bool m_isOpen;
};

}  // namespace

QString Library::shownName() const
{
    const QString folder = QDir(dir).dirName();
    return !name.isEmpty() ? name : folder.isEmpty() ? dir : folder;
}

QString LibraryRegistry::normalized(const QString& dir)
{
    return QDir::cleanPath(QDir::current().absoluteFilePath(dir));
}

// Reading

Result<QList<Library>> LibraryRegistry::load() const
{
    return loadAll(loadForTree);
}

Result<QList<Library>> LibraryRegistry::loadForEditing() const
{
    if (!m_store.database().isOpen()) {
        return Failure{tr("Database connection is not available.").toStdString()};
    }
    return loadAll(loadForDialog);
}

Result<QList<Library>> LibraryRegistry::loadAll(const char* statement) const
{
    QSqlQuery query = prepared(m_store.database(), statement);
    if (!query.exec()) {
        spdlog::error("Error: Failed to load libraries. {}",
                      query.lastError().text().toStdString());
        return failure(tr("The libraries could not be read: %1"), query.lastError());
    }
    QList<Library> libraries;
    while (query.next()) {
        Library library;
        library.dir = query.value(QStringLiteral("dir")).toString();
        read(query, library);
        if (statement == loadForTree) {
            library.bookmark = query.value(QStringLiteral("bookmarkData")).toByteArray();
        }
        libraries << library;
    }
    return libraries;
}

Result<std::optional<Library>> LibraryRegistry::lookUp(const QString& dir) const
{
    QSqlQuery query = prepared(m_store.database(), findByFolder);
    query.bindValue(QStringLiteral(":dir"), dir);
    if (!query.exec()) {
        spdlog::error("Error: Failed to check folder existence. {}",
                      query.lastError().text().toStdString());
        return failure(tr("The libraries could not be read: %1"), query.lastError());
    }
    if (!query.next()) {
        return std::optional<Library>();
    }
    Library library;
    library.dir = dir;
    read(query, library);
    library.bookmark = query.value(QStringLiteral("bookmarkData")).toByteArray();
    return std::optional(library);
}

std::optional<Library> LibraryRegistry::find(const QString& dir) const
{
    const auto found = lookUp(normalized(dir));
    return found ? found.value() : std::nullopt;
}

// Changes from the tree

Result<Library> LibraryRegistry::add(const QString& dir) const
{
    Library library;
    library.dir = normalized(dir);
    if (!filepath::isText(library.dir)) {
        return Failure{tr("A folder whose name is no text cannot be kept as a library: %1")
                           .arg(filepath::shown(library.dir))
                           .toStdString()};
    }
    const auto known = lookUp(library.dir);
    if (!known) {
        return Failure{known.error()};
    }
    if (known.value()) {
        return *known.value();
    }
    library.name = library.shownName();
    const Result<bool> inserted = insertLast(library);
    if (!inserted) {
        return Failure{inserted.error()};
    }
    return library;
}

/// Stores a new library behind all others; it has its id and its place then.
Result<bool> LibraryRegistry::insertLast(Library& library) const
{
    const auto failed = [](const QSqlQuery& query) {
        spdlog::error("Error: Failed to insert folder. {}", query.lastError().text().toStdString());
        return failure(tr("The library could not be kept: %1"), query.lastError());
    };
    QSqlQuery position = prepared(m_store.database(), nextPosition);
    if (!position.exec() || !position.next()) {
        return failed(position);
    }
    library.sortOrder = position.value(0).toInt();
    position.finish();
    QSqlQuery query = prepared(m_store.database(), addFolder);
    query.bindValue(QStringLiteral(":dir"), library.dir);
    query.bindValue(QStringLiteral(":libAlias"), library.alias);
    query.bindValue(QStringLiteral(":libName"), library.name);
    query.bindValue(QStringLiteral(":libFilter"), library.filter);
    query.bindValue(QStringLiteral(":watchChangesFlag"), library.watchesChanges ? 1 : 0);
    query.bindValue(QStringLiteral(":autoOpenFlag"), library.opensItself ? 1 : 0);
    query.bindValue(QStringLiteral(":color"), library.color);
    query.bindValue(QStringLiteral(":sortOrder"), library.sortOrder);
    if (!query.exec()) {
        return failed(query);
    }
    library.id = query.lastInsertId().toLongLong();
    return true;
}

Result<bool> LibraryRegistry::rename(qint64 id, const QString& name) const
{
    QSqlQuery query = prepared(m_store.database(), renameFromTree);
    query.addBindValue(name);
    query.addBindValue(id);
    if (!query.exec()) {
        spdlog::error("Update failed: {}", query.lastError().text().toStdString());
        return failure(tr("The library could not be renamed: %1"), query.lastError());
    }
    spdlog::info("Item renamed to: {}", name.toStdString());
    return true;
}

Result<bool> LibraryRegistry::remove(qint64 id) const
{
    if (!m_store.database().isOpen()) {
        spdlog::error("Database not open!");
    }
    QSqlQuery query = prepared(m_store.database(), deleteFromTree);
    query.bindValue(QStringLiteral(":id"), id);
    if (!query.exec()) {
        spdlog::error("Delete failed: {}", query.lastError().text().toStdString());
        return failure(tr("The library could not be removed: %1"), query.lastError());
    }
    if (query.numRowsAffected() == 0) {
        spdlog::warn("No record found with id {}", id);
    }
    return true;
}

// Changes from the dialog

Result<bool> LibraryRegistry::save(const QList<Library>& libraries,
                                   const QList<qint64>& removed) const
{
    Transaction transaction(m_store.database());
    if (!transaction.isOpen()) {
        return failure(tr("Unable to begin database transaction: %1"), transaction.lastError());
    }
    Result<bool> written = write(libraries, removed);
    if (written && !transaction.commit()) {
        return failure(tr("Unable to commit database transaction: %1"), transaction.lastError());
    }
    return written;
}

Result<bool> LibraryRegistry::write(const QList<Library>& libraries,
                                    const QList<qint64>& removed) const
{
    QSqlQuery erase = prepared(m_store.database(), deleteEdited);
    for (const qint64 id : removed) {
        erase.bindValue(QStringLiteral(":id"), id);
        if (!erase.exec()) {
            return failure(tr("Failed to delete library record: %1"), erase.lastError());
        }
    }
    QSqlQuery insert = prepared(m_store.database(), insertEdited);
    QSqlQuery update = prepared(m_store.database(), updateEdited);
    for (qsizetype order = 0; order < libraries.size(); ++order) {
        const Library& library = libraries[order];
        const bool isStored = library.id != 0;
        QSqlQuery& query = isStored ? update : insert;
        bindEdited(query, library, order);
        if (isStored) {
            query.bindValue(QStringLiteral(":id"), library.id);
        }
        if (!query.exec()) {
            return failure(isStored ? tr("Failed to update library record: %1")
                                    : tr("Failed to insert library record: %1"),
                           query.lastError());
        }
    }
    return true;
}

#pragma once

#include <QSqlDatabase>
#include <QString>

/// Where the workspace store may stand. The second place is taken only when there is no first.
struct StoreLocations
{
    QString home;  ///< empty when the system knows none
    QString appData;

    /// The user's own.
    [[nodiscard]] static StoreLocations standard();
};

/// The database file "quorlane.db" with the registered libraries, the options and the saved
/// sessions. What goes wrong with it is told to the log.
class WorkspaceStore
{
public:
    explicit WorkspaceStore(StoreLocations locations = StoreLocations::standard());
    /// Closes the connection. Whoever was handed database() has dropped it and its queries by then.
    ~WorkspaceStore();
    WorkspaceStore(const WorkspaceStore&) = delete;
    WorkspaceStore& operator=(const WorkspaceStore&) = delete;

    /// Finds the folder, opens or creates the file and brings its tables up to date. To be called
    /// once. It waits at most a second for another program that has locked the file.
    /// @return  whether the store can be used
    [[nodiscard]] bool initDatabase();

    void saveOption(const QString& key, const QString& value);
    /// The stored text, or the default where there is none or it cannot be read.
    [[nodiscard]] QString loadOption(const QString& key, const QString& defaultValue) const;

    /// The one connection, for the statements of libraries and sessions.
    [[nodiscard]] QSqlDatabase database() const;

private:
    [[nodiscard]] QString findFolder() const;
    [[nodiscard]] bool open(const QString& file);

    StoreLocations m_locations;
    QString m_connection;
};

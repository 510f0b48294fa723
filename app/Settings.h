#pragma once

#include <QSettings>
#include <QString>

/// What the program remembers from one run to the next: the table of its keys and their defaults.
class Settings
{
public:
    /// @param store  outlives the settings
    explicit Settings(QSettings& store)
        : m_store(store)
    { }

    /// The folder from which a file was opened last; empty before the first.
    [[nodiscard]] QString lastFolder() const { return m_store.value(u"lastFolder").toString(); }
    void setLastFolder(const QString& folder) { m_store.setValue(u"lastFolder", folder); }

private:
    QSettings& m_store;
};

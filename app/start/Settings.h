#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariant>

class QSettings;

/// What the program remembers from one run to the next, besides the workspace: the table of its
/// keys and their defaults.
class Settings
{
public:
    /// @param store  outlives the settings
    explicit Settings(QSettings& store)
        : m_store(store)
    { }

    /// Where the main window stood, and how its docks and toolbars were arranged.
    [[nodiscard]] QByteArray geometry() const;
    [[nodiscard]] QByteArray state() const;
    void setGeometryAndState(const QByteArray& geometry, const QByteArray& state);

    [[nodiscard]] bool darkMode() const;
    void setDarkMode(bool isDark);

    /// The size of the grids' letters in points; 0 for that of the desktop.
    [[nodiscard]] int fontSize() const;
    void setFontSize(int points);

    /// The shares of the window's width, "30:70:0".
    [[nodiscard]] QString lastLayout() const;
    void setLastLayout(const QString& layout);

    /// Whether column headers show labels instead of names: "Var Label" or "Var Name".
    [[nodiscard]] bool headersShowLabels() const;
    void setHeadersShowLabels(bool areLabels);

    /// The folder from which a file was opened last; empty before the first.
    [[nodiscard]] QString lastFolder() const;
    void setLastFolder(const QString& folder);

    /// The paths of the files opened last, the latest first.
    [[nodiscard]] QStringList recentFiles() const;
    void setRecentFiles(const QStringList& paths);

    /// How datasets were compared last, by the name of the option; the fallback before the first.
    [[nodiscard]] QVariant compareOption(const QString& name, const QVariant& fallback) const;
    void setCompareOption(const QString& name, const QVariant& value);

private:
    QSettings& m_store;
};

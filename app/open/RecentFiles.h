#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

class QAction;
class QMenu;
class Settings;

/// The files opened last, kept from one run to the next. A file that has gone stays in the list
/// until it is asked for: a network folder may come back, and looking at each file would keep the
/// menu waiting for those that do not.
class RecentFiles : public QObject
{
    Q_OBJECT

public:
    static constexpr int limit = 10;

    /// @param settings  outlives this object
    explicit RecentFiles(Settings& settings, QObject* parent = nullptr);

    /// Absolute paths, the one opened last first.
    [[nodiscard]] QStringList paths() const;
    /// Puts a file that has been opened at the top.
    void add(const QString& path);
    void clear();
    /// Asks for a file to be opened; one that has gone leaves the list, too.
    void request(const QString& path);

    /// Lists the files at the end of a menu from now on, with the keys 1 to 9.
    void showIn(QMenu* menu);

signals:
    void signalChanged();
    void signalOpenRequested(const QString& path);

private:
    void setPaths(const QStringList& files);
    void fillMenu();

    Settings& m_settings;
    QPointer<QMenu> m_menu;
    QList<QPointer<QAction>> m_actions;
};

#include "app/open/RecentFiles.h"

#include "app/look/Icons.h"
#include "app/start/Settings.h"
#include "data/FilePath.h"

#include <QDir>
#include <QFileInfo>
#include <QMenu>

namespace {

QString actionText(const QString& path, int number)
{
    const QFileInfo file(path);
    const QString text = RecentFiles::tr("%1 (in %2)")
                             .arg(file.fileName(), QDir::toNativeSeparators(file.path()))
                             .replace(u'&', QStringLiteral("&&"));
    return number < RecentFiles::limit ? QStringLiteral("&%1 %2").arg(QString::number(number), text)
                                       : QStringLiteral("%1 %2").arg(QString::number(number), text);
}

}  // namespace

RecentFiles::RecentFiles(Settings& settings, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
{ }

QStringList RecentFiles::paths() const
{
    return m_settings.recentFiles().mid(0, limit);
}

void RecentFiles::add(const QString& path)
{
    if (!filepath::isText(path)) {
        return;  // the settings would keep another name
    }
    const QString absolute = QDir::cleanPath(QDir::current().absoluteFilePath(path));
    QStringList files = paths();
    files.removeAll(absolute);
    files.prepend(absolute);
    setPaths(files.mid(0, limit));
}

void RecentFiles::clear()
{
    setPaths({});
}

void RecentFiles::request(const QString& path)
{
    if (!filepath::stateOf(path).exists) {
        QStringList files = paths();
        files.removeAll(path);
        setPaths(files);
    }
    // The opener tells the user why it fails.
    emit signalOpenRequested(path);
}

void RecentFiles::setPaths(const QStringList& files)
{
    if (files == m_settings.recentFiles()) {
        return;
    }
    m_settings.setRecentFiles(files);
    fillMenu();
    emit signalChanged();
}

void RecentFiles::showIn(QMenu* menu)
{
    m_menu = menu;
    fillMenu();
}

void RecentFiles::fillMenu()
{
    for (const QPointer<QAction>& action : std::as_const(m_actions)) {
        if (action != nullptr) {
            // One of them may be what has been triggered.
            action->deleteLater();
            action->setVisible(false);
            if (m_menu != nullptr) {
                m_menu->removeAction(action);
            }
        }
    }
    m_actions.clear();
    const QStringList files = paths();
    if (m_menu == nullptr || files.isEmpty()) {
        return;
    }
    m_actions.append(m_menu->addSeparator());
    for (const QString& path : files) {
        const int number = static_cast<int>(m_actions.size());
        QAction* action = m_menu->addAction(icons::forDataset(path), actionText(path, number));
        action->setStatusTip(QDir::toNativeSeparators(path));
        connect(action, &QAction::triggered, this, [this, path] { request(path); });
        m_actions.append(action);
    }
}

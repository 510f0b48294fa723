#include "app/open/DatasetOpener.h"

#include "app/dialogs/UserPrompts.h"
#include "app/start/Settings.h"
#include "app/window/DatasetWindow.h"
#include "grid/MainTableView.h"
#include "grid/WaitCursor.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QMdiArea>

#include <utility>

namespace {

/// The origin of a file that holds one dataset. The time is taken before the file is read, so that
/// a change during the reading does not go unnoticed.
DatasetOrigin originOf(const QString& path)
{
    const QFileInfo file(path);
    const QString absolute = QDir::cleanPath(file.absoluteFilePath());
    return {absolute, absolute, file.lastModified()};
}

}  // namespace

DatasetOpener::DatasetOpener(Surroundings surroundings, QObject* parent)
    : QObject(parent)
    , m_surroundings(std::move(surroundings))
{
    m_retry.setSingleShot(true);
    connect(&m_retry, &QTimer::timeout, this, &DatasetOpener::openWaiting);
}

void DatasetOpener::chooseAndOpen(FileKind kind)
{
    const filekinds::Entry& entry = filekinds::entryOf(kind);
    const QString folder = m_surroundings.settings.lastFolder();
    const QStringList paths =
        m_surroundings.prompts.chooseFiles(entry.title(), folder, entry.filters());
    for (const QString& path : paths) {
        m_surroundings.settings.setLastFolder(QFileInfo(path).absolutePath());
        open(path);
    }
}

bool DatasetOpener::open(const QString& path)
{
    const DatasetOrigin origin = originOf(path);
    if (settleReload(origin) == Reload::Declined) {
        return m_openFiles.find(origin.fileKey) != nullptr;
    }
    return load(origin);
}

/// Asks whether a file that is open is to be read again, and if so closes its window.
DatasetOpener::Reload DatasetOpener::settleReload(const DatasetOrigin& origin)
{
    if (m_openFiles.find(origin.fileKey) == nullptr) {
        return Reload::NotOpen;
    }
    const QString question = tr("\"%1\" is already open.\nDo you want to reload it?")
                                 .arg(origin.filePath.section(u'/', -1));
    const bool isWanted = m_surroundings.prompts.confirm(tr("Reload Dataset"), question);
    // Looked for anew: the window may have gone while the question was open.
    QMdiSubWindow* window = m_openFiles.find(origin.fileKey);
    if (window == nullptr) {
        return isWanted ? Reload::Agreed : Reload::Declined;
    }
    if (!isWanted) {
        activate(window);
        return Reload::Declined;
    }
    return close(window, origin) ? Reload::Agreed : Reload::Declined;
}

/// Closes a window that is to be replaced; one that refuses stays open and becomes active.
bool DatasetOpener::close(QMdiSubWindow* window, const DatasetOrigin& origin)
{
    m_openFiles.remove(origin.fileKey, window);
    if (!window->close()) {
        m_openFiles.add(origin.fileKey, window);
        activate(window);
        return false;
    }
    // Not left to the event loop: the memory of the old dataset is wanted for the new one.
    delete window;
    return true;
}

void DatasetOpener::openLater(const QStringList& paths)
{
    m_waiting << paths;
    if (!m_retry.isActive()) {
        m_retry.start(0);
    }
}

void DatasetOpener::openWaiting()
{
    if (QApplication::activeModalWidget() != nullptr) {
        constexpr int milliseconds = 50;
        m_retry.start(milliseconds);
        return;
    }
    for (const QString& path : std::exchange(m_waiting, QStringList())) {
        open(path);
    }
}

bool DatasetOpener::load(const DatasetOrigin& origin)
{
    QString reason;
    {
        const WaitCursor waitCursor;
        Result<OpenedDataset> loaded = m_surroundings.load(origin.filePath, OpenOptions());
        if (loaded) {
            show(std::make_unique<DatasetWindow>(std::move(loaded.value().dataset), origin,
                                                 m_surroundings.datasets));
            emit signalRead(origin.filePath);
            return true;
        }
        reason = QString::fromStdString(loaded.error());
    }
    m_surroundings.prompts.warn(tr("Open File"),
                                tr("Failed to open the file: %1").arg(origin.filePath), reason);
    return false;
}

void DatasetOpener::show(std::unique_ptr<DatasetWindow> window)
{
    DatasetWindow* opened = window.get();
    emit signalOpened(opened);
    m_surroundings.area.addSubWindow(window.release());  // which the area owns from here on
    m_openFiles.add(opened->fileKey(), opened);
    opened->show();
    emit signalShown(opened);
    activate(opened);
    opened->view()->setFocus();
}

void DatasetOpener::forget(DatasetWindow* window)
{
    m_openFiles.remove(window->fileKey(), window);
}

void DatasetOpener::activate(QMdiSubWindow* window)
{
    m_surroundings.area.setActiveSubWindow(window);
}

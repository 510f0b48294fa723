#include "app/open/DatasetOpener.h"

#include "app/dialogs/UserPrompts.h"
#include "app/open/DialogFilter.h"
#include "app/open/GridPlace.h"
#include "app/open/LoadProgress.h"
#include "app/start/Settings.h"
#include "app/window/DatasetWindow.h"
#include "app/window/TabTitles.h"
#include "data/FilePath.h"
#include "grid/MainTableView.h"
#include "grid/opened/EngineMessages.h"
#include "grid/WaitCursor.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QMainWindow>
#include <QMdiArea>
#include <QTabBar>

#include <algorithm>
#include <utility>

namespace {

/// The time is taken before the file is read, so that a change during the reading does not go
/// unnoticed.
/// @param member  empty for a file's only dataset
DatasetOrigin originOf(const QString& path, const QString& member = {},
                       const QList<JoinedFile>& supplements = {})
{
    const QString absolute = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    const filepath::FileState file = filepath::stateOf(absolute);
    DatasetOrigin origin{absolute, datasetKey(absolute, member), file.lastModified, file.size};
    for (const JoinedFile& each : supplements) {
        const filepath::FileState other = filepath::stateOf(each.path);
        origin.supplements << JoinedFile{each.path, each.member, other.lastModified, other.size};
    }
    origin.fileKey += origin.joinKey();
    return origin;
}

QString titleOf(const DatasetOrigin& origin)
{
    QStringList names;
    names << (origin.member().isEmpty() ? origin.filePath.section(u'/', -1) : origin.member());
    for (const JoinedFile& file : origin.supplements) {
        names << (file.member.isEmpty() ? file.path.section(u'/', -1) : file.member);
    }
    return names.join(QStringLiteral(" + "));
}

}  // namespace

DatasetOpener::DatasetOpener(Surroundings surroundings, QObject* parent)
    : QObject(parent)
    , m_surroundings(std::move(surroundings))
{
    m_retry.setSingleShot(true);
    constexpr int longestStart =
        2000;  // milliseconds; a window that starts minimised is not painted
    m_start.setRemainingTime(longestStart);
    m_surroundings.window.installEventFilter(this);
    connect(&m_retry, &QTimer::timeout, this, &DatasetOpener::openWaiting);
    connect(&m_watch, &FileWatch::signalChanged, this, &DatasetOpener::lookAtFiles);
    // No system tells of changes that another computer makes.
    connect(qApp, &QGuiApplication::applicationStateChanged, this,
            &DatasetOpener::lookAtActiveFile);
}

void DatasetOpener::chooseAndOpen(FileKind kind)
{
    const filekinds::Entry& entry = filekinds::entryOf(kind);
    const Settings& settings = m_surroundings.settings;
    const QString folder = settings.lastFolder();
    const QString filters = entry.filters();
    const QStringList paths = m_surroundings.prompts.chooseFiles(
        entry.title(), folder, filters,
        dialogfilter::firstOf(filters, settings.recentFiles(), folder));
    for (const QString& path : paths) {
        m_surroundings.settings.setLastFolder(QFileInfo(path).absolutePath());
        open(path);
    }
}

bool DatasetOpener::open(const QString& path)
{
    const auto found = datasetNames(path);
    if (!found || found.value().size() < 2) {
        return openDatasetOf(originOf(path));
    }
    QStringList names;
    for (const std::string& name : found.value()) {
        names << QString::fromStdString(name);
    }
    const QStringList chosen = m_surroundings.prompts.chooseDatasets(path.section(u'/', -1), names);
    bool isOpen = false;
    for (const QString& name : chosen) {
        isOpen = openMember(path, name) || isOpen;
    }
    return isOpen;
}

bool DatasetOpener::openMember(const QString& path, const QString& name)
{
    return openDatasetOf(originOf(path, name));
}

bool DatasetOpener::openJoined(const QString& path, const QString& name,
                               const QList<JoinedFile>& supplements)
{
    return openDatasetOf(originOf(path, name, supplements));
}

bool DatasetOpener::bringUp(const QString& path, const QString& member)
{
    const DatasetOrigin origin = originOf(path, member);
    if (QMdiSubWindow* window = m_openFiles.find(origin.fileKey)) {
        activate(window);
        return true;
    }
    return openDatasetOf(origin);
}

bool DatasetOpener::openDatasetOf(const DatasetOrigin& origin)
{
    if (settleReload(origin) == Reload::Declined) {
        return m_openFiles.find(origin.fileKey) != nullptr;
    }
    std::unique_ptr<DatasetWindow> window = read(origin);
    if (window == nullptr) {
        return false;
    }
    show(std::move(window));
    emit signalRead(origin.filePath);
    return true;
}

/// Asks whether a file that is open is to be read again, and if so closes its window.
DatasetOpener::Reload DatasetOpener::settleReload(const DatasetOrigin& origin)
{
    if (m_openFiles.find(origin.fileKey) == nullptr) {
        return Reload::NotOpen;
    }
    const QString question =
        tr("\"%1\" is already open.\nDo you want to reload it?").arg(titleOf(origin));
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
    if (!close(window, origin)) {
        return Reload::Declined;
    }
    // Not left to the event loop: the memory of the old dataset is wanted for the new one.
    delete window;
    return Reload::Agreed;
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
    return true;
}

/// Waits for the first sight of the window.
bool DatasetOpener::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint) {
        m_isPainted = true;
        watched->removeEventFilter(this);
    }
    return QObject::eventFilter(watched, event);
}

void DatasetOpener::openLater(const QStringList& paths)
{
    m_waiting << paths;
    if (!m_retry.isActive()) {
        m_retry.start(0);
    }
}

void DatasetOpener::openDropped(const QList<QUrl>& urls)
{
    QStringList paths;
    for (const QUrl& url : urls) {
        if (url.isLocalFile()) {
            paths << filepath::fromUrl(url);
        }
    }
    openLater(paths);
}

void DatasetOpener::openWaiting()
{
    const bool isStarting = !m_isPainted && !m_start.hasExpired();
    if (isStarting || QApplication::activeModalWidget() != nullptr) {
        constexpr int milliseconds = 50;
        m_retry.start(milliseconds);
        return;
    }
    for (const QString& path : std::exchange(m_waiting, QStringList())) {
        open(path);
    }
}

/// Reads a dataset into a window that is not shown yet; null, once it has been told, where that
/// fails.
std::unique_ptr<DatasetWindow> DatasetOpener::read(const DatasetOrigin& origin)
{
    QString reason;
    {
        const WaitCursor waitCursor;
        Result<std::unique_ptr<DatasetWindow>> loaded = load(origin);
        if (loaded) {
            return std::move(loaded.value());
        }
        reason = QString::fromStdString(loaded.error());
    }
    tellFailure(origin, reason);
    return nullptr;
}

Result<OpenedDataset> DatasetOpener::loadFile(const QString& path, const QString& member)
{
    LoadProgress progress(m_surroundings.window, path.section(u'/', -1));
    return m_surroundings.load(path, {.member = member.toStdString(), .progress = [&](int percent) {
                                          progress.advance(percent);
                                      }});
}

/// Reads the file, and joins it with the others where there are any.
Result<std::unique_ptr<DatasetWindow>> DatasetOpener::load(const DatasetOrigin& origin)
{
    Result<OpenedDataset> parent = loadFile(origin.filePath, origin.member());
    if (!parent) {
        return Failure{parent.error()};
    }
    if (origin.supplements.isEmpty()) {
        return std::make_unique<DatasetWindow>(std::move(parent.value().dataset), origin,
                                               m_surroundings.datasets);
    }
    std::vector<OpenedDataset> opened;
    std::vector<supplement::Supplement> supplements;
    for (const JoinedFile& file : origin.supplements) {
        Result<OpenedDataset> one = loadFile(file.path, file.member);
        if (!one) {
            return Failure{one.error()};
        }
        opened.push_back(std::move(one.value()));
        supplements.push_back({opened.back().dataset.get(), file.key().toStdString()});
    }
    Result<supplement::Joined> joined =
        supplement::join(std::move(parent.value().dataset),
                         datasetKey(origin.filePath, origin.member()).toStdString(), supplements);
    if (!joined) {
        return Failure{joined.error()};
    }
    return std::make_unique<DatasetWindow>(std::move(joined.value()), origin,
                                           m_surroundings.datasets);
}

void DatasetOpener::tellFailure(const DatasetOrigin& origin, const QString& reason)
{
    const QString member = origin.member();
    if (!origin.supplements.isEmpty()) {
        m_surroundings.prompts.warn(tr("Join SUPP--"), tr("Failed to join %1").arg(titleOf(origin)),
                                    enginemessages::translated(reason));
        return;
    }
    const QString text = member.isEmpty()
        ? tr("Failed to open the file: %1").arg(origin.filePath)
        : tr("Failed to open dataset '%1' in %2.").arg(member, origin.filePath);
    const bool isFrame = !member.isEmpty() && filekinds::isOfKind(origin.filePath, FileKind::R);
    m_surroundings.prompts.warn(isFrame ? tr("Open R Data") : tr("Open File"), text,
                                enginemessages::translated(reason));
}

void DatasetOpener::show(std::unique_ptr<DatasetWindow> window)
{
    const WaitCursor waitCursor;
    DatasetWindow* opened = window.get();
    connect(opened, &DatasetWindow::signalReloadRequested, this,
            [this](DatasetWindow* stale) { reload(*stale); });
    emit signalOpened(opened);
    m_surroundings.area.addSubWindow(window.release());  // which the area owns from here on
    m_openFiles.add(opened->fileKey(), opened);
    opened->show();
    emit signalShown(opened);
    activate(opened);
    followWindows();
}

void DatasetOpener::reloadActive()
{
    if (auto* window = qobject_cast<DatasetWindow*>(m_surroundings.area.currentSubWindow())) {
        reload(*window);
    }
}

void DatasetOpener::reload(DatasetWindow& window)
{
    const DatasetOrigin origin =
        originOf(window.origin().filePath, window.origin().member(), window.origin().supplements);
    std::unique_ptr<DatasetWindow> renewed = read(origin);
    if (renewed == nullptr) {
        return;
    }
    const GridPlace place(*window.view());
    const ViewState state = window.view()->opened()->state();
    const auto tab = m_surroundings.area.subWindowList().indexOf(&window);
    if (!close(&window, origin)) {
        return;
    }
    DatasetWindow* shown = renewed.get();
    show(std::move(renewed));
    if (auto* tabs = m_surroundings.area.findChild<QTabBar*>()) {
        tabs->moveTab(tabs->count() - 1, static_cast<int>(tab));
    }
    bringBack(*shown, state);
    place.goTo(*shown->view());
}

/// A filter that the new dataset cannot have goes, and everything else stays.
void DatasetOpener::bringBack(const DatasetWindow& window, ViewState state)
{
    OpenDataset& opened = *window.view()->opened();
    const CommandOutcome problem = opened.restore(state);
    if (problem) {
        const QString filter = std::exchange(state.datasetFilter, QString());
        static_cast<void>(opened.restore(state));
        m_surroundings.prompts.warn(tr("Reload Dataset"),
                                    tr("The filter could not be kept: %1").arg(filter),
                                    enginemessages::translated(problem->message));
    }
}

DatasetWindow* DatasetOpener::find(const QString& path, const QString& member) const
{
    return qobject_cast<DatasetWindow*>(m_openFiles.find(originOf(path, member).fileKey));
}

void DatasetOpener::forget(DatasetWindow* window)
{
    m_openFiles.remove(window->fileKey(), window);
    followWindows();
}

// What becomes of the files

QList<DatasetWindow*> DatasetOpener::windows() const
{
    QList<DatasetWindow*> windows;
    for (QMdiSubWindow* window : m_openFiles.windows()) {
        windows << qobject_cast<DatasetWindow*>(window);
    }
    return windows;
}

/// Names the windows that are open now, and watches their files.
void DatasetOpener::followWindows()
{
    const QList<DatasetWindow*> open = windows();
    tabtitles::show(m_surroundings.area, open);
    QStringList paths;
    for (const DatasetWindow* window : open) {
        paths << window->origin().filePath;
        for (const JoinedFile& file : window->origin().supplements) {
            paths << file.path;
        }
    }
    m_watch.setFiles(paths);
}

void DatasetOpener::lookAtFiles(const QString& changed)
{
    for (DatasetWindow* window : windows()) {
        QStringList paths{window->origin().filePath};
        for (const JoinedFile& file : window->origin().supplements) {
            paths << file.path;
        }
        const bool isConcerned = std::any_of(paths.begin(), paths.end(), [&](const QString& path) {
            return path == changed || QFileInfo(path).path() == changed;
        });
        if (isConcerned) {
            window->lookAtFile();
        }
    }
    followWindows();
}

void DatasetOpener::lookAtActiveFile(Qt::ApplicationState state) const
{
    auto* window = qobject_cast<DatasetWindow*>(m_surroundings.area.currentSubWindow());
    if (state == Qt::ApplicationActive && window != nullptr) {
        window->lookAtFile();
    }
}

void DatasetOpener::activate(QMdiSubWindow* window)
{
    m_surroundings.area.setActiveSubWindow(window);
    window->widget()->setFocus();
}

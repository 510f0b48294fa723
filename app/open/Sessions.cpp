#include "app/open/Sessions.h"

#include "app/dialogs/UserPrompts.h"
#include "app/docks/WorkspaceTree.h"
#include "app/open/DatasetOpener.h"
#include "app/window/DatasetWindow.h"
#include "app/window/GridServices.h"
#include "grid/MainTableView.h"
#include "grid/opened/EngineMessages.h"

#include <QDateTime>
#include <QFileInfo>
#include <QMdiArea>
#include <QPointer>

#include <algorithm>

Sessions::Sessions(const Surroundings& surroundings, const WorkspaceStore& store)
    : m_surroundings(surroundings)
    , m_registry(store)
    , m_nodes(surroundings.tree, m_registry, surroundings.prompts)
{
    connect(&surroundings.tree, &WorkspaceTree::signalSessionOpenRequested, this,
            &Sessions::restoreSession);
    m_nodes.loadSessions();
}

// Saving

void Sessions::promptSaveSession()
{
    const QString now = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm"));
    const std::optional<QString> name = m_surroundings.prompts.askText(
        tr("Save Session"), tr("Session name:"), tr("Session %1").arg(now));
    if (name && saveSession(*name)) {
        const QList<QMdiSubWindow*> windows = m_surroundings.area.subWindowList();
        const auto left = std::count_if(windows.begin(), windows.end(), [](QMdiSubWindow* each) {
            const auto* window = qobject_cast<DatasetWindow*>(each);
            return window != nullptr && window->join() != nullptr;
        });
        m_surroundings.services.showMessage(
            left == 0 ? tr("Session \"%1\" saved").arg(name->trimmed())
                      : tr("Session \"%1\" saved without joined datasets, of which there are %2")
                            .arg(name->trimmed())
                            .arg(left));
    }
}

bool Sessions::saveSession(const QString& name)
{
    UserPrompts& prompts = m_surroundings.prompts;
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty()) {
        prompts.warn(tr("Save Session"), tr("Session name cannot be empty."), QString());
        return false;
    }
    const QList<SavedDataset> datasets = openDatasets();
    if (datasets.isEmpty()) {
        prompts.inform(tr("Save Session"),
                       tr("No datasets are currently open to include in the session."));
        return false;
    }
    if (const Result<bool> done = m_registry.save({trimmed, datasets}); !done) {
        prompts.critical(tr("Save Session"), QString::fromStdString(done.error()));
        return false;
    }
    m_nodes.loadSessions();
    return true;
}

QList<SavedDataset> Sessions::openDatasets() const
{
    QList<SavedDataset> datasets;
    for (QMdiSubWindow* each : m_surroundings.area.subWindowList(QMdiArea::CreationOrder)) {
        const auto* window = qobject_cast<DatasetWindow*>(each);
        // A joined dataset has no file that could be opened again.
        if (window == nullptr || window->origin().filePath.isEmpty() || window->join() != nullptr) {
            continue;
        }
        const ViewState state = window->view()->opened()->state();
        SavedDataset dataset{window->origin().filePath, window->origin().member(),
                             state.libraryFilter, state.datasetFilter};
        for (const std::string& hidden : state.hiddenVariables) {
            dataset.hiddenVariables << QString::fromStdString(hidden);
        }
        datasets << dataset;
    }
    return datasets;
}

// Restoring

void Sessions::restoreSession(qint64 id)
{
    UserPrompts& prompts = m_surroundings.prompts;
    const QString title = tr("Open Session");
    const Result<SavedSession> loaded = m_registry.load(id);
    if (!loaded) {
        prompts.critical(title, QString::fromStdString(loaded.error()));
        return;
    }
    const SavedSession& session = loaded.value();
    if (session.datasets.isEmpty()) {
        prompts.inform(title,
                       tr("The session \"%1\" does not contain any datasets.").arg(session.name));
        return;
    }
    closeAll();
    QPointer<DatasetWindow> first;
    QStringList failures;
    for (const SavedDataset& dataset : session.datasets) {
        DatasetWindow* window = restore(dataset, failures);
        first = first == nullptr ? window : first.data();
    }
    if (first != nullptr) {
        m_surroundings.opener.activate(first);
    }
    if (!failures.isEmpty()) {
        prompts.warn(title,
                     tr("Some datasets could not be restored:\n%1").arg(failures.join(u'\n')),
                     QString());
    }
    m_surroundings.services.showMessage(tr("Session \"%1\" restored").arg(session.name));
}

void Sessions::closeAll() const
{
    for (QMdiSubWindow* window : m_surroundings.area.subWindowList()) {
        if (window->close()) {
            // Not left to the event loop: the memory of the old datasets is wanted for the new
            // ones.
            delete window;
        }
    }
}

/// @return  null where the dataset could not be opened
DatasetWindow* Sessions::restore(const SavedDataset& saved, QStringList& failures)
{
    DatasetOpener& opener = m_surroundings.opener;
    if (QFileInfo::exists(saved.filePath)) {
        static_cast<void>(saved.datasetName.isEmpty()
                              ? opener.open(saved.filePath)
                              : opener.openMember(saved.filePath, saved.datasetName));
    }
    DatasetWindow* window = opener.find(saved.filePath, saved.datasetName);
    if (window != nullptr) {
        bringBack(saved, *window, failures);
    } else {
        failures << datasetKey(saved.filePath, saved.datasetName);
    }
    return window;
}

/// A filter that the dataset cannot have any more is told, and everything else comes back.
void Sessions::bringBack(const SavedDataset& saved, DatasetWindow& window, QStringList& failures)
{
    OpenDataset& opened = *window.view()->opened();
    ViewState state;
    state.libraryFilter = saved.libraryFilter.trimmed();
    state.datasetFilter = saved.datasetFilter.trimmed();
    for (const QString& name : saved.hiddenVariables) {
        state.hiddenVariables.push_back(name.toStdString());
    }
    if (opened.libraryFilterText() != state.libraryFilter) {
        opened.clearLibraryFilter();
    }
    const auto tell = [&](const QString& filter, const CommandOutcome& problem) {
        failures << tr("%1: %2 (%3)")
                        .arg(datasetKey(saved.filePath, saved.datasetName), filter,
                             enginemessages::translated(problem->message));
    };
    ViewState unfiltered = state;
    unfiltered.datasetFilter.clear();
    if (const CommandOutcome problem = opened.restore(unfiltered)) {
        tell(state.libraryFilter, problem);
        state.libraryFilter.clear();
        unfiltered.libraryFilter.clear();
    }
    if (const CommandOutcome problem = opened.restore(state)) {
        tell(state.datasetFilter, problem);
        static_cast<void>(opened.restore(unfiltered));
    }
}

#include "app/docks/Libraries.h"

#include "app/dialogs/FolderVariablesDialog.h"
#include "app/dialogs/UserPrompts.h"
#include "app/docks/LibraryItem.h"
#include "app/docks/WorkspaceTree.h"
#include "app/start/Settings.h"
#include "app/window/GridServices.h"
#include "grid/opened/EngineMessages.h"
#include "workspace/LibraryEditorDialog.h"
#include "workspace/ManageLibrariesDialog.h"

#include <spdlog/spdlog.h>

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

Libraries::Libraries(const Surroundings& surroundings, const WorkspaceStore& store)
    : m_surroundings(surroundings)
    , m_registry(store)
{
    connect(&m_scanner, &FolderScanner::signalListed, this, &Libraries::showListing);
    connect(&m_scanner, &FolderScanner::signalSilent, this, &Libraries::showSilence);
    WorkspaceTree* tree = &m_surroundings.tree;
    connect(tree, &WorkspaceTree::signalEditRequested, this, &Libraries::edit);
    connect(tree, &WorkspaceTree::signalRemoveRequested, this, &Libraries::remove);
    connect(tree, &WorkspaceTree::signalRenameRequested, this, &Libraries::rename);
    connect(tree, &WorkspaceTree::signalVariablesRequested, this, &Libraries::showVariables);
}

// The tree

QList<LibraryItem*> Libraries::items() const
{
    const QStandardItem& top = *m_surroundings.tree.libraries();
    QList<LibraryItem*> items;
    for (int row = 0; row < top.rowCount(); ++row) {
        items << static_cast<LibraryItem*>(top.child(row));
    }
    return items;
}

void Libraries::fill()
{
    const Result<QList<Library>> loaded = m_registry.load();
    if (loaded) {
        show(loaded.value());
    } else {
        tell(loaded.error());
    }
}

/// Brings the tree's libraries in line with a list. Those that stay keep their files and whether
/// they are unfolded.
void Libraries::show(const QList<Library>& libraries)
{
    WorkspaceTree& tree = m_surroundings.tree;
    QStandardItem& top = *tree.libraries();
    QSet<qint64> unfolded;
    for (const LibraryItem* item : items()) {
        if (tree.isExpanded(tree.indexOf(*item))) {
            unfolded << item->library().id;
        }
    }
    QHash<qint64, LibraryItem*> present;
    while (top.rowCount() > 0) {
        auto* item = static_cast<LibraryItem*>(top.takeRow(0).first());
        present.insert(item->library().id, item);
    }
    for (const Library& library : libraries) {
        LibraryItem* item = present.take(library.id);
        const bool isNew = item == nullptr;
        const bool isElsewhere = isNew || item->library().dir != library.dir;
        if (isNew) {
            item = new LibraryItem(library);
        } else {
            item->setLibrary(library);
        }
        top.appendRow(item);
        tree.setExpanded(tree.indexOf(*item),
                         isNew ? library.opensItself : unfolded.contains(library.id));
        if (isElsewhere) {
            m_scanner.scan(library.dir);
        }
    }
    qDeleteAll(present);
    tree.setExpanded(tree.indexOf(top), true);
    watch();
    emit signalChanged();
}

void Libraries::watch()
{
    QStringList folders;
    for (const LibraryItem* item : items()) {
        if (item->library().watchesChanges) {
            folders << item->library().dir;
        }
    }
    m_scanner.setWatched(folders);
}

void Libraries::showListing(const QString& folder, const FolderScanner::Listing& listing,
                            bool isAsked)
{
    for (LibraryItem* item : items()) {
        if (item->library().dir == folder) {
            item->showListing(listing);
        }
    }
    if (!listing) {
        spdlog::warn("Failed to enumerate {}: {}", filepath::shown(folder).toStdString(),
                     listing.error());
        if (isAsked) {
            tell(listing.error());
        }
    }
    emit signalFolderChanged(folder);
}

void Libraries::showSilence(const QString& folder)
{
    spdlog::warn("Failed to enumerate {}: it does not answer",
                 filepath::shown(folder).toStdString());
    for (LibraryItem* item : items()) {
        if (item->library().dir == folder) {
            item->showSilence();
        }
    }
}

void Libraries::tell(const std::string& failure)
{
    m_surroundings.services.showMessage(
        enginemessages::translated(QString::fromStdString(failure)));
}

// What the user asks for

void Libraries::openFolder()
{
    Settings& settings = m_surroundings.settings;
    const QString folder =
        m_surroundings.prompts.chooseFolder(tr("Open Folder"), settings.lastFolder());
    if (folder.isEmpty()) {
        return;
    }
    settings.setLastFolder(folder);
    const Result<Library> added = m_registry.add(folder);
    if (!added) {
        tell(added.error());
        return;
    }
    fill();
    WorkspaceTree& tree = m_surroundings.tree;
    if (QStandardItem* item = tree.library(added.value().id)) {
        tree.expand(tree.indexOf(*item));
        tree.setCurrentIndex(tree.indexOf(*item));
        refresh(item);
    }
}

void Libraries::showManageDialog()
{
    ManageLibrariesDialog dialog(m_registry, prompts(), &m_surroundings.window);
    if (dialog.load() && dialog.exec() == QDialog::Accepted) {
        fill();
    }
}

void Libraries::refresh(QStandardItem* library)
{
    m_scanner.scan(static_cast<LibraryItem*>(library)->library().dir);
}

/// Edits one library among all, as the dialog of all would write it.
void Libraries::edit(QStandardItem* library)
{
    const qint64 id = static_cast<LibraryItem*>(library)->library().id;
    const auto loaded = m_registry.loadForEditing();
    if (!loaded) {
        tell(loaded.error());
        return;
    }
    QList<Library> libraries = loaded.value();
    const auto edited = std::find_if(libraries.begin(), libraries.end(),
                                     [id](const Library& one) { return one.id == id; });
    if (edited == libraries.end()) {
        fill();  // another window has taken it out
        return;
    }
    QStringList otherDirs;
    for (const Library& other : std::as_const(libraries)) {
        if (other.id != id) {
            otherDirs << other.dir;
        }
    }
    LibraryEditorDialog dialog(*edited, otherDirs, prompts(), &m_surroundings.window);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    *edited = dialog.library();
    if (const Result<bool> saved = m_registry.save(libraries, {}); !saved) {
        m_surroundings.prompts.warn(dialog.windowTitle(), QString::fromStdString(saved.error()),
                                    QString());
    }
    fill();
}

void Libraries::remove(QStandardItem* library)
{
    const Library removed = static_cast<LibraryItem*>(library)->library();
    if (!m_surroundings.prompts.confirm(
            tr("Remove Library"),
            tr("Remove the library \"%1\" from the workspace?\nThe files in %2 stay as they are.")
                .arg(removed.shownName(), QDir::toNativeSeparators(removed.dir)))) {
        return;
    }
    if (const Result<bool> done = m_registry.remove(removed.id); !done) {
        tell(done.error());
        return;
    }
    fill();
}

void Libraries::rename(QStandardItem* library, const QString& name)
{
    Library renamed = static_cast<LibraryItem*>(library)->library();
    if (const Result<bool> done = m_registry.rename(renamed.id, name); !done) {
        tell(done.error());
        return;
    }
    renamed.name = name;
    static_cast<LibraryItem*>(library)->setLibrary(renamed);
    emit signalChanged();
}

void Libraries::showVariables(QStandardItem* library)
{
    const Library shown = static_cast<LibraryItem*>(library)->library();
    auto* dialog = new FolderVariablesDialog(shown.shownName(), shown.dir, &m_surroundings.window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &FolderVariablesDialog::signalVariableRequested, this,
            &Libraries::signalVariableRequested);
    dialog->show();
}

programtext::Library Libraries::libraryOf(const QString& path) const
{
    const QString folder = QFileInfo(path).path();
    for (const LibraryItem* item : items()) {
        const Library& library = item->library();
        if (library.dir == folder) {
            return {library.dir, library.alias, library.name};
        }
    }
    return {};
}

void Libraries::applyFilterOf(const QString& path)
{
    LibraryFilter& inForce = m_surroundings.services.datasets().libraryFilter;
    const QString folder = QFileInfo(path).path();
    for (const LibraryItem* item : items()) {
        const Library& library = item->library();
        if (library.dir != folder || library.filter.isEmpty() || inForce.isInForce()) {
            continue;
        }
        const CommandOutcome outcome =
            inForce.run(library.filter,
                        CommandReading{.dialect = Dialect::FilterText,
                                       .bare = CommandParser::BareCondition::IsWhere});
        if (outcome) {
            m_surroundings.services.showMessage(
                tr("The library filter of %1 cannot be used: %2")
                    .arg(library.shownName(), enginemessages::translated(outcome->message)));
        }
    }
}

LibraryPrompts Libraries::prompts()
{
    UserPrompts& user = m_surroundings.prompts;
    return {
        [&user](const QString& title, const QString& text) { user.warn(title, text, QString()); },
        [&user](const QString& title, const QString& folder) {
            return user.chooseFolder(title, folder);
        },
        [&user](const QString& title, const QColor& color) {
            return user.chooseColor(title, color);
        }};
}

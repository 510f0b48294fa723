#pragma once

#include "app/docks/SessionNodes.h"
#include "workspace/SessionRegistry.h"

#include <QCoreApplication>

class DatasetOpener;
class DatasetWindow;
class GridServices;
class QMdiArea;
class UserPrompts;
class WorkspaceStore;
class WorkspaceTree;

/// The open datasets as sessions: saved under a name, listed in the workspace tree and opened again
/// with their filters and hidden variables.
class Sessions : public QObject
{
    Q_OBJECT

public:
    /// All outlive the sessions.
    struct Surroundings
    {
        QMdiArea& area;
        DatasetOpener& opener;
        WorkspaceTree& tree;
        GridServices& services;
        UserPrompts& prompts;
    };

    Sessions(const Surroundings& surroundings, const WorkspaceStore& store);

    /// Lets the user name the session and saves it.
    void promptSaveSession();
    /// Saves what is open, over a session of that name; what goes wrong is told to the user.
    /// @param name  blanks round it do not count
    /// @return      whether it is saved
    bool saveSession(const QString& name);
    /// Opens the datasets of a session in the place of those that are open. Those that cannot be
    /// opened as they were are told to the user.
    void restoreSession(qint64 id);

private:
    [[nodiscard]] QList<SavedDataset> openDatasets() const;
    void closeAll() const;
    [[nodiscard]] DatasetWindow* restore(const SavedDataset& saved, QStringList& failures);
    static void bringBack(const SavedDataset& saved, DatasetWindow& window, QStringList& failures);

    Surroundings m_surroundings;
    SessionRegistry m_registry;
    SessionNodes m_nodes;
};

#pragma once

#include "workspace/SavedSession.h"

#include <QObject>

class QStandardItem;
class SessionRegistry;
class UserPrompts;
class WorkspaceTree;

/// The saved sessions in the workspace tree, below "Session".
class SessionNodes : public QObject
{
    Q_OBJECT

public:
    /// All outlive the nodes.
    SessionNodes(WorkspaceTree& tree, const SessionRegistry& registry, UserPrompts& prompts,
                 QObject* parent = nullptr);

    /// Lists the sessions as the store holds them now.
    void loadSessions();
    /// Deletes a session, if the user says yes. No file is touched.
    void remove(qint64 id);

private:
    static void fill(QStandardItem& node, const QList<SessionEntry>& entries);
    void goTo(qint64 id, int row);

    WorkspaceTree& m_tree;
    const SessionRegistry& m_registry;
    UserPrompts& m_prompts;
};

#include "app/docks/SessionNodes.h"

#include "app/dialogs/UserPrompts.h"
#include "app/docks/WorkspaceTree.h"
#include "app/look/Icons.h"
#include "workspace/SessionRegistry.h"

#include <QStandardItem>

using namespace workspaceitem;

SessionNodes::SessionNodes(WorkspaceTree& tree, const SessionRegistry& registry,
                           UserPrompts& prompts, QObject* parent)
    : QObject(parent)
    , m_tree(tree)
    , m_registry(registry)
    , m_prompts(prompts)
{
    connect(&m_tree, &WorkspaceTree::signalSessionDeleteRequested, this, &SessionNodes::remove);
}

void SessionNodes::loadSessions()
{
    const std::optional<QList<SessionEntry>> entries = m_registry.list();
    if (!entries) {
        return;
    }
    const QModelIndex current = m_tree.currentIndex();
    const bool isSession = current.data(KindRole).toInt() == Session;
    const int row = current.row();
    const qint64 id = current.data(IdRole).toLongLong();
    QStandardItem& node = *m_tree.sessions();
    fill(node, *entries);
    m_tree.expand(m_tree.indexOf(node));
    if (isSession) {
        goTo(id, row);
    }
}

void SessionNodes::fill(QStandardItem& node, const QList<SessionEntry>& entries)
{
    node.removeRows(0, node.rowCount());
    const QIcon icon =
        QIcon::fromTheme(QStringLiteral("view-history"), icons::icon(QStringLiteral("quickopen")));
    for (const SessionEntry& entry : entries) {
        auto* item = new QStandardItem(icon, entry.name);
        item->setToolTip(entry.name);
        item->setEditable(false);
        item->setData(Session, KindRole);
        item->setData(entry.id, IdRole);
        node.appendRow(item);
    }
}

/// Keeps the keyboard's place: on the session, or where it stood if it is gone.
void SessionNodes::goTo(qint64 id, int row)
{
    const QStandardItem& node = *m_tree.sessions();
    const QStandardItem* place = &node;
    for (int i = 0; i < node.rowCount(); ++i) {
        const QStandardItem* item = node.child(i);
        const bool isIt = item->data(IdRole).toLongLong() == id;
        place = isIt || i <= row ? item : place;
        if (isIt) {
            break;
        }
    }
    m_tree.setCurrentIndex(m_tree.indexOf(*place));
}

void SessionNodes::remove(qint64 id)
{
    const Result<SavedSession> session = m_registry.load(id);
    // One that another window has deleted only goes from the list.
    if (session
        && !m_prompts.confirm(tr("Delete Session"),
                              tr("Do you want to delete the session \"%1\"?\n"
                                 "The files of its datasets stay.")
                                  .arg(session.value().name))) {
        return;
    }
    if (const Result<bool> done = m_registry.remove(id); !done) {
        m_prompts.critical(tr("Delete Session"), QString::fromStdString(done.error()));
    }
    loadSessions();
}

#include "app/docks/WorkspaceTree.h"

#include "app/look/Icons.h"

#include <QStandardItemModel>

WorkspaceTree::WorkspaceTree(QWidget* parent)
    : QTreeView(parent)
    , m_model(new QStandardItemModel(this))
    , m_libraries(addTopItem(tr("Library"), QStringLiteral("library")))
    , m_sessions(addTopItem(tr("Session"), QStringLiteral("session")))
{
    setObjectName(QStringLiteral("treeView"));
    setAccessibleName(tr("Workspace"));
    setHeaderHidden(true);
    setEditTriggers(NoEditTriggers);
    setModel(m_model);
}

QStandardItem* WorkspaceTree::addTopItem(const QString& text, const QString& icon)
{
    auto* item = new QStandardItem(icons::icon(icon), text);
    m_model->appendRow(item);
    return item;
}

#pragma once

#include <QTreeView>

class QStandardItem;
class QStandardItemModel;

/// The tree of the workspace: the registered libraries and the saved sessions.
class WorkspaceTree : public QTreeView
{
    Q_OBJECT

public:
    explicit WorkspaceTree(QWidget* parent = nullptr);

    [[nodiscard]] QStandardItem* libraries() const { return m_libraries; }
    [[nodiscard]] QStandardItem* sessions() const { return m_sessions; }

private:
    [[nodiscard]] QStandardItem* addTopItem(const QString& text, const QString& icon);

    QStandardItemModel* m_model;
    QStandardItem* m_libraries;
    QStandardItem* m_sessions;
};

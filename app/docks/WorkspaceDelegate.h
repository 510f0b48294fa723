#pragma once

#include <QStyledItemDelegate>

/// Paints the items of the workspace tree in colours that can be read, and takes new names of
/// libraries, which it announces without changing the item.
class WorkspaceDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

signals:
    void signalRenamed(const QModelIndex& index, const QString& name) const;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

#pragma once

#include <QSortFilterProxyModel>

/// The items of the workspace tree that contain a text, with what stands above and below them. The
/// top items stay in any case.
class WorkspaceFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit WorkspaceFilter(QObject* parent = nullptr);

    /// @param text  in any letter case; empty for all items
    void setText(const QString& text);
    [[nodiscard]] const QString& text() const { return m_text; }

protected:
    [[nodiscard]] bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    QString m_text;
};

#pragma once

#include <QStyledItemDelegate>

/// Draws a quiet bar behind a count, as long as its share of the largest one.
class CountBarDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// @param count  the largest in the list
    void setLargest(int count) { m_largest = count; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    int m_largest = 0;
};

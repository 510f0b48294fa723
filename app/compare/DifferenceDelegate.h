#pragma once

#include "app/compare/DifferenceModel.h"

#include <QStyledItemDelegate>

/// Paints the cells of a DifferenceModel: unequal values on a ground of their own with a mark in
/// the corner, the letters in which texts differ underlined, equal values of the compare dataset
/// dimmed, and the rows of an observation as one.
class DifferenceDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// @param model  outlives the delegate
    explicit DifferenceDelegate(const DifferenceModel& model, QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    void paintLetters(QPainter* painter, QStyleOptionViewItem& option,
                      const QModelIndex& index) const;

    const DifferenceModel& m_model;
};

#pragma once

#include <QHeaderView>

#include <functional>

/// A header of a grid: marks the section of the current cell, and aligns titles as the cells are.
class GridHeader : public QHeaderView
{
    Q_OBJECT

public:
    GridHeader(Qt::Orientation orientation, QWidget* parent);

    /// Marks a section and takes the mark from the one that had it.
    /// @param section  -1 for none
    void markSection(int section);
    /// The sections for which this is true stand to the right.
    void setRightAligned(std::function<bool(int section)> isRightAligned);
    /// The width that the section's title asks for, also while it is hidden.
    [[nodiscard]] int titleWidth(int section) const;

protected:
    void initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const override;
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;

private:
    std::function<bool(int)> m_isRightAligned;
    int m_marked = -1;
};

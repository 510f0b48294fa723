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
    /// The sections for which this is true bear a mark: what they show was added to the file's own.
    void setAdded(std::function<bool(int section)> isAdded);
    /// The width that the section's title asks for, also while it is hidden.
    [[nodiscard]] int titleWidth(int section) const;

protected:
    void initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const override;
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;

private:
    void paintCorner(QPainter& painter, const QRect& rect) const;

    std::function<bool(int)> m_isRightAligned;
    std::function<bool(int)> m_isAdded;
    int m_marked = -1;
};

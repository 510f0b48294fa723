#include "grid/GridHeader.h"

#include <QPainter>
#include <QStyleOptionHeader>

GridHeader::GridHeader(Qt::Orientation orientation, QWidget* parent)
    : QHeaderView(orientation, parent)
{
    setSectionsClickable(true);
    // Of every selected section Qt would ask each cell.
    setHighlightSections(false);
}

void GridHeader::markSection(int section)
{
    if (section != m_marked) {
        m_marked = section;
        viewport()->update();
    }
}

void GridHeader::setRightAligned(std::function<bool(int section)> isRightAligned)
{
    m_isRightAligned = std::move(isRightAligned);
}

void GridHeader::setAdded(std::function<bool(int section)> isAdded)
{
    m_isAdded = std::move(isAdded);
}

int GridHeader::titleWidth(int section) const
{
    return sectionSizeFromContents(section).width();
}

void GridHeader::initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const
{
    QHeaderView::initStyleOptionForIndex(option, logicalIndex);
    if (m_isRightAligned && m_isRightAligned(logicalIndex)) {
        option->textAlignment = Qt::AlignRight | Qt::AlignVCenter;
    }
    option->state.setFlag(QStyle::State_On, logicalIndex == m_marked);
}

void GridHeader::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const
{
    painter->save();
    QFont titleFont = font();
    titleFont.setBold(logicalIndex == m_marked);
    const bool isAdded = m_isAdded && m_isAdded(logicalIndex);
    titleFont.setItalic(isAdded);
    painter->setFont(titleFont);
    QHeaderView::paintSection(painter, rect, logicalIndex);
    painter->restore();
    if (isAdded) {
        paintCorner(*painter, rect);
    }
}

/// As spreadsheets mark a cell that has something more to tell.
void GridHeader::paintCorner(QPainter& painter, const QRect& rect) const
{
    constexpr int size = 8;
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().highlight());
    painter.drawPolygon(QPolygon(
        {rect.topLeft(), rect.topLeft() + QPoint(size, 0), rect.topLeft() + QPoint(0, size)}));
    painter.restore();
}

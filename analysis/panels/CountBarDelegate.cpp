#include "analysis/panels/CountBarDelegate.h"

#include <QPainter>

void CountBarDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const
{
    if (m_largest > 0 && !option.state.testFlag(QStyle::State_Selected)) {
        constexpr int margin = 2;
        const QRect room = option.rect.adjusted(0, margin, 0, -margin);
        const double share = static_cast<double>(index.data().toInt()) / m_largest;
        QColor colour = option.palette.color(QPalette::Highlight);
        colour.setAlphaF(0.3F);
        painter->fillRect(QRectF(room.left(), room.top(), room.width() * share, room.height()),
                          colour);
    }
    QStyledItemDelegate::paint(painter, option, index);
}

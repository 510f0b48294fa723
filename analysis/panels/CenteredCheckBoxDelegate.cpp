#include "analysis/panels/CenteredCheckBoxDelegate.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

const QStyle& styleOf(const QStyleOptionViewItem& option)
{
    return option.widget == nullptr ? *QApplication::style() : *option.widget->style();
}

QRect boxIn(const QStyleOptionViewItem& option)
{
    const QSize size =
        styleOf(option).subElementRect(QStyle::SE_CheckBoxIndicator, &option, option.widget).size();
    return QStyle::alignedRect(option.direction, Qt::AlignCenter, size, option.rect);
}

/// Whether the event is a click in the cell or a key that presses buttons.
bool isToggle(const QEvent& event, const QStyleOptionViewItem& option)
{
    if (event.type() == QEvent::MouseButtonRelease) {
        const auto& mouse = static_cast<const QMouseEvent&>(event);
        return mouse.button() == Qt::LeftButton && option.rect.contains(mouse.position().toPoint());
    }
    if (event.type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent&>(event).key();
        return key == Qt::Key_Space || key == Qt::Key_Select;
    }
    return false;
}

}  // namespace

void CenteredCheckBoxDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                     const QModelIndex& index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const bool isChecked = cell.checkState == Qt::Checked;
    cell.features &= ~QStyleOptionViewItem::HasCheckIndicator;
    cell.text.clear();
    const QStyle& style = styleOf(cell);
    style.drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);

    QStyleOptionButton box;
    box.rect = boxIn(cell);
    box.palette = cell.palette;
    box.state = QStyle::State_Enabled | (isChecked ? QStyle::State_On : QStyle::State_Off);
    style.drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, painter, cell.widget);
}

bool CenteredCheckBoxDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                           const QStyleOptionViewItem& option,
                                           const QModelIndex& index)
{
    if (!index.flags().testFlag(Qt::ItemIsUserCheckable) || !isToggle(*event, option)) {
        return false;
    }
    const bool isChecked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    return model->setData(index, isChecked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

#include "app/docks/WorkspaceDelegate.h"

#include <QLineEdit>

#include <cstdlib>

namespace {

/// A colour of the user's, lighter or darker where it could not be told from the ground.
QColor readable(const QColor& color, const QPalette& palette)
{
    constexpr int least = 90;  // of 255
    constexpr int share = 3;  // the user's colour stays a third of it
    const QColor ground = palette.color(QPalette::Base);
    if (std::abs(qGray(color.rgb()) - qGray(ground.rgb())) >= least) {
        return color;
    }
    const bool isDark = qGray(ground.rgb()) < 128;
    const int end = isDark ? 255 : 0;
    const auto mix = [&](int part) { return (part + (share - 1) * end) / share; };
    return {mix(color.red()), mix(color.green()), mix(color.blue())};
}

}  // namespace

void WorkspaceDelegate::initStyleOption(QStyleOptionViewItem* option,
                                        const QModelIndex& index) const
{
    const QPalette palette = option->palette;
    QStyledItemDelegate::initStyleOption(option, index);
    if (const auto brush = index.data(Qt::ForegroundRole); brush.isValid()) {
        option->palette.setColor(QPalette::Text, readable(brush.value<QBrush>().color(), palette));
    }
}

/// The folder may be listed anew while a name is typed, which must not undo it.
void WorkspaceDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const auto* line = qobject_cast<QLineEdit*>(editor);
    if (line == nullptr || !line->isModified()) {
        QStyledItemDelegate::setEditorData(editor, index);
    }
}

void WorkspaceDelegate::setModelData(QWidget* editor, QAbstractItemModel* /*model*/,
                                     const QModelIndex& index) const
{
    const auto* line = qobject_cast<QLineEdit*>(editor);
    const QString name = line == nullptr ? QString() : line->text().trimmed();
    if (!name.isEmpty() && name != index.data().toString()) {
        emit signalRenamed(index, name);
    }
}

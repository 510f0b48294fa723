#include "app/docks/ShortcutKeysWindow.h"

#include "app/docks/ShortcutList.h"

#include <QHeaderView>

#include <optional>

ShortcutKeysWindow::ShortcutKeysWindow(QWidget* parent)
    : QTreeWidget(parent)
{
    setUp();
    fill();
    for (int column = 0; column < columnCount() - 1; ++column) {
        resizeColumnToContents(column);
    }
}

void ShortcutKeysWindow::setUp()
{
    setAccessibleName(tr("Shortcut keys"));
    setHeaderLabels({tr("Action"), tr("Keys"), tr("Description")});
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAlternatingRowColors(true);
    setUniformRowHeights(true);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    header()->setSectionsMovable(false);
}

void ShortcutKeysWindow::fill()
{
    QTreeWidgetItem* heading = nullptr;
    std::optional<ShortcutContext> context;
    const QList<Shortcut> shortcuts = shortcutlist::all();
    for (const Shortcut& shortcut : shortcuts) {
        if (context != shortcut.context) {
            context = shortcut.context;
            heading = addHeading(shortcutlist::contextName(shortcut.context));
        }
        auto* row = new QTreeWidgetItem(
            heading, QStringList{shortcut.action, shortcut.keys, shortcut.description});
        // A dock is seldom wide enough for the longest.
        row->setToolTip(2, shortcut.description);
    }
    expandAll();
}

QTreeWidgetItem* ShortcutKeysWindow::addHeading(const QString& text)
{
    auto* heading = new QTreeWidgetItem(this, QStringList{text});
    heading->setFirstColumnSpanned(true);
    QFont bold = font();
    bold.setBold(true);
    heading->setFont(0, bold);
    return heading;
}

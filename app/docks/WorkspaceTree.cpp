#include "app/docks/WorkspaceTree.h"

#include "app/docks/WorkspaceDelegate.h"
#include "app/docks/WorkspaceFilter.h"
#include "app/look/Icons.h"
#include "app/open/SuppFiles.h"
#include "grid/NativeKeys.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMetaMethod>
#include <QPersistentModelIndex>
#include <QScrollBar>
#include <QStandardItemModel>

#include <algorithm>
#include <array>

using namespace workspaceitem;

namespace {

Kind kindOf(const QModelIndex& index)
{
    return static_cast<Kind>(index.data(KindRole).toInt());
}

bool isTyped(const QKeyEvent& event)
{
    const bool isCommand =
        (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    return !isCommand && !event.text().isEmpty() && event.text().front().isPrint();
}

/// Whether supplemental qualifiers stand beside a dataset: "suppae.xpt" beside "ae.xpt".
bool hasSupplement(const QStandardItem& dataset)
{
    const QStandardItem* folder = dataset.parent();
    const QString name = dataset.text().section(u'.', 0, -2);
    for (int row = 0; folder != nullptr && row < folder->rowCount(); ++row) {
        if (suppfiles::belongs(folder->child(row)->text().section(u'.', 0, -2), name)) {
            return true;
        }
    }
    return false;
}

}  // namespace

WorkspaceTree::WorkspaceTree(QWidget* parent)
    : QTreeView(parent)
    , m_items(new QStandardItemModel(this))
    , m_filter(new WorkspaceFilter(this))
    , m_libraries(addTopItem(tr("Library"), QStringLiteral("library"), Libraries))
    , m_sessions(addTopItem(tr("Session"), QStringLiteral("session"), Sessions))
    , m_box(new QLineEdit(this))
{
    setObjectName(QStringLiteral("treeView"));
    setAccessibleName(tr("Workspace"));
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    m_filter->setSourceModel(m_items);
    setModel(m_filter);
    auto* delegate = new WorkspaceDelegate(this);
    setItemDelegate(delegate);
    connect(delegate, &WorkspaceDelegate::signalRenamed, this,
            [this](const QModelIndex& index, const QString& name) {
                emit signalRenameRequested(itemAt(index), name);
            });
    createFilterBox();
    expandToDepth(0);
}

QStandardItem* WorkspaceTree::addTopItem(const QString& text, const QString& icon, Kind kind)
{
    auto* item = new QStandardItem(icons::icon(icon), text);
    item->setData(kind, KindRole);
    item->setEditable(false);
    m_items->appendRow(item);
    return item;
}

// Items

QModelIndex WorkspaceTree::indexOf(const QStandardItem& item) const
{
    return m_filter->mapFromSource(item.index());
}

QStandardItem* WorkspaceTree::itemAt(const QModelIndex& index) const
{
    return m_items->itemFromIndex(m_filter->mapToSource(index));
}

QStandardItem* WorkspaceTree::library(qint64 id) const
{
    for (int row = 0; row < m_libraries->rowCount(); ++row) {
        if (m_libraries->child(row)->data(IdRole).toLongLong() == id) {
            return m_libraries->child(row);
        }
    }
    return nullptr;
}

QStandardItem* WorkspaceTree::libraryOf(QStandardItem* item)
{
    while (item != nullptr && item->data(KindRole).toInt() != LibraryFolder) {
        item = item->parent();
    }
    return item;
}

QStringList WorkspaceTree::selectedPaths() const
{
    QModelIndexList indexes = selectedIndexes();
    std::sort(indexes.begin(), indexes.end(), [this](const QModelIndex& a, const QModelIndex& b) {
        return visualRect(a).top() < visualRect(b).top();
    });
    QStringList paths;
    for (const QModelIndex& index : indexes) {
        if (kindOf(index) == Dataset) {
            paths << index.data(PathRole).toString();
        }
    }
    return paths;
}

/// The selected datasets, or only this one where it is none of them.
QStringList WorkspaceTree::pathsWith(const QString& path) const
{
    QStringList selected = selectedPaths();
    return selected.contains(path) ? selected : QStringList(path);
}

void WorkspaceTree::activate(const QModelIndex& index)
{
    if (kindOf(index) == Dataset) {
        emit signalOpenRequested(pathsWith(index.data(PathRole).toString()));
    } else if (kindOf(index) == Session) {
        emit signalSessionOpenRequested(index.data(IdRole).toLongLong());
    }
}

void WorkspaceTree::editName()
{
    if (kindOf(currentIndex()) == LibraryFolder && isHeard(&WorkspaceTree::signalRenameRequested)) {
        edit(currentIndex());
    }
}

// Keys

bool WorkspaceTree::event(QEvent* event)
{
    // Letters are typed into the filter, and these keys are the tree's while it has the focus,
    // whatever they are in the rest of the window.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        constexpr std::array own{int(Qt::Key_F2), int(Qt::Key_F5), int(Qt::Key_Delete),
                                 int(Qt::Key_Return), int(Qt::Key_Enter)};
        if (isTyped(*key) || std::find(own.begin(), own.end(), key->key()) != own.end()) {
            event->accept();
            return true;
        }
    }
    return QTreeView::event(event);
}

void WorkspaceTree::keyPressEvent(QKeyEvent* event)
{
    if (state() == EditingState || !runKey(event->key(), event->modifiers())) {
        QTreeView::keyPressEvent(event);
    }
}

bool WorkspaceTree::runKey(int key, Qt::KeyboardModifiers modifiers)
{
    const QModelIndex current = currentIndex();
    QStandardItem* library = libraryOf(itemAt(current));
    const Kind kind = kindOf(current);
    const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (isReturn && modifiers.testFlag(Qt::AltModifier)) {
        if (kind == Dataset) {
            emit signalPropertiesRequested(current.data(PathRole).toString());
        }
    } else if (isReturn && (kind == Dataset || kind == Session)) {
        activate(current);
    } else if (isReturn) {
        setExpanded(current, !isExpanded(current));
    } else if (key == Qt::Key_F2) {
        editName();
    } else if (key == Qt::Key_F5 && library != nullptr) {
        emit signalRefreshRequested(library);
    } else if (key == Qt::Key_Delete && kind == LibraryFolder) {
        emit signalRemoveRequested(library);
    } else if (key == Qt::Key_Delete && kind == Session) {
        emit signalSessionDeleteRequested(current.data(IdRole).toLongLong());
    } else if (key == Qt::Key_Escape && !m_filter->text().isEmpty()) {
        showAll();
    } else {
        return false;
    }
    return true;
}

// The filter

void WorkspaceTree::createFilterBox()
{
    m_box->setObjectName(QStringLiteral("treeFilter"));
    m_box->setAccessibleName(tr("Filter of the workspace"));
    m_box->setPlaceholderText(tr("Filter"));
    m_box->setClearButtonEnabled(true);
    m_box->hide();
    m_box->installEventFilter(this);
    connect(m_box, &QLineEdit::textChanged, this, &WorkspaceTree::narrow);
}

void WorkspaceTree::placeFilterBox()
{
    const int height = m_box->isHidden() ? 0 : m_box->sizeHint().height();
    setViewportMargins(0, 0, 0, height);
    const QRect place = contentsRect();
    const int scroll = verticalScrollBar()->isVisible() ? verticalScrollBar()->width() : 0;
    m_box->setGeometry(place.left(), viewport()->geometry().bottom() + 1, place.width() - scroll,
                       height);
}

void WorkspaceTree::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    placeFilterBox();
}

/// What is typed while the tree has the focus.
void WorkspaceTree::keyboardSearch(const QString& search)
{
    if (m_box->isHidden() && search.trimmed().isEmpty()) {
        return;
    }
    m_box->show();
    placeFilterBox();
    m_box->setFocus();
    m_box->setText(m_box->text() + search);
}

void WorkspaceTree::narrow(const QString& text)
{
    const bool wasWhole = m_filter->text().isEmpty();
    if (wasWhole) {
        m_unfolded.clear();
        for (int row = 0; row < m_libraries->rowCount(); ++row) {
            const QStandardItem& library = *m_libraries->child(row);
            if (isExpanded(indexOf(library))) {
                m_unfolded.insert(library.data(IdRole).toLongLong());
            }
        }
    }
    m_filter->setText(text);
    expandAll();
    if (text.isEmpty()) {
        for (int row = 0; row < m_libraries->rowCount(); ++row) {
            const QStandardItem& library = *m_libraries->child(row);
            setExpanded(indexOf(library), m_unfolded.contains(library.data(IdRole).toLongLong()));
        }
        return;
    }
    QModelIndex first = m_filter->index(0, 0);
    while (first.isValid() && !(kindOf(first) == Dataset || kindOf(first) == Session)) {
        first = indexBelow(first);
    }
    if (first.isValid()) {
        setCurrentIndex(first);
    } else {
        clearSelection();
    }
}

void WorkspaceTree::showAll()
{
    m_box->clear();
    m_box->hide();
    placeFilterBox();
    setFocus();
    scrollTo(currentIndex());
}

/// The keys that lead from the filter back to the tree.
bool WorkspaceTree::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_box || event->type() != QEvent::KeyPress) {
        return QTreeView::eventFilter(watched, event);
    }
    switch (static_cast<const QKeyEvent*>(event)->key()) {
    case Qt::Key_Escape:
        showAll();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        activate(currentIndex());
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        setFocus();
        QTreeView::keyPressEvent(static_cast<QKeyEvent*>(event));
        return true;
    default:
        return false;
    }
}

// Menus

template <typename Signal>
bool WorkspaceTree::isHeard(Signal signal) const
{
    return isSignalConnected(QMetaMethod::fromSignal(signal));
}

void WorkspaceTree::contextMenuEvent(QContextMenuEvent* event)
{
    const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
    emit signalMenuRequested(isByKey ? visualRect(currentIndex()).center() : event->pos());
}

void WorkspaceTree::showMenu(const QPoint& position)
{
    QModelIndex index = indexAt(position);
    index = index.isValid() ? index : indexOf(*m_libraries);
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fillMenu(*menu, *itemAt(index));
    if (menu->isEmpty()) {
        delete menu;
    } else {
        menu->popup(viewport()->mapToGlobal(position));
    }
}

void WorkspaceTree::fillMenu(QMenu& menu, QStandardItem& item)
{
    const auto add = [&](auto signal, const QString& text) {
        if (isHeard(signal)) {
            menu.addAction(text, this, signal);
        }
    };
    switch (static_cast<Kind>(item.data(KindRole).toInt())) {
    case Libraries:
        add(&WorkspaceTree::signalAddLibraryRequested, tr("Open Folder"));
        add(&WorkspaceTree::signalManageRequested, tr("Manage Libraries"));
        break;
    case LibraryFolder:
    case Note:
        fillLibraryMenu(menu, *libraryOf(&item));
        break;
    case Dataset:
        fillDatasetMenu(menu, item);
        break;
    case Session:
        fillSessionMenu(menu, item);
        break;
    case Sessions:
    case None:
        break;
    }
}

/// The library may go while its menu is open: its folder follows what is on the disk, and another
/// window may have removed it.
void WorkspaceTree::fillLibraryMenu(QMenu& menu, QStandardItem& library)
{
    const QPersistentModelIndex place(library.index());
    const auto add = [&, this](void (WorkspaceTree::*signal)(QStandardItem*), const QString& text) {
        if (isHeard(signal)) {
            menu.addAction(text, this, [this, place, signal] {
                if (QStandardItem* item = m_items->itemFromIndex(place)) {
                    emit(this->*signal)(item);
                }
            });
        }
    };
    add(&WorkspaceTree::signalVariablesRequested, tr("Variables of All Datasets"));
    menu.addSeparator();
    add(&WorkspaceTree::signalRefreshRequested, withNativeKeys(tr("Refresh\tF5")));
    add(&WorkspaceTree::signalEditRequested, tr("Edit"));
    if (isHeard(&WorkspaceTree::signalRenameRequested)) {
        menu.addAction(withNativeKeys(tr("Set Library Name\tF2")), this, [this, place] {
            if (const QStandardItem* item = m_items->itemFromIndex(place)) {
                setCurrentIndex(indexOf(*item));
                editName();
            }
        });
    }
    add(&WorkspaceTree::signalRemoveRequested, withNativeKeys(tr("Remove\tDel")));
}

void WorkspaceTree::fillDatasetMenu(QMenu& menu, const QStandardItem& dataset)
{
    const QString path = dataset.data(PathRole).toString();
    const auto add = [&, this](void (WorkspaceTree::*signal)(QString), const QString& text) {
        if (isHeard(signal)) {
            menu.addAction(text, this, [this, path, signal] { emit(this->*signal)(path); });
        }
    };
    if (isHeard(&WorkspaceTree::signalOpenRequested)) {
        QAction* open =
            menu.addAction(withNativeKeys(tr("Open\tReturn")), this,
                           [this, paths = pathsWith(path)] { emit signalOpenRequested(paths); });
        menu.setDefaultAction(open);
    }
    add(&WorkspaceTree::signalPropertiesRequested, withNativeKeys(tr("Properties\tAlt+Return")));
    if (hasSupplement(dataset)) {
        add(&WorkspaceTree::signalJoinRequested, tr("Join SUPP--"));
    }
    const QStringList paths = pathsWith(path);
    if (isHeard(&WorkspaceTree::signalCompareRequested) && paths.size() <= 2) {
        menu.addAction(paths.size() == 2 ? tr("Compare...") : tr("Compare With..."), this,
                       [this, paths] { emit signalCompareRequested(paths); });
    }
}

void WorkspaceTree::fillSessionMenu(QMenu& menu, const QStandardItem& session)
{
    const qint64 id = session.data(IdRole).toLongLong();
    const auto add = [&, this](void (WorkspaceTree::*signal)(qint64), const QString& text) {
        if (isHeard(signal)) {
            menu.addAction(text, this, [this, id, signal] { emit(this->*signal)(id); });
        }
    };
    add(&WorkspaceTree::signalSessionOpenRequested, tr("Open Session"));
    add(&WorkspaceTree::signalSessionDeleteRequested, withNativeKeys(tr("Delete Session\tDel")));
}

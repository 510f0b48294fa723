#pragma once

#include "app/docks/WorkspaceItem.h"

#include <QStandardItem>
#include <QStringList>
#include <QTreeView>

#include <set>

class QLineEdit;
class QMenu;
class QStandardItemModel;
class WorkspaceFilter;

/// The tree of the workspace: the registered libraries with their files, and the saved sessions.
/// What its user asks for it announces; entries of its menus that nobody listens to are left out.
class WorkspaceTree : public QTreeView
{
    Q_OBJECT

public:
    explicit WorkspaceTree(QWidget* parent = nullptr);

    [[nodiscard]] QStandardItem* libraries() const { return m_libraries; }
    [[nodiscard]] QStandardItem* sessions() const { return m_sessions; }
    /// All items, whatever the tree is narrowed to.
    [[nodiscard]] QStandardItemModel& items() const { return *m_items; }
    /// Where the tree shows an item; invalid while it does not.
    [[nodiscard]] QModelIndex indexOf(const QStandardItem& item) const;
    /// The item at an index of the tree; null for none.
    [[nodiscard]] QStandardItem* itemAt(const QModelIndex& index) const;
    /// The item of a library; null for none.
    [[nodiscard]] QStandardItem* library(qint64 id) const;
    /// The library that an item is, or stands in; null for none.
    [[nodiscard]] static QStandardItem* libraryOf(QStandardItem* item);
    /// The paths of the datasets that are selected, from top to bottom.
    [[nodiscard]] QStringList selectedPaths() const;

    /// Shows the menu of what stands at a place, of the current item where that is none.
    void showMenu(const QPoint& position);
    /// Asks for the dataset at the index to be opened, with those that are selected beside it, or
    /// the session.
    void activate(const QModelIndex& index);
    void keyboardSearch(const QString& search) override;
    /// Lets the user edit the name of the library that is the current item.
    void editName();

signals:
    void signalOpenRequested(QStringList paths);
    void signalRenameRequested(QStandardItem* library, QString name);
    void signalRefreshRequested(QStandardItem* library);
    void signalEditRequested(QStandardItem* library);
    void signalRemoveRequested(QStandardItem* library);
    void signalVariablesRequested(QStandardItem* library);
    void signalPropertiesRequested(QString path);
    void signalJoinRequested(QString path);
    /// One dataset, or two that are selected together.
    void signalCompareRequested(QStringList paths);
    void signalSessionOpenRequested(qint64 id);
    void signalSessionDeleteRequested(qint64 id);
    void signalAddLibraryRequested();
    void signalManageRequested();
    void signalMenuRequested(QPoint position);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void createFilterBox();
    void placeFilterBox();
    void narrow(const QString& text);
    void showAll();
    [[nodiscard]] QStringList pathsWith(const QString& path) const;
    [[nodiscard]] QStandardItem* addTopItem(const QString& text, const QString& icon,
                                            workspaceitem::Kind kind);
    void fillMenu(QMenu& menu, QStandardItem& item);
    void fillLibraryMenu(QMenu& menu, QStandardItem& library);
    void fillDatasetMenu(QMenu& menu, const QStandardItem& dataset);
    void fillSessionMenu(QMenu& menu, const QStandardItem& session);
    template <typename Signal>
    [[nodiscard]] bool isHeard(Signal signal) const;
    bool runKey(int key, Qt::KeyboardModifiers modifiers);

    QStandardItemModel* m_items;
    WorkspaceFilter* m_filter;
    QStandardItem* m_libraries;
    QStandardItem* m_sessions;
    QLineEdit* m_box;
    std::set<qint64> m_unfolded;  ///< the libraries that were before the tree was narrowed
};

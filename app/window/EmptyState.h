#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QWidget>

class QAction;
class QGridLayout;
class QVBoxLayout;

/// What stands in the place of the datasets while none is open: how to open one. It covers its
/// parent; whoever owns it shows and hides it.
class EmptyState : public QWidget
{
    Q_OBJECT

public:
    explicit EmptyState(QWidget* parent);

    /// One button for each action, two in a row. The actions outlive the widget.
    void setActions(const QList<QAction*>& actions);
    /// Files that can be opened again; the list is hidden when there is none.
    void setRecentFiles(const QStringList& paths);

signals:
    void signalOpenRequested(const QString& path);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void createTitle(QVBoxLayout* column);
    void createRecent(QVBoxLayout* column);
    void addRecentFile(const QString& path);
    void orderTabs() const;

    QGridLayout* m_buttons = nullptr;
    QWidget* m_recent = nullptr;
    QVBoxLayout* m_recentFiles = nullptr;
};

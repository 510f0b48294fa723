#pragma once

#include <QTableView>

#include <functional>

/// The table of a side window: single keys are commands, Escape leads back to the grid, a press of
/// the corner button puts the rows into the order they came in.
class PanelTable : public QTableView
{
    Q_OBJECT

public:
    explicit PanelTable(QWidget* parent = nullptr);

    /// Finds nothing: the letters are commands.
    void keyboardSearch(const QString& search) override;

signals:
    /// The user wants to go back to the grid.
    void signalLeft();

public slots:
    void copy();
    void resetOrder();

protected:
    /// Gives the table a model whose rows can be sorted, in their order for now.
    void setSortableModel(QAbstractItemModel* model);
    /// Gives the rows a height for the letters in use.
    void fitRowHeight();
    /// Makes each column as wide as its contents, within reason, once the table is seen.
    void fitColumns();
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void watchCornerButton();

    QObject* m_corner = nullptr;
    bool m_isFitted = true;
};

/// The keys that every table of a side window has: the platform's for copying, and Escape.
namespace panelkeys {

/// @param leave  what Escape does
void install(QTableView& table, const std::function<void()>& leave);

}  // namespace panelkeys

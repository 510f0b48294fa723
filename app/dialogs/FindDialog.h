#pragma once

#include "analysis/CellWalk.h"

#include <QDialog>
#include <QPointer>

#include <memory>
#include <optional>

class CellSearch;
class QLabel;
class QLineEdit;
class QRadioButton;
class QTableView;

/// Searches the texts that a table shows, cell by cell, and makes the cell found the current one.
class FindDialog : public QDialog
{
    Q_OBJECT

public:
    explicit FindDialog(QWidget* parent = nullptr);
    ~FindDialog() override;

    /// The table to search, null for none. Another one is searched from its first cell.
    void setView(QTableView* view);
    [[nodiscard]] bool hasText() const;
    /// Whether the dialog tells more of the last search than the current cell does.
    [[nodiscard]] bool hasStatus() const;
    /// Goes to the next cell that holds the text, hidden or not, and round the ends of the table.
    /// @return  whether there is one
    bool find(CellWalk::Direction direction);
    /// Says no longer that a cell is hidden which is in sight again; for when rows or columns of
    /// the table have been shown.
    void followVisibility();
    /// Comes to the front with the text selected.
    void bringUp();

private:
    void createParts();
    [[nodiscard]] CellWalk::Word wordOfView();
    void show(TableCell cell);
    [[nodiscard]] bool isOutOfSight(TableCell cell) const;
    void giveWayTo(const QModelIndex& cell);
    void tell(const QString& text, Qt::GlobalColor colour);

    QPointer<QTableView> m_view;
    QLineEdit* m_text;
    QRadioButton* m_byRow;
    QRadioButton* m_byColumn;
    QLabel* m_status;
    std::optional<TableCell> m_last;  ///< the cell found last
    std::unique_ptr<CellSearch> m_search;  ///< for the text, with what is known of the cells
};

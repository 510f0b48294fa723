#pragma once

#include <QTableView>

/// The first columns of a table once more, over it: there they stay while the table is scrolled to
/// the right. Model, selection and widths are the table's.
class FrozenColumns : public QTableView
{
    Q_OBJECT

public:
    /// @param table  the parent; has its model, selection, headers and delegate already
    /// @param count  columns that stay
    FrozenColumns(QTableView& table, int count);

    /// The width of the table that is covered, 0 while nothing has to be.
    [[nodiscard]] int coveredWidth() const { return isHidden() ? 0 : width(); }
    [[nodiscard]] int count() const { return m_count; }
    /// Takes letters and heights over from the table.
    void followLetters();
    /// Covers what has to be covered; to be called when the table has another size.
    void place();

protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void followColumns();
    void followRows();

    QTableView& m_table;
    int m_count;
};

#pragma once

#include "grid/GridColumns.h"
#include "grid/GridSelection.h"
#include "grid/RowVisibility.h"

#include <QTableView>

#include <optional>
#include <vector>

class MainTableModel;
class OpenDataset;
class StatDataset;
enum class HeaderMode : std::uint32_t;

/// The table of one dataset as far as it is a table: shows the rows that the dataset's two filter
/// masks select and the variables that its visibility bits show, and keeps the current cell on its
/// observation through sorts and filters.
class GridTable : public QTableView
{
    Q_OBJECT

public:
    /// @param opened  outlives the view; may be null, which leaves the view empty
    explicit GridTable(OpenDataset* opened, QWidget* parent = nullptr);

    /// Takes the grid's model, once; one that is a MainTableModel of this dataset has its rows
    /// hidden.
    void setModel(QAbstractItemModel* model) override;
    [[nodiscard]] MainTableModel* tableModel() const { return m_model; }
    [[nodiscard]] OpenDataset* opened() const { return m_opened; }
    [[nodiscard]] StatDataset* dataset() const;

    /// The variable of the current cell, or of the header clicked last where there are no cells; -1
    /// before there was one.
    [[nodiscard]] int currentVariable() const { return m_currentVariable; }
    [[nodiscard]] bool isCurrentVariableShown() const;
    /// The selected cells that are shown. Needs the grid's model.
    [[nodiscard]] GridSelection selected() const;
    [[nodiscard]] int shownRowCount() const;

    /// Makes each column as wide as its contents, within reason. Measures a sample of the rows.
    void fitColumns();
    /// Makes the letters that many points larger, as the user wants them in all grids; below 6
    /// points they get no smaller.
    void stepFontSize(int step);
    void setFontSize(int points);
    [[nodiscard]] int fontSize() const;
    /// What the horizontal header shows, names or labels.
    void setHeaderMode(HeaderMode mode);
    /// Shows exactly the rows that the dataset's filter masks select. To be called after every
    /// change of a mask; a row whose state does not change costs nothing.
    void applyRowVisibility();

    /// Finds nothing: the letters are commands, and looking through a million rows takes its time.
    void keyboardSearch(const QString& search) override;

signals:
    /// The user has given the letters another size, which all grids share.
    void signalFontSizeChanged(int points);

protected:
    /// Where the user is, in terms that a sort or filter does not change.
    struct Place
    {
        int observation = -1;  ///< of the current cell, -1 without one
        int variable = -1;
        std::vector<int> wholeColumns;  ///< that are selected
        bool hasSelection = false;
    };
    enum class Scrolling
    {
        Stay,
        FollowCurrent
    };

    /// Whether there is a dataset and its model, without which no command does anything.
    [[nodiscard]] bool isReady() const { return m_model != nullptr; }
    [[nodiscard]] GridColumns& columns() { return *m_columns; }
    [[nodiscard]] const RowVisibility& rows() const { return m_rows; }

    [[nodiscard]] Place place() const;
    /// Shows the selected rows and goes back to the place, or to what is left nearest to it.
    void showRows(const Place& place, Scrolling scrolling);
    /// Makes a shown variable the current one, in the current row.
    void makeCurrent(int variable);
    /// Takes the current cell out of a column that has been hidden, to the next that is shown.
    void leaveHiddenColumn();

    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setUpColumnHeader();
    void followRows();
    void followColumns();
    void widenForHeaders();
    [[nodiscard]] int widthOfSpreadRows(int column, int rowCount) const;
    void setUpRowHeader(QHeaderView& header) const;
    [[nodiscard]] int rowHeaderWidth() const;
    void startRowHeaderOver();
    void hideAndShowRows();
    void restoreCurrent(const Place& place);
    void restoreSelection(const Place& place, const QModelIndex& currentBefore);

    OpenDataset* m_opened;
    MainTableModel* m_model = nullptr;  ///< the view's model when it is a grid model
    std::optional<GridColumns> m_columns;
    RowVisibility m_rows;
    Place m_placeBeforeChange;
    int m_currentVariable = -1;
    int m_lostObservation = -1;  ///< of the current cell when the last row went
};

#pragma once

#include "grid/GridColumns.h"
#include "grid/GridSelection.h"
#include "grid/RowVisibility.h"
#include "grid/Whereabouts.h"

#include <QPersistentModelIndex>
#include <QTableView>

#include <optional>

class GridHeader;
class MainTableModel;
class OpenDataset;
class StatDataset;
enum class HeaderMode : std::uint32_t;

/// The table of one dataset as far as it is a table: shows the rows that the dataset's two filter
/// masks select and the variables that its visibility bits show, and keeps the current cell and the
/// selection on their observations through sorts and filters.
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
    /// The observation of the current cell, -1 without one.
    [[nodiscard]] int currentObservation() const;
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
    /// Another cell is the current one, or none is, or its observation stands in another row.
    void signalCurrentCellChanged();

protected:
    enum class Scrolling
    {
        Stay,
        FollowCurrent
    };

    /// Whether there is a dataset and its model, without which no command does anything.
    [[nodiscard]] bool isReady() const { return m_model != nullptr; }
    [[nodiscard]] GridColumns& columns() { return *m_columns; }
    [[nodiscard]] const RowVisibility& rows() const { return m_rows; }

    /// Where the user has gone last: where rows that a filter shows again bring him back to.
    [[nodiscard]] Whereabouts place() const;
    /// Shows the selected rows and goes back to the place, or to what is left nearest to it.
    void showRows(const Whereabouts& place, Scrolling scrolling);
    /// Makes a shown variable the current one, in the current row.
    void makeCurrent(int variable);
    /// Takes the current cell out of a column that has been hidden, to the next that is shown.
    void leaveHiddenColumn();

    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
    [[nodiscard]] QItemSelectionModel::SelectionFlags
    selectionCommand(const QModelIndex& index, const QEvent* event) const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setUpColumnHeader();
    void followRows();
    void followColumns();
    [[nodiscard]] int widthOfSpreadRows(int column, int rowCount) const;
    void startRowHeaderOver();
    [[nodiscard]] int rowHeaderWidth() const;
    void pressColumn(int column);
    void hideAndShowRows();
    void restore(const Whereabouts& place);
    void setCurrentAndAnchor(const QModelIndex& current, const QModelIndex& anchor);
    void takePlace();
    void showCurrentCell();
    [[nodiscard]] QModelIndex anchor() const;
    [[nodiscard]] QModelIndex nearestShown(const Whereabouts::Cell& cell) const;
    [[nodiscard]] Whereabouts::Cell cellAt(const QModelIndex& index) const;

    OpenDataset* m_opened;
    MainTableModel* m_model = nullptr;  ///< the view's model when it is a grid model
    GridHeader* m_columnHeader;
    GridHeader* m_rowHeader = nullptr;
    std::optional<GridColumns> m_columns;
    RowVisibility m_rows;
    Whereabouts m_placeBeforeChange;
    std::optional<Whereabouts> m_place;  ///< until the user goes elsewhere
    QPersistentModelIndex m_anchor;  ///< from where Shift selects; Qt keeps its own to itself
    bool m_isRestoring = false;  ///< what changes now is not the user's doing
    int m_currentVariable = -1;
    int m_lastObservation = -1;  ///< that the user has gone to
};

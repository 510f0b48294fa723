#pragma once

#include "analysis/panels/PanelTable.h"
#include "app/compare/DifferenceModel.h"

#include <map>

class FrozenColumns;
class GridHeader;

/// The grid of the differences of a comparison: base above compare, ID variables that stay in
/// sight, and the keys of the other grids as far as they mean something here.
class DifferenceView : public PanelTable
{
    Q_OBJECT

public:
    explicit DifferenceView(std::shared_ptr<const comparison::Comparison> comparison,
                            QWidget* parent = nullptr);

    [[nodiscard]] const DifferenceModel& differences() const { return *m_model; }
    /// Shows something else of the comparison; the current cell stays or the nearest one takes its
    /// place.
    void setFilter(const comparison::DifferenceFilter& filter);

    void goToNext();
    void goToPrevious();
    /// Hides the variable of the current cell, whose differences then count for nothing.
    void hideVariable();
    void unhideVariables();
    [[nodiscard]] int hiddenVariables() const;

    void stepFontSize(int step);
    void setFontSize(int points);
    [[nodiscard]] int fontSize() const;
    /// Tells of the rows of the current cell.
    void choose();

    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

signals:
    /// The user wants to see observations and variables, from 0, in their datasets; -1 where a
    /// side has none.
    void signalRowChosen(int baseObservation, int compareObservation, int baseVariable,
                         int compareVariable);
    /// Another cell is the current one, or other differences are shown.
    void signalPlaceChanged();
    /// The next or the previous difference was sought from the other end on.
    void signalWrapped(bool forwards);
    /// The user has given the letters another size, which all grids share.
    void signalFontSizeChanged(int points);

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    /// The current cell by what outlasts other rows and columns.
    struct Whereabouts
    {
        std::size_t pair;
        DifferenceModel::Line line;
        int leadingColumn;  ///< -1 in a variable
        std::size_t variable;
    };

    void setUpHeaders();
    void installKeys();
    void followLetters();
    void fitNewColumns();
    void keepWidths();
    [[nodiscard]] int widthFor(int column) const;
    [[nodiscard]] std::optional<std::size_t> currentVariable() const;
    [[nodiscard]] std::optional<Whereabouts> whereabouts() const;
    void restore(const Whereabouts& place);
    void goTo(const std::optional<comparison::DifferenceRows::Step>& step, bool forwards);
    void showContextMenu(const QPoint& position);

    DifferenceModel* m_model;
    GridHeader* m_header;
    FrozenColumns* m_frozen;
    std::map<std::size_t, int> m_widths;  ///< of the variables' columns, by variable
    bool m_leadingAreFitted = false;
};

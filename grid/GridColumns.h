#pragma once

#include <span>
#include <vector>

class QHeaderView;
class QTableView;
class StatDataset;

/// The columns of a grid. Which are shown is told by the visibility bits of its dataset, which the
/// Variables window changes, too; their order is the header's. Variables are the header's logical
/// sections.
class GridColumns
{
public:
    /// Both outlive this object. The view needs its model before anything else is called.
    GridColumns(QTableView& view, StatDataset& dataset);

    /// Hides and shows columns as the bits say.
    void followBits();
    void followBit(int variable);
    void setShown(int variable, bool shown);
    void showAll();
    /// Shows these variables and no others.
    void showOnly(std::span<const int> variables);

    [[nodiscard]] bool isShown(int variable) const;
    [[nodiscard]] int shownCount() const;
    /// All variables as they stand from left to right, hidden ones included.
    [[nodiscard]] std::vector<int> order() const;
    /// The hidden variables in the dataset's order.
    [[nodiscard]] std::vector<int> hidden() const;
    /// The shown column that takes the place of the variable when it goes: the next to the right,
    /// else to the left; -1 when there is no other.
    [[nodiscard]] int neighbour(int variable) const;

    /// Moves the column past the next shown one to the left or right.
    /// @param step  -1 or 1
    /// @return      whether there was a place to move to
    bool shift(int variable, int step);

private:
    [[nodiscard]] QHeaderView& header() const;
    [[nodiscard]] bool contains(int variable) const;
    [[nodiscard]] int nextShownPlace(int place, int step) const;

    QTableView& m_view;
    StatDataset& m_dataset;
};

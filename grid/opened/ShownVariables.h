#pragma once

#include <span>
#include <vector>

class StatDataset;

/// Which variables of a dataset are shown and how they stand from left to right. The dataset's
/// visibility bits are what this class reads and writes; the order is its own.
class ShownVariables
{
public:
    /// Starts in the dataset's order. The dataset outlives this object.
    explicit ShownVariables(StatDataset& dataset);

    [[nodiscard]] bool isShown(int variable) const;
    [[nodiscard]] int shownCount() const;
    /// The hidden variables in the dataset's order.
    [[nodiscard]] std::vector<int> hidden() const;
    void setShown(std::span<const int> variables, bool shown);
    void showAll();
    /// Shows these variables and no others.
    void showOnly(std::span<const int> variables);

    /// All variables from left to right, hidden ones included.
    [[nodiscard]] const std::vector<int>& order() const { return m_order; }
    /// Puts these variables first, in their order; the others follow as they stood.
    /// @return  whether anything has moved
    bool setOrder(std::span<const int> variables);
    /// Moves a variable past the next shown one to the left or right.
    /// @param step  -1 or 1
    /// @return      whether there was a place to move to
    bool shift(int variable, int step);
    /// The shown variable that takes the place of one when it goes: the next to the right, else to
    /// the left; -1 when there is no other.
    [[nodiscard]] int neighbour(int variable) const;

private:
    [[nodiscard]] bool contains(int variable) const;
    [[nodiscard]] int placeOf(int variable) const;
    [[nodiscard]] int nextShownPlace(int place, int step) const;

    StatDataset& m_dataset;
    std::vector<int> m_order;
};

#pragma once

#include "data/StatDataset.h"

#include <cstdint>
#include <functional>
#include <span>

/// Which rows of a grid the two filter masks of its dataset show, and which of them the grid has
/// already been told, so that a filter only touches rows whose state changes.
class RowVisibility
{
public:
    /// Starts over with a grid that shows all its rows.
    void reset(std::size_t rowCount);

    /// Combines the masks, maps them to rows and calls `show(row, shown)` for every row that is not
    /// yet as it should be, in ascending order.
    /// @param rowMap     the observation of each row; as many rows as the last reset said
    /// @param startOver  makes the grid one that shows all its rows. Called before the first row,
    ///                   and only where that saves touching many rows one by one.
    void update(const StatDataset& dataset, std::span<const std::uint32_t> rowMap,
                const std::function<void(int row, bool shown)>& show,
                const std::function<void()>& startOver);

    [[nodiscard]] bool isShown(int row) const
    {
        return m_shown.test(static_cast<std::size_t>(row));
    }
    /// Whether there is a shown row below the upper one and above the lower.
    [[nodiscard]] bool isAnyShownBetween(int upper, int lower) const
    {
        return m_shown.find_next(static_cast<std::size_t>(upper)) < static_cast<std::size_t>(lower);
    }
    /// One bit per row: set = shown.
    [[nodiscard]] const BitVector& shown() const { return m_shown; }
    /// How many rows are shown.
    [[nodiscard]] std::size_t shownCount() const { return m_shown.count(); }
    /// The shown row nearest to the row, of two equally near the later one; -1 when none is shown.
    [[nodiscard]] int nearestShown(int row) const;

private:
    BitVector m_shown;
};

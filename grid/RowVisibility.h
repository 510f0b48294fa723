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
    /// @param rowMap  the observation of each row; must have as many rows as the last reset said
    void update(const StatDataset& dataset, std::span<const std::uint32_t> rowMap,
                const std::function<void(int row, bool shown)>& show);

    /// How many rows are shown.
    [[nodiscard]] std::size_t shownCount() const { return m_shown.count(); }

private:
    BitVector m_shown;  ///< one bit per row
};

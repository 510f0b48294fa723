#include "grid/RowVisibility.h"

#include <algorithm>
#include <utility>

namespace {

/// A new start has its own cost, which a few rows more or less do not outweigh.
std::size_t rowsWorthStartingOver(std::size_t rowCount)
{
    constexpr std::size_t least = 10'000;
    return std::max(least, rowCount / 8);
}

}  // namespace

void RowVisibility::reset(std::size_t rowCount)
{
    m_shown = BitVector(rowCount);
    m_shown.set();
}

void RowVisibility::update(const StatDataset& dataset, std::span<const std::uint32_t> rowMap,
                           const std::function<void(int row, bool shown)>& show,
                           const std::function<void()>& startOver)
{
    BitVector selected = dataset.libraryFilterMask();
    selected &= dataset.datasetFilterMask();

    BitVector shown(rowMap.size());
    for (std::size_t row = 0; row < rowMap.size(); ++row) {
        if (selected.test(rowMap[row])) {
            shown.set(row);
        }
    }
    BitVector changed = shown ^ m_shown;
    const BitVector hidden = ~shown;
    if (changed.count() > hidden.count() + rowsWorthStartingOver(rowMap.size())) {
        startOver();
        changed = hidden;
    }
    m_shown = std::move(shown);
    for (auto row = changed.find_first(); row != BitVector::npos; row = changed.find_next(row)) {
        show(static_cast<int>(row), m_shown.test(row));
    }
}

int RowVisibility::nearestShown(int row) const
{
    const int count = static_cast<int>(m_shown.size());
    for (int distance = 0; distance < count; ++distance) {
        if (row + distance < count && isShown(row + distance)) {
            return row + distance;
        }
        if (row - distance >= 0 && isShown(row - distance)) {
            return row - distance;
        }
    }
    return -1;
}

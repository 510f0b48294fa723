#include "grid/RowVisibility.h"

#include <utility>

void RowVisibility::reset(std::size_t rowCount)
{
    m_shown = BitVector(rowCount);
    m_shown.set();
}

void RowVisibility::update(const StatDataset& dataset, std::span<const std::uint32_t> rowMap,
                           const std::function<void(int row, bool shown)>& show)
{
    BitVector selected = dataset.libraryFilterMask();
    selected &= dataset.datasetFilterMask();

    BitVector shown(rowMap.size());
    for (std::size_t row = 0; row < rowMap.size(); ++row) {
        if (selected.test(rowMap[row])) {
            shown.set(row);
        }
    }
    BitVector changed = shown;
    changed ^= m_shown;
    m_shown = std::move(shown);
    for (auto row = changed.find_first(); row != BitVector::npos; row = changed.find_next(row)) {
        show(static_cast<int>(row), m_shown.test(row));
    }
}

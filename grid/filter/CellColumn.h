#pragma once

#include "data/StatDataset.h"

#include <cstddef>

/// The cells of one variable as an engine walks over them: evenly spaced in the dataset's one
/// vector, one apart where it is stored by column and a whole row apart where it is stored by row.
class CellColumn
{
public:
    /// The dataset keeps its cells for as long as this is used.
    CellColumn(const StatDataset& dataset, int variable)
    {
        // A dataset that was read without its values has observations, but no cells.
        const int rows = dataset.cellCount() > 0 ? dataset.observationCount() : 0;
        if (rows > 0) {
            m_first = &dataset.cell(0, variable);
        }
        if (rows > 1) {
            m_stride = &dataset.cell(1, variable) - m_first;
        }
    }

    /// Where the walk that starts at the observation begins.
    [[nodiscard]] const CellValue* at(std::size_t observation) const
    {
        return m_first + static_cast<std::ptrdiff_t>(observation) * m_stride;
    }
    /// How many cells the next observation's is further on.
    [[nodiscard]] std::ptrdiff_t stride() const { return m_stride; }

    /// Bit i is set when `holds` is true of the cell of observation `first` + i.
    /// @param count  up to 64
    template <typename Holds>
    [[nodiscard]] std::uint64_t word(std::size_t first, unsigned count, Holds holds) const
    {
        const CellValue* cell = at(first);
        std::uint64_t bits = 0;
        for (unsigned i = 0; i < count; ++i) {
            bits |= static_cast<std::uint64_t>(holds(*cell)) << i;
            cell += m_stride;
        }
        return bits;
    }

private:
    const CellValue* m_first = nullptr;
    std::ptrdiff_t m_stride = 0;
};

namespace cells {

/// The number of a cell; NaN in a cell that no value ever came for.
[[nodiscard]] inline double number(const CellValue& cell)
{
    const double* number = std::get_if<1>(&cell);
    return number == nullptr ? std::numeric_limits<double>::quiet_NaN() : *number;
}

/// The record of a cell; null where it holds none, which reads as empty text.
[[nodiscard]] inline const PooledText* record(const CellValue& cell)
{
    PooledText* const* record = std::get_if<0>(&cell);
    return record == nullptr ? nullptr : *record;
}

}  // namespace cells

#pragma once

#include "grid/opened/OpenDataset.h"

class GridTable;

/// The quick filters that are made from a grid's current and selected cells, and what they remember
/// from one to the next. Without a current cell that is shown they do nothing.
class CellFilters
{
public:
    [[nodiscard]] CompareOp op() const { return m_op; }
    void setOp(CompareOp op) { m_op = op; }

    /// Compares with the current cell in the mode and with the operator in force.
    [[nodiscard]] CommandOutcome compare(const GridTable& grid) const;
    /// The same for equality and for the library filter, this once.
    [[nodiscard]] CommandOutcome compareForLibrary(const GridTable& grid);
    /// Keeps the values of the current variable's selected cells.
    [[nodiscard]] CommandOutcome isIn(const GridTable& grid) const;
    [[nodiscard]] CommandOutcome contains(const GridTable& grid) const;

private:
    [[nodiscard]] CommandOutcome compareBy(CompareOp op, const GridTable& grid) const;

    OpenDataset::FilterKind m_mode = OpenDataset::FilterKind::Dataset;
    CompareOp m_op = CompareOp::Equal;
};

#pragma once

#include "grid/filter/CompareOp.h"
#include "grid/filter/FilterState.h"

#include <cstdint>
#include <span>

/// Which of the two filters a quick filter sets; the numbers are those of the grid's mode flag.
enum class QuickFilterMode : std::int32_t
{
    DatasetFilter = 0,
    LibraryFilter = 1,
};

/// The filters of one grid: those in force, and what its quick filters, which are made from cells,
/// remember from one to the next.
class GridFilters
{
public:
    /// The dataset outlives the filters.
    explicit GridFilters(StatDataset& dataset);

    [[nodiscard]] FilterState& state() { return m_state; }
    [[nodiscard]] const FilterState& state() const { return m_state; }

    [[nodiscard]] CompareOp op() const { return m_op; }
    void setOp(CompareOp op) { m_op = op; }
    [[nodiscard]] QuickFilterMode mode() const { return m_mode; }
    void setMode(QuickFilterMode mode) { m_mode = mode; }

    // Conditions without "where" or "if", and failures where a value cannot be written.
    /// `variable op value` with the value that the observation has and the operator used last.
    [[nodiscard]] Result<QString> comparison(int variable, int observation) const;
    /// `variable in (values)` with the values that the observations have.
    [[nodiscard]] Result<QString> inList(int variable, std::span<const int> observations) const;
    /// `index(variable, "value") > 0`.
    [[nodiscard]] Result<QString> containing(int variable, int observation) const;

private:
    const StatDataset& m_dataset;
    FilterState m_state;
    CompareOp m_op = CompareOp::Equal;
    QuickFilterMode m_mode = QuickFilterMode::DatasetFilter;
};

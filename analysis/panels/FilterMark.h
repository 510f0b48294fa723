#pragma once

#include "grid/opened/OpenDataset.h"

/// The filters that a result was made under, to tell whether it still holds.
struct FilterMark
{
    QString dataset;
    QString library;  ///< empty where it cannot filter the dataset

    [[nodiscard]] static FilterMark of(const OpenDataset& opened)
    {
        return {opened.datasetFilterText(),
                opened.libraryFilterProblem().isEmpty() ? opened.libraryFilterText() : QString()};
    }
    bool operator==(const FilterMark&) const = default;
};

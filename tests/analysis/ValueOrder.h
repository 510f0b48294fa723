#pragma once

#include "data/StatDataset.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <string>
#include <variant>
#include <vector>

/// The laid-down order of the values of a row: the kinds decide first (missing, text, number), then
/// texts bytewise and numbers numerically, NaN below every number.
using PlainValue = std::variant<std::monostate, std::string, double>;
using PlainKey = std::vector<PlainValue>;

struct PlainKeyOrder
{
    bool operator()(const PlainKey& a, const PlainKey& b) const
    {
        return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), isLess);
    }
    static bool isLess(const PlainValue& a, const PlainValue& b)
    {
        const auto* x = std::get_if<double>(&a);
        const auto* y = std::get_if<double>(&b);
        if (x != nullptr && y != nullptr && (std::isnan(*x) || std::isnan(*y))) {
            return std::isnan(*x) && !std::isnan(*y);
        }
        return a < b;
    }
};

inline PlainKey plainKey(const StatDataset& dataset, std::span<const int> variables, int row)
{
    PlainKey key;
    for (const int variable : variables) {
        if (dataset.isNumeric(variable)) {
            key.emplace_back(dataset.numericValue(row, variable));
        } else {
            key.emplace_back(dataset.stringValue(row, variable));
        }
    }
    return key;
}

inline std::vector<int> plainlySelected(const StatDataset& dataset)
{
    std::vector<int> rows;
    for (int row = 0; row < dataset.observationCount(); ++row) {
        const auto bit = static_cast<std::size_t>(row);
        if (dataset.libraryFilterMask()[bit] && dataset.datasetFilterMask()[bit]) {
            rows.push_back(row);
        }
    }
    return rows;
}

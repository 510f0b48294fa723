#pragma once

#include <Qt>

#include <cstdint>
#include <utility>
#include <vector>

class StatDataset;

/// A variable number and the order that it is sorted in.
using SortKey = std::pair<int, Qt::SortOrder>;
using SortKeys = std::vector<SortKey>;

/// One rank per observation such that ascending ranks put the observations in the order of the key.
/// Observations that the key leaves equal have equal ranks, and so have those that it leaves
/// unordered: the missing numbers of a dataset that is not from R stand together, before all others
/// when ascending and after them when descending.
[[nodiscard]] std::vector<std::uint64_t> sortRanks(const StatDataset& dataset, const SortKey& key);

/// What R datasets hold where a value is missing, and what their sort puts last in both orders.
namespace rmissing {
inline constexpr char text[] = "N/A";
inline constexpr double integer = -2147483648.0;
}  // namespace rmissing

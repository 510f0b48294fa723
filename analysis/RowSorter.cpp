#include "analysis/RowSorter.h"

#include "analysis/RadixSort.h"
#include "data/StatDataset.h"

#include <algorithm>
#include <cmath>
#include <compare>
#include <limits>
#include <numeric>
#include <string>

namespace {

std::partial_ordering compareBytes(const std::string& a, const std::string& b)
{
    return a.compare(b) <=> 0;  // std::string compares its bytes as unsigned
}

std::partial_ordering compareTextsInR(const std::string& a, const std::string& b,
                                      Qt::SortOrder order)
{
    const bool missingA = a == rmissing::text;
    const bool missingB = b == rmissing::text;
    if (missingA == missingB) {
        return missingA ? std::partial_ordering::equivalent : compareBytes(a, b);
    }
    const bool missingIsGreater = order == Qt::AscendingOrder;
    return missingA == missingIsGreater ? std::partial_ordering::greater
                                        : std::partial_ordering::less;
}

std::partial_ordering compareInR(const StatDataset& dataset, const SortKey& key, int a, int b)
{
    const auto [variable, order] = key;
    const auto number = [&, column = variable](int row) {
        return dataset.numericValue(row, column);
    };
    switch (dataset.typeCodes().at(static_cast<std::size_t>(variable))) {
    case TypeCode::Character:
        return compareTextsInR(dataset.stringValue(a, variable), dataset.stringValue(b, variable),
                               order);
    case TypeCode::Int16:
    case TypeCode::Float:
    case TypeCode::Double:
        return rowsorter::comparableInR(number(a), order)
            <=> rowsorter::comparableInR(number(b), order);
    case TypeCode::Int8:
    case TypeCode::Int32:
        return rowsorter::comparableIntegerInR(number(a), order)
            <=> rowsorter::comparableIntegerInR(number(b), order);
    }
    return std::partial_ordering::unordered;
}

std::partial_ordering compare(const StatDataset& dataset, const SortKey& key, int a, int b)
{
    if (dataset.sourceKind() == SourceKind::R) {
        return compareInR(dataset, key, a, b);
    }
    const int variable = key.first;
    switch (dataset.typeCodes().at(static_cast<std::size_t>(variable))) {
    case TypeCode::Double:
        return dataset.numericValue(a, variable) <=> dataset.numericValue(b, variable);
    case TypeCode::Character:
        return compareBytes(dataset.stringValue(a, variable), dataset.stringValue(b, variable));
    default:
        // Their cells hold numbers, so there is no stored text to compare: the shown one stands in.
        return compareBytes(dataset.cellText(a, variable), dataset.cellText(b, variable));
    }
}

/// Stably reorders rows that are sorted by the later keys by an earlier one.
void sortByRanks(const std::vector<std::uint64_t>& ranks, std::vector<std::uint32_t>& rows)
{
    std::vector<RankedRow> entries;
    entries.reserve(rows.size());
    for (const std::uint32_t row : rows) {
        entries.push_back({ranks[row], row});
    }
    radixSort(entries);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows[i] = entries[i].row;
    }
}

}  // namespace

namespace rowsorter {

bool goesBefore(const StatDataset& dataset, std::span<const SortKey> keys, int a, int b)
{
    for (const SortKey& key : keys) {
        const std::partial_ordering order = compare(dataset, key, a, b);
        if (order != std::partial_ordering::equivalent) {
            return key.second == Qt::AscendingOrder ? order == std::partial_ordering::less
                                                    : order == std::partial_ordering::greater;
        }
    }
    return false;
}

void sortObservations(const StatDataset& dataset, std::span<const SortKey> keys,
                      std::vector<std::uint32_t>& rowMap)
{
    std::vector<std::uint32_t> rows(static_cast<std::size_t>(dataset.observationCount()));
    std::iota(rows.begin(), rows.end(), 0U);
    for (std::size_t last = keys.size(); last > 0; --last) {
        sortByRanks(sortRanks(dataset, keys[last - 1]), rows);
    }
    rowMap.swap(rows);
}

double comparableInR(double number, Qt::SortOrder order)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    if (!std::isnan(number)) {
        return number;
    }
    return order == Qt::AscendingOrder ? infinity : -infinity;
}

double comparableIntegerInR(double number, Qt::SortOrder order)
{
    constexpr double largest = std::numeric_limits<std::int32_t>::max();
    if (std::isnan(number) || number == rmissing::integer) {
        return order == Qt::AscendingOrder ? largest : rmissing::integer;
    }
    return std::clamp(std::trunc(number), rmissing::integer, largest);
}

}  // namespace rowsorter

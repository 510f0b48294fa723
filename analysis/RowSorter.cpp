#include "analysis/RowSorter.h"

#include "analysis/CodedColumn.h"
#include "analysis/RadixSort.h"
#include "analysis/RankedValues.h"
#include "data/cells/ValueKey.h"
#include "data/StatDataset.h"
#include "grid/filter/CellColumn.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <string_view>

namespace {

/// One rank per observation such that ascending ranks put the observations in the order of a key.
/// Observations that are equal have equal ranks, and so have those that miss a number.
using Ranks = std::vector<std::uint64_t>;
using Rows = std::vector<std::uint32_t>;

// What R datasets hold where a value is missing.
constexpr std::string_view missingTextOfR = "N/A";
constexpr double missingIntegerOfR = std::numeric_limits<std::int32_t>::min();

Rows datasetOrder(const StatDataset& dataset)
{
    Rows rows(static_cast<std::size_t>(dataset.observationCount()));
    std::iota(rows.begin(), rows.end(), 0U);
    return rows;
}

/// What stands for a real value of R: for NaN what comes last in the order.
double realOfR(double number, Qt::SortOrder order)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    if (!std::isnan(number)) {
        return number;
    }
    return order == Qt::AscendingOrder ? infinity : -infinity;
}

/// The 32-bit integer, as a double, that stands for an integer value of R.
double integerOfR(double number, Qt::SortOrder order)
{
    constexpr double largest = std::numeric_limits<std::int32_t>::max();
    if (std::isnan(number) || number == missingIntegerOfR) {
        return order == Qt::AscendingOrder ? largest : missingIntegerOfR;
    }
    return std::clamp(std::trunc(number), missingIntegerOfR, largest);
}

double numberAsStored(double number, Qt::SortOrder)
{
    return number;
}

/// Both zeros are one number; NaN is below all others.
template <typename Comparable>
Ranks ranksOfNumbers(const StatDataset& dataset, const SortKey& key, Comparable comparable)
{
    const auto [variable, order] = key;
    const std::uint64_t flip = order == Qt::DescendingOrder ? ~std::uint64_t{0} : 0;
    const CellColumn cells(dataset, variable);
    Ranks ranks(static_cast<std::size_t>(dataset.observationCount()));
    for (std::size_t row = 0; row < ranks.size(); ++row) {
        const double number = comparable(std::get<1>(*cells.at(row)), order);
        ranks[row] = valuekey::of(number == 0.0 ? 0.0 : number) ^ flip;
    }
    return ranks;
}

/// Ranks of the column's texts. `isMissing` tells the one that comes last in both orders.
template <typename IsMissing>
Ranks ranksOfTexts(const CodedColumn& column, Qt::SortOrder order, IsMissing isMissing)
{
    const RankedValues values(column);
    const auto count = static_cast<std::uint32_t>(values.size());
    Rows rankOfCode(count);
    for (std::uint32_t code = 0; code < count; ++code) {
        const std::uint32_t rank = values.rankOf(code);
        rankOfCode[code] = isMissing(values.text(rank)) ? count
            : order == Qt::AscendingOrder               ? rank
                                                        : count - 1 - rank;
    }
    Ranks ranks(column.codes().size());
    std::transform(column.codes().begin(), column.codes().end(), ranks.begin(),
                   [&](std::uint32_t code) { return rankOfCode[code]; });
    return ranks;
}

bool noneIsMissing(std::string_view)
{
    return false;
}

Ranks ranksInR(const StatDataset& dataset, const SortKey& key)
{
    switch (dataset.typeCodes().at(static_cast<std::size_t>(key.first))) {
    case TypeCode::Character:
        return ranksOfTexts(CodedColumn(dataset, key.first, datasetOrder(dataset)), key.second,
                            [](std::string_view text) { return text == missingTextOfR; });
    case TypeCode::Int16:
    case TypeCode::Float:
    case TypeCode::Double:
        return ranksOfNumbers(dataset, key, realOfR);
    case TypeCode::Int8:
    case TypeCode::Int32:
        return ranksOfNumbers(dataset, key, integerOfR);
    }
    return Ranks(static_cast<std::size_t>(dataset.observationCount()));
}

Ranks ranksOf(const StatDataset& dataset, const SortKey& key)
{
    if (dataset.sourceKind() == SourceKind::R) {
        return ranksInR(dataset, key);
    }
    switch (dataset.typeCodes().at(static_cast<std::size_t>(key.first))) {
    case TypeCode::Double:
        return ranksOfNumbers(dataset, key, numberAsStored);
    case TypeCode::Character:
        return ranksOfTexts(CodedColumn(dataset, key.first, datasetOrder(dataset)), key.second,
                            noneIsMissing);
    default:
        // Their cells hold numbers, so there is no stored text to compare: the shown one stands in.
        return ranksOfTexts(CodedColumn::ofShownTexts(dataset, key.first, datasetOrder(dataset)),
                            key.second, noneIsMissing);
    }
}

/// Stably reorders rows that are sorted by the later keys by an earlier one.
void sortByRanks(const Ranks& ranks, Rows& rows)
{
    std::vector<RankedRow> entries;
    entries.reserve(rows.size());
    for (const std::uint32_t row : rows) {
        entries.push_back({ranks[row], row});
    }
    radixSort(entries);
    std::transform(entries.begin(), entries.end(), rows.begin(),
                   [](const RankedRow& entry) { return entry.row; });
}

}  // namespace

namespace rowsorter {

void sortObservations(const StatDataset& dataset, std::span<const SortKey> keys,
                      std::vector<std::uint32_t>& rowMap)
{
    Rows rows = datasetOrder(dataset);
    for (std::size_t last = keys.size(); last > 0; --last) {
        sortByRanks(ranksOf(dataset, keys[last - 1]), rows);
    }
    rowMap.swap(rows);
}

}  // namespace rowsorter

#include "analysis/comparison/ObservationMatch.h"

#include "analysis/CodedColumn.h"
#include "analysis/comparison/ValueReader.h"
#include "analysis/RadixSort.h"
#include "analysis/RowGroups.h"
#include "analysis/TextSort.h"
#include "data/cells/ValueKey.h"

#include <algorithm>
#include <compare>
#include <numeric>

namespace comparison {

namespace {

using Rows = std::vector<std::uint32_t>;
using Keys = std::vector<std::uint64_t>;

/// Orders missing numbers below all others: ._ before the plain one before .A to .Z. The keys of
/// numbers leave room for them, as those of NaN are not used there.
std::uint64_t keyOf(double number)
{
    if (number == number) {
        return valuekey::of(number == 0 ? 0.0 : number);
    }
    const char letter = missingLetter(number);
    return letter == '_' ? 0 : letter == '\0' ? 1 : static_cast<std::uint64_t>(letter);
}

/// The observations of one dataset and, for each ID variable, keys that order as its values do, the
/// same in both datasets.
struct Side
{
    Rows rows;
    std::vector<Keys> keys;  ///< by ID variable, then by place in the rows
    Rows order;  ///< places in the rows, ascending by keys
};

std::strong_ordering compare(const Side& a, std::size_t i, const Side& b, std::size_t j)
{
    for (std::size_t variable = 0; variable < a.keys.size(); ++variable) {
        const auto order = a.keys[variable][i] <=> b.keys[variable][j];
        if (std::is_neq(order)) {
            return order;
        }
    }
    return std::strong_ordering::equal;
}

Keys numberKeys(const ValueReader& reader, const Rows& rows)
{
    Keys keys(rows.size());
    std::transform(rows.begin(), rows.end(), keys.begin(),
                   [&](std::uint32_t row) { return keyOf(reader.number(reader.cell(row))); });
    return keys;
}

/// Replaces the codes of both datasets' texts by their ranks among the texts of both.
void addTextKeys(const ValueReader& baseReader, const ValueReader& compareReader,
                 const CodedColumn& baseCodes, const CodedColumn& compareCodes, Side& base,
                 Side& compare)
{
    std::vector<std::string_view> texts;
    const auto collect = [&](const ValueReader& reader, const CodedColumn& column) {
        for (const std::uint64_t key : column.keys()) {
            texts.push_back(reader.text(std::bit_cast<const PooledText*>(key)));
        }
    };
    collect(baseReader, baseCodes);
    collect(compareReader, compareCodes);
    std::uint64_t rank = 0;
    Keys ranks(texts.size());
    const Rows order = orderOf(texts);
    for (std::size_t i = 0; i < order.size(); ++i) {
        rank += i > 0 && texts[order[i]] != texts[order[i - 1]] ? 1U : 0U;
        ranks[order[i]] = rank;
    }
    const auto write = [&](const CodedColumn& column, std::size_t offset, Side& side) {
        Keys& keys = side.keys.emplace_back(column.codes().size());
        std::transform(column.codes().begin(), column.codes().end(), keys.begin(),
                       [&](std::uint32_t code) { return ranks[offset + code]; });
    };
    write(baseCodes, 0, base);
    write(compareCodes, baseCodes.keys().size(), compare);
}

/// Sorts by the last variable first; each pass keeps the order of equal keys. Sorted observations
/// are only looked at.
SideOfMatch sort(Side& side)
{
    SideOfMatch found;
    found.read = side.rows.size();
    side.order.resize(side.rows.size());
    std::iota(side.order.begin(), side.order.end(), 0U);
    for (std::size_t i = 1; i < side.rows.size() && found.isSorted; ++i) {
        found.isSorted = std::is_lteq(compare(side, i - 1, side, i));
    }
    for (std::size_t left = side.keys.size(); left > 0 && !found.isSorted; --left) {
        std::vector<RankedRow> entries;
        entries.reserve(side.order.size());
        for (const std::uint32_t place : side.order) {
            entries.push_back({side.keys[left - 1][place], place});
        }
        radixSort(entries);
        std::transform(entries.begin(), entries.end(), side.order.begin(),
                       [](const RankedRow& entry) { return entry.row; });
    }
    for (std::size_t i = 1; i < side.order.size(); ++i) {
        if (std::is_eq(compare(side, side.order[i - 1], side, side.order[i]))) {
            found.firstDuplicate = std::min(found.firstDuplicate, side.rows[side.order[i]]);
            ++found.duplicates;
        }
    }
    return found;
}

void merge(const Side& base, const Side& compareSide, ObservationMatch& match)
{
    std::size_t b = 0;
    std::size_t c = 0;
    while (b < base.order.size() || c < compareSide.order.size()) {
        const auto order = b == base.order.size() ? std::strong_ordering::greater
            : c == compareSide.order.size()
            ? std::strong_ordering::less
            : compare(base, base.order[b], compareSide, compareSide.order[c]);
        ObservationPair pair;
        if (std::is_lteq(order)) {
            pair.base = base.rows[base.order[b++]];
        }
        if (std::is_gteq(order)) {
            pair.compare = compareSide.rows[compareSide.order[c++]];
        }
        match.base.unmatched += std::is_lt(order) ? 1U : 0U;
        match.compare.unmatched += std::is_gt(order) ? 1U : 0U;
        match.pairs.push_back(pair);
    }
}

ObservationMatch byPosition(const Rows& base, const Rows& compare)
{
    ObservationMatch match;
    const std::size_t common = std::min(base.size(), compare.size());
    match.base.read = base.size();
    match.base.unmatched = base.size() - common;
    match.compare.read = compare.size();
    match.compare.unmatched = compare.size() - common;
    match.pairs.resize(std::max(base.size(), compare.size()));
    for (std::size_t i = 0; i < match.pairs.size(); ++i) {
        match.pairs[i] = {i < base.size() ? base[i] : noObservation,
                          i < compare.size() ? compare[i] : noObservation};
    }
    return match;
}

}  // namespace

ObservationMatch matchObservations(const StatDataset& base, const StatDataset& compare,
                                   const std::vector<VariablePair>& id, bool passesOverFilters)
{
    const auto rowsOf = passesOverFilters ? &allObservations : &selectedObservations;
    Side baseSide{rowsOf(base), {}, {}};
    Side compareSide{rowsOf(compare), {}, {}};
    if (id.empty()) {
        return byPosition(baseSide.rows, compareSide.rows);
    }
    for (const VariablePair& pair : id) {
        const bool counts = bothCountTime(base, pair.base, compare, pair.compare);
        const ValueReader baseReader(base, pair.base, counts);
        const ValueReader compareReader(compare, pair.compare, counts);
        if (base.isNumeric(pair.base)) {
            baseSide.keys.push_back(numberKeys(baseReader, baseSide.rows));
            compareSide.keys.push_back(numberKeys(compareReader, compareSide.rows));
        } else {
            addTextKeys(baseReader, compareReader, {base, pair.base, baseSide.rows},
                        {compare, pair.compare, compareSide.rows}, baseSide, compareSide);
        }
    }
    ObservationMatch match;
    match.base = sort(baseSide);
    match.compare = sort(compareSide);
    match.pairs.reserve(std::max(baseSide.rows.size(), compareSide.rows.size()));
    merge(baseSide, compareSide, match);
    return match;
}

}  // namespace comparison

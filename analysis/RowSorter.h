#pragma once

#include <Qt>

#include <cstdint>
#include <span>
#include <utility>
#include <vector>

class StatDataset;

/// A variable number and the order that it is sorted in.
using SortKey = std::pair<int, Qt::SortOrder>;
using SortKeys = std::vector<SortKey>;

/// Sorting of observations by several variables.
///
/// What a key compares depends on the dataset. In one that was not read from R data:
/// - double: the numbers; a missing number (NaN) is unordered against every number, itself
/// included;
/// - character: the stored texts, byte by byte;
/// - the narrower numeric types: the texts that their cells show, byte by byte, not the numbers.
///
/// In a dataset read from R data missing values come last in both orders: "N/A" among texts, NaN
/// among the real-valued types (int16, float, double), the smallest 32-bit integer and NaN among
/// the integer-valued ones (int8, int32). A type that is none of these leaves all rows unordered.
///
/// The first key in which two rows are not equal decides between them; where they are unordered,
/// neither must precede the other and later keys are not asked. Because of that this is a partial
/// order and no strict weak one, which a library sort must not be given.
namespace rowsorter {

/// Writes every observation number once to the row map, in the order of the keys.
///
/// The result is a linear extension of the partial order: no row stands before one that must
/// precede it. It sorts by the total order in which, key after key, all missing values of a
/// variable are one value, below every number when ascending and above when descending. Where a row
/// must precede another, the two are equal in every earlier key with no missing value among them,
/// and less in the next: then they are in that order here too. Rows with a missing value, of which
/// the partial order says nothing, are so kept together and ordered by the later keys. Rows equal
/// in every key keep the dataset's order.
///
/// A failure, such as memory running out, leaves the row map as it was. Linear in the rows for each
/// key, plus the bytes that tell its distinct texts apart.
void sortObservations(const StatDataset& dataset, std::span<const SortKey> keys,
                      std::vector<std::uint32_t>& rowMap);

}  // namespace rowsorter

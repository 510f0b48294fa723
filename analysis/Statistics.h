#pragma once

#include "analysis/Distribution.h"
#include "data/StatDataset.h"

#include <span>
#include <string>
#include <variant>
#include <vector>

/// Descriptive statistics of one numeric variable in the observations that both filters select.
///
/// A missing number is a value like any other: it counts, NaN sorts below every number, and what is
/// computed from it is NaN. Values are summed in ascending order, so no result depends on the order
/// of the observations.
namespace statistics {

/// Why there are no statistics.
enum class Problem
{
    NoColumnSelected,
    NotNumeric,
    NoData,
};

/// How many groups are drawn.
inline constexpr std::size_t mostDrawn = 12;

/// The statistics as texts: a header and lines of as many cells.
struct Table
{
    std::vector<std::string> header;
    std::vector<std::vector<std::string>> rows;
    std::vector<Distribution> drawn;  ///< of the whole, or of the first groups
};

/// Describes the first of the selected variables. The standard deviation is that of the sample,
/// with one degree of freedom less, and 0 of one value. Numbers have six significant digits, and an
/// exponent where that is shorter: as printf's "%g" in the C locale, save that every NaN is "nan".
/// @param byVariables  without them: the variable's name and "Value" as header, and a line for each
///                     statistic; with them: their names and the statistics' as header, and a line
///                     for each combination of their values, in the order of frequencies
[[nodiscard]] std::variant<Table, Problem> describe(const StatDataset& dataset,
                                                    std::span<const int> selectedVariables,
                                                    std::span<const int> byVariables);

}  // namespace statistics

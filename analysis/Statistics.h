#pragma once

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

/// What a sample amounts to.
struct Summary
{
    double count = 0;
    double mean = 0;
    double median = 0;
    double minimum = 0;
    double maximum = 0;
    double range = 0;
    double standardDeviation = 0;  ///< of the sample, with one degree of freedom less; 0 of one
};

/// Summarises values that are in ascending order, at least one.
[[nodiscard]] Summary summarise(std::span<const double> ascending);

/// The number with six significant digits, with an exponent where it is shorter: as printf's "%g"
/// in the C locale, save that every NaN is "nan".
[[nodiscard]] std::string numberText(double number);

/// Why there are no statistics.
enum class Problem
{
    NoColumnSelected,
    NotNumeric,
    NoData,
};

/// The statistics as texts: a header and lines of as many cells.
struct Table
{
    std::vector<std::string> header;
    std::vector<std::vector<std::string>> rows;
};

/// Describes the first of the selected variables.
/// @param byVariables  without them: the variable's name and "Value" as header, and a line for each
///                     statistic; with them: their names and the statistics' as header, and a line
///                     for each combination of their values, in the order of frequencies::compare()
[[nodiscard]] std::variant<Table, Problem> describe(const StatDataset& dataset,
                                                    std::span<const int> selectedVariables,
                                                    std::span<const int> byVariables);

}  // namespace statistics

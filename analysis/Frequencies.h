#pragma once

#include "data/StatDataset.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// A value of one variable: missing, a text as it is stored, or a number. A text is a view into the
/// dataset that was counted; whoever keeps results drops them before the dataset.
using FreqValue = std::variant<std::monostate, std::string_view, double>;

/// One combination of values and how often it occurs.
struct WordsAndCounts
{
    std::vector<FreqValue> values;  ///< one for each variable, in their order
    std::int32_t count = 0;
};

/// Counts the combinations of values that variables take in the observations which both filters
/// select.
///
/// Results come in ascending order of their values, the first variable counting most. Of two values
/// the kinds decide first (missing, text, number), then texts bytewise and numbers numerically,
/// where all NaN are equal and below every number. Linear in the observations, whatever their
/// order, plus the sort of the distinct values and combinations.
namespace frequencies {

/// How many observations have each combination. NaN counts as missing.
[[nodiscard]] std::vector<WordsAndCounts> plain(const StatDataset& dataset,
                                                std::span<const int> variables);

/// The first variable of that name, in any case of its ASCII letters.
[[nodiscard]] std::optional<int> idVariable(const StatDataset& dataset,
                                            std::string_view uniqueVarName);

/// How many distinct subjects have each combination. NaN is a number here, not missing.
/// @param variables      without any, all subjects are counted, unless there is no observation
/// @param uniqueVarName  the variable that identifies a subject, as idVariable() finds it; where
///                       there is none, observations are counted as plain() does
/// Subjects differ when their stored texts do. A numeric variable has no stored text: there the
/// texts that the cells show stand in.
[[nodiscard]] std::vector<WordsAndCounts> distinctIds(const StatDataset& dataset,
                                                      std::span<const int> variables,
                                                      std::string_view uniqueVarName);

/// Numbers that sort the results by one column of their list: where one is less than another, its
/// row comes before the other's. Numbers of a variable order as such, NaN below all, and everything
/// else by the texts of the list, counts too: 10 comes before 9. Where numbers and missing values
/// meet, the missing ones stand together.
/// @param column  a place among the variables, or the one behind them for the counts
[[nodiscard]] std::vector<std::uint64_t> sortKeys(const StatDataset& dataset,
                                                  std::span<const WordsAndCounts> results,
                                                  std::span<const int> variables,
                                                  std::size_t column);

/// The text that stands for a value of the variable in lists of frequencies.
/// Throws std::bad_variant_access when a character variable comes with something else than a text.
[[nodiscard]] std::string displayText(const StatDataset& dataset, int variable,
                                      const FreqValue& value);

}  // namespace frequencies

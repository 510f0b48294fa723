#pragma once

#include "analysis/comparison/CompareRequest.h"
#include "data/Result.h"

class StatDataset;

namespace comparison {

/// Which attributes of two variables differ.
struct AttributeDifferences
{
    bool length = false;
    bool format = false;
    bool informat = false;
    bool label = false;

    [[nodiscard]] bool any() const { return length || format || informat || label; }
};

/// A variable of the base dataset and the one of the compare dataset that belongs to it.
struct VariablePair
{
    int base = 0;
    int compare = 0;
    bool hasConflictingTypes = false;
    AttributeDifferences differing{};
};

/// The variables of two datasets, those of one side only and those of both.
struct VariableMatch
{
    std::vector<VariablePair> common;  ///< of one name in any letter case, in the base's order
    std::vector<int> baseOnly;
    std::vector<int> compareOnly;
    std::vector<VariablePair> id;
    std::vector<VariablePair> compared;  ///< whose values are compared; types agree
    std::size_t varCount = 0;  ///< asked for by name
    std::size_t withCount = 0;
    std::vector<std::string> notes;  ///< what was asked for and passed over, a sentence each
};

/// Matches the variables that the datasets show, or all where filters are passed over. A failure
/// names the variable without which there is nothing to compare.
[[nodiscard]] Result<VariableMatch>
matchVariables(const StatDataset& base, const StatDataset& compare, const Request& request);

}  // namespace comparison

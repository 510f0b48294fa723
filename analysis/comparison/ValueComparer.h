#pragma once

#include "analysis/comparison/Comparison.h"

#include <span>

namespace comparison {

/// Compares the values of all pairs of observations and fills in what the variables are to tell.
/// @param variables  with their rules, and nothing found yet
void compareValues(const StatDataset& base, const StatDataset& compare, const Request& request,
                   std::span<const ObservationPair> pairs,
                   std::vector<ComparedVariable>& variables);

}  // namespace comparison

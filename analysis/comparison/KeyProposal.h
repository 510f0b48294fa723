#pragma once

#include "data/Result.h"

#include <string>
#include <vector>

class StatDataset;

namespace comparison {

/// The ID variables that suggest themselves for two datasets: the key variables that one of the
/// files tells, else as many of the usual ones (study, subject, sequence number, parameter, visit,
/// time ...) as it takes to tell the observations of both datasets apart, else the first variable
/// that does so alone. Empty where nothing suggests itself. Both datasets have the variables, with
/// the same type; the names are those of the base.
[[nodiscard]] std::vector<std::string> proposedKeys(const StatDataset& base,
                                                    const StatDataset& compare);

/// How many observations of a dataset have the same values of some variables as one before them. A
/// failure names a variable that is not there.
[[nodiscard]] Result<std::size_t> repeatedKeys(const StatDataset& dataset,
                                               const std::vector<std::string>& names,
                                               bool passesOverFilters);

}  // namespace comparison

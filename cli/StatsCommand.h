#pragma once

#include "cli/Output.h"
#include "data/Result.h"
#include "data/StatDataset.h"

#include <string>
#include <vector>

namespace cli {

struct StatsRequest
{
    std::string variable;
    std::vector<std::string> by;  ///< variable names; empty for one sample
};

/// Prints the statistics of a numeric variable in the observations that the filters select, or in
/// each group of them. A failure names the variable, and nothing has been printed then.
[[nodiscard]] Result<bool> printStatistics(const StatDataset& dataset, const StatsRequest& request,
                                           OutputFormat format);

}  // namespace cli

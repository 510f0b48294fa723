#pragma once

#include "cli/Output.h"
#include "data/Result.h"
#include "data/StatDataset.h"

#include <limits>
#include <string>
#include <vector>

namespace cli {

struct RowsRequest
{
    std::vector<std::string> keep;  ///< variable names; empty for all
    std::vector<std::string> drop;
    std::vector<std::string> sort;  ///< "NAME" or "NAME:desc"
    int first = std::numeric_limits<int>::max();
    bool raw = false;
};

/// Prints the observations that the dataset's filter selects: number and cells, as the grid shows
/// them or as they are stored. A failure names the variable, and nothing has been printed then.
[[nodiscard]] Result<bool> printRows(const StatDataset& dataset, const RowsRequest& request,
                                     OutputFormat format);

}  // namespace cli

#pragma once

#include "cli/Output.h"
#include "data/Result.h"
#include "data/StatDataset.h"

#include <string>

namespace cli {

struct FreqRequest
{
    std::string variables;  ///< names joined by "*": "SEX*RACE"
    bool distinct = false;  ///< count subjects instead of observations
    std::string idName = "USUBJID";  ///< the variable that identifies a subject
};

/// Prints how often each combination of values occurs in the observations that the filters select,
/// in ascending order: values as a window shows them, and the count. A failure names the variable,
/// and nothing has been printed then.
[[nodiscard]] Result<bool> printFrequencies(const StatDataset& dataset, const FreqRequest& request,
                                            OutputFormat format);

}  // namespace cli

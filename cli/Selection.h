#pragma once

#include "data/Result.h"
#include "data/StatDataset.h"

#include <optional>
#include <string>
#include <vector>

namespace cli {

/// The number of the variable of that name, in any letter case; the failure names it.
[[nodiscard]] Result<int> variableNamed(const StatDataset& dataset, const std::string& name);
[[nodiscard]] Result<std::vector<int>> variablesNamed(const StatDataset& dataset,
                                                      const std::vector<std::string>& names);

/// Narrows the dataset's filter mask to the observations that meet the condition, if there is one.
[[nodiscard]] Result<bool> selectWhere(StatDataset& dataset,
                                       const std::optional<std::string>& condition);

}  // namespace cli

#pragma once

#include "analysis/comparison/CompareRequest.h"
#include "data/Result.h"

#include <string_view>

namespace comparison {

/// A number in the C language's form. A failure shows the text.
[[nodiscard]] Result<double> numberOf(std::string_view text);

/// "exact", "absolute", "relative" or "percent", in any letter case.
[[nodiscard]] Result<Method> methodNamed(std::string_view name);

/// "AVAL=0.001", or with a method of its own "AVAL=0.001:absolute".
[[nodiscard]] Result<VariableCriterion> criterionOf(std::string_view text);

}  // namespace comparison

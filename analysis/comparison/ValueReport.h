#pragma once

#include "analysis/comparison/CompareReport.h"

namespace comparison {

inline constexpr const char* allEqualNote =
    "No unequal values were found. All values compared are exactly equal.";
inline constexpr const char* withinCriterionNote =
    "No unequal values were found. Some values compared are not exactly equal.";

/// Whether the method measures a share of the values, and not their distance.
[[nodiscard]] constexpr bool isShare(Method method)
{
    return method == Method::Relative || method == Method::Percent;
}

/// The part of a report that shows the differing values, by variable or by observation, and the
/// statistics of the variables.
[[nodiscard]] std::string valueReport(const Comparison& comparison, const ReportOptions& options,
                                      std::size_t lineSize);

}  // namespace comparison

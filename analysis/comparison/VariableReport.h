#pragma once

#include "analysis/comparison/CompareReport.h"

namespace comparison {

/// "Variables in A but not in B".
[[nodiscard]] std::string onlyIn(const Comparison& comparison, const char* what, bool base);

/// The part of a report that tells which variables match and how their attributes differ.
[[nodiscard]] std::string variableSummary(const Comparison& comparison,
                                          const ReportOptions& options, std::size_t lineSize);

/// The part that lists the compared variables with their numbers of differences.
[[nodiscard]] std::string comparedVariables(const Comparison& comparison,
                                            const ReportOptions& options, std::size_t lineSize);

}  // namespace comparison

#pragma once

#include "analysis/comparison/CompareReport.h"

namespace comparison {

/// One of the datasets as a SAS program reads it.
struct ProgramSource
{
    std::string path;  ///< of the file; empty for a dataset that is none
    std::string member;  ///< what the dataset is called in SAS
    std::vector<std::string> filters{};  ///< statements of a data step: "where a = 1;"
};

/// The SAS program that compares two files as a request says. Both are copied into WORK, where they
/// are filtered and sorted by the ID variables. Variables with a criterion of their own get steps
/// of their own, as PROC COMPARE takes one criterion a step; what SAS cannot read by itself is left
/// to whoever runs the program, in a comment.
[[nodiscard]] std::string programText(const ProgramSource& base, const ProgramSource& compare,
                                      const Request& request, const ReportOptions& options);

}  // namespace comparison

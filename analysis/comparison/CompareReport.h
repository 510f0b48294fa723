#pragma once

#include "analysis/comparison/Comparison.h"

namespace comparison {

struct ReportOptions
{
    static constexpr int smallestLine = 80;
    static constexpr int largestLine = 256;

    int lineSize = 96;  ///< characters, 80 to 256
    int textWidth = 20;  ///< characters of a text value that are shown
    std::size_t maxPerVariable = 50;  ///< differing values that are printed
    std::size_t maxTotal = 500;
    double fuzz = 0;  ///< smaller values are printed as 0, smaller differences not at all

    bool listBaseVariables = false;
    bool listCompareVariables = false;
    bool listEqualVariables = false;
    bool listBaseObservations = false;
    bool listCompareObservations = false;

    bool summary = true;
    bool brief = false;  ///< a few sentences instead of the summaries
    bool values = true;  ///< the differing values
    bool transpose = false;  ///< by observation instead of by variable
    bool statistics = false;  ///< of each numeric variable, behind its values

    void listAll();
};

/// The comparison as PROC COMPARE prints it, in lines of the size that is asked for.
[[nodiscard]] std::string reportText(const Comparison& comparison, const ReportOptions& options);

}  // namespace comparison

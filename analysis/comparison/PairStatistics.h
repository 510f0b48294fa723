#pragma once

#include "analysis/comparison/Comparison.h"

#include <array>

namespace comparison {

/// Of the numbers that are there; NaN where there are too few.
struct SampleStatistics
{
    std::size_t count = 0;
    double mean;
    double standardDeviation;  ///< of a sample, by n - 1
    double maximum;
    double minimum;
    double standardError;
    double t;  ///< mean by standard error
    double probability;  ///< of a larger |t| where the true mean is 0
};

/// The statistics of one variable in the matched observations.
struct PairStatistics
{
    /// Base, compare, differences and differences in percent.
    std::array<SampleStatistics, 4> samples;
    double percentUnequal;  ///< of the matched observations
    // Of the two means: their difference in percent of the base's and of the compare's, and plain.
    double meansByBase;
    double meansByCompare;
    double differenceOfMeans;
    double correlation;  ///< of the pairs of which neither is missing
};

[[nodiscard]] PairStatistics pairStatistics(const Comparison& comparison,
                                            const ComparedVariable& variable);

}  // namespace comparison

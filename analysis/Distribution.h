#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

/// A sample as it is drawn: five numbers for a box, and bars for a histogram. Missing and infinite
/// values have no place on an axis and are left out.
struct Distribution
{
    std::string label;  ///< the values that its group has; empty for the whole
    std::size_t count = 0;  ///< of the values that are drawn
    std::size_t leftOut = 0;
    double minimum = 0;
    double lowerQuartile = 0;  ///< where it falls between two values, their mean
    double median = 0;
    double upperQuartile = 0;
    double maximum = 0;
    double firstEdge = 0;  ///< of the bars; a value on an edge belongs to the bar above it
    double barWidth = 0;
    std::vector<std::size_t> bars;  ///< how many values each holds; none without a value
};

/// @param ascending  the sample, NaN in front
[[nodiscard]] Distribution distributionOf(std::span<const double> ascending);

#include "analysis/Distribution.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

using Values = std::span<const double>;

double quartile(Values values, int quarter)
{
    const std::size_t quarters = values.size() * static_cast<std::size_t>(quarter);
    const std::size_t place = quarters / 4;
    return quarters % 4 == 0 ? values[place - 1] / 2 + values[place] / 2 : values[place];
}

/// The least of 1, 2 and 5 times a power of ten that makes no more than so many steps of a range.
double roundStep(double range, int steps)
{
    const double least = range / steps;
    const double power = std::pow(10, std::floor(std::log10(least)));
    constexpr std::array factors{1.0, 2.0, 5.0, 10.0};
    const auto* factor = std::find_if(factors.begin(), factors.end(),
                                      [&](double each) { return each * power >= least; });
    return (factor == factors.end() ? factors.back() : *factor) * power;
}

bool areWhole(Values values)
{
    return std::all_of(values.begin(), values.end(),
                       [](double value) { return value == std::floor(value); });
}

void addBars(Distribution& drawn, Values values)
{
    constexpr double fewest = 5;
    constexpr double most = 24;
    const double range = values.back() - values.front();
    const auto count =
        static_cast<int>(std::clamp(std::sqrt(static_cast<double>(values.size())), fewest, most));
    double width = range > 0 ? roundStep(range, count) : 1;
    if (areWhole(values)) {
        width = std::max(width, 1.0);
    }
    const double first = range > 0 ? std::floor(values.front() / width) * width : values.front();
    const double last = std::floor((values.back() - first) / width);
    if (!std::isfinite(last) || last < 0 || last > 2 * most) {
        return;  // beyond what numbers of this size can tell apart
    }
    drawn.firstEdge = first;
    drawn.barWidth = width;
    drawn.bars.resize(static_cast<std::size_t>(last) + 1);
    for (const double value : values) {
        const double bar = std::clamp(std::floor((value - first) / width), 0.0, last);
        ++drawn.bars[static_cast<std::size_t>(bar)];
    }
}

}  // namespace

Distribution distributionOf(std::span<const double> ascending)
{
    const auto isFinite = [](double value) { return std::isfinite(value); };
    const auto first = std::find_if(ascending.begin(), ascending.end(), isFinite);
    const auto end = std::find_if_not(first, ascending.end(), isFinite);
    const Values values(first, end);
    Distribution drawn;
    drawn.count = values.size();
    drawn.leftOut = ascending.size() - values.size();
    if (values.empty()) {
        return drawn;
    }
    drawn.minimum = values.front();
    drawn.lowerQuartile = quartile(values, 1);
    drawn.median = quartile(values, 2);
    drawn.upperQuartile = quartile(values, 3);
    drawn.maximum = values.back();
    addBars(drawn, values);
    return drawn;
}

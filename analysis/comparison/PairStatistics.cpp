#include "analysis/comparison/PairStatistics.h"

#include <algorithm>
#include <boost/math/distributions/students_t.hpp>
#include <cmath>
#include <limits>
#include <numeric>

namespace comparison {

namespace {

constexpr double unknown = std::numeric_limits<double>::quiet_NaN();

using Numbers = std::vector<double>;

double meanOf(const Numbers& numbers)
{
    return numbers.empty() ? unknown
                           : std::accumulate(numbers.begin(), numbers.end(), 0.0)
            / static_cast<double>(numbers.size());
}

/// The sum of (a - mean of a) x (b - mean of b).
double productSum(const Numbers& a, const Numbers& b)
{
    const double meanA = meanOf(a);
    const double meanB = meanOf(b);
    return std::inner_product(a.begin(), a.end(), b.begin(), 0.0, std::plus<>(),
                              [&](double x, double y) { return (x - meanA) * (y - meanB); });
}

double probabilityOf(double t, double degreesOfFreedom)
{
    if (std::isnan(t)) {
        return unknown;
    }
    const boost::math::students_t distribution(degreesOfFreedom);
    return std::isinf(t) ? 0
                         : 2 * boost::math::cdf(boost::math::complement(distribution, std::abs(t)));
}

SampleStatistics describe(const Numbers& numbers)
{
    SampleStatistics sample{numbers.size(), meanOf(numbers), unknown, unknown,
                            unknown,        unknown,         unknown, unknown};
    if (numbers.empty()) {
        return sample;
    }
    const auto [minimum, maximum] = std::minmax_element(numbers.begin(), numbers.end());
    sample.minimum = *minimum;
    sample.maximum = *maximum;
    const auto n = static_cast<double>(numbers.size());
    if (n > 1) {
        sample.standardDeviation = std::sqrt(productSum(numbers, numbers) / (n - 1));
        sample.standardError = sample.standardDeviation / std::sqrt(n);
        sample.t = sample.standardError > 0 ? sample.mean / sample.standardError : unknown;
        sample.probability = probabilityOf(sample.t, n - 1);
    }
    return sample;
}

}  // namespace

PairStatistics pairStatistics(const Comparison& comparison, const ComparedVariable& variable)
{
    Numbers base;
    Numbers compare;
    Numbers differences;
    Numbers percents;
    Numbers pairedBase;
    Numbers pairedCompare;
    const auto keep = [](Numbers& numbers, double number) {
        if (!std::isnan(number)) {
            numbers.push_back(number);
        }
    };
    for (const ObservationPair& pair : comparison.observations().pairs) {
        if (!pair.isMatched()) {
            continue;
        }
        const NumberDifference numbers = comparison.numbers(variable, pair);
        keep(base, numbers.base);
        keep(compare, numbers.compare);
        keep(differences, numbers.difference);
        keep(percents, numbers.percent);
        if (!std::isnan(numbers.base) && !std::isnan(numbers.compare)) {
            pairedBase.push_back(numbers.base);
            pairedCompare.push_back(numbers.compare);
        }
    }
    PairStatistics statistics{
        {describe(base), describe(compare), describe(differences), describe(percents)},
        unknown,
        unknown,
        unknown,
        unknown,
        unknown};
    const double meanOfBase = statistics.samples[0].mean;
    const double meanOfCompare = statistics.samples[1].mean;
    statistics.differenceOfMeans = meanOfCompare - meanOfBase;
    statistics.meansByBase = percentDifference(meanOfBase, meanOfCompare);
    statistics.meansByCompare =
        meanOfCompare == 0 ? unknown : statistics.differenceOfMeans / meanOfCompare * 100;
    statistics.percentUnequal = 100 * static_cast<double>(variable.unequal.size())
        / static_cast<double>(comparison.observations().matched());
    statistics.correlation = productSum(pairedBase, pairedCompare)
        / std::sqrt(productSum(pairedBase, pairedBase) * productSum(pairedCompare, pairedCompare));
    return statistics;
}

}  // namespace comparison

#include "analysis/comparison/EqualityRule.h"

#include <fmt/format.h>

#include <cmath>
#include <limits>

namespace comparison {

namespace {

constexpr double epsilon = std::numeric_limits<double>::epsilon();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double defaultCriterion = 0.00001;

/// A quotient of magnitudes that cannot be told because both are infinite is infinite.
double share(double distance, double size)
{
    return std::isinf(distance) || std::isnan(distance) ? infinity : distance / size;
}

}  // namespace

const char* nameOf(Method method)
{
    switch (method) {
    case Method::Absolute:
        return "ABSOLUTE";
    case Method::Relative:
        return "RELATIVE";
    case Method::Percent:
        return "PERCENT";
    case Method::Exact:
        break;
    }
    return "EXACT";
}

Result<EqualityRule> EqualityRule::of(std::optional<Method> method, std::optional<double> criterion,
                                      std::optional<double> delta)
{
    if (criterion && !std::isfinite(*criterion)) {
        return Failure{"The criterion is no number"};
    }
    if (delta && !(*delta >= 0 && *delta <= 1)) {
        return Failure{fmt::format("The delta of RELATIVE lies between 0 and 1, not {}", *delta)};
    }
    EqualityRule rule;
    rule.m_method = method.value_or(criterion ? Method::Relative : Method::Exact);
    if (delta && rule.m_method != Method::Relative) {
        return Failure{fmt::format("The method {} takes no delta", nameOf(rule.m_method))};
    }
    if (rule.m_method == Method::Exact) {
        return rule;
    }
    const double given = criterion.value_or(defaultCriterion);
    rule.m_criterion = given < 0 ? -given * epsilon : given;
    if (rule.m_method == Method::Relative) {
        // Without a method the differences of numbers next to 0, which are all of them large in
        // proportion, are damped by what a double cannot hold of the criterion.
        const double damping = rule.m_criterion > 0 ? 10 * epsilon / rule.m_criterion : 0;
        rule.m_delta = delta.value_or(method ? 0 : damping);
    }
    return rule;
}

double EqualityRule::measure(double base, double compare) const
{
    const double distance = base == compare ? 0 : std::abs(compare - base);
    switch (m_method) {
    case Method::Relative: {
        const double sum = std::abs(base) + std::abs(compare);
        // The halves are added where the sum is too large for a double.
        const double mean = std::isinf(sum) ? std::abs(base) / 2 + std::abs(compare) / 2 : sum / 2;
        return distance == 0 ? 0 : share(distance, mean + m_delta);
    }
    case Method::Percent:
        return distance == 0 ? 0 : base == 0 ? infinity : 100 * share(distance, std::abs(base));
    default:
        return std::isnan(distance) ? infinity : distance;
    }
}

double percentDifference(double base, double compare)
{
    return base == 0 ? std::numeric_limits<double>::quiet_NaN() : (compare - base) / base * 100;
}

}  // namespace comparison

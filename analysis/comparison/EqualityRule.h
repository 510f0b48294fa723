#pragma once

#include "analysis/comparison/CompareRequest.h"
#include "data/Result.h"

namespace comparison {

/// When two numbers, neither of them missing, count as unequal.
class EqualityRule
{
public:
    /// The rule of a method, a criterion and a delta as they were given.
    /// A failure says which of them makes no sense.
    [[nodiscard]] static Result<EqualityRule>
    of(std::optional<Method> method, std::optional<double> criterion, std::optional<double> delta);

    [[nodiscard]] Method method() const { return m_method; }
    /// A negative criterion has become that many machine epsilons.
    [[nodiscard]] double criterion() const { return m_criterion; }
    [[nodiscard]] double delta() const { return m_delta; }

    /// What the method holds against the criterion: for EXACT and ABSOLUTE the distance, for
    /// RELATIVE and PERCENT a share of the values. Never NaN for numbers that differ.
    [[nodiscard]] double measure(double base, double compare) const;
    /// A measure that equals the criterion is equal.
    [[nodiscard]] bool isUnequal(double base, double compare) const
    {
        return base != compare
            && (m_method == Method::Exact || measure(base, compare) > m_criterion);
    }

private:
    Method m_method = Method::Exact;
    double m_criterion = 0;
    double m_delta = 0;
};

/// 100 x (compare - base) / base; NaN where the base is 0.
[[nodiscard]] double percentDifference(double base, double compare);

}  // namespace comparison

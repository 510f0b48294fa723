#pragma once

#include "analysis/comparison/Comparison.h"

namespace comparison {

/// The values of both sides as people read them.
struct ValueTexts
{
    std::string base;
    std::string compare;
};

/// The values of a pair of matched observations: numbers as their formats show them, and as they
/// are stored where the formats show no difference or there is none; missing ones as a point with
/// their letter; texts whole.
[[nodiscard]] ValueTexts valueTexts(const Comparison& comparison, const ComparedVariable& variable,
                                    const ObservationPair& pair);

/// The values of a pair of matched observations as grids show them; as they are stored where these
/// texts are the same and the values are not.
[[nodiscard]] ValueTexts cellTexts(const Comparison& comparison, const ComparedVariable& variable,
                                   const ObservationPair& pair, bool isUnequal);

/// The ID values of an observation as "A=1 B=x", in the names of the side that has it; the numbers
/// of the observations without ID variables.
[[nodiscard]] std::string observationText(const Comparison& comparison,
                                          const ObservationPair& pair);
/// The stored value of one ID variable.
[[nodiscard]] std::string idText(const Comparison& comparison, const VariablePair& id,
                                 const ObservationPair& pair);

/// At most nine characters; a point for NaN.
[[nodiscard]] std::string differenceText(double difference, int decimals = 4);

/// A criterion without exponent where that is readable: "0.00001".
[[nodiscard]] std::string criterionText(double criterion);

/// "EXACT", "ABSOLUTE, Criterion=0.1", "RELATIVE(0.5), Criterion=0.1".
[[nodiscard]] std::string ruleText(const EqualityRule& rule);

/// The names of the two variables of a pair: "A", or "A^=B" where they differ.
[[nodiscard]] std::string pairName(const Comparison& comparison, const VariablePair& pair);

}  // namespace comparison

#pragma once

#include "data/StatDataset.h"
#include "grid/filter/ConditionParser.h"
#include "grid/filter/RowPredicate.h"

/// A condition compiled against a dataset, which outlives it.
///
/// A missing number is below every other; the number "." stands for it. Texts compare byte by byte
/// without their trailing blanks, upper and lower case being different, and a missing text is
/// blank. `contains` and `index` look for the bytes as written; `index` counts characters from 1
/// and is 0 where the text is absent. Date and time literals are SAS counts; cells of datasets that
/// count otherwise meet them at the same moment (see DateScale).
class CompiledCondition
{
public:
    /// Throws ParseError, which names the unknown variable or shows the impossible literal, or is
    /// "The variable types do not match."
    CompiledCondition(const ParsedCondition& condition, const StatDataset& dataset);
    /// Compiles a filter text without "where" or "if": the grammar of the command language, with
    /// signed numbers and exponents. Throws ParseError with the parser's message, too.
    CompiledCondition(QStringView conditionText, const StatDataset& dataset);

    /// Gives the mask one bit per observation, set where the condition holds.
    void select(BitVector& mask) const;

private:
    RowPredicatePointer m_predicate;
    std::size_t m_observations;
};

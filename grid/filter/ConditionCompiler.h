#pragma once

#include "data/StatDataset.h"
#include "grid/filter/Condition.h"
#include "grid/filter/LiteralValue.h"
#include "grid/filter/RowPredicate.h"

/// Turns a condition into predicates of a dataset's cells: names become variable numbers and values
/// what the cells hold, once for all rows.
class ConditionCompiler
{
public:
    explicit ConditionCompiler(const StatDataset& dataset)
        : m_dataset(dataset)
    { }

    /// The predicate of a condition, for as long as the dataset lives. Throws ParseError, which
    /// names the unknown variable or shows the impossible literal, or is "The variable types do not
    /// match."
    [[nodiscard]] RowPredicatePointer compile(const Condition& condition) const;

private:
    [[nodiscard]] RowPredicatePointer compile(const CompareTerm& term) const;
    [[nodiscard]] RowPredicatePointer compile(const IndexTerm& term) const;
    [[nodiscard]] RowPredicatePointer compile(const InTerm& term) const;
    [[nodiscard]] RowPredicatePointer compile(const NullTerm& term) const;
    [[nodiscard]] RowPredicatePointer compile(const Junction& junction) const;

    [[nodiscard]] RowPredicatePointer compareNumber(int variable, CompareOp op,
                                                    const LiteralValue& value) const;
    [[nodiscard]] RowPredicatePointer compareText(int variable, CompareOp op,
                                                  const LiteralValue& value) const;
    [[nodiscard]] RowPredicatePointer numberIsIn(int variable,
                                                 const std::vector<LiteralValue>& values) const;
    [[nodiscard]] RowPredicatePointer textIsIn(int variable,
                                               const std::vector<LiteralValue>& values) const;
    [[nodiscard]] RowPredicatePointer isMissing(int variable) const;
    [[nodiscard]] double storedCount(int variable, const LiteralValue& value) const;

    const StatDataset& m_dataset;
};

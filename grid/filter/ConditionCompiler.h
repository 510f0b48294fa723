#pragma once

#include "data/StatDataset.h"
#include "grid/filter/Condition.h"
#include "grid/filter/LiteralValue.h"
#include "grid/filter/RowTest.h"

/// Turns a condition into tests of a dataset's cells: names become variable numbers and values what
/// the cells hold, once for all rows.
class ConditionCompiler
{
public:
    explicit ConditionCompiler(const StatDataset& dataset)
        : m_dataset(dataset)
    { }

    /// The test of a condition, for as long as the dataset lives. Throws ParseError, which names
    /// the unknown variable or shows the impossible literal, or is "The variable types do not
    /// match."
    [[nodiscard]] RowTestPointer compile(const Condition& condition) const;

private:
    [[nodiscard]] RowTestPointer compile(const CompareTerm& term) const;
    [[nodiscard]] RowTestPointer compile(const IndexTerm& term) const;
    [[nodiscard]] RowTestPointer compile(const InTerm& term) const;
    [[nodiscard]] RowTestPointer compile(const NullTerm& term) const;
    [[nodiscard]] RowTestPointer compile(const Junction& junction) const;

    [[nodiscard]] int variableNamed(const QString& name) const;
    [[nodiscard]] RowTestPointer compareNumber(int variable, CompareOp op,
                                               const LiteralValue& value) const;
    [[nodiscard]] RowTestPointer compareText(int variable, CompareOp op,
                                             const LiteralValue& value) const;
    [[nodiscard]] RowTestPointer numberIsIn(int variable,
                                            const std::vector<LiteralValue>& values) const;
    [[nodiscard]] RowTestPointer textIsIn(int variable,
                                          const std::vector<LiteralValue>& values) const;
    [[nodiscard]] RowTestPointer isMissing(int variable) const;
    [[nodiscard]] double storedCount(int variable, const LiteralValue& value) const;

    const StatDataset& m_dataset;
};

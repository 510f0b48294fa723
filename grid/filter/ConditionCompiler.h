#pragma once

#include "data/Result.h"
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

    /// The test of a condition, for as long as the dataset lives. A failure names the unknown
    /// variable or shows the impossible literal, or is "The variable types do not match."
    [[nodiscard]] Result<RowTestPointer> compile(const Condition& condition) const;

private:
    [[nodiscard]] Result<RowTestPointer> compile(const CompareTerm& term) const;
    [[nodiscard]] Result<RowTestPointer> compile(const IndexTerm& term) const;
    [[nodiscard]] Result<RowTestPointer> compile(const InTerm& term) const;
    [[nodiscard]] Result<RowTestPointer> compile(const NullTerm& term) const;
    [[nodiscard]] Result<RowTestPointer> compile(const Junction& junction) const;

    [[nodiscard]] Result<int> variableNamed(const QString& name) const;
    [[nodiscard]] Result<RowTestPointer> compareNumber(int variable, CompareOp op,
                                                       const LiteralValue& value) const;
    [[nodiscard]] Result<RowTestPointer> compareText(int variable, CompareOp op,
                                                     const LiteralValue& value) const;
    [[nodiscard]] Result<RowTestPointer> numberIsIn(int variable,
                                                    const std::vector<LiteralValue>& values) const;
    [[nodiscard]] Result<RowTestPointer> textIsIn(int variable,
                                                  const std::vector<LiteralValue>& values) const;
    [[nodiscard]] RowTestPointer isMissing(int variable) const;
    [[nodiscard]] Result<double> storedCount(int variable, const LiteralValue& value) const;

    const StatDataset& m_dataset;
};

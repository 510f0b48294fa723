#pragma once

#include "data/Result.h"
#include "data/StatDataset.h"
#include "grid/filter/RowTest.h"

#include <QString>

/// A condition compiled against a dataset, which outlives it.
///
/// A missing number is below every other; the number "." stands for it. Texts compare byte by byte
/// without their trailing blanks, upper and lower case being different, and a missing text is
/// blank. `contains` and `index` look for the bytes as written; `index` counts characters from 1
/// and is 0 where the text is absent. Date and time literals are SAS counts; cells of datasets that
/// count otherwise meet them at the same moment (see DateScale).
class FilterCondition
{
public:
    /// Compiles a filter text without "where" or "if": the grammar of the command language, with
    /// signed numbers and exponents. A failure holds the parser's message, names the unknown
    /// variable or shows the impossible literal, or is "The variable types do not match."
    [[nodiscard]] static Result<FilterCondition> compile(QStringView conditionText,
                                                         const StatDataset& dataset);

    /// Gives the mask one bit per observation, set where the condition holds.
    void select(BitVector& mask) const;

    /// The condition, normalised.
    [[nodiscard]] const QString& text() const { return m_text; }
    /// Whether an "or" stands outside all parentheses, so that the text needs some inside an "and".
    [[nodiscard]] bool hasOuterOr() const { return m_hasOuterOr; }

private:
    FilterCondition(QString text, bool hasOuterOr, RowTestPointer test, std::size_t observations)
        : m_text(std::move(text))
        , m_hasOuterOr(hasOuterOr)
        , m_test(std::move(test))
        , m_observations(observations)
    { }

    QString m_text;
    bool m_hasOuterOr;
    RowTestPointer m_test;
    std::size_t m_observations;
};

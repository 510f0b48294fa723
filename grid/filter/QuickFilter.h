#pragma once

#include "data/Result.h"
#include "data/StatDataset.h"
#include "grid/filter/CompareOp.h"

#include <QString>

#include <span>
#include <string>
#include <variant>

/// Writes conditions from the values of cells, as filter texts without "where" or "if".
///
/// A value is written as it is stored: a number with the fewest digits that read back to it, or as
/// a date or time literal where the variable's format shows one and the literal reads back to the
/// same number; a text, without its trailing blanks, in the quotes that it does not hold. A missing
/// number is "."; a blank text makes `is null` or `is not null`.
///
/// A failure says what cannot be written: a text with both kinds of quotes, an infinite number.
class QuickFilter
{
public:
    /// A value of the variable's type, as it is stored.
    using Value = std::variant<std::string, double>;

    /// The dataset outlives the object.
    QuickFilter(const StatDataset& dataset, int variable)
        : m_dataset(dataset)
        , m_variable(variable)
    { }

    /// The value that an observation has.
    [[nodiscard]] Value valueAt(int observation) const;

    /// `variable op value`.
    /// @param op  Contains gives what contains() gives
    [[nodiscard]] Result<QString> compare(CompareOp op, const Value& value) const;

    /// `variable in (values)`, each value once, in their order.
    [[nodiscard]] Result<QString> isIn(std::span<const Value> values) const;

    /// `index(variable, "text") > 0`. Numeric variables hold no text: a failure.
    [[nodiscard]] Result<QString> contains(const Value& value) const;

private:
    [[nodiscard]] QString name() const;
    [[nodiscard]] Result<QString> literal(const Value& value) const;
    [[nodiscard]] Result<QString> number(double value) const;

    const StatDataset& m_dataset;
    int m_variable;
};

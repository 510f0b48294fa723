#pragma once

#include "grid/filter/CellColumn.h"
#include "grid/filter/CompareOp.h"
#include "grid/filter/RowPredicate.h"

#include <vector>

/// A numeric variable as the predicates read it.
struct NumberColumn
{
    CellColumn cells;
    MissingMark mark;
};

/// Predicates of numeric variables. A missing number is below every other and equal to every
/// missing one.
namespace numberpredicates {

[[nodiscard]] RowPredicatePointer isMissing(const NumberColumn& column);

/// @param op  any but Contains
/// @param number  finite
[[nodiscard]] RowPredicatePointer compare(const NumberColumn& column, CompareOp op, double number);

/// Whether the number is one of these.
/// @param numbers  finite
[[nodiscard]] RowPredicatePointer isOneOf(const NumberColumn& column, std::vector<double> numbers);

}  // namespace numberpredicates

#pragma once

#include "grid/filter/CellColumn.h"
#include "grid/filter/CompareOp.h"
#include "grid/filter/RowTest.h"

#include <vector>

/// A numeric variable as the tests read it.
struct NumberColumn
{
    CellColumn cells;
    MissingMark mark;
};

/// Tests of numeric variables. A missing number is below every other and equal to every missing
/// one.
namespace numbertests {

[[nodiscard]] RowTestPointer isMissing(const NumberColumn& column);

/// @param op  any but Contains
/// @param number  finite
[[nodiscard]] RowTestPointer compare(const NumberColumn& column, CompareOp op, double number);

/// Whether the number is one of these.
/// @param numbers  finite
[[nodiscard]] RowTestPointer isOneOf(const NumberColumn& column, std::vector<double> numbers);

}  // namespace numbertests

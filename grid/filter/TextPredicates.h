#pragma once

#include "data/cells/TextPool.h"
#include "grid/filter/CellColumn.h"
#include "grid/filter/CompareOp.h"
#include "grid/filter/RowPredicate.h"

#include <string>
#include <vector>

/// A character variable as the predicates read it. Trailing blanks of its texts do not count.
struct TextColumn
{
    CellColumn cells;
    const TextPool* pool;
};

/// Predicates of character variables. Their records are asked once for each distinct text.
namespace textpredicates {

/// The text without blanks at its end.
[[nodiscard]] std::string_view withoutTrailingBlanks(std::string_view text);

/// Whether the text is one of these, whose trailing blanks do not count either.
[[nodiscard]] RowPredicatePointer isOneOf(const TextColumn& column, std::vector<std::string> texts);

/// Compares byte by byte, upper and lower case being different.
/// @param op  Contains looks for the text as it stands, its blanks included
[[nodiscard]] RowPredicatePointer compare(const TextColumn& column, CompareOp op, std::string text);

/// Compares the place where `needle` first stands in the text, in characters from 1, or 0 where it
/// does not stand at all.
/// @param op  any but Contains
[[nodiscard]] RowPredicatePointer compareIndex(const TextColumn& column, std::string needle,
                                               CompareOp op, double place);

}  // namespace textpredicates

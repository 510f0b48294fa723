#pragma once

#include <QString>

class StatDataset;

/// What is told of a single cell beside its grid.
namespace celltext {

/// One line: variable, label, type, format, and the value as it is stored, which the format may
/// show shortened or rounded. What the file leaves empty is left out.
[[nodiscard]] QString summary(const StatDataset& dataset, int observation, int variable);

/// The whole of the cell: a text as it is stored, a number as the grid shows it and, where that is
/// another text, as it is stored.
[[nodiscard]] QString whole(const StatDataset& dataset, int observation, int variable);

}  // namespace celltext

#pragma once

#include "samples/Table.h"

#include <string>

namespace samples {

/// A number of the column as files without formats have it: dates and times by ISO 8601, others
/// with the fewest digits that read back to them; empty where it is missing.
[[nodiscard]] std::string isoText(const Column& column, double number);

}  // namespace samples

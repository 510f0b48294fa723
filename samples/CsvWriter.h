#pragma once

#include "samples/RowWriter.h"

#include <cstdio>
#include <memory>

namespace samples {

/// Writes a header line of names and a line a row; dates and times as ISO 8601 has them, numbers
/// with the fewest digits that read back to them, nothing where a value is missing.
[[nodiscard]] std::unique_ptr<RowWriter> makeCsvWriter(std::FILE* file, const TableShape& shape);

}  // namespace samples

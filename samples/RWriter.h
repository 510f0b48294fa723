#pragma once

#include "samples/RowWriter.h"

#include <cstdio>
#include <memory>

namespace samples {

/// Writes one data frame as R's saveRDS() does, packed by gzip: dates and date-times have their
/// classes, other numbers are reals. R keeps columns, so that all rows are held until the end.
[[nodiscard]] std::unique_ptr<RowWriter> makeRWriter(std::FILE* file, const TableShape& shape);

}  // namespace samples

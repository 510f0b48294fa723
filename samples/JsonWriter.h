#pragma once

#include "samples/RowWriter.h"
#include "samples/WriteOptions.h"

#include <cstdio>
#include <memory>

namespace samples {

/// Writes Dataset-JSON 1.1 as the published studies have it: a list or a line a row, the lines
/// compressed with zlib in a .dsjc file; dates and times as ISO 8601 has them, with an integer as
/// their target; a missing number as null, a missing text as an empty one.
/// @param kind  DatasetJson, Ndjson or Dsjc
[[nodiscard]] std::unique_ptr<RowWriter> makeJsonWriter(std::FILE* file, const TableShape& shape,
                                                        FileKind kind, long rowCount);

}  // namespace samples

#pragma once

#include "samples/RowWriter.h"
#include "samples/WriteOptions.h"

#include <cstdio>
#include <memory>

namespace samples {

/// Writes the kinds of files that ReadStat knows.
[[nodiscard]] std::unique_ptr<RowWriter> makeReadStatWriter(std::FILE* file,
                                                            const TableShape& shape, FileKind kind,
                                                            const WriteOptions& options,
                                                            long rowCount);

}  // namespace samples

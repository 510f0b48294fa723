#pragma once

#include "samples/Table.h"
#include "samples/WriteOptions.h"

#include <filesystem>

namespace samples {

/// The columns of the benchmark table, 12 texts and 13 numbers. Of their cells 5 % are missing,
/// save in the subject's id, which nearly every row has for its own.
[[nodiscard]] TableShape bigTableShape();

/// Writes that table with so many rows, row by row, into the kind of file that the suffix names.
/// The same number of rows gives the same rows; fewer rows are the beginning of more.
/// @throws std::runtime_error with the file's name
void writeBigTable(const std::filesystem::path& path, long rowCount,
                   const WriteOptions& options = {});

}  // namespace samples

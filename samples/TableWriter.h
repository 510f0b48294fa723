#pragma once

#include "samples/Table.h"
#include "samples/WriteOptions.h"

#include <filesystem>
#include <span>

namespace samples {

/// Writes the table as SAS transport, SAS7BDAT, SPSS or Stata file, as the suffix says. Equal
/// tables and options give equal bytes.
/// @throws std::runtime_error with the file's name; a half-written file is removed
void writeTable(const std::filesystem::path& path, const Table& table,
                const WriteOptions& options = {});

/// Writes a transport file that holds every table as one member, in the given order. Its name ends
/// in .xpt.
/// @throws std::runtime_error with the file's name, also when there is no table
void writeTransport(const std::filesystem::path& path, std::span<const Table> tables,
                    const WriteOptions& options = {});

}  // namespace samples

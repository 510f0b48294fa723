#pragma once

#include "samples/Table.h"
#include "samples/WriteOptions.h"

#include <filesystem>
#include <functional>
#include <span>

namespace samples {

/// Writes the table as SAS transport, SAS7BDAT, SPSS, Stata or CSV file, as the suffix says. The
/// same table and options give the same bytes, whatever the clock and the time zone.
/// @throws std::runtime_error with the file's name; a half-written file is removed
void writeTable(const std::filesystem::path& path, const Table& table,
                const WriteOptions& options = {});

/// Writes so many rows as writeTable does, without holding them all. ReadStat keeps row-compressed
/// SAS7BDAT data in memory until the end; all else goes straight to the file.
/// @param nextRow  gives one row after another, each needed until the next call
void writeRows(const std::filesystem::path& path, const TableShape& shape, long rowCount,
               const std::function<const Row&()>& nextRow, const WriteOptions& options = {});

/// Writes a transport file that holds every table as one member, in the given order. Its name ends
/// in .xpt.
/// @throws std::runtime_error with the file's name, also when there is no table
void writeTransport(const std::filesystem::path& path, std::span<const Table> tables,
                    const WriteOptions& options = {});

}  // namespace samples

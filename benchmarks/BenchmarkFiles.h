#pragma once

#include "samples/WriteOptions.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

/// The benchmark table of 25 variables in one kind of file.
struct BenchmarkFile
{
    std::string name;  ///< of the benchmark: "sas7bdat-utf8"
    std::string suffix;
    samples::WriteOptions options;
    std::function<bool(const std::string& path)> bareParse;  ///< false when it fails
    double goal;  ///< load time as a multiple of the bare parse
};

[[nodiscard]] const std::vector<BenchmarkFile>& benchmarkFiles();

/// Rows of the table: QUORLANE_BENCH_ROWS, or a million.
[[nodiscard]] long benchmarkRows();

/// Where the file lies; it is written at its first use and kept in the folder QUORLANE_BENCH_DATA,
/// or in the system's temporary folder.
[[nodiscard]] std::filesystem::path pathOf(const BenchmarkFile& file);

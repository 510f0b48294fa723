#include "benchmarks/BenchmarkFiles.h"

#include "benchmarks/BareParses.h"
#include "samples/BigTable.h"

#include <cstdlib>

namespace {

using bareparses::readStat;
using samples::Compression;
using samples::TextEncoding;

samples::WriteOptions options(Compression compression, TextEncoding encoding = TextEncoding::Utf8)
{
    samples::WriteOptions chosen;
    chosen.compression = compression;
    chosen.encoding = encoding;
    return chosen;
}

samples::WriteOptions release(int number)
{
    samples::WriteOptions chosen;
    chosen.release = number;
    return chosen;
}

}  // namespace

const std::vector<BenchmarkFile>& benchmarkFiles()
{
    static const std::vector<BenchmarkFile> files{
        {"transport5", ".xpt", release(5), readStat(readstat_parse_xport), 1.3},
        {"transport8", ".xpt", release(8), readStat(readstat_parse_xport), 1.3},
        {"sas7bdat-utf8", ".sas7bdat", {}, readStat(readstat_parse_sas7bdat), 2.9},
        {"sas7bdat-windows1252", ".sas7bdat", options(Compression::None, TextEncoding::Windows1252),
         readStat(readstat_parse_sas7bdat), 1.0},
        {"sas7bdat-rows", ".sas7bdat", options(Compression::Rows),
         readStat(readstat_parse_sas7bdat), 1.8},
        {"spss", ".sav", {}, readStat(readstat_parse_sav), 1.0},
        {"spss-rows", ".sav", options(Compression::Rows), readStat(readstat_parse_sav), 1.2},
        {"spss-zlib", ".sav", options(Compression::Zlib), readStat(readstat_parse_sav), 1.15},
        {"stata118", ".dta", release(118), readStat(readstat_parse_dta), 1.7},
        {"csv", ".csv", {}, bareparses::csv, 1.8},
        {"r", ".rds", {}, bareparses::r, 1.6},
        {"ndjson", ".ndjson", {}, bareparses::ndjson, 2.2},
        {"json", ".json", {}, bareparses::json, 2.2},
    };
    return files;
}

long benchmarkRows()
{
    const char* rows = std::getenv("QUORLANE_BENCH_ROWS");
    return rows == nullptr ? 1'000'000 : std::atol(rows);
}

std::filesystem::path pathOf(const BenchmarkFile& file)
{
    const char* folder = std::getenv("QUORLANE_BENCH_DATA");
    const std::filesystem::path base =
        folder == nullptr ? std::filesystem::temp_directory_path() / "quorlane-bench" : folder;
    std::filesystem::create_directories(base);
    std::filesystem::path path =
        base / (file.name + '-' + std::to_string(benchmarkRows()) + file.suffix);
    if (!std::filesystem::exists(path)) {
        samples::writeBigTable(path, benchmarkRows(), file.options);
    }
    return path;
}

#include "tests/fuzz/DatasetCheck.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <unistd.h>

namespace {

/// By the first bytes, so that any data file will do as a seed and each finding opens as it is.
const char* suffixOf(std::string_view bytes)
{
    if (bytes.starts_with("HEADER RECORD")) {
        return ".xpt";
    }
    if (bytes.starts_with("$FL")) {
        return ".sav";
    }
    if (bytes.starts_with("{") || bytes.starts_with("\xEF\xBB\xBF{")) {
        return ".json";
    }
    // What is packed may be either.
    const bool isGzip = bytes.starts_with("\x1F\x8B");
    if (bytes.starts_with("\x78") || (isGzip && bytes.size() % 2 == 1)) {
        return ".dsjc";
    }
    for (const char* const start : {"\x1F\x8B", "BZh",
                                    "\xFD"
                                    "7zXZ",
                                    "RDX", "RDA", "RDB", "X\n", "A\n", "B\n"}) {
        if (bytes.starts_with(start)) {
            return ".rds";
        }
    }
    const char first = bytes.empty() ? '\0' : bytes.front();
    if ((first >= 'A' && first <= 'Z') || first == '"' || first == '\xFF' || first == '\xEF') {
        return ".csv";
    }
    return bytes.starts_with(std::string_view("\0\0\0\0\0\0\0\0", 8)) ? ".sas7bdat" : ".dta";
}

}  // namespace

/// A request for absurdly much memory fails as it does without sanitizers.
extern "C" const char* __asan_default_options()  // NOLINT: the sanitizer's name
{
    return "allocator_may_return_null=1:quarantine_size_mb=16";
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const auto path = std::filesystem::temp_directory_path()
        / ("fuzz-" + std::to_string(getpid()) + suffixOf(bytes));
    std::ofstream(path, std::ios::binary) << bytes;
    if (std::filesystem::file_size(path) != size) {
        std::fprintf(stderr, "%s cannot be written\n", path.c_str());
        std::abort();
    }
    checkDatasetFile(QString::fromStdString(path.string()));
    std::filesystem::remove(path);
    return 0;
}

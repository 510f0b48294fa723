#pragma once

#include <filesystem>

namespace samples {

enum class FileKind
{
    Transport,
    Sas,
    Spss,
    Stata,
    Csv,
    R,
    DatasetJson,
    Ndjson,
    Dsjc
};

enum class Compression
{
    None,
    Rows,  ///< SAS7BDAT and SPSS
    Zlib  ///< SPSS
};

enum class TextEncoding
{
    Utf8,
    Windows1252  ///< declared in SAS7BDAT, undeclared in transport, the rule in Stata before 118
};

struct WriteOptions
{
    int release = 0;  ///< transport 5 or 8, Stata 111 to 119; 0 means 5 and 118
    Compression compression = Compression::None;
    TextEncoding encoding = TextEncoding::Utf8;
    bool layout64 = true;  ///< SAS7BDAT: 64-bit layout instead of 32-bit
};

/// Told by the suffix: .xpt, .sas7bdat, .sav, .zsav, .dta, .csv, .rds, .json, .ndjson, .dsjc in any
/// letter case.
/// @throws std::runtime_error naming the file for any other suffix
[[nodiscard]] FileKind kindOfFile(const std::filesystem::path& path);

/// The options with the default release filled in, and with the encoding that Stata takes texts to
/// be in before release 118.
/// @throws std::runtime_error naming the file when its kind cannot hold what is asked for
[[nodiscard]] WriteOptions checkedOptions(const std::filesystem::path& path, WriteOptions options);

}  // namespace samples

#pragma once

#include "data/readers/FileReader.h"
#include "data/Result.h"

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

/// Where things stand in a Stata file, releases 104 to 119, as far as the format library
/// (ReadStat 1.1.8) does not tell: how long a row is, and where the long strings lie.
struct DtaLayout
{
    int release = 0;
    bool littleEndian = true;
    std::int64_t rowLength = 0;  ///< bytes
    std::int64_t dataOffset = 0;  ///< of the first row, releases from 117 on
    std::int64_t longStringsOffset = 0;  ///< of the section, releases from 117 on
    /// The variables that refer to long strings, and where in a row they do.
    struct LongStringVariable
    {
        int variable;
        std::int64_t offset;
    };
    std::vector<LongStringVariable> longStringVariables;
};

/// Reads the layout; fails where the header is damaged, or promises more variables than the file
/// can describe. A file that is no Stata file at all has the release 0 or an unknown one.
[[nodiscard]] Result<DtaLayout> readDtaLayout(const FileReader& file);

/// The long strings of a file by (variable, observation), both counted from 1.
using LongStrings = std::map<std::pair<std::uint32_t, std::uint64_t>, std::string>;

/// Reads all long strings, each up to its first NUL; fails where the section is damaged.
[[nodiscard]] Result<LongStrings> readLongStrings(const FileReader& file, const DtaLayout& layout);

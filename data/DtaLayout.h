#pragma once

#include "data/FileReader.h"

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
    std::int64_t rowLength = 0;  ///< bytes; 0 when the header is damaged
    std::int64_t dataOffset = 0;  ///< of the first row, releases from 117 on
    std::int64_t longStringsOffset = 0;  ///< of the section, releases from 117 on
    std::int64_t longStringsEnd = 0;
    /// The variables that refer to long strings, and where in a row they do.
    struct LongStringVariable
    {
        int variable;
        std::int64_t offset;
    };
    std::vector<LongStringVariable> longStringVariables;
};

/// Reads the layout; what a damaged file does not tell stays 0 or empty.
[[nodiscard]] DtaLayout readDtaLayout(const FileReader& file);

/// The long strings of a file by (variable, observation), both counted from 1.
using LongStrings = std::map<std::pair<std::uint32_t, std::uint64_t>, std::string>;

/// Reads all long strings, without the NUL at their end; stops at the first damaged one.
[[nodiscard]] LongStrings readLongStrings(const FileReader& file, const DtaLayout& layout);

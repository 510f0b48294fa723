#pragma once

#include "data/readers/FileReader.h"

#include <cstdint>

/// The values of an SPSS file, for one that does not tell how many cases it has.
struct SavCases
{
    std::int64_t start = 0;  ///< of the first value in the file
    bool littleEndian = true;
    bool isRowCompressed = false;
};

/// Whether the file ends in the midst of a case. Not for zlib-compressed files, whose end the
/// format library checks.
[[nodiscard]] bool endsWithinCase(const FileReader& file, const SavCases& cases);

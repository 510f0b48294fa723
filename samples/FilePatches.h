#pragma once

#include "samples/Table.h"

#include <filesystem>

namespace samples {

/// What ReadStat 1.1.8 writes otherwise than SAS does, put right in a finished file. Each function
/// throws std::exception when it does not find the place.

/// Declares the texts of a SAS7BDAT file to be Windows-1252.
void declareWindows1252(const std::filesystem::path& sasFile);

/// Stores the width and decimals of the formats, which the library would leave in the format name.
void storeFormatWidths(const std::filesystem::path& sasFile, const std::vector<Column>& columns);

/// Stores the row count of a version 8 transport file, without which trailing blank rows cannot be
/// told from padding.
void storeTransportRowCount(const std::filesystem::path& transportFile, long rowCount);

}  // namespace samples

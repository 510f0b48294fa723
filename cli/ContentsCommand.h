#pragma once

#include "cli/Output.h"
#include "data/readers/DatasetFile.h"

namespace cli {

/// Prints what a file says of its dataset and variables.
void printContents(const OpenedDataset& opened, const std::string& file, OutputFormat format);

}  // namespace cli

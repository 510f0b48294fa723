#pragma once

#include "analysis/comparison/Comparison.h"

namespace comparison {

/// What a comparison does not know of itself.
struct JsonContext
{
    std::string baseFile;
    std::string compareFile;
    bool isDifferent = false;  ///< as whoever asked counts it
    bool listsDifferences = false;  ///< with every value that differs
};

/// One JSON object with every count of a comparison.
[[nodiscard]] std::string json(const Comparison& comparison, const JsonContext& context);

}  // namespace comparison

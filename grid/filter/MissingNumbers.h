#pragma once

#include "data/StatDataset.h"

#include <cmath>

/// What a variable holds where its number is missing, besides NaN.
enum class MissingMark
{
    NanOnly,
    MinusInfinity,  ///< in an InMemoryDataset
    SmallestInteger,  ///< the 32-bit integer, in integer variables of R data
};

namespace missingnumbers {

/// What R keeps where a value of an integer variable, or of a text one, is missing.
inline constexpr double smallestInteger = -2147483648.0;
inline constexpr std::string_view textInR = "N/A";

[[nodiscard]] MissingMark markOf(const StatDataset& dataset, int variable);

[[nodiscard]] inline bool isMissing(double number, MissingMark mark)
{
    switch (mark) {
    case MissingMark::MinusInfinity:
        return std::isnan(number) || number == -std::numeric_limits<double>::infinity();
    case MissingMark::SmallestInteger:
        return std::isnan(number) || number == smallestInteger;
    case MissingMark::NanOnly:
        break;
    }
    return std::isnan(number);
}

}  // namespace missingnumbers

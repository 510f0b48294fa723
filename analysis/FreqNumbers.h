#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

/// Numbers as whole numbers of 64 bits in the same order, for tables and sorts.
namespace freqnumbers {

inline constexpr std::uint64_t signBit = std::uint64_t{1} << 63;

/// Stands for every NaN, below all numbers.
inline constexpr std::uint64_t nanBits = 0;

/// What orders as the number does; the negative zero comes right before the positive one.
[[nodiscard]] inline std::uint64_t orderedBits(double number)
{
    if (std::isnan(number)) {
        return nanBits;
    }
    const auto bits = std::bit_cast<std::uint64_t>(number);
    return (bits & signBit) != 0 ? ~bits : bits | signBit;
}

/// The number that has these ordered bits.
[[nodiscard]] inline double numberOf(std::uint64_t ordered)
{
    if (ordered == nanBits) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    return std::bit_cast<double>((ordered & signBit) != 0 ? ordered ^ signBit : ~ordered);
}

}  // namespace freqnumbers

#pragma once

#include "data/CellValue.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

/// The value of a cell as a key of 64 bits, for tables and sorts.
namespace valuekey {

inline constexpr std::uint64_t signBit = std::uint64_t{1} << 63;

/// Stands for every NaN, below all numbers.
inline constexpr std::uint64_t nan = 0;

/// Keys order as their numbers do; the negative zero comes right before the positive one.
[[nodiscard]] inline std::uint64_t of(double number)
{
    if (std::isnan(number)) {
        return nan;
    }
    const auto bits = std::bit_cast<std::uint64_t>(number);
    return (bits & signBit) != 0 ? ~bits : bits | signBit;
}

/// Texts of one dataset are equal where their records are. The order of their keys means nothing.
[[nodiscard]] inline std::uint64_t of(const PooledText* record)
{
    return std::bit_cast<std::uint64_t>(record);
}

[[nodiscard]] inline double number(std::uint64_t key)
{
    if (key == nan) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    return std::bit_cast<double>((key & signBit) != 0 ? key ^ signBit : ~key);
}

/// The text of the record; empty where there is none.
[[nodiscard]] inline std::string_view text(std::uint64_t key)
{
    const auto* record = std::bit_cast<const PooledText*>(key);
    return record == nullptr ? std::string_view() : record->text();
}

}  // namespace valuekey

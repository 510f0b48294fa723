#pragma once

#include <cstdint>
#include <vector>

/// A row, or whatever else the number stands for, and the rank that it is sorted by.
struct RankedRow
{
    std::uint64_t rank;
    std::uint32_t row;
};

/// Sorts by ascending rank and keeps the order of entries whose ranks are equal.
/// Linear in the entries: digits in which no two ranks differ cost nothing, so small ranks and
/// doubles that hold whole numbers take one or two passes of at most eight.
void radixSort(std::vector<RankedRow>& entries);

#include "analysis/RadixSort.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace {

constexpr unsigned digitBits = 8;
constexpr std::size_t buckets = std::size_t{1} << digitBits;

std::size_t digitOf(std::uint64_t rank, unsigned shift)
{
    return static_cast<std::size_t>(rank >> shift) & (buckets - 1);
}

/// The bits in which at least two ranks differ.
std::uint64_t varyingBits(const std::vector<RankedRow>& entries)
{
    std::uint64_t varying = 0;
    for (const RankedRow& entry : entries) {
        varying |= entry.rank ^ entries.front().rank;
    }
    return varying;
}

/// One stable pass: moves the entries to `sorted` in the order of the digit at `shift`.
void sortByDigit(const std::vector<RankedRow>& entries, std::vector<RankedRow>& sorted,
                 unsigned shift)
{
    std::array<std::size_t, buckets> next{};
    for (const RankedRow& entry : entries) {
        ++next[digitOf(entry.rank, shift)];
    }
    std::size_t start = 0;
    for (std::size_t& bucket : next) {
        const std::size_t size = bucket;
        bucket = start;
        start += size;
    }
    for (const RankedRow& entry : entries) {
        sorted[next[digitOf(entry.rank, shift)]++] = entry;
    }
}

}  // namespace

void radixSort(std::vector<RankedRow>& entries)
{
    // Below this the passes over empty buckets cost more than the comparisons.
    constexpr std::size_t worthwhile = 512;
    if (entries.size() < worthwhile) {
        std::stable_sort(entries.begin(), entries.end(),
                         [](const RankedRow& a, const RankedRow& b) { return a.rank < b.rank; });
        return;
    }
    const std::uint64_t varying = varyingBits(entries);
    std::vector<RankedRow> sorted(entries.size());
    for (unsigned shift = 0; shift < 64; shift += digitBits) {
        if (digitOf(varying, shift) != 0) {
            sortByDigit(entries, sorted, shift);
            entries.swap(sorted);
        }
    }
}

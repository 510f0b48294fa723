#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string_view>

namespace samples {

/// A repeatable stream of random values. The distributions of the standard library differ between
/// implementations, so these are our own, from integer and exactly rounded arithmetic only.
class Random
{
public:
    /// @param stream  keeps the streams of one seed apart, so that one table may change without
    ///                changing the others
    Random(std::uint64_t seed, std::string_view stream);

    [[nodiscard]] double uniform();  ///< from 0 up to, not including, 1
    [[nodiscard]] int between(int low, int high);  ///< both included
    [[nodiscard]] bool chance(double probability);

    /// Within six standard deviations of the mean.
    [[nodiscard]] double normal(double mean, double deviation);

    template <typename Range>
    [[nodiscard]] const auto& pick(const Range& range)
    {
        const auto last = static_cast<int>(std::size(range)) - 1;
        return range[static_cast<std::size_t>(between(0, last))];
    }

private:
    std::mt19937_64 m_engine;
};

}  // namespace samples

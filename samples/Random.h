#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>
#include <string_view>

namespace samples {

/// A repeatable stream of random values. The distributions of the standard library differ between
/// implementations, so these are our own, from integer and exactly rounded arithmetic only.
class Random
{
public:
    /// @param stream  keeps the streams of one seed apart
    Random(std::uint64_t seed, std::string_view stream)
        : m_engine(streamSeed(seed, stream))
    { }

    /// From 0 up to, not including, 1.
    [[nodiscard]] double uniform() { return static_cast<double>(m_engine() >> 11U) * 0x1p-53; }

    /// Both included.
    [[nodiscard]] int between(int low, int high)
    {
        const auto count = static_cast<std::uint64_t>(high - low) + 1;
        return low + static_cast<int>(m_engine() % count);
    }

    [[nodiscard]] bool chance(double probability) { return uniform() < probability; }

    /// Within six standard deviations of the mean.
    [[nodiscard]] double normal(double mean, double deviation)
    {
        double sum = -6;
        for (int i = 0; i < 12; ++i) {
            sum += uniform();
        }
        return mean + deviation * sum;
    }

    template <typename Range>
    [[nodiscard]] const auto& pick(const Range& range)
    {
        const auto last = static_cast<int>(std::size(range)) - 1;
        return range[static_cast<std::size_t>(between(0, last))];
    }

private:
    // The FNV-1a hash of the name, begun from the seed.
    [[nodiscard]] static std::uint64_t streamSeed(std::uint64_t seed, std::string_view stream)
    {
        std::uint64_t hash = 14695981039346656037U ^ seed;
        for (const char letter : stream) {
            hash = (hash ^ static_cast<unsigned char>(letter)) * 1099511628211U;
        }
        return hash;
    }

    std::mt19937_64 m_engine;
};

}  // namespace samples

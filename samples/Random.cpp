#include "samples/Random.h"

namespace samples {

namespace {

// The FNV-1a hash of the name, begun from the seed.
std::uint64_t streamSeed(std::uint64_t seed, std::string_view stream)
{
    std::uint64_t hash = 14695981039346656037U ^ seed;
    for (const char letter : stream) {
        hash = (hash ^ static_cast<unsigned char>(letter)) * 1099511628211U;
    }
    return hash;
}

}  // namespace

Random::Random(std::uint64_t seed, std::string_view stream)
    : m_engine(streamSeed(seed, stream))
{ }

double Random::uniform()
{
    return static_cast<double>(m_engine() >> 11U) * 0x1p-53;
}

int Random::between(int low, int high)
{
    const auto count = static_cast<std::uint64_t>(high - low) + 1;
    return low + static_cast<int>(m_engine() % count);
}

bool Random::chance(double probability)
{
    return uniform() < probability;
}

double Random::normal(double mean, double deviation)
{
    double sum = -6;
    for (int i = 0; i < 12; ++i) {
        sum += uniform();
    }
    return mean + deviation * sum;
}

}  // namespace samples

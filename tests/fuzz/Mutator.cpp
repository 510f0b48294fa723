#include "tests/fuzz/Mutator.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace fuzz {

namespace {

/// Applies one kind of damage after the other to one file.
class Damage
{
public:
    Damage(std::string& bytes, samples::Random& random, const Corpus& corpus,
           const std::string& suffix)
        : m_bytes(bytes)
        , m_random(random)
        , m_corpus(corpus)
        , m_suffix(suffix)
    { }

    void applyOne();

private:
    using Kind = void (Damage::*)();

    [[nodiscard]] int size() const { return static_cast<int>(m_bytes.size()); }
    [[nodiscard]] int anyPlace();
    [[nodiscard]] int integerPlace(int width);
    [[nodiscard]] std::uint64_t integerAt(int place, int width, bool little) const;
    void storeInteger(int place, int width, bool little, std::uint64_t value);
    [[nodiscard]] std::uint64_t extremeValue(std::uint64_t old, int width);
    [[nodiscard]] std::pair<int, int> anyChunk();

    void flipBits();
    void setBytes();
    void setInteger();
    void setDigits();
    void truncate();
    void zeroChunk();
    void removeChunk();
    void duplicateChunk();
    void swapChunks();
    void splice();

    std::string& m_bytes;
    samples::Random& m_random;
    const Corpus& m_corpus;
    const std::string& m_suffix;
};

void Damage::applyOne()
{
    // Integers come most often: counts, lengths and offsets are what readers trust.
    static constexpr std::array<Kind, 20> kinds{
        &Damage::setInteger,  &Damage::setInteger,     &Damage::setInteger, &Damage::setInteger,
        &Damage::setInteger,  &Damage::setInteger,     &Damage::setInteger, &Damage::setInteger,
        &Damage::setBytes,    &Damage::setBytes,       &Damage::setBytes,   &Damage::setDigits,
        &Damage::flipBits,    &Damage::flipBits,       &Damage::truncate,   &Damage::zeroChunk,
        &Damage::removeChunk, &Damage::duplicateChunk, &Damage::swapChunks, &Damage::splice,
    };
    if (!m_bytes.empty()) {
        (this->*m_random.pick(kinds))();
    }
}

/// Mostly near the start, where the headers are, and towards the end of a page of 4 KiB, where a
/// SAS7BDAT file keeps its descriptions.
int Damage::anyPlace()
{
    constexpr std::array header{64, 256, 1024, 4096};
    if (m_random.chance(0.5)) {
        return m_random.between(0, std::min(m_random.pick(header), size()) - 1);
    }
    return m_random.between(0, size() - 1);
}

/// A place where a small number seems to stand, most of the time: it may count something.
int Damage::integerPlace(int width)
{
    const int start = anyPlace();
    if (m_random.chance(0.3)) {
        return start;
    }
    constexpr int reach = 256;
    for (int place = start - start % 2; place + width <= std::min(size(), start + reach);
         place += 2) {
        const auto looksLikeCount = [&](bool little) {
            const std::uint64_t value = integerAt(place, width, little);
            return value > 0 && value < 0x10000 && (width > 2 || value < 0x1000);
        };
        if (looksLikeCount(true) || looksLikeCount(false)) {
            return place;
        }
    }
    return start;
}

std::uint64_t Damage::integerAt(int place, int width, bool little) const
{
    std::uint64_t value = 0;
    for (int i = 0; i < width && place + i < size(); ++i) {
        const int from = little ? width - 1 - i : i;
        const int at = std::min(place + from, size() - 1);
        value = value << 8U | static_cast<unsigned char>(m_bytes[static_cast<std::size_t>(at)]);
    }
    return value;
}

void Damage::storeInteger(int place, int width, bool little, std::uint64_t value)
{
    for (int i = 0; i < width && place + i < size(); ++i) {
        const int shift = 8 * (little ? i : width - 1 - i);
        m_bytes[static_cast<std::size_t>(place + i)] =
            static_cast<char>(value >> static_cast<unsigned>(shift));
    }
}

std::uint64_t Damage::extremeValue(std::uint64_t old, int width)
{
    const std::uint64_t all = ~std::uint64_t{0} >> static_cast<unsigned>(64 - 8 * width);
    const auto fileSize = static_cast<std::uint64_t>(size());
    const auto small = static_cast<std::uint64_t>(m_random.between(0, 300));
    const std::array<std::uint64_t, 20> values{0,
                                               1,
                                               all,
                                               all - 1,
                                               all >> 1U,
                                               (all >> 1U) + 1,
                                               (all >> 1U) - small,
                                               all - small,
                                               old + 1,
                                               old - 1,
                                               old * 2,
                                               old / 2,
                                               old + small,
                                               old - small,
                                               old ^ (std::uint64_t{1} << small % 64),
                                               fileSize,
                                               fileSize - small,
                                               fileSize / 2,
                                               small,
                                               small * 256};
    return m_random.pick(values);
}

void Damage::setInteger()
{
    constexpr std::array widths{2, 2, 4, 4, 8};
    const int width = m_random.pick(widths);
    const int place = integerPlace(width);
    const bool little = m_random.chance(0.5);
    storeInteger(place, width, little, extremeValue(integerAt(place, width, little), width));
}

void Damage::flipBits()
{
    const int count = m_random.chance(0.5) ? 1 : m_random.between(2, 16);
    for (int i = 0; i < count; ++i) {
        m_bytes[static_cast<std::size_t>(anyPlace())] ^=
            static_cast<char>(1U << static_cast<unsigned>(m_random.between(0, 7)));
    }
}

void Damage::setBytes()
{
    constexpr std::array<unsigned char, 6> values{0, 1, 0x20, 0x7F, 0x80, 0xFF};
    const int place = anyPlace();
    const int count = m_random.chance(0.6) ? 1 : m_random.between(2, 12);
    const bool anything = m_random.chance(0.4);
    for (int i = place; i < std::min(place + count, size()); ++i) {
        const int value = anything ? m_random.between(0, 255) : m_random.pick(values);
        m_bytes[static_cast<std::size_t>(i)] = static_cast<char>(value);
    }
}

/// Transport files, and the tags of Stata files, count in letters.
void Damage::setDigits()
{
    constexpr std::string_view letters = "0123456789999 -+.eX";
    const auto isDigit = [](unsigned char letter) { return std::isdigit(letter) != 0; };
    auto place = std::find_if(m_bytes.begin() + anyPlace(), m_bytes.end(), isDigit);
    for (; place != m_bytes.end() && isDigit(static_cast<unsigned char>(*place)); ++place) {
        *place = m_random.pick(letters);
    }
}

void Damage::truncate()
{
    m_bytes.resize(static_cast<std::size_t>(anyPlace()));
}

/// Start and length; the length is at least 1 and ends within the file.
std::pair<int, int> Damage::anyChunk()
{
    constexpr std::array longest{4, 16, 80, 256, 1024, 4096};
    const int start = anyPlace();
    return {start, std::min(m_random.between(1, m_random.pick(longest)), size() - start)};
}

void Damage::zeroChunk()
{
    const auto [start, length] = anyChunk();
    std::fill_n(m_bytes.begin() + start, length, '\0');
}

void Damage::removeChunk()
{
    const auto [start, length] = anyChunk();
    m_bytes.erase(static_cast<std::size_t>(start), static_cast<std::size_t>(length));
}

void Damage::duplicateChunk()
{
    const auto [start, length] = anyChunk();
    const std::string chunk =
        m_bytes.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(length));
    m_bytes.insert(static_cast<std::size_t>(anyPlace()), chunk);
}

void Damage::swapChunks()
{
    const auto [start, length] = anyChunk();
    const int other = std::min(anyPlace(), size() - length);
    const std::string one =
        m_bytes.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(length));
    const std::string two =
        m_bytes.substr(static_cast<std::size_t>(other), static_cast<std::size_t>(length));
    m_bytes.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(length), two);
    m_bytes.replace(static_cast<std::size_t>(other), static_cast<std::size_t>(length), one);
}

/// The start of this file and the end of another one, mostly of the same kind.
void Damage::splice()
{
    const SeedFile* other = &m_random.pick(m_corpus);
    const bool sameKind = m_random.chance(0.9);
    for (int i = 0; i < 50 && sameKind && other->suffix != m_suffix; ++i) {
        other = &m_random.pick(m_corpus);
    }
    if (other->bytes.empty()) {
        return;
    }
    const auto cut = static_cast<std::size_t>(anyPlace());
    const auto otherEnd = static_cast<int>(other->bytes.size()) - 1;
    const auto otherCut =
        m_random.chance(0.5) ? cut : static_cast<std::size_t>(m_random.between(0, otherEnd));
    m_bytes.resize(cut);
    m_bytes += std::string_view(other->bytes).substr(std::min(otherCut, other->bytes.size()));
}

}  // namespace

Mutant Mutator::mutant(std::uint64_t number) const
{
    samples::Random random(m_seed, std::to_string(number));
    const SeedFile& seed = random.pick(m_corpus);
    Mutant mutant{seed.name, seed.suffix, seed.bytes};
    Damage damage(mutant.bytes, random, m_corpus, mutant.suffix);
    const int count = random.chance(0.6) ? 1 : random.between(2, 6);
    for (int i = 0; i < count; ++i) {
        damage.applyOne();
    }
    if (random.chance(0.02)) {
        mutant.suffix = random.pick(m_corpus).suffix;
    }
    return mutant;
}

}  // namespace fuzz

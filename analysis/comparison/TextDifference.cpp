#include "analysis/comparison/TextDifference.h"

#include <algorithm>
#include <cstdint>

namespace comparison {

namespace {

/// Aligning texts takes one entry for each pair of their letters.
constexpr std::size_t mostEntries = 40'000;

/// The letters of a text, and where in it they begin and end.
struct Letters
{
    Letters(std::string_view whole, std::size_t first)
        : text(whole)
    {
        for (std::size_t i = first; i < text.size(); ++i) {
            if (!continues(text[i]) || i == first) {
                starts.push_back(i);
            }
        }
        starts.push_back(text.size());
    }

    static bool continues(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }
    [[nodiscard]] std::size_t count() const { return starts.size() - 1; }
    [[nodiscard]] std::string_view at(std::size_t letter) const
    {
        return text.substr(starts[letter], starts[letter + 1] - starts[letter]);
    }

    std::string_view text;
    std::vector<std::size_t> starts;
};

/// Marks letters as different, joining those side by side.
void mark(std::vector<TextRange>& ranges, const Letters& letters, std::size_t first,
          std::size_t last)
{
    if (first == last) {
        return;
    }
    const std::size_t begin = letters.starts[first];
    if (!ranges.empty() && ranges.back().end == begin) {
        ranges.back().end = letters.starts[last];
    } else {
        ranges.push_back({begin, letters.starts[last]});
    }
}

/// Aligns the letters before the common end.
class Alignment
{
public:
    Alignment(const Letters& base, std::size_t baseCount, const Letters& compare,
              std::size_t compareCount)
        : m_base(base)
        , m_compare(compare)
        , m_baseCount(baseCount)
        , m_compareCount(compareCount)
        , m_common((baseCount + 1) * (compareCount + 1))
    {
        for (std::size_t b = baseCount; b-- > 0;) {
            for (std::size_t c = compareCount; c-- > 0;) {
                common(b, c) = base.at(b) == compare.at(c)
                    ? static_cast<std::uint16_t>(common(b + 1, c + 1) + 1)
                    : std::max(common(b + 1, c), common(b, c + 1));
            }
        }
    }

    /// Letters that are common by chance would only scatter what differs.
    [[nodiscard]] bool isWorthIt()
    {
        return std::size_t{2} * common(0, 0) >= std::min(m_baseCount, m_compareCount);
    }

    [[nodiscard]] TextDifference difference()
    {
        TextDifference result;
        std::size_t b = 0;
        std::size_t c = 0;
        while (b < m_baseCount && c < m_compareCount) {
            if (m_base.at(b) == m_compare.at(c)) {
                ++b;
                ++c;
            } else if (common(b + 1, c) >= common(b, c + 1)) {
                mark(result.base, m_base, b, b + 1);
                ++b;
            } else {
                mark(result.compare, m_compare, c, c + 1);
                ++c;
            }
        }
        mark(result.base, m_base, b, m_baseCount);
        mark(result.compare, m_compare, c, m_compareCount);
        return result;
    }

private:
    /// How many letters the rests of the texts from here on have in common, in one order.
    std::uint16_t& common(std::size_t b, std::size_t c)
    {
        return m_common[b * (m_compareCount + 1) + c];
    }

    const Letters& m_base;
    const Letters& m_compare;
    std::size_t m_baseCount;
    std::size_t m_compareCount;
    std::vector<std::uint16_t> m_common;
};

/// How many bytes the texts begin with alike, whole characters.
std::size_t commonBeginning(std::string_view base, std::string_view compare)
{
    const auto parted =
        std::mismatch(base.begin(), base.end(), compare.begin(), compare.end()).first;
    auto count = static_cast<std::size_t>(parted - base.begin());
    const auto cutsALetter = [count](std::string_view text) {
        return count < text.size() && Letters::continues(text[count]);
    };
    if (cutsALetter(base) || cutsALetter(compare)) {
        do {
            --count;
        } while (count > 0 && Letters::continues(base[count]));
    }
    return count;
}

}  // namespace

TextDifference textDifference(std::string_view base, std::string_view compare)
{
    const std::size_t first = commonBeginning(base, compare);
    const Letters baseLetters(base, first);
    const Letters compareLetters(compare, first);
    std::size_t baseCount = baseLetters.count();
    std::size_t compareCount = compareLetters.count();
    while (baseCount > 0 && compareCount > 0
           && baseLetters.at(baseCount - 1) == compareLetters.at(compareCount - 1)) {
        --baseCount;
        --compareCount;
    }
    if (baseCount > 0 && compareCount > 0 && (baseCount + 1) * (compareCount + 1) <= mostEntries) {
        Alignment alignment(baseLetters, baseCount, compareLetters, compareCount);
        if (alignment.isWorthIt()) {
            return alignment.difference();
        }
    }
    TextDifference whole;
    mark(whole.base, baseLetters, 0, baseCount);
    mark(whole.compare, compareLetters, 0, compareCount);
    return whole;
}

}  // namespace comparison

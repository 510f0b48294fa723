#include "analysis/FreqDictionary.h"

#include "analysis/FreqColumn.h"
#include "analysis/FreqNumbers.h"
#include "analysis/RadixSort.h"
#include "analysis/TextRanks.h"
#include "data/CellValue.h"

#include <algorithm>
#include <bit>

namespace {

std::string_view textOf(std::uint64_t key)
{
    const auto* record = std::bit_cast<const PooledText*>(key);
    return record == nullptr ? std::string_view() : record->text();
}

std::vector<std::uint32_t> ranksOfTexts(const std::vector<std::uint64_t>& keys)
{
    std::vector<std::string_view> texts(keys.size());
    std::transform(keys.begin(), keys.end(), texts.begin(), textOf);
    return rankTexts(texts).ranks;
}

std::vector<std::uint32_t> ranksOfNumbers(const std::vector<std::uint64_t>& keys)
{
    std::vector<RankedRow> entries(keys.size());
    for (std::size_t code = 0; code < keys.size(); ++code) {
        entries[code] = {keys[code], static_cast<std::uint32_t>(code)};
    }
    radixSort(entries);
    std::vector<std::uint32_t> ranks(keys.size());
    for (std::size_t rank = 0; rank < entries.size(); ++rank) {
        ranks[entries[rank].row] = static_cast<std::uint32_t>(rank);
    }
    return ranks;
}

}  // namespace

FreqDictionary::FreqDictionary(const FreqColumn& column)
    : m_isNumeric(column.isNumeric())
    , m_ranks(m_isNumeric ? ranksOfNumbers(column.keys()) : ranksOfTexts(column.keys()))
    , m_keys(column.size())
{
    for (std::size_t code = 0; code < m_ranks.size(); ++code) {
        m_keys[m_ranks[code]] = column.keys()[code];
    }
}

std::string_view FreqDictionary::text(std::uint32_t rank) const
{
    return textOf(m_keys[rank]);
}

double FreqDictionary::number(std::uint32_t rank) const
{
    return freqnumbers::numberOf(m_keys[rank]);
}

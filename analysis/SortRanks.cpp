#include "analysis/SortRanks.h"

#include "analysis/RowSorter.h"
#include "analysis/TextRanks.h"
#include "data/StatDataset.h"

#include <bit>
#include <cmath>
#include <limits>
#include <string>

namespace {

using Ranks = std::vector<std::uint64_t>;

/// Numbers the distinct records among the cells of a column. An open-addressing table over the
/// addresses, as a map with a node for each record is several times slower.
class DistinctRecords
{
public:
    /// The number of the record; the first new one gets 0, the next 1 and so on. Null is a record.
    std::uint32_t numberOf(const PooledText* record)
    {
        // Neighbouring rows repeat their texts more often than not.
        if (!m_records.empty() && record == m_lastRecord) {
            return m_lastNumber;
        }
        if (2 * (m_records.size() + 1) > m_slots.size()) {
            grow();
        }
        std::uint32_t& slot = m_slots[slotOf(record)];
        if (slot == free) {
            slot = static_cast<std::uint32_t>(m_records.size());
            m_records.push_back(record);
        }
        m_lastRecord = record;
        m_lastNumber = slot;
        return slot;
    }

    [[nodiscard]] std::vector<std::string_view> texts() const
    {
        std::vector<std::string_view> result;
        result.reserve(m_records.size());
        for (const PooledText* record : m_records) {
            result.push_back(record == nullptr ? std::string_view() : record->text());
        }
        return result;
    }

private:
    static constexpr std::uint32_t free = std::numeric_limits<std::uint32_t>::max();

    [[nodiscard]] std::size_t slotOf(const PooledText* record) const
    {
        const auto address = std::bit_cast<std::uintptr_t>(record);
        std::size_t slot = (address * 0x9E3779B97F4A7C15U) >> m_shift;
        while (m_slots[slot] != free && m_records[m_slots[slot]] != record) {
            slot = (slot + 1) & (m_slots.size() - 1);
        }
        return slot;
    }

    void grow()
    {
        const std::size_t size = m_slots.empty() ? 1024 : 4 * m_slots.size();
        m_slots.assign(size, free);
        m_shift = 64 - std::countr_zero(size);
        for (std::uint32_t number = 0; number < m_records.size(); ++number) {
            m_slots[slotOf(m_records[number])] = number;
        }
    }

    std::vector<std::uint32_t> m_slots;
    std::vector<const PooledText*> m_records;
    int m_shift = 0;
    const PooledText* m_lastRecord = nullptr;
    std::uint32_t m_lastNumber = 0;
};

/// A whole number that orders as the double does, both zeros being one. No number gives 0.
std::uint64_t orderedBits(double number)
{
    constexpr std::uint64_t sign = std::uint64_t{1} << 63;
    const auto bits = std::bit_cast<std::uint64_t>(number == 0.0 ? 0.0 : number);
    return (bits & sign) != 0 ? ~bits : bits | sign;
}

template <typename RankOf>
Ranks ranksOfNumbers(const StatDataset& dataset, int variable, Qt::SortOrder order, RankOf rankOf)
{
    const std::uint64_t flip = order == Qt::DescendingOrder ? ~std::uint64_t{0} : 0;
    Ranks ranks(static_cast<std::size_t>(dataset.observationCount()));
    for (std::size_t row = 0; row < ranks.size(); ++row) {
        const double number = std::get<1>(dataset.cell(static_cast<int>(row), variable));
        ranks[row] = rankOf(number) ^ flip;
    }
    return ranks;
}

std::uint64_t numberRank(double number)
{
    return std::isnan(number) ? 0 : orderedBits(number);
}

/// Ranks for texts numbered per row. `isMissing` tells the texts that come last in both orders.
template <typename IsMissing>
Ranks ranksOfTexts(const std::vector<std::string_view>& texts,
                   const std::vector<std::uint32_t>& textOfRow, Qt::SortOrder order,
                   IsMissing isMissing)
{
    const TextRanks ranked = rankTexts(texts);
    Ranks rankOfText(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const std::uint32_t rank = ranked.ranks[i];
        rankOfText[i] = order == Qt::AscendingOrder ? rank : ranked.distinct - 1 - rank;
        if (isMissing(texts[i])) {
            rankOfText[i] = ranked.distinct;
        }
    }
    Ranks ranks(textOfRow.size());
    for (std::size_t row = 0; row < ranks.size(); ++row) {
        ranks[row] = rankOfText[textOfRow[row]];
    }
    return ranks;
}

template <typename IsMissing>
Ranks ranksOfStoredTexts(const StatDataset& dataset, const SortKey& key, IsMissing isMissing)
{
    DistinctRecords records;
    std::vector<std::uint32_t> recordOfRow(static_cast<std::size_t>(dataset.observationCount()));
    for (std::size_t row = 0; row < recordOfRow.size(); ++row) {
        const CellValue& cell = dataset.cell(static_cast<int>(row), key.first);
        recordOfRow[row] = records.numberOf(std::get<0>(cell));
    }
    return ranksOfTexts(records.texts(), recordOfRow, key.second, isMissing);
}

Ranks ranksOfShownTexts(const StatDataset& dataset, const SortKey& key)
{
    const auto count = static_cast<std::size_t>(dataset.observationCount());
    std::vector<std::string> shown(count);
    std::vector<std::uint32_t> textOfRow(count);
    for (std::size_t row = 0; row < count; ++row) {
        shown[row] = dataset.cellText(static_cast<int>(row), key.first);
        textOfRow[row] = static_cast<std::uint32_t>(row);
    }
    const std::vector<std::string_view> texts(shown.begin(), shown.end());
    return ranksOfTexts(texts, textOfRow, key.second, [](std::string_view) { return false; });
}

Ranks ranksInR(const StatDataset& dataset, const SortKey& key)
{
    const auto [variable, order] = key;
    const auto ordered = [order = order](double number) {
        return orderedBits(rowsorter::comparableInR(number, order));
    };
    const auto orderedInteger = [order = order](double number) {
        return orderedBits(rowsorter::comparableIntegerInR(number, order));
    };
    switch (dataset.typeCodes().at(static_cast<std::size_t>(variable))) {
    case TypeCode::Character:
        return ranksOfStoredTexts(dataset, key,
                                  [](std::string_view text) { return text == rmissing::text; });
    case TypeCode::Int16:
    case TypeCode::Float:
    case TypeCode::Double:
        return ranksOfNumbers(dataset, variable, order, ordered);
    case TypeCode::Int8:
    case TypeCode::Int32:
        return ranksOfNumbers(dataset, variable, order, orderedInteger);
    }
    return Ranks(static_cast<std::size_t>(dataset.observationCount()));
}

}  // namespace

std::vector<std::uint64_t> sortRanks(const StatDataset& dataset, const SortKey& key)
{
    if (dataset.sourceKind() == SourceKind::R) {
        return ranksInR(dataset, key);
    }
    switch (dataset.typeCodes().at(static_cast<std::size_t>(key.first))) {
    case TypeCode::Double:
        return ranksOfNumbers(dataset, key.first, key.second, numberRank);
    case TypeCode::Character:
        return ranksOfStoredTexts(dataset, key, [](std::string_view) { return false; });
    default:
        return ranksOfShownTexts(dataset, key);
    }
}

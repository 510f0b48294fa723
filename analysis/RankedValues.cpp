#include "analysis/RankedValues.h"

#include "analysis/CodedColumn.h"
#include "analysis/RadixSort.h"
#include "analysis/TextSort.h"
#include "data/cells/ValueKey.h"

#include <algorithm>

namespace {

std::vector<std::uint32_t> orderOfTexts(const std::vector<std::uint64_t>& keys)
{
    std::vector<std::string_view> texts(keys.size());
    std::transform(keys.begin(), keys.end(), texts.begin(), valuekey::text);
    return orderOf(texts);
}

std::vector<std::uint32_t> orderOfNumbers(const std::vector<std::uint64_t>& keys)
{
    std::vector<RankedRow> entries(keys.size());
    for (std::size_t code = 0; code < keys.size(); ++code) {
        entries[code] = {keys[code], static_cast<std::uint32_t>(code)};
    }
    radixSort(entries);
    std::vector<std::uint32_t> order(keys.size());
    std::transform(entries.begin(), entries.end(), order.begin(),
                   [](const RankedRow& entry) { return entry.row; });
    return order;
}

}  // namespace

RankedValues::RankedValues(const CodedColumn& column)
    : m_isNumeric(column.isNumeric())
    , m_ranks(column.size())
    , m_keys(column.size())
{
    const std::vector<std::uint32_t> codes =
        m_isNumeric ? orderOfNumbers(column.keys()) : orderOfTexts(column.keys());
    for (std::size_t rank = 0; rank < codes.size(); ++rank) {
        m_ranks[codes[rank]] = static_cast<std::uint32_t>(rank);
        m_keys[rank] = column.keys()[codes[rank]];
    }
}

std::string_view RankedValues::text(std::uint32_t rank) const
{
    return valuekey::text(m_keys[rank]);
}

double RankedValues::number(std::uint32_t rank) const
{
    return valuekey::number(m_keys[rank]);
}

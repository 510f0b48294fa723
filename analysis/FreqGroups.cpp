#include "analysis/FreqGroups.h"

#include "analysis/FreqColumn.h"
#include "analysis/RadixSort.h"
#include "data/StatDataset.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <numeric>
#include <utility>

FreqGroups::FreqGroups(const StatDataset& dataset, std::span<const int> variables,
                       std::span<const std::uint32_t> rows)
    : m_groupOfPlace(rows.size())
{
    if (!rows.empty()) {
        m_sizes = {static_cast<std::uint32_t>(rows.size())};
    }
    Numbers codes;
    m_dictionaries.reserve(variables.size());
    for (const int variable : variables) {
        const FreqColumn column(dataset, variable, rows);
        if (m_dictionaries.empty()) {
            groupBy(column, codes);
        } else {
            refineBy(column, codes);
        }
        m_dictionaries.emplace_back(column);
    }
    rank(codes);
    sort(codes);
}

/// Makes the column's codes the groups.
void FreqGroups::groupBy(const FreqColumn& column, Numbers& codes)
{
    m_groupOfPlace = column.codes();
    m_sizes.assign(column.size(), 0);
    for (const std::uint32_t group : m_groupOfPlace) {
        ++m_sizes[group];
    }
    codes.resize(column.size());
    std::iota(codes.begin(), codes.end(), 0U);
}

/// Splits every group by the codes that the column has in it. Groups are taken one after another,
/// so a table of the codes is all it takes to number the new ones: no pair is looked up.
void FreqGroups::refineBy(const FreqColumn& column, Numbers& codes)
{
    struct CodeInGroup
    {
        std::uint32_t group = std::numeric_limits<std::uint32_t>::max();
        std::uint32_t newGroup = 0;
    };
    std::vector<CodeInGroup> met(column.size());
    const Numbers places = placesByGroup();
    const std::size_t width = m_dictionaries.size();
    Numbers newCodes;
    Numbers newSizes;
    std::size_t next = 0;
    for (std::uint32_t group = 0; group < size(); ++group) {
        for (const std::size_t end = next + m_sizes[group]; next < end; ++next) {
            const std::uint32_t code = column.codes()[places[next]];
            if (met[code].group != group) {
                met[code] = {group, static_cast<std::uint32_t>(newSizes.size())};
                newSizes.push_back(0);
                for (std::size_t i = 0; i < width; ++i) {
                    newCodes.push_back(codes[group * width + i]);
                }
                newCodes.push_back(code);
            }
            const std::uint32_t newGroup = met[code].newGroup;
            ++newSizes[newGroup];
            m_groupOfPlace[places[next]] = newGroup;
        }
    }
    m_sizes = std::move(newSizes);
    codes = std::move(newCodes);
}

FreqGroups::Numbers FreqGroups::starts() const
{
    Numbers starts(size());
    std::exclusive_scan(m_sizes.begin(), m_sizes.end(), starts.begin(), 0U);
    return starts;
}

FreqGroups::Numbers FreqGroups::placesByGroup() const
{
    Numbers next = starts();
    Numbers places(m_groupOfPlace.size());
    for (std::size_t place = 0; place < places.size(); ++place) {
        places[next[m_groupOfPlace[place]]++] = static_cast<std::uint32_t>(place);
    }
    return places;
}

/// Makes ranks of the codes.
void FreqGroups::rank(Numbers& codes) const
{
    const std::size_t width = m_dictionaries.size();
    for (std::size_t i = 0; i < width; ++i) {
        for (std::size_t at = i; at < codes.size(); at += width) {
            codes[at] = m_dictionaries[i].rankOf(codes[at]);
        }
    }
}

void FreqGroups::sort(const Numbers& ranks)
{
    const std::size_t width = m_dictionaries.size();
    m_inOrder.resize(size());
    if (width == 1) {
        // The groups of one variable are its values, which the dictionary has sorted.
        for (std::size_t group = 0; group < size(); ++group) {
            m_inOrder[ranks[group]] = static_cast<std::uint32_t>(group);
        }
    } else {
        sortByAll(ranks);
    }
    m_ranks.resize(ranks.size());
    for (std::size_t position = 0; position < size(); ++position) {
        for (std::size_t i = 0; i < width; ++i) {
            m_ranks[position * width + i] = ranks[m_inOrder[position] * width + i];
        }
    }
}

/// Sorts from the last variable to the first, as the sort is stable; as many of them at a time as
/// fit into 64 bits.
void FreqGroups::sortByAll(const Numbers& ranks)
{
    const std::size_t width = m_dictionaries.size();
    std::vector<RankedRow> entries(size());
    for (std::size_t group = 0; group < entries.size(); ++group) {
        entries[group].row = static_cast<std::uint32_t>(group);
    }
    for (std::size_t end = entries.empty() ? 0 : width; end > 0;) {
        std::uint64_t room = std::numeric_limits<std::uint64_t>::max();
        std::uint64_t scale = 1;
        for (RankedRow& entry : entries) {
            entry.rank = 0;
        }
        while (end > 0 && m_dictionaries[end - 1].size() <= room) {
            --end;
            for (RankedRow& entry : entries) {
                entry.rank += scale * ranks[entry.row * width + end];
            }
            scale *= m_dictionaries[end].size();
            room /= m_dictionaries[end].size();
        }
        radixSort(entries);
    }
    std::transform(entries.begin(), entries.end(), m_inOrder.begin(),
                   [](const RankedRow& entry) { return entry.row; });
}

std::vector<std::uint32_t> selectedObservations(const StatDataset& dataset)
{
    // A dataset opened without its values has observations but no bits for them.
    const BitVector both = dataset.libraryFilterMask() & dataset.datasetFilterMask();
    std::vector<std::uint64_t> words(both.num_blocks());
    boost::to_block_range(both, words.begin());
    std::vector<std::uint32_t> observations;
    observations.reserve(both.count());
    for (std::size_t i = 0; i < words.size(); ++i) {
        for (std::uint64_t word = words[i]; word != 0; word &= word - 1) {
            const auto bit = static_cast<std::size_t>(std::countr_zero(word));
            observations.push_back(static_cast<std::uint32_t>(64 * i + bit));
        }
    }
    return observations;
}

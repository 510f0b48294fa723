#include "analysis/RowGroups.h"

#include "analysis/CodedColumn.h"
#include "analysis/RadixSort.h"
#include "data/StatDataset.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <numeric>
#include <utility>

RowGroups::RowGroups(const StatDataset& dataset, std::span<const int> variables,
                     std::span<const std::uint32_t> rows)
    : m_groupOfPlace(rows.size())
{
    if (!rows.empty()) {
        m_sizes = {static_cast<std::uint32_t>(rows.size())};
    }
    Numbers codes;
    m_values.reserve(variables.size());
    for (const int variable : variables) {
        const CodedColumn column(dataset, variable, rows);
        if (m_values.empty()) {
            groupBy(column, codes);
        } else {
            refineBy(column, codes);
        }
        m_values.emplace_back(column);
    }
    rank(codes);
    sort(codes);
}

/// Makes the column's codes the groups.
void RowGroups::groupBy(const CodedColumn& column, Numbers& codes)
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
void RowGroups::refineBy(const CodedColumn& column, Numbers& codes)
{
    struct CodeInGroup
    {
        std::uint32_t group = std::numeric_limits<std::uint32_t>::max();
        std::uint32_t newGroup = 0;
    };
    std::vector<CodeInGroup> met(column.size());
    const Numbers places = placesByGroup();
    std::vector<Part> parts;
    std::size_t next = 0;
    for (std::uint32_t group = 0; group < size(); ++group) {
        for (const std::size_t end = next + m_sizes[group]; next < end; ++next) {
            const std::uint32_t code = column.codes()[places[next]];
            if (met[code].group != group) {
                met[code] = {group, static_cast<std::uint32_t>(parts.size())};
                parts.push_back({group, code, 0});
            }
            ++parts[met[code].newGroup].size;
            m_groupOfPlace[places[next]] = met[code].newGroup;
        }
    }
    replaceBy(parts, codes);
}

/// Makes the parts the groups.
void RowGroups::replaceBy(const std::vector<Part>& parts, Numbers& codes)
{
    const std::size_t width = m_values.size();
    Numbers newCodes;
    newCodes.reserve(parts.size() * (width + 1));
    m_sizes.clear();
    for (const Part& part : parts) {
        const auto first = codes.begin() + static_cast<std::ptrdiff_t>(part.group * width);
        newCodes.insert(newCodes.end(), first, first + static_cast<std::ptrdiff_t>(width));
        newCodes.push_back(part.code);
        m_sizes.push_back(part.size);
    }
    codes = std::move(newCodes);
}

RowGroups::Numbers RowGroups::starts() const
{
    Numbers starts(size());
    std::exclusive_scan(m_sizes.begin(), m_sizes.end(), starts.begin(), 0U);
    return starts;
}

RowGroups::Numbers RowGroups::placesByGroup() const
{
    Numbers next = starts();
    Numbers places(m_groupOfPlace.size());
    for (std::size_t place = 0; place < places.size(); ++place) {
        places[next[m_groupOfPlace[place]]++] = static_cast<std::uint32_t>(place);
    }
    return places;
}

/// Makes ranks of the codes.
void RowGroups::rank(Numbers& codes) const
{
    const std::size_t width = m_values.size();
    for (std::size_t i = 0; i < width; ++i) {
        for (std::size_t at = i; at < codes.size(); at += width) {
            codes[at] = m_values[i].rankOf(codes[at]);
        }
    }
}

void RowGroups::sort(const Numbers& ranks)
{
    const std::size_t width = m_values.size();
    m_inOrder.resize(size());
    if (width == 1) {
        // The groups of one variable are its values, which are ranked.
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
void RowGroups::sortByAll(const Numbers& ranks)
{
    const std::size_t width = m_values.size();
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
        while (end > 0 && m_values[end - 1].size() <= room) {
            --end;
            for (RankedRow& entry : entries) {
                entry.rank += scale * ranks[entry.row * width + end];
            }
            scale *= m_values[end].size();
            room /= m_values[end].size();
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

std::vector<std::uint32_t> allObservations(const StatDataset& dataset)
{
    std::vector<std::uint32_t> rows(static_cast<std::size_t>(dataset.observationCount()));
    std::iota(rows.begin(), rows.end(), 0U);
    return rows;
}

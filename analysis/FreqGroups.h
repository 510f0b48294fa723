#pragma once

#include "analysis/FreqDictionary.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

class FreqColumn;
class StatDataset;

/// Rows grouped by the values that some variables take in them. Rows are known here by their place
/// in the list that they were given in, groups by numbers in no particular order.
class FreqGroups
{
public:
    /// Without variables all rows are one group; without rows there is no group.
    FreqGroups(const StatDataset& dataset, std::span<const int> variables,
               std::span<const std::uint32_t> rows);

    /// How many groups there are.
    [[nodiscard]] std::size_t size() const { return m_sizes.size(); }
    /// How many rows each group has.
    [[nodiscard]] const std::vector<std::uint32_t>& sizes() const { return m_sizes; }
    /// The group of each place.
    [[nodiscard]] const std::vector<std::uint32_t>& groupOfPlace() const { return m_groupOfPlace; }
    /// Where each group begins when the rows are listed group by group, in the order of their
    /// numbers.
    [[nodiscard]] std::vector<std::uint32_t> starts() const;
    /// The places listed so, ascending within each group.
    [[nodiscard]] std::vector<std::uint32_t> placesByGroup() const;

    /// The groups in ascending order of their values, the first variable counting most.
    [[nodiscard]] const std::vector<std::uint32_t>& inOrder() const { return m_inOrder; }
    /// The values of each variable.
    [[nodiscard]] const std::vector<FreqDictionary>& dictionaries() const { return m_dictionaries; }
    /// The ranks of a group's values, one for each variable.
    /// @param position  where inOrder() has the group
    [[nodiscard]] std::span<const std::uint32_t> ranksAt(std::size_t position) const
    {
        return {m_ranks.data() + position * m_dictionaries.size(), m_dictionaries.size()};
    }

private:
    using Numbers = std::vector<std::uint32_t>;

    // `codes` and `ranks` hold those of each group's values, one for each variable, group after
    // group.
    void groupBy(const FreqColumn& column, Numbers& codes);
    void refineBy(const FreqColumn& column, Numbers& codes);
    void rank(Numbers& codes) const;
    void sort(const Numbers& ranks);
    void sortByAll(const Numbers& ranks);

    Numbers m_groupOfPlace;
    Numbers m_sizes;
    Numbers m_inOrder;
    std::vector<FreqDictionary> m_dictionaries;
    Numbers m_ranks;  ///< group after group in order
};

/// The observations that both filters select, in ascending order.
[[nodiscard]] std::vector<std::uint32_t> selectedObservations(const StatDataset& dataset);

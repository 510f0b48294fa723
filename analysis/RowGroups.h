#pragma once

#include "analysis/RankedValues.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

class CodedColumn;
class StatDataset;

/// Rows grouped by the values that some variables take in them. Rows are known here by their place
/// in the list that they were given in, groups by numbers in no particular order.
class RowGroups
{
public:
    /// Without variables all rows are one group; without rows there is no group.
    RowGroups(const StatDataset& dataset, std::span<const int> variables,
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
    [[nodiscard]] const std::vector<RankedValues>& values() const { return m_values; }
    /// The ranks of a group's values, one for each variable.
    /// @param position  where inOrder() has the group
    [[nodiscard]] std::span<const std::uint32_t> ranksAt(std::size_t position) const
    {
        return {m_ranks.data() + position * m_values.size(), m_values.size()};
    }

private:
    using Numbers = std::vector<std::uint32_t>;

    /// The rows of a group that share one code of a further column.
    struct Part
    {
        std::uint32_t group;
        std::uint32_t code;
        std::uint32_t size;
    };

    // `codes` and `ranks` hold those of each group's values, one for each variable, group after
    // group.
    void groupBy(const CodedColumn& column, Numbers& codes);
    void refineBy(const CodedColumn& column, Numbers& codes);
    void replaceBy(const std::vector<Part>& parts, Numbers& codes);
    void rank(Numbers& codes) const;
    void sort(const Numbers& ranks);
    void sortByAll(const Numbers& ranks);

    Numbers m_groupOfPlace;
    Numbers m_sizes;
    Numbers m_inOrder;
    std::vector<RankedValues> m_values;
    Numbers m_ranks;  ///< group after group in order
};

/// The observations that both filters select, in ascending order.
[[nodiscard]] std::vector<std::uint32_t> selectedObservations(const StatDataset& dataset);

/// All observations, in ascending order.
[[nodiscard]] std::vector<std::uint32_t> allObservations(const StatDataset& dataset);

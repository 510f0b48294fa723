#pragma once

#include "analysis/comparison/Comparison.h"

namespace comparison {

/// What a grid of differences shows of a comparison.
struct DifferenceFilter
{
    bool onlyDifferingVariables = true;
    bool onlyDifferingObservations = true;
    bool percent = false;  ///< a line for differences in percent, too
    BitVector
        hidden{};  ///< variables that count for nothing, as Comparison::values(); may be empty

    bool operator==(const DifferenceFilter&) const = default;
};

/// The rows of a grid of differences: for each observation that is shown one below the other what
/// the base has, what the compare dataset has and how far they are apart; one row for an
/// observation of one side.
class DifferenceRows
{
public:
    enum class Line : std::uint8_t
    {
        Base,
        Compare,
        Difference,  ///< only where numbers differ
        Percent,
        BaseOnly,
        CompareOnly,
    };

    struct Row
    {
        std::size_t group;  ///< counts the observations that are shown
        Line line;
    };

    /// The column of a difference that is an observation of one side.
    static constexpr int wholeObservation = -1;

    /// One difference: a value, or an observation of one side.
    struct Place
    {
        std::size_t group;
        int column;  ///< of the variables that are shown, or wholeObservation
        bool operator==(const Place&) const = default;
    };
    struct Step
    {
        Place place;
        bool isWrapped;  ///< beyond the last, or the first, from the other end on
    };

    /// The comparison outlives this object. Linear in its observations and differences.
    DifferenceRows(const Comparison& comparison, const DifferenceFilter& filter);

    [[nodiscard]] std::size_t rowCount() const { return m_groups.back().firstRow; }
    [[nodiscard]] std::size_t groupCount() const { return m_groups.size() - 1; }
    [[nodiscard]] Row row(std::size_t row) const;
    [[nodiscard]] std::size_t firstRow(std::size_t group) const { return m_groups[group].firstRow; }
    [[nodiscard]] const ObservationPair& pair(std::size_t group) const
    {
        return m_comparison->observations().pairs[m_groups[group].pair];
    }
    /// The group of an observation pair, or the next one that is shown; groupCount() behind the
    /// last.
    [[nodiscard]] std::size_t groupAt(std::size_t pair) const;
    [[nodiscard]] std::size_t pairNumber(std::size_t group) const { return m_groups[group].pair; }

    /// What the columns show, as places in Comparison::values().
    [[nodiscard]] const std::vector<std::size_t>& variables() const { return m_variables; }
    [[nodiscard]] const ComparedVariable& variable(int column) const
    {
        return m_comparison->values()[m_variables[static_cast<std::size_t>(column)]];
    }
    /// Whether the values of a column are unequal in a group.
    [[nodiscard]] bool isUnequal(std::size_t group, int column) const;

    /// Unequal values and observations of one side, which are counted observation by observation.
    [[nodiscard]] std::size_t differenceCount() const { return m_groups.back().firstDifference; }
    /// How many differences come before the place, which need not be one.
    [[nodiscard]] std::size_t differencesBefore(const Place& place) const;
    [[nodiscard]] bool isDifference(const Place& place) const;
    /// The difference with so many before it; there has to be one.
    [[nodiscard]] Place difference(std::size_t number) const;
    /// Nothing where there are no differences.
    [[nodiscard]] std::optional<Step> next(const Place& from) const;
    [[nodiscard]] std::optional<Step> previous(const Place& from) const;

private:
    struct Group
    {
        std::uint32_t pair;
        std::uint32_t firstRow;
        std::size_t firstDifference;
    };

    void addGroups(const DifferenceFilter& filter);

    const Comparison* m_comparison;
    std::vector<std::size_t> m_variables;
    std::vector<Group> m_groups;  ///< and one behind the last
    std::uint32_t m_differenceLines;  ///< of an observation with numbers that differ
};

}  // namespace comparison

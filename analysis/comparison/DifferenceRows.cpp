#include "analysis/comparison/DifferenceRows.h"

#include <algorithm>

namespace comparison {

namespace {

bool isHidden(const DifferenceFilter& filter, std::size_t variable)
{
    return variable < filter.hidden.size() && filter.hidden[variable];
}

}  // namespace

DifferenceRows::DifferenceRows(const Comparison& comparison, const DifferenceFilter& filter)
    : m_comparison(&comparison)
    , m_differenceLines(filter.percent ? 2 : 1)
{
    const std::vector<ComparedVariable>& values = comparison.values();
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (!isHidden(filter, i) && !(filter.onlyDifferingVariables && values[i].unequal.empty())) {
            m_variables.push_back(i);
        }
    }
    addGroups(filter);
}

void DifferenceRows::addGroups(const DifferenceFilter& filter)
{
    const std::vector<ObservationPair>& pairs = m_comparison->observations().pairs;
    std::vector<std::uint32_t> unequal(pairs.size());
    BitVector hasUnequalNumber(pairs.size());
    for (const std::size_t place : m_variables) {
        const ComparedVariable& variable = m_comparison->values()[place];
        for (const std::uint32_t pair : variable.unequal) {
            ++unequal[pair];
            hasUnequalNumber[pair] |= variable.isNumeric;
        }
    }
    std::uint32_t rows = 0;
    std::size_t differences = 0;
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        const bool isMatched = pairs[i].isMatched();
        if (isMatched && unequal[i] == 0 && filter.onlyDifferingObservations) {
            continue;
        }
        m_groups.push_back({static_cast<std::uint32_t>(i), rows, differences});
        rows += isMatched ? 2U + (hasUnequalNumber[i] ? m_differenceLines : 0U) : 1U;
        differences += isMatched ? unequal[i] : 1U;
    }
    m_groups.push_back({static_cast<std::uint32_t>(pairs.size()), rows, differences});
}

DifferenceRows::Row DifferenceRows::row(std::size_t row) const
{
    const auto behind = std::upper_bound(
        m_groups.begin(), m_groups.end(), row,
        [](std::size_t wanted, const Group& group) { return wanted < group.firstRow; });
    const auto group = static_cast<std::size_t>(behind - m_groups.begin()) - 1;
    const ObservationPair& observations = pair(group);
    if (!observations.isMatched()) {
        return {group, observations.compare == noObservation ? Line::BaseOnly : Line::CompareOnly};
    }
    return {group, static_cast<Line>(row - m_groups[group].firstRow)};
}

std::size_t DifferenceRows::groupAt(std::size_t pair) const
{
    const auto found = std::lower_bound(
        m_groups.begin(), m_groups.end() - 1, pair,
        [](const Group& group, std::size_t wanted) { return group.pair < wanted; });
    return static_cast<std::size_t>(found - m_groups.begin());
}

bool DifferenceRows::isUnequal(std::size_t group, int column) const
{
    const std::vector<std::uint32_t>& unequal = variable(column).unequal;
    return std::binary_search(unequal.begin(), unequal.end(), m_groups[group].pair);
}

std::size_t DifferenceRows::differencesBefore(const Place& place) const
{
    const bool isMatched = pair(place.group).isMatched();
    std::size_t count = m_groups[place.group].firstDifference;
    if (!isMatched) {
        return count + (place.column > wholeObservation ? 1U : 0U);
    }
    for (int column = 0; column < place.column; ++column) {
        count += isUnequal(place.group, column) ? 1U : 0U;
    }
    return count;
}

bool DifferenceRows::isDifference(const Place& place) const
{
    if (place.column == wholeObservation) {
        return !pair(place.group).isMatched();
    }
    return isUnequal(place.group, place.column);
}

DifferenceRows::Place DifferenceRows::difference(std::size_t number) const
{
    // The last of the groups that begin with it, since those before it have no differences.
    const auto behind = std::upper_bound(
        m_groups.begin(), m_groups.end(), number,
        [](std::size_t wanted, const Group& group) { return wanted < group.firstDifference; });
    const auto group = static_cast<std::size_t>(behind - m_groups.begin()) - 1;
    if (!pair(group).isMatched()) {
        return {group, wholeObservation};
    }
    std::size_t left = number - m_groups[group].firstDifference;
    int column = 0;
    while (!isUnequal(group, column) || left-- > 0) {
        ++column;
    }
    return {group, column};
}

std::optional<DifferenceRows::Step> DifferenceRows::next(const Place& from) const
{
    if (differenceCount() == 0) {
        return std::nullopt;
    }
    const std::size_t number = differencesBefore(from) + (isDifference(from) ? 1U : 0U);
    const bool isWrapped = number == differenceCount();
    return Step{difference(isWrapped ? 0 : number), isWrapped};
}

std::optional<DifferenceRows::Step> DifferenceRows::previous(const Place& from) const
{
    if (differenceCount() == 0) {
        return std::nullopt;
    }
    const std::size_t number = differencesBefore(from);
    const bool isWrapped = number == 0;
    return Step{difference((isWrapped ? differenceCount() : number) - 1), isWrapped};
}

}  // namespace comparison

#pragma once

#include "analysis/comparison/VariableMatch.h"

#include <cstdint>
#include <limits>

namespace comparison {

/// In the place of an observation that one side lacks.
inline constexpr std::uint32_t noObservation = std::numeric_limits<std::uint32_t>::max();

/// Observations of the two datasets, from 0, that belong together.
struct ObservationPair
{
    std::uint32_t base = noObservation;
    std::uint32_t compare = noObservation;

    [[nodiscard]] bool isMatched() const
    {
        return base != noObservation && compare != noObservation;
    }
    bool operator==(const ObservationPair&) const = default;
};

/// What was found on the way through one dataset.
struct SideOfMatch
{
    std::size_t read = 0;  ///< observations that its filters select
    std::size_t unmatched = 0;
    std::size_t duplicates = 0;  ///< observations after the first one with the same ID values
    std::uint32_t firstDuplicate = noObservation;
    bool isSorted = true;  ///< by the ID variables, ascending
};

struct ObservationMatch
{
    /// By position in the datasets' order, otherwise in the ascending order of the ID values.
    std::vector<ObservationPair> pairs;
    SideOfMatch base;
    SideOfMatch compare;

    [[nodiscard]] std::size_t matched() const { return base.read - base.unmatched; }
};

/// Matches the observations that the filters of the datasets select, or all of them: by position
/// without ID variables. Otherwise by the values of these, which need not be sorted; observations
/// with the same values are paired in their order. Missing numbers come before all others, each
/// special one on its own; texts are told apart as values are compared, without blanks at their
/// ends. Linear in the observations for each variable, plus the bytes that tell its texts apart.
[[nodiscard]] ObservationMatch matchObservations(const StatDataset& base,
                                                 const StatDataset& compare,
                                                 const std::vector<VariablePair>& id,
                                                 bool passesOverFilters = false);

}  // namespace comparison

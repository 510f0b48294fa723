#pragma once

#include "analysis/comparison/EqualityRule.h"
#include "analysis/comparison/ObservationMatch.h"
#include "data/StatDataset.h"

namespace comparison {

/// The bits of PROC COMPARE's return code that a comparison without BY variables can set.
enum SysInfo : unsigned
{
    DatasetLabel = 0x1,
    DatasetType = 0x2,
    Informat = 0x4,
    Format = 0x8,
    Length = 0x10,
    Label = 0x20,
    BaseObservation = 0x40,
    CompareObservation = 0x80,
    BaseVariable = 0x400,
    CompareVariable = 0x800,
    Value = 0x1000,
    Type = 0x2000,
    Error = 0x8000,
};

/// From here on more differs than attributes.
inline constexpr unsigned firstDataBit = BaseObservation;

/// What came out for one pair of variables.
struct ComparedVariable
{
    VariablePair variables;
    bool isNumeric = false;
    bool countsAsSas = false;  ///< both show dates or times, compared on one scale
    EqualityRule rule;
    /// Where Comparison::observations has the observations whose values are unequal, ascending.
    std::vector<std::uint32_t> unequal;
    std::size_t inexact = 0;  ///< values that are not exactly equal, these included
    std::size_t missingDifferences = 0;  ///< unequal ones of which one is missing
    /// The largest measure of the rule among the values that are not missing; 0 for texts.
    double maximum = 0;
};

/// One value of each dataset, and how far they are apart; NaN where nothing can be told.
struct NumberDifference
{
    double base;
    double compare;
    double difference;
    double percent;
};

/// The results of a comparison. The datasets must outlive it and stay as they are.
class Comparison
{
public:
    /// Compares the observations and variables that both datasets show: their filters and the
    /// visibility of their variables count, unless they are passed over. A failure says what keeps
    /// the comparison from being done.
    [[nodiscard]] static Result<Comparison> of(const StatDataset& base, const StatDataset& compare,
                                               const Request& asked);

    /// The request with those of its ID variables that both datasets have, as the base calls them.
    /// No value is read. A failure says what would keep the comparison from being done.
    [[nodiscard]] static Result<Request> checked(const StatDataset& base,
                                                 const StatDataset& compare, const Request& asked);

    [[nodiscard]] const StatDataset& base() const { return *m_base; }
    [[nodiscard]] const StatDataset& compare() const { return *m_compare; }
    [[nodiscard]] const std::string& baseName() const { return m_baseName; }
    [[nodiscard]] const std::string& compareName() const { return m_compareName; }
    /// The rule of all variables that have none of their own.
    [[nodiscard]] const EqualityRule& rule() const { return m_rule; }

    [[nodiscard]] const VariableMatch& variables() const { return m_variables; }
    [[nodiscard]] const ObservationMatch& observations() const { return m_observations; }
    [[nodiscard]] const std::vector<ComparedVariable>& values() const { return m_values; }
    /// One bit per pair of observations: set = some value is unequal.
    [[nodiscard]] const BitVector& unequalObservations() const { return m_unequalObservations; }

    [[nodiscard]] std::size_t unequalValues() const;
    [[nodiscard]] std::size_t inexactValues() const;
    [[nodiscard]] std::size_t conflictingTypes() const;
    [[nodiscard]] std::size_t differingAttributes() const;
    [[nodiscard]] unsigned sysInfo() const;

    /// What is to be known about the comparison, a sentence each: what was asked for and passed
    /// over, duplicates, observations that are not sorted.
    [[nodiscard]] std::vector<std::string> notes() const;

    /// The numbers of a pair of matched observations.
    [[nodiscard]] NumberDifference numbers(const ComparedVariable& variable,
                                           const ObservationPair& pair) const;

private:
    /// What is known before the first value is read. The request gets the names of the datasets.
    [[nodiscard]] static Result<Comparison> begun(const StatDataset& base,
                                                  const StatDataset& compare, Request& request);
    [[nodiscard]] std::optional<Failure> setRules(const Request& request);
    [[nodiscard]] std::optional<Failure> setRule(const VariableCriterion& own,
                                                 const Request& request);
    void noteSide(const SideOfMatch& side, const StatDataset& dataset, const std::string& name,
                  std::vector<std::string>& notes) const;

    const StatDataset* m_base = nullptr;
    const StatDataset* m_compare = nullptr;
    std::string m_baseName;
    std::string m_compareName;
    EqualityRule m_rule;
    VariableMatch m_variables;
    ObservationMatch m_observations;
    std::vector<ComparedVariable> m_values;
    BitVector m_unequalObservations;
};

}  // namespace comparison

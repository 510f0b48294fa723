#include "analysis/comparison/Comparison.h"

#include "analysis/comparison/ValueComparer.h"
#include "analysis/comparison/ValueReader.h"
#include "data/StoredValue.h"
#include "data/values/AlignedText.h"
#include "grid/filter/VariableNames.h"

#include <fmt/format.h>

#include <QString>

#include <algorithm>
#include <numeric>

namespace comparison {

namespace {

/// The TYPE= attribute behind the member type: "DATA EST".
std::string_view datasetType(const StatDataset& dataset)
{
    std::string_view type = dataset.header().memberType;
    if (type.starts_with("DATA")) {
        type.remove_prefix(4);
    }
    type.remove_prefix(std::min(type.find_first_not_of(' '), type.size()));
    return type;
}

/// Both names as they were given, or the datasets' own, told apart where they are the same.
void nameDatasets(const StatDataset& base, const StatDataset& compare, Request& request)
{
    const bool sameNames = base.datasetName() == compare.datasetName();
    const auto name = [&](std::string& given, const StatDataset& dataset, const char* side) {
        if (given.empty()) {
            given = sameNames ? fmt::format("{}.{}", side, dataset.datasetName())
                              : dataset.datasetName();
        }
    };
    name(request.baseName, base, "BASE");
    name(request.compareName, compare, "COMPARE");
}

std::string idText(const StatDataset& dataset, const std::vector<VariablePair>& id, bool isBase,
                   std::uint32_t observation)
{
    std::string text;
    for (const VariablePair& pair : id) {
        const int variable = isBase ? pair.base : pair.compare;
        text += fmt::format(
            "{}{}={}", text.empty() ? "" : " ", dataset.names()[static_cast<std::size_t>(variable)],
            onOneLine(storedvalue::text(dataset, static_cast<int>(observation), variable)));
    }
    return text;
}

template <typename Sum>
std::size_t sumOf(const std::vector<ComparedVariable>& values, Sum sum)
{
    return std::accumulate(
        values.begin(), values.end(), std::size_t{0},
        [&](std::size_t total, const ComparedVariable& variable) { return total + sum(variable); });
}

}  // namespace

Result<Comparison> Comparison::begun(const StatDataset& base, const StatDataset& compare,
                                     Request& request)
{
    nameDatasets(base, compare, request);
    Comparison result;
    result.m_base = &base;
    result.m_compare = &compare;
    result.m_baseName = request.baseName;
    result.m_compareName = request.compareName;
    Result<VariableMatch> variables = matchVariables(base, compare, request);
    if (!variables) {
        return Failure{variables.error()};
    }
    result.m_variables = std::move(variables.value());
    if (std::optional<Failure> failure = result.setRules(request)) {
        return *failure;
    }
    return result;
}

Result<Request> Comparison::checked(const StatDataset& base, const StatDataset& compare,
                                    const Request& asked)
{
    Request request = asked;
    const Result<Comparison> result = begun(base, compare, request);
    if (!result) {
        return Failure{result.error()};
    }
    request = asked;
    request.id.clear();
    for (const VariablePair& pair : result.value().m_variables.id) {
        request.id.push_back(base.names()[static_cast<std::size_t>(pair.base)]);
    }
    return request;
}

Result<Comparison> Comparison::of(const StatDataset& base, const StatDataset& compare,
                                  const Request& asked)
{
    Request request = asked;
    Result<Comparison> comparison = begun(base, compare, request);
    if (!comparison) {
        return comparison;
    }
    Comparison& result = comparison.value();
    result.m_observations =
        matchObservations(base, compare, result.m_variables.id, request.passesOverFilters);
    const std::vector<ObservationPair>& pairs = result.m_observations.pairs;
    compareValues(base, compare, request, pairs, result.m_values);
    result.m_unequalObservations = BitVector(pairs.size());
    for (const ComparedVariable& variable : result.m_values) {
        for (const std::uint32_t pair : variable.unequal) {
            result.m_unequalObservations.set(pair);
        }
    }
    return comparison;
}

std::optional<Failure> Comparison::setRules(const Request& request)
{
    const Result<EqualityRule> rule =
        EqualityRule::of(request.method, request.criterion, request.delta);
    if (!rule) {
        return Failure{rule.error()};
    }
    m_rule = rule.value();
    for (const VariablePair& pair : m_variables.compared) {
        ComparedVariable& variable = m_values.emplace_back();
        variable.variables = pair;
        variable.isNumeric = m_base->isNumeric(pair.base);
        variable.countsAsSas = bothCountTime(*m_base, pair.base, *m_compare, pair.compare);
        variable.rule = m_rule;
    }
    for (const VariableCriterion& own : request.variableCriteria) {
        if (std::optional<Failure> failure = setRule(own, request)) {
            return failure;
        }
    }
    return std::nullopt;
}

std::optional<Failure> Comparison::setRule(const VariableCriterion& own, const Request& request)
{
    // A criterion means nothing to EXACT, so that method is as good as none here.
    const std::optional<Method> method = own.method ? own.method
        : request.method == Method::Exact           ? std::nullopt
                                                    : request.method;
    const Result<EqualityRule> rule = EqualityRule::of(
        method, own.criterion, method == Method::Relative ? request.delta : std::nullopt);
    if (!rule) {
        return Failure{fmt::format("{}: {}", own.variable, rule.error())};
    }
    const auto variable = variablenames::find(*m_base, QString::fromStdString(own.variable));
    bool isFound = false;
    for (ComparedVariable& value : m_values) {
        if (value.isNumeric && variable == value.variables.base) {
            value.rule = rule.value();
            isFound = true;
        }
    }
    return isFound
        ? std::nullopt
        : std::optional(Failure{fmt::format(
            "{} has a criterion, but is no numeric variable that is compared", own.variable)});
}

std::size_t Comparison::unequalValues() const
{
    return sumOf(m_values, [](const ComparedVariable& v) { return v.unequal.size(); });
}

std::size_t Comparison::inexactValues() const
{
    return sumOf(m_values, [](const ComparedVariable& v) { return v.inexact; });
}

std::size_t Comparison::conflictingTypes() const
{
    const auto& common = m_variables.common;
    return static_cast<std::size_t>(
        std::count_if(common.begin(), common.end(),
                      [](const VariablePair& pair) { return pair.hasConflictingTypes; }));
}

std::size_t Comparison::differingAttributes() const
{
    const auto& common = m_variables.common;
    return static_cast<std::size_t>(
        std::count_if(common.begin(), common.end(), [](const VariablePair& pair) {
            return !pair.hasConflictingTypes && pair.differing.any();
        }));
}

unsigned Comparison::sysInfo() const
{
    unsigned bits = 0;
    const auto set = [&bits](unsigned bit, bool isSet) { bits |= isSet ? bit : 0U; };
    set(DatasetLabel, m_base->header().fileLabel != m_compare->header().fileLabel);
    set(DatasetType, datasetType(*m_base) != datasetType(*m_compare));
    const auto addAttributes = [&](const std::vector<VariablePair>& pairs) {
        for (const VariablePair& pair : pairs) {
            set(Type, pair.hasConflictingTypes);
            if (!pair.hasConflictingTypes) {
                set(Informat, pair.differing.informat);
                set(Format, pair.differing.format);
                set(Length, pair.differing.length);
                set(Label, pair.differing.label);
            }
        }
    };
    addAttributes(m_variables.common);
    addAttributes(m_variables.compared);
    set(BaseObservation, m_observations.base.unmatched > 0);
    set(CompareObservation, m_observations.compare.unmatched > 0);
    set(BaseVariable, !m_variables.baseOnly.empty());
    set(CompareVariable, !m_variables.compareOnly.empty());
    set(Value, unequalValues() > 0);
    return bits;
}

std::vector<std::string> Comparison::notes() const
{
    std::vector<std::string> notes = m_variables.notes;
    noteSide(m_observations.base, *m_base, m_baseName, notes);
    noteSide(m_observations.compare, *m_compare, m_compareName, notes);
    return notes;
}

void Comparison::noteSide(const SideOfMatch& side, const StatDataset& dataset,
                          const std::string& name, std::vector<std::string>& notes) const
{
    if (!side.isSorted) {
        notes.push_back(fmt::format("The data set {} is not sorted by the ID variables; its "
                                    "observations have been matched as if it were.",
                                    name));
    }
    if (side.duplicates > 0) {
        notes.push_back(fmt::format(
            "The data set {} contains a duplicate observation at observation number {}: {}.", name,
            side.firstDuplicate + 1,
            idText(dataset, m_variables.id, &dataset == m_base, side.firstDuplicate)));
    }
}

NumberDifference Comparison::numbers(const ComparedVariable& variable,
                                     const ObservationPair& pair) const
{
    const ValueReader baseReader(*m_base, variable.variables.base, variable.countsAsSas);
    const ValueReader compareReader(*m_compare, variable.variables.compare, variable.countsAsSas);
    const double base = baseReader.number(baseReader.cell(pair.base));
    const double compare = compareReader.number(compareReader.cell(pair.compare));
    return {base, compare, compare - base, percentDifference(base, compare)};
}

}  // namespace comparison

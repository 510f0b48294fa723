#include "analysis/comparison/CompareJson.h"

#include "analysis/comparison/ComparedTexts.h"
#include "data/values/WrittenJson.h"

#include <fmt/format.h>

namespace comparison {

namespace {

std::string nameJson(const StatDataset& dataset, int variable)
{
    return jsonText(dataset.names()[static_cast<std::size_t>(variable)]);
}

std::string namesJson(const StatDataset& dataset, const std::vector<int>& variables)
{
    std::vector<std::string> names;
    names.reserve(variables.size());
    for (const int variable : variables) {
        names.push_back(nameJson(dataset, variable));
    }
    return fmt::format("[{}]", fmt::join(names, ","));
}

std::string datasetJson(const std::string& name, const std::string& file,
                        const StatDataset& dataset)
{
    return fmt::format(R"({{"name":{},"file":{},"label":{},"observations":{},"variables":{}}})",
                       jsonText(name), jsonText(file), jsonText(dataset.header().fileLabel),
                       dataset.observationCount(), dataset.variableCount());
}

std::string attributesJson(const StatDataset& dataset, int variable)
{
    const auto place = static_cast<std::size_t>(variable);
    return fmt::format(
        R"({{"name":{},"type":"{}","length":{},"format":{},"informat":{},"label":{}}})",
        nameJson(dataset, variable), dataset.isNumeric(variable) ? "num" : "char",
        dataset.lengths()[place], jsonText(dataset.writtenFormat(variable)),
        jsonText(dataset.informats()[place]), jsonText(dataset.labels()[place]));
}

/// Pairs of variables whose types, or else whose other attributes differ.
std::string differingJson(const Comparison& result, bool types)
{
    std::vector<std::string> pairs;
    for (const VariablePair& pair : result.variables().common) {
        if (types ? pair.hasConflictingTypes : !pair.hasConflictingTypes && pair.differing.any()) {
            pairs.push_back(fmt::format(R"({{"base":{},"compare":{}}})",
                                        attributesJson(result.base(), pair.base),
                                        attributesJson(result.compare(), pair.compare)));
        }
    }
    return fmt::format("[{}]", fmt::join(pairs, ","));
}

std::string variablesJson(const Comparison& result)
{
    const VariableMatch& variables = result.variables();
    std::vector<int> id;
    for (const VariablePair& pair : variables.id) {
        id.push_back(pair.base);
    }
    return fmt::format(
        R"({{"common":{},"baseOnly":{},"compareOnly":{},"id":{},"conflictingTypes":{},"differingAttributes":{}}})",
        variables.common.size(), namesJson(result.base(), variables.baseOnly),
        namesJson(result.compare(), variables.compareOnly), namesJson(result.base(), id),
        differingJson(result, true), differingJson(result, false));
}

std::string observationsJson(const Comparison& result)
{
    const ObservationMatch& match = result.observations();
    const std::size_t unequal = result.unequalObservations().count();
    return fmt::format(
        R"({{"common":{},"baseOnly":{},"compareOnly":{},"baseRead":{},"compareRead":{},"baseDuplicates":{},"compareDuplicates":{},"unequal":{},"equal":{}}})",
        match.matched(), match.base.unmatched, match.compare.unmatched, match.base.read,
        match.compare.read, match.base.duplicates, match.compare.duplicates, unequal,
        match.matched() - unequal);
}

std::string valueJson(const Comparison& result, const ComparedVariable& variable)
{
    return fmt::format(
        R"({{"base":{},"compare":{},"type":"{}","method":"{}","criterion":{},"unequal":{},"notExactlyEqual":{},"missing":{},"maximum":{}}})",
        nameJson(result.base(), variable.variables.base),
        nameJson(result.compare(), variable.variables.compare), variable.isNumeric ? "num" : "char",
        nameOf(variable.rule.method()), jsonNumber(variable.rule.criterion()),
        variable.unequal.size(), variable.inexact, variable.missingDifferences,
        variable.isNumeric ? jsonNumber(variable.maximum) : "null");
}

std::string valuesJson(const Comparison& result)
{
    std::vector<std::string> variables;
    std::size_t equal = 0;
    std::size_t missing = 0;
    for (const ComparedVariable& variable : result.values()) {
        equal += variable.unequal.empty() ? 1U : 0U;
        missing += variable.missingDifferences > 0 ? 1U : 0U;
        variables.push_back(valueJson(result, variable));
    }
    return fmt::format(
        R"({{"variables":{},"allEqual":{},"someUnequal":{},"withMissingDifferences":{},"unequal":{},"notExactlyEqual":{},"byVariable":[{}]}})",
        result.values().size(), equal, result.values().size() - equal, missing,
        result.unequalValues(), result.inexactValues(), fmt::join(variables, ","));
}

std::string numberJson(std::uint32_t observation)
{
    return observation == noObservation ? "null" : std::to_string(observation + 1);
}

std::string observationJson(const Comparison& result, const ObservationPair& pair)
{
    std::vector<std::string> id;
    for (const VariablePair& variable : result.variables().id) {
        id.push_back(fmt::format("{}:{}", nameJson(result.base(), variable.base),
                                 jsonText(idText(result, variable, pair))));
    }
    return fmt::format(R"("baseObs":{},"compareObs":{},"id":{{{}}})", numberJson(pair.base),
                       numberJson(pair.compare), fmt::join(id, ","));
}

std::string differenceJson(const Comparison& result, const ComparedVariable& variable,
                           const ObservationPair& pair)
{
    const ValueTexts texts = valueTexts(result, variable, pair);
    std::string numbers;
    if (variable.isNumeric) {
        const NumberDifference difference = result.numbers(variable, pair);
        numbers = fmt::format(R"(,"difference":{},"percent":{})", jsonNumber(difference.difference),
                              jsonNumber(difference.percent));
    }
    return fmt::format(R"({{"variable":{},{},"base":{},"compare":{}{}}})",
                       jsonText(pairName(result, variable.variables)),
                       observationJson(result, pair), jsonText(texts.base), jsonText(texts.compare),
                       numbers);
}

/// Observations of one side, and all values that differ.
std::string differencesJson(const Comparison& result)
{
    std::vector<std::string> unmatched;
    for (const ObservationPair& pair : result.observations().pairs) {
        if (!pair.isMatched()) {
            unmatched.push_back('{' + observationJson(result, pair) + '}');
        }
    }
    std::vector<std::string> differences;
    for (const ComparedVariable& variable : result.values()) {
        for (const std::uint32_t place : variable.unequal) {
            differences.push_back(
                differenceJson(result, variable, result.observations().pairs[place]));
        }
    }
    return fmt::format(R"(,"unmatched":[{}],"differences":[{}])", fmt::join(unmatched, ","),
                       fmt::join(differences, ","));
}

}  // namespace

std::string json(const Comparison& comparison, const JsonContext& context)
{
    const EqualityRule& rule = comparison.rule();
    return fmt::format(
        R"({{"base":{},"compare":{},"method":"{}","criterion":{},"delta":{},"sysinfo":{},"different":{},"observations":{},"variables":{},"values":{},"notes":[{}]{}}})",
        datasetJson(comparison.baseName(), context.baseFile, comparison.base()),
        datasetJson(comparison.compareName(), context.compareFile, comparison.compare()),
        nameOf(rule.method()), jsonNumber(rule.criterion()), jsonNumber(rule.delta()),
        comparison.sysInfo(), context.isDifferent, observationsJson(comparison),
        variablesJson(comparison), valuesJson(comparison), jsonTexts(comparison.notes()),
        context.listsDifferences ? differencesJson(comparison) : "");
}

}  // namespace comparison

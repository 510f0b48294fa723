#include "analysis/comparison/ComparedTexts.h"

#include "analysis/comparison/ValueReader.h"
#include "data/StoredValue.h"
#include "data/values/AlignedText.h"
#include "data/values/NumberText.h"

#include <fmt/format.h>

#include <cmath>

namespace comparison {

namespace {

/// The number as its format shows it; empty where the variable has none or the number is missing.
std::string formattedNumber(const StatDataset& dataset, std::uint32_t observation, int variable)
{
    const int row = static_cast<int>(observation);
    const bool isMissing =
        dataset.missingMark(variable).isMissing(dataset.numericValue(row, variable));
    return isMissing || dataset.writtenFormat(variable).empty() ? std::string()
                                                                : dataset.cellText(row, variable);
}

std::string storedText(const StatDataset& dataset, std::uint32_t observation, int variable)
{
    return storedvalue::text(dataset, static_cast<int>(observation), variable);
}

const std::string& nameOf(const StatDataset& dataset, int variable)
{
    return dataset.names()[static_cast<std::size_t>(variable)];
}

}  // namespace

ValueTexts valueTexts(const Comparison& comparison, const ComparedVariable& variable,
                      const ObservationPair& pair)
{
    const auto [base, compare] = std::pair(variable.variables.base, variable.variables.compare);
    ValueTexts stored{storedText(comparison.base(), pair.base, base),
                      storedText(comparison.compare(), pair.compare, compare)};
    if (!variable.isNumeric) {
        return stored;
    }
    ValueTexts shown{formattedNumber(comparison.base(), pair.base, base),
                     formattedNumber(comparison.compare(), pair.compare, compare)};
    if (shown.base == shown.compare) {
        return stored;
    }
    return {shown.base.empty() ? stored.base : shown.base,
            shown.compare.empty() ? stored.compare : shown.compare};
}

ValueTexts cellTexts(const Comparison& comparison, const ComparedVariable& variable,
                     const ObservationPair& pair, bool isUnequal)
{
    const auto [base, compare] = std::pair(variable.variables.base, variable.variables.compare);
    ValueTexts shown{comparison.base().cellText(static_cast<int>(pair.base), base),
                     comparison.compare().cellText(static_cast<int>(pair.compare), compare)};
    if (!isUnequal || shown.base != shown.compare) {
        return shown;
    }
    return {storedText(comparison.base(), pair.base, base),
            storedText(comparison.compare(), pair.compare, compare)};
}

std::string idText(const Comparison& comparison, const VariablePair& id,
                   const ObservationPair& pair)
{
    const bool hasBase = pair.base != noObservation;
    const StatDataset& dataset = hasBase ? comparison.base() : comparison.compare();
    const int variable = hasBase ? id.base : id.compare;
    const std::uint32_t observation = hasBase ? pair.base : pair.compare;
    if (dataset.isNumeric(variable)
        && dataset.dateScale(variable).content() != DateScale::Content::Number) {
        const std::string shown = formattedNumber(dataset, observation, variable);
        return shown.empty() ? storedText(dataset, observation, variable) : shown;
    }
    return storedText(dataset, observation, variable);
}

std::string observationText(const Comparison& comparison, const ObservationPair& pair)
{
    std::string text;
    for (const VariablePair& id : comparison.variables().id) {
        const std::string& name = pair.base != noObservation
            ? nameOf(comparison.base(), id.base)
            : nameOf(comparison.compare(), id.compare);
        text += fmt::format("{}{}={}", text.empty() ? "" : " ", name,
                            onOneLine(idText(comparison, id, pair)));
    }
    if (text.empty()) {
        text = fmt::format("_OBS_1={}  _OBS_2={}", pair.base + 1, pair.compare + 1);
    }
    return text;
}

std::string differenceText(double difference, int decimals)
{
    constexpr std::size_t room = 9;
    if (std::isnan(difference)) {
        return ".";
    }
    const double size = std::abs(difference);
    for (int places = size == 0 || size >= 0.01 ? decimals : -1; places >= 0; --places) {
        std::string text = fmt::format("{:.{}f}", difference, places);
        if (text.size() <= room) {
            return text;
        }
    }
    for (int places = 3; places > 0; --places) {
        std::string text = fmt::format("{:.{}E}", difference, places);
        if (text.size() <= room) {
            return text;
        }
    }
    return fmt::format("{:.0E}", difference);
}

std::string criterionText(double criterion)
{
    if (criterion != 0 && (criterion < 1e-9 || criterion >= 1e15)) {
        return fmt::format("{:.6G}", criterion);
    }
    std::string text = fmt::format("{:.15f}", criterion);
    text.erase(text.find_last_not_of('0') + 1);
    // Digits that a double does not have are not shown.
    std::string shortest = numbertext::shortest(criterion);
    if (shortest.find('e') == std::string::npos) {
        return shortest;
    }
    return text.ends_with('.') ? text + '0' : text;
}

std::string ruleText(const EqualityRule& rule)
{
    std::string text = nameOf(rule.method());
    if (rule.method() == Method::Exact) {
        return text;
    }
    if (rule.delta() != 0) {
        text += fmt::format("({:.3G})", rule.delta());
    }
    return fmt::format("{}, Criterion={}", text, criterionText(rule.criterion()));
}

std::string pairName(const Comparison& comparison, const VariablePair& pair)
{
    const std::string& base = nameOf(comparison.base(), pair.base);
    const std::string& compare = nameOf(comparison.compare(), pair.compare);
    return base == compare ? base : fmt::format("{}^={}", base, compare);
}

}  // namespace comparison

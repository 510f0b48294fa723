#include "analysis/Frequencies.h"

#include "analysis/CodedColumn.h"
#include "analysis/RowGroups.h"
#include "data/values/Texts.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using Numbers = std::vector<std::uint32_t>;

enum class NaNs
{
    AsMissing,
    AsNumbers
};

FreqValue valueOf(const RankedValues& values, std::uint32_t rank, NaNs nans)
{
    if (!values.isNumeric()) {
        return values.text(rank);
    }
    const double number = values.number(rank);
    return nans == NaNs::AsMissing && std::isnan(number) ? FreqValue() : FreqValue(number);
}

/// @param counts  one for each group, by its number
std::vector<WordsAndCounts> resultsOf(const RowGroups& groups, const Numbers& counts, NaNs nans)
{
    std::vector<WordsAndCounts> results(groups.size());
    // On their own, as they are read from all over the memory.
    for (std::size_t i = 0; i < results.size(); ++i) {
        results[i].count = static_cast<std::int32_t>(counts[groups.inOrder()[i]]);
    }
    for (std::size_t i = 0; i < results.size(); ++i) {
        const auto ranks = groups.ranksAt(i);
        results[i].values.reserve(ranks.size());
        for (std::size_t variable = 0; variable < ranks.size(); ++variable) {
            results[i].values.push_back(valueOf(groups.values()[variable], ranks[variable], nans));
        }
    }
    return results;
}

CodedColumn subjectsOf(const StatDataset& dataset, int variable, const Numbers& rows)
{
    return dataset.isNumeric(variable) ? CodedColumn::ofShownTexts(dataset, variable, rows)
                                       : CodedColumn(dataset, variable, rows);
}

/// How many distinct subjects each group holds.
Numbers subjectsInGroups(const RowGroups& groups, const CodedColumn& subjects)
{
    constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();
    Numbers lastGroup(subjects.size(), none);
    Numbers counts(groups.size());
    const Numbers places = groups.placesByGroup();
    std::size_t next = 0;
    for (std::uint32_t group = 0; group < groups.size(); ++group) {
        for (const std::size_t end = next + groups.sizes()[group]; next < end; ++next) {
            std::uint32_t& last = lastGroup[subjects.codes()[places[next]]];
            counts[group] += last == group ? 0 : 1;
            last = group;
        }
    }
    return counts;
}

/// Letters of other alphabets stay as they are in every locale.
std::string upperCased(std::string_view text)
{
    std::string upper(text);
    for (char& letter : upper) {
        letter = letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    }
    return upper;
}

}  // namespace

namespace frequencies {

std::optional<int> idVariable(const StatDataset& dataset, std::string_view uniqueVarName)
{
    const std::string wanted = upperCased(uniqueVarName);
    const auto& names = dataset.names();
    const auto found = std::find_if(names.begin(), names.end(), [&](const std::string& name) {
        return upperCased(name) == wanted;
    });
    return found == names.end() ? std::nullopt
                                : std::optional(static_cast<int>(found - names.begin()));
}

std::vector<WordsAndCounts> plain(const StatDataset& dataset, std::span<const int> variables)
{
    const RowGroups groups(dataset, variables, selectedObservations(dataset));
    return resultsOf(groups, groups.sizes(), NaNs::AsMissing);
}

std::vector<WordsAndCounts> distinctIds(const StatDataset& dataset, std::span<const int> variables,
                                        std::string_view uniqueVarName)
{
    const std::optional<int> id = idVariable(dataset, uniqueVarName);
    if (!id) {
        return plain(dataset, variables);
    }
    const Numbers rows = selectedObservations(dataset);
    const RowGroups groups(dataset, variables, rows);
    return resultsOf(groups, subjectsInGroups(groups, subjectsOf(dataset, *id, rows)),
                     NaNs::AsNumbers);
}

std::string displayText(const StatDataset& dataset, int variable, const FreqValue& value)
{
    if (!dataset.isNumeric(variable)) {
        return std::string(std::get<std::string_view>(value));
    }
    if (const auto* number = std::get_if<double>(&value)) {
        const auto entry = static_cast<std::size_t>(variable);
        return texts::trimmed(dataset.formatNumeric(*number, dataset.formats()[entry],
                                                    dataset.formatWidths()[entry],
                                                    dataset.formatDecimals()[entry]));
    }
    return std::holds_alternative<std::monostate>(value) ? "N/A" : "Error";
}

}  // namespace frequencies

#include "analysis/Frequencies.h"

#include "analysis/FreqCoder.h"
#include "analysis/FreqColumn.h"
#include "analysis/FreqGroups.h"
#include "analysis/TextRanks.h"
#include "data/values/Texts.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>

namespace {

using Numbers = std::vector<std::uint32_t>;

enum class NaNs
{
    AsMissing,
    AsNumbers
};

FreqValue valueOf(const FreqDictionary& dictionary, std::uint32_t rank, NaNs nans)
{
    if (!dictionary.isNumeric()) {
        return dictionary.text(rank);
    }
    const double number = dictionary.number(rank);
    return nans == NaNs::AsMissing && std::isnan(number) ? FreqValue() : FreqValue(number);
}

/// @param counts  one for each group, by its number
std::vector<WordsAndCounts> resultsOf(const FreqGroups& groups, const Numbers& counts, NaNs nans)
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
            results[i].values.push_back(
                valueOf(groups.dictionaries()[variable], ranks[variable], nans));
        }
    }
    return results;
}

/// Codes such that subjects have equal ones where a numeric variable shows equal texts. Cells that
/// hold the same bits show the same text, so only distinct numbers are rendered.
Numbers codesOfShownTexts(const StatDataset& dataset, int variable, const Numbers& rows)
{
    FreqCoder coder;
    Numbers codes(rows.size());
    std::vector<std::string> shown;
    for (std::size_t place = 0; place < rows.size(); ++place) {
        const int row = static_cast<int>(rows[place]);
        const std::array key{std::bit_cast<std::uint64_t>(dataset.numericValue(row, variable))};
        coder.encode(key, &codes[place]);
        if (codes[place] == shown.size()) {
            shown.push_back(dataset.cellText(row, variable));
        }
    }
    const std::vector<std::string_view> texts(shown.begin(), shown.end());
    const TextRanks ranked = rankTexts(texts);
    for (std::uint32_t& code : codes) {
        code = ranked.ranks[code];
    }
    return codes;
}

Numbers codesOfSubjects(const StatDataset& dataset, int variable, const Numbers& rows)
{
    return dataset.isNumeric(variable) ? codesOfShownTexts(dataset, variable, rows)
                                       : FreqColumn(dataset, variable, rows).codes();
}

/// How many distinct codes each group holds.
Numbers distinctInGroups(const FreqGroups& groups, const Numbers& codes)
{
    constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();
    const std::size_t codeCount =
        codes.empty() ? 0 : *std::max_element(codes.begin(), codes.end()) + std::size_t{1};
    Numbers lastGroup(codeCount, none);
    Numbers counts(groups.size());
    const Numbers places = groups.placesByGroup();
    std::size_t next = 0;
    for (std::uint32_t group = 0; group < groups.size(); ++group) {
        for (const std::size_t end = next + groups.sizes()[group]; next < end; ++next) {
            std::uint32_t& last = lastGroup[codes[places[next]]];
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

std::weak_ordering compareValues(const FreqValue& a, const FreqValue& b)
{
    if (a.index() != b.index()) {
        return a.index() <=> b.index();
    }
    if (const auto* text = std::get_if<std::string_view>(&a)) {
        return text->compare(std::get<std::string_view>(b)) <=> 0;
    }
    if (const auto* number = std::get_if<double>(&a)) {
        const double other = std::get<double>(b);
        const bool isNaN = std::isnan(*number);
        if (isNaN || std::isnan(other)) {
            return !isNaN <=> !std::isnan(other);
        }
        return *number < other ? std::weak_ordering::less
            : other < *number  ? std::weak_ordering::greater
                               : std::weak_ordering::equivalent;
    }
    return std::weak_ordering::equivalent;
}

}  // namespace

namespace frequencies {

std::weak_ordering compare(std::span<const FreqValue> a, std::span<const FreqValue> b)
{
    for (std::size_t i = 0; i < std::min(a.size(), b.size()); ++i) {
        const std::weak_ordering order = compareValues(a[i], b[i]);
        if (order != std::weak_ordering::equivalent) {
            return order;
        }
    }
    return a.size() <=> b.size();
}

std::vector<WordsAndCounts> plain(const StatDataset& dataset, std::span<const int> variables)
{
    const FreqGroups groups(dataset, variables, selectedObservations(dataset));
    return resultsOf(groups, groups.sizes(), NaNs::AsMissing);
}

std::vector<WordsAndCounts> distinctIds(const StatDataset& dataset, std::span<const int> variables,
                                        std::string_view uniqueVarName)
{
    const int id = idVariable(dataset, uniqueVarName);
    if (id < 0) {
        return plain(dataset, variables);
    }
    const Numbers rows = selectedObservations(dataset);
    const FreqGroups groups(dataset, variables, rows);
    return resultsOf(groups, distinctInGroups(groups, codesOfSubjects(dataset, id, rows)),
                     NaNs::AsNumbers);
}

int idVariable(const StatDataset& dataset, std::string_view uniqueVarName)
{
    const std::string wanted = upperCased(uniqueVarName);
    const auto& names = dataset.names();
    const auto found = std::find_if(names.begin(), names.end(), [&](const std::string& name) {
        return upperCased(name) == wanted;
    });
    return found == names.end() ? -1 : static_cast<int>(found - names.begin());
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

// How lists of frequencies are sorted; what a list holds is made in Frequencies.cpp.

#include "analysis/Frequencies.h"
#include "analysis/TextSort.h"
#include "data/cells/ValueKey.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <unordered_map>

namespace {

using Keys = std::vector<std::uint64_t>;
using Results = std::span<const WordsAndCounts>;

constexpr const char* missingText = "N/A";

/// Orders as the digits do when they are read as a text.
std::uint64_t keyOfCount(std::int32_t count)
{
    constexpr std::size_t digits = 10;
    constexpr std::uint64_t letters = 11;  // the ten, and none, which comes before them
    std::array<char, digits + 2> text{};
    const char* end = std::to_chars(text.data(), text.data() + text.size(), count).ptr;
    std::uint64_t key = 0;
    for (std::size_t i = 0; i < digits; ++i) {
        const bool isDigit = text.data() + i < end;
        key = key * letters + (isDigit ? static_cast<std::uint64_t>(text[i] - '0') + 1 : 0);
    }
    return key;
}

/// The place of each text in their order; equal ones share one.
Keys ranksOf(std::span<const std::string_view> texts)
{
    const std::vector<std::uint32_t> order = orderOf(texts);
    Keys ranks(texts.size());
    for (std::size_t place = 0; place < order.size(); ++place) {
        const bool isSame = place > 0 && texts[order[place]] == texts[order[place - 1]];
        ranks[order[place]] = isSame ? ranks[order[place - 1]] : place;
    }
    return ranks;
}

/// Equal texts share their record, so each is looked at once.
Keys keysOfTexts(Results results, std::size_t column)
{
    std::vector<std::string_view> records;
    std::unordered_map<const char*, std::size_t> codeOf;
    Keys codes;
    codes.reserve(results.size());
    for (const WordsAndCounts& result : results) {
        const auto text = std::get<std::string_view>(result.values[column]);
        const auto [entry, isNew] = codeOf.try_emplace(text.data(), records.size());
        if (isNew) {
            records.push_back(text);
        }
        codes.push_back(entry->second);
    }
    const Keys ranks = ranksOf(records);
    std::transform(codes.begin(), codes.end(), codes.begin(),
                   [&](std::uint64_t code) { return ranks[code]; });
    return codes;
}

/// The key of the first number whose text comes after that of a missing value; a number's text need
/// not grow with it, and then the missing values stand at some place where they fit.
std::uint64_t firstAboveMissing(const StatDataset& dataset, int variable, Keys numbers)
{
    std::sort(numbers.begin(), numbers.end());
    const auto found = std::partition_point(numbers.begin(), numbers.end(), [&](std::uint64_t key) {
        return frequencies::displayText(dataset, variable, valuekey::number(key)) <= missingText;
    });
    return found == numbers.end() ? std::numeric_limits<std::uint64_t>::max() : *found;
}

Keys keysOfNumbers(const StatDataset& dataset, int variable, Results results, std::size_t column)
{
    Keys numbers;
    for (const WordsAndCounts& result : results) {
        if (const auto* number = std::get_if<double>(&result.values[column])) {
            // As a number the negative zero is no less than the positive one.
            numbers.push_back(valuekey::of(*number == 0 ? 0.0 : *number));
        }
    }
    if (numbers.size() == results.size()) {
        return numbers;
    }
    const std::uint64_t missing = firstAboveMissing(dataset, variable, numbers);
    Keys keys(results.size(), missing);
    std::size_t next = 0;
    for (std::size_t row = 0; row < results.size(); ++row) {
        if (std::holds_alternative<double>(results[row].values[column])) {
            const std::uint64_t key = numbers[next++];
            keys[row] = key < missing ? key : key + 1;  // behind the missing ones
        }
    }
    return keys;
}

}  // namespace

std::vector<std::uint64_t> frequencies::sortKeys(const StatDataset& dataset, Results results,
                                                 std::span<const int> variables, std::size_t column)
{
    if (column < variables.size()) {
        return dataset.isNumeric(variables[column])
            ? keysOfNumbers(dataset, variables[column], results, column)
            : keysOfTexts(results, column);
    }
    Keys keys(results.size());
    std::transform(results.begin(), results.end(), keys.begin(),
                   [](const WordsAndCounts& result) { return keyOfCount(result.count); });
    return keys;
}

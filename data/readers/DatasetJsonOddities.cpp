#include "data/readers/DatasetJsonOddities.h"

#include "data/values/Texts.h"

#include <fmt/format.h>

#include <algorithm>

namespace {

using Kind = DatasetJsonOddities::Kind;

constexpr std::size_t mostNamed = 5;  ///< variables in one sentence
constexpr std::size_t mostExample = 40;  ///< characters

/// Marks what goes to the log alone and needs no translation.
constexpr std::string_view logged(std::string_view pattern)
{
    return pattern;
}

/// What is odd, with places for the variables, the number of values, and the first of them.
std::string_view patternOf(Kind kind)
{
    switch (kind) {
    case Kind::NoNumber:
        return "{0}: what is no number is shown as missing ({1}, first in row {2})";
    case Kind::NoDate:
        return "{0}: what is no whole date or time is shown as missing ({1}, first in row {2})";
    case Kind::NestedValue:
        return "{0}: a list or an object stands for a value ({1}, first in row {2})";
    case Kind::NoFiniteNumber:
        return "{0}: NaN is no number in JSON and is shown as missing ({1}, first in row {2})";
    case Kind::TooManyDigits:
        return "{0}: numbers of more digits than can be reckoned with are shown as the file has "
               "them ({1}, first in row {2})";
    case Kind::TooLarge:
        return "{0}: numbers too large to be reckoned with count as infinite ({1}, first in row "
               "{2})";
    case Kind::PassedOverOffset:
        return "{0}: offsets from UTC are passed over ({1}, first in row {2})";
    case Kind::ShortRow:
        return "Rows with too few values are filled up with missing ones ({1}, first in row {2})";
    case Kind::LongRow:
        return "Of rows with too many values the last ones are left out ({1}, first in row {2})";
    case Kind::NoRow:
        return "Rows that are neither a list nor an object are shown as missing ({1}, first in row "
               "{2})";
    case Kind::UnknownMember:
        return "Values of rows under names that no variable has are left out ({1}, first in row "
               "{2})";
    case Kind::InvalidText:
        return "Invalid characters are shown as \xEF\xBF\xBD ({1}, first in row {2})";
    case Kind::Fraction:
        return logged(
            "{0}: numbers with decimals in a variable of integers ({1}, first in row {2})");
    case Kind::NumberAsText:
        return logged("{0}: numbers written as texts ({1}, first in row {2})");
    case Kind::PlainAsText:
        return logged("{0}: numbers or booleans where texts are expected ({1}, first in row {2})");
    case Kind::BooleanAsNumber:
        return logged(
            "{0}: true and false where numbers are expected, taken as 1 and 0 ({1}, first in "
            "row {2})");
    }
    return {};
}

std::string shortened(std::string_view example)
{
    const std::size_t bytes = texts::bytesOfCharacters(example, mostExample);
    return std::string(example.substr(0, bytes)) + (bytes < example.size() ? "\xE2\x80\xA6" : "");
}

}  // namespace

void DatasetJsonOddities::add(Kind kind, std::int64_t row, int column, std::string_view example,
                              std::uint64_t count)
{
    Found& found = m_found[{kind, column}];
    if (found.count == 0) {
        found.row = row;
        found.example = shortened(example);
    }
    found.count += count;
}

std::string DatasetJsonOddities::sentence(Kind kind, const std::vector<std::string>& names) const
{
    std::vector<std::string> variables;
    std::uint64_t count = 0;
    const Found* first = nullptr;
    for (auto one = m_found.lower_bound({kind, -1});
         one != m_found.end() && one->first.first == kind; ++one) {
        count += one->second.count;
        first = first == nullptr || one->second.row < first->row ? &one->second : first;
        if (one->first.second >= 0) {
            variables.push_back(names.at(static_cast<std::size_t>(one->first.second)));
        }
    }
    if (first == nullptr) {
        return {};
    }
    if (variables.size() > mostNamed) {
        variables.resize(mostNamed);
        variables.emplace_back("\xE2\x80\xA6");
    }
    std::string place = std::to_string(first->row + 1);
    if (!first->example.empty()) {
        place += fmt::format(": {}", first->example);
    }
    return fmt::format(fmt::runtime(patternOf(kind)), fmt::join(variables, ", "), count, place);
}

std::vector<std::string> DatasetJsonOddities::sentences(const std::vector<std::string>& names,
                                                        Kind from, Kind upTo) const
{
    std::vector<std::string> all;
    for (int kind = static_cast<int>(from); kind <= static_cast<int>(upTo); ++kind) {
        std::string one = sentence(static_cast<Kind>(kind), names);
        if (!one.empty()) {
            all.push_back(std::move(one));
        }
    }
    return all;
}

std::vector<std::string> DatasetJsonOddities::notes(const std::vector<std::string>& names) const
{
    return sentences(names, Kind::NoNumber, Kind::InvalidText);
}

std::vector<std::string> DatasetJsonOddities::remarks(const std::vector<std::string>& names) const
{
    return sentences(names, Kind::Fraction, Kind::BooleanAsNumber);
}

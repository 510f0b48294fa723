#include "analysis/supplement/ParentRows.h"

#include "analysis/supplement/QualifierRows.h"
#include "data/cells/ValueKey.h"
#include "data/values/WrittenNumber.h"

#include <fmt/format.h>

#include <algorithm>
#include <bit>
#include <cmath>

namespace supplement {
namespace {

constexpr std::uint32_t none = ~std::uint32_t{0};

bool isWhole(double number)
{
    return number == std::floor(number);
}

/// As many digits as 12 characters have room for.
std::string bestText(double number)
{
    constexpr std::size_t width = 12;
    std::string text;
    for (int digits = width; digits > 0 && (text.empty() || text.size() > width); --digits) {
        text = fmt::format("{:.{}g}", number, digits);
    }
    return text;
}

/// What is equal for equal numbers. A rounded key is that of the text of a fraction, and whole
/// numbers keep all their digits.
std::string numberKey(double number, bool isRounded)
{
    if (isRounded && !isWhole(number)) {
        return bestText(number);
    }
    const auto bits = std::bit_cast<std::uint64_t>(number == 0 ? 0.0 : number);
    std::string key(sizeof bits, '\0');
    for (std::size_t i = 0; i < sizeof bits; ++i) {
        key[i] = static_cast<char>(bits >> (8 * i));
    }
    return key;
}

}  // namespace

std::optional<double> ParentRows::numberOf(const std::string& text)
{
    // A comma would be taken for one between groups of digits.
    return text.find(',') == std::string::npos ? writtennumber::valueOf(text) : std::nullopt;
}

bool ParentRows::addKey(std::string& key, const KeyPart& part, bool isRounded) const
{
    const auto& [variable, text] = part;
    if (m_parent.isNumeric(variable)) {
        const std::optional<double> number = numberOf(text);
        if (!number) {
            return false;
        }
        key += numberKey(*number, isRounded);
    } else {
        key += text;
    }
    key += '\n';
    return true;
}

/// @return  whether the observation can be found by the variable: not where its number is missing
bool ParentRows::addRowKey(std::string& key, std::uint32_t row, int variable, bool isRounded) const
{
    const auto observation = static_cast<int>(row);
    if (m_parent.isNumeric(variable)) {
        const double number = m_parent.numericValue(observation, variable);
        if (m_parent.missingMark(variable).isMissing(number)) {
            return false;
        }
        key += numberKey(number, isRounded);
    } else {
        key += keyText(m_parent, observation, variable);
    }
    key += '\n';
    return true;
}

const ParentRows::Index& ParentRows::indexOf(const Variables& variables, bool isRounded)
{
    const auto [place, isNew] = m_indexes.try_emplace({variables, isRounded});
    Index& index = place->second;
    if (!isNew) {
        return index;
    }
    const auto count = static_cast<std::uint32_t>(m_parent.observationCount());
    index.next.assign(count, none);
    std::string key;
    for (std::uint32_t row = count; row-- > 0;) {
        key.clear();
        const bool isFound = std::all_of(variables.begin(), variables.end(), [&](int variable) {
            return addRowKey(key, row, variable, isRounded);
        });
        if (isFound) {
            const auto [entry, isFirst] = index.first.try_emplace(key, row);
            index.next[row] = isFirst ? none : std::exchange(entry->second, row);
        }
    }
    return index;
}

std::vector<std::uint32_t> ParentRows::find(const std::vector<KeyPart>& parts, bool isRounded)
{
    Variables variables;
    std::string key;
    for (const KeyPart& part : parts) {
        variables.push_back(part.first);
        if (!addKey(key, part, isRounded)) {
            return {};
        }
    }
    std::vector<std::uint32_t> rows;
    const Index& index = indexOf(variables, isRounded);
    const auto found = index.first.find(key);
    for (std::uint32_t row = found == index.first.end() ? none : found->second; row != none;
         row = index.next[row]) {
        rows.push_back(row);
    }
    return rows;
}

std::vector<std::uint32_t> ParentRows::find(const std::vector<KeyPart>& parts)
{
    std::vector<std::uint32_t> rows = find(parts, false);
    const bool hasFraction = std::any_of(parts.begin(), parts.end(), [&](const KeyPart& part) {
        return m_parent.isNumeric(part.first) && !isWhole(numberOf(part.second).value_or(0));
    });
    return rows.empty() && hasFraction ? find(parts, true) : rows;
}

}  // namespace supplement

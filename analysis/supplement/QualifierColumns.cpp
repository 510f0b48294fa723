#include "analysis/supplement/QualifierColumns.h"

#include "analysis/supplement/SupplementJoin.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>

namespace supplement {
namespace {

/// SAS takes names that differ in letter case only for the same.
std::string capitals(std::string name)
{
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
    return name;
}

/// Some of the columns' texts differ at nearly every row, and a tip has room for a few.
void addDistinct(std::vector<std::string>& texts, const std::string& text)
{
    constexpr std::size_t most = 6;
    if (!text.empty() && texts.size() < most
        && std::find(texts.begin(), texts.end(), text) == texts.end()) {
        texts.push_back(text);
    }
}

std::string listed(const std::vector<std::string>& texts)
{
    constexpr std::size_t most = 5;
    const auto end = texts.begin() + static_cast<std::ptrdiff_t>(std::min(most, texts.size()));
    return fmt::format("{}{}", fmt::join(texts.begin(), end, ", "),
                       texts.size() > most ? ", ..." : "");
}

}  // namespace

std::size_t QualifierColumns::columnOf(const QualifierRows& rows, int row, const std::string& name,
                                       const std::string& dataset)
{
    const auto [entry, isNew] = m_byName.try_emplace(capitals(name), m_columns.size());
    if (isNew) {
        Column& column = m_columns.emplace_back();
        column.result.name = name;
        column.result.places.assign(m_observations, 0);
        column.places.assign(m_observations, {});
    }
    Column& column = m_columns[entry->second];
    addDistinct(column.datasets, dataset);
    addDistinct(column.labels, rows.label(row));
    addDistinct(column.origins, rows.origin(row));
    addDistinct(column.evaluators, rows.evaluator(row));
    return entry->second;
}

std::uint32_t QualifierColumns::numberOf(Column& column, const std::string& text)
{
    const auto next = static_cast<std::uint32_t>(column.result.texts.size() + 1);
    const auto [entry, isNew] = column.numbers.try_emplace(text, next);
    if (isNew) {
        column.result.texts.push_back(text);
    }
    return entry->second;
}

std::optional<QualifierColumns::Before> QualifierColumns::put(std::size_t column,
                                                              std::uint32_t observation,
                                                              const std::string& value,
                                                              RowPlace place)
{
    Column& filled = m_columns[column];
    std::uint32_t& text = filled.result.places[observation];
    if (text == 0) {
        text = numberOf(filled, value);
        filled.places[observation] = place;
        return std::nullopt;
    }
    const std::string held = filled.result.texts[text - 1];
    const auto conflict = filled.several.find(observation);
    const std::string first = conflict == filled.several.end() ? held : conflict->second.front();
    if (value == first) {
        return std::nullopt;
    }
    std::vector<std::string>& values = filled.several[observation];
    if (values.empty()) {
        values.push_back(first);
    }
    if (std::find(values.begin(), values.end(), value) == values.end()) {
        values.push_back(value);
        text = numberOf(filled, held + valueSeparator + value);
    }
    return Before{filled.places[observation], first};
}

std::string QualifierColumns::originOf(const Column& column)
{
    std::string text = listed(column.datasets);
    if (!column.origins.empty()) {
        text += "\nQORIG: " + listed(column.origins);
    }
    if (!column.evaluators.empty()) {
        text += "\nQEVAL: " + listed(column.evaluators);
    }
    return text;
}

std::vector<ExtendedDataset::Column> QualifierColumns::take(const StatDataset& parent,
                                                            std::vector<std::string>& notes)
{
    std::vector<ExtendedDataset::Column> columns;
    for (Column& column : m_columns) {
        const std::string wanted = column.result.name;
        std::string& name = column.result.name;
        for (int suffix = 2;
             variableOf(parent, name) >= 0 || (name != wanted && m_byName.contains(capitals(name)));
             ++suffix) {
            name = fmt::format("{}_{}", wanted, suffix);
        }
        if (name != wanted) {
            notes.push_back(fmt::format("{}: QNAM {} is also a variable of {}; it is joined as {}",
                                        column.datasets.front(), wanted, parent.datasetName(),
                                        name));
        }
        if (column.labels.size() > 1) {
            notes.push_back(fmt::format("{}: QNAM {} has several labels: {}",
                                        column.datasets.front(), wanted, listed(column.labels)));
        }
        column.result.label = column.labels.empty() ? std::string() : column.labels.front();
        column.result.origin = originOf(column);
        columns.push_back(std::move(column.result));
    }
    return columns;
}

}  // namespace supplement

#include "analysis/Statistics.h"

#include "analysis/RadixSort.h"
#include "analysis/RowGroups.h"
#include "data/cells/ValueKey.h"

#include <fmt/format.h>

#include <array>
#include <charconv>
#include <cmath>
#include <numeric>

namespace statistics {

namespace {

constexpr std::array labels{"N", "Mean", "Median", "Min", "Max", "Range", "Std Dev"};

/// What a sample amounts to.
struct Summary
{
    double count = 0;
    double mean = 0;
    double median = 0;
    double minimum = 0;
    double maximum = 0;
    double range = 0;
    double standardDeviation = 0;
};

/// @param ascending  at least one value
Summary summarise(std::span<const double> ascending)
{
    const std::size_t count = ascending.size();
    const auto n = static_cast<double>(count);
    const std::size_t middle = count / 2;
    Summary summary;
    summary.count = n;
    summary.mean = std::accumulate(ascending.begin(), ascending.end(), 0.0) / n;
    summary.median =
        count % 2 == 1 ? ascending[middle] : (ascending[middle - 1] + ascending[middle]) * 0.5;
    summary.minimum = ascending.front();
    summary.maximum = ascending.back();
    summary.range = summary.maximum - summary.minimum;
    if (count > 1) {
        double squares = 0;
        for (const double value : ascending) {
            squares += (value - summary.mean) * (value - summary.mean);
        }
        summary.standardDeviation = std::sqrt(squares / (n - 1));
    }
    return summary;
}

std::string numberText(double number)
{
    if (std::isnan(number)) {
        return "nan";  // a computed NaN may carry a sign, which would be written
    }
    std::array<char, 32> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number,
                                   std::chars_format::general, 6);
    return {text.data(), end.ptr};
}

std::array<std::string, labels.size()> textsOf(const Summary& summary)
{
    return {numberText(summary.count),
            numberText(summary.mean),
            numberText(summary.median),
            numberText(summary.minimum),
            numberText(summary.maximum),
            numberText(summary.range),
            numberText(summary.standardDeviation)};
}

/// The variable's values listed group by group, in ascending order within each.
std::vector<double> samplesOf(const StatDataset& dataset, int variable, const RowGroups& groups,
                              const std::vector<std::uint32_t>& rows)
{
    const MissingMark mark = dataset.missingMark(variable);
    std::vector<RankedRow> entries(rows.size());
    for (std::size_t place = 0; place < rows.size(); ++place) {
        const double number =
            mark.unified(dataset.numericValue(static_cast<int>(rows[place]), variable));
        entries[place] = {valuekey::of(number), groups.groupOfPlace()[place]};
    }
    radixSort(entries);
    std::vector<std::uint32_t> next = groups.starts();
    std::vector<double> samples(rows.size());
    for (const RankedRow& entry : entries) {
        samples[next[entry.row]++] = valuekey::number(entry.rank);
    }
    return samples;
}

std::string textOf(const RankedValues& values, std::uint32_t rank)
{
    return values.isNumeric() ? numberText(values.number(rank)) : std::string(values.text(rank));
}

const std::string& nameOf(const StatDataset& dataset, int variable)
{
    return dataset.names().at(static_cast<std::size_t>(variable));
}

Table wholeTable(const std::string& name, std::span<const double> sample)
{
    Table table{{name, "Value"}, {}, {distributionOf(sample)}};
    const auto texts = textsOf(summarise(sample));
    for (std::size_t i = 0; i < labels.size(); ++i) {
        table.rows.push_back({labels[i], texts[i]});
    }
    return table;
}

Table groupedTable(const StatDataset& dataset, std::span<const int> byVariables,
                   const RowGroups& groups, std::span<const double> samples)
{
    Table table;
    for (const int variable : byVariables) {
        table.header.push_back(nameOf(dataset, variable));
    }
    table.header.insert(table.header.end(), labels.begin(), labels.end());
    const std::vector<std::uint32_t> starts = groups.starts();
    for (std::size_t position = 0; position < groups.size(); ++position) {
        std::vector<std::string>& row = table.rows.emplace_back();
        const auto ranks = groups.ranksAt(position);
        for (std::size_t i = 0; i < ranks.size(); ++i) {
            row.push_back(textOf(groups.values()[i], ranks[i]));
        }
        const std::uint32_t group = groups.inOrder()[position];
        const auto sample = samples.subspan(starts[group], groups.sizes()[group]);
        if (position < mostDrawn) {
            table.drawn.push_back(distributionOf(sample));
            table.drawn.back().label = fmt::format("{}", fmt::join(row, ", "));
        }
        const auto texts = textsOf(summarise(sample));
        row.insert(row.end(), texts.begin(), texts.end());
    }
    return table;
}

}  // namespace

std::variant<Table, Problem> describe(const StatDataset& dataset,
                                      std::span<const int> selectedVariables,
                                      std::span<const int> byVariables)
{
    if (selectedVariables.empty()) {
        return Problem::NoColumnSelected;
    }
    const int variable = selectedVariables.front();
    if (!dataset.isNumeric(variable)) {
        return Problem::NotNumeric;
    }
    const std::vector<std::uint32_t> rows = selectedObservations(dataset);
    if (rows.empty()) {
        return Problem::NoData;
    }
    const RowGroups groups(dataset, byVariables, rows);
    const std::vector<double> samples = samplesOf(dataset, variable, groups, rows);
    if (byVariables.empty()) {
        return wholeTable(nameOf(dataset, variable), samples);
    }
    return groupedTable(dataset, byVariables, groups, samples);
}

}  // namespace statistics

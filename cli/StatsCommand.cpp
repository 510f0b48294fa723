#include "cli/StatsCommand.h"

#include "analysis/Statistics.h"
#include "cli/Selection.h"

#include <fmt/format.h>

namespace cli {

namespace {

using Line = std::vector<std::string>;

std::string joined(const Line& line, std::string_view separator,
                   std::string (*written)(std::string_view))
{
    std::string text;
    for (std::size_t i = 0; i < line.size(); ++i) {
        text += i == 0 ? "" : separator;
        text += written(line[i]);
    }
    return text;
}

void printJson(const statistics::Table& table)
{
    std::string rows;
    for (const Line& line : table.rows) {
        rows += rows.empty() ? "[" : ",[";
        rows += joined(line, ",", jsonText) + ']';
    }
    print(fmt::format("{{\"header\":[{}],\"rows\":[{}]}}\n", joined(table.header, ",", jsonText),
                      rows));
}

void printTsv(const statistics::Table& table)
{
    print(joined(table.header, "\t", tsvText) + '\n');
    for (const Line& line : table.rows) {
        print(joined(line, "\t", tsvText) + '\n');
    }
}

/// @param alignRight  whether each column holds numbers
void printText(const statistics::Table& table, const std::vector<bool>& alignRight)
{
    TextTable text;
    text.add(table.header);
    for (const Line& line : table.rows) {
        Line cells;
        for (const std::string& cell : line) {
            cells.push_back(tsvText(cell));
        }
        text.add(std::move(cells));
    }
    text.print(alignRight);
}

Failure failureOf(statistics::Problem problem, const std::string& variable)
{
    switch (problem) {
    case statistics::Problem::NotNumeric:
        return {fmt::format("The variable {} is not numeric", variable)};
    case statistics::Problem::NoData:
        return {fmt::format("There are no observations of {} under the current filters", variable)};
    case statistics::Problem::NoColumnSelected:
        break;
    }
    return {"No variable is given"};
}

}  // namespace

Result<bool> printStatistics(const StatDataset& dataset, const StatsRequest& request,
                             OutputFormat format)
{
    const Result<std::vector<int>> variable = variablesNamed(dataset, {request.variable});
    const Result<std::vector<int>> by = variablesNamed(dataset, request.by);
    if (!variable || !by) {
        return Failure{variable ? by.error() : variable.error()};
    }
    const auto described = statistics::describe(dataset, variable.value(), by.value());
    if (const auto* problem = std::get_if<statistics::Problem>(&described)) {
        return failureOf(*problem, request.variable);
    }
    const auto& table = std::get<statistics::Table>(described);
    if (format == OutputFormat::Json) {
        printJson(table);
    } else if (format == OutputFormat::Tsv) {
        printTsv(table);
    } else {
        std::vector<bool> alignRight(table.header.size(), true);
        for (std::size_t i = 0; i < by.value().size(); ++i) {
            alignRight[i] = dataset.isNumeric(by.value()[i]);
        }
        alignRight[0] = alignRight[0] && !by.value().empty();
        printText(table, alignRight);
    }
    return true;
}

}  // namespace cli

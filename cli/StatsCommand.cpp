#include "analysis/Statistics.h"
#include "cli/Commands.h"
#include "cli/Selection.h"

#include <fmt/format.h>

namespace cli {

namespace {

void printJson(const statistics::Table& table)
{
    std::string rows;
    for (const auto& line : table.rows) {
        rows += fmt::format("{}[{}]", rows.empty() ? "" : ",", jsonTexts(line));
    }
    print(fmt::format("{{\"header\":[{}],\"rows\":[{}]}}\n", jsonTexts(table.header), rows));
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
    } else {
        std::vector<bool> alignRight(table.header.size(), true);
        for (std::size_t i = 0; i < by.value().size(); ++i) {
            alignRight[i] = dataset.isNumeric(by.value()[i]);
        }
        alignRight[0] = alignRight[0] && !by.value().empty();
        TableWriter writer(format, std::move(alignRight));
        writer.add(table.header);
        for (const auto& line : table.rows) {
            writer.add(line);
        }
        writer.finish();
    }
    return true;
}

}  // namespace cli

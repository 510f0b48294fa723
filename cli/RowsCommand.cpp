#include "analysis/RowSorter.h"
#include "cli/Commands.h"
#include "cli/Selection.h"
#include "data/StoredValue.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <CLI/CLI.hpp>
#include <numeric>
#include <optional>
#include <span>

namespace cli {

namespace {

bool sameName(std::string_view one, std::string_view other)
{
    return std::equal(
        one.begin(), one.end(), other.begin(), other.end(),
        [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); });
}

/// "NAME", "NAME:asc" or "NAME:desc".
Result<SortKeys> sortKeysOf(const StatDataset& dataset, const std::vector<std::string>& texts)
{
    SortKeys keys;
    for (const std::string& text : texts) {
        const std::size_t colon = text.rfind(':');
        const std::string name = text.substr(0, colon);
        const std::string order = colon == std::string::npos ? "asc" : text.substr(colon + 1);
        const Result<int> variable = variableNamed(dataset, name);
        if (!variable) {
            return Failure{variable.error()};
        }
        if (!sameName(order, "asc") && !sameName(order, "desc")) {
            return Failure{fmt::format("{} is sorted asc or desc, not {}", name, order)};
        }
        keys.emplace_back(variable.value(),
                          sameName(order, "asc") ? Qt::AscendingOrder : Qt::DescendingOrder);
    }
    return keys;
}

Result<std::vector<int>> chosenVariables(const StatDataset& dataset, const RowsRequest& request)
{
    Result<std::vector<int>> kept = variablesNamed(dataset, request.keep);
    const Result<std::vector<int>> dropped = variablesNamed(dataset, request.drop);
    if (!kept || !dropped) {
        return kept ? Failure{dropped.error()} : Failure{kept.error()};
    }
    std::vector<int>& variables = kept.value();
    if (request.keep.empty()) {
        variables.resize(static_cast<std::size_t>(dataset.variableCount()));
        std::iota(variables.begin(), variables.end(), 0);
    }
    std::erase_if(variables, [&](int variable) {
        const auto& drop = dropped.value();
        return std::find(drop.begin(), drop.end(), variable) != drop.end();
    });
    return kept;
}

class RowPrinter
{
public:
    RowPrinter(const StatDataset& dataset, std::vector<int> variables, bool raw)
        : m_dataset(dataset)
        , m_variables(std::move(variables))
        , m_raw(raw)
    { }
    void printJson(std::span<const std::uint32_t> observations) const;
    void printTable(std::span<const std::uint32_t> observations, OutputFormat format) const;

private:
    [[nodiscard]] double storedNumber(int observation, int variable) const;
    [[nodiscard]] std::string plainCell(int observation, int variable) const;
    [[nodiscard]] std::string jsonCell(int observation, int variable) const;

    const StatDataset& m_dataset;
    std::vector<int> m_variables;
    bool m_raw;
};

/// NaN for every missing number, whatever stands for it in the cell.
double RowPrinter::storedNumber(int observation, int variable) const
{
    return m_dataset.missingMark(variable).unified(m_dataset.numericValue(observation, variable));
}

std::string RowPrinter::plainCell(int observation, int variable) const
{
    if (!m_raw) {
        return m_dataset.cellText(observation, variable);
    }
    const std::string number =
        m_dataset.isNumeric(variable) ? jsonNumber(storedNumber(observation, variable)) : "null";
    return number == "null" ? storedvalue::text(m_dataset, observation, variable) : number;
}

std::string RowPrinter::jsonCell(int observation, int variable) const
{
    return m_raw && m_dataset.isNumeric(variable) ? jsonNumber(storedNumber(observation, variable))
                                                  : jsonText(plainCell(observation, variable));
}

void RowPrinter::printJson(std::span<const std::uint32_t> observations) const
{
    for (const std::uint32_t number : observations) {
        const int observation = static_cast<int>(number);
        std::string line = fmt::format(R"({{"obs":{},"cells":[)", observation + 1);
        for (std::size_t i = 0; i < m_variables.size(); ++i) {
            line += i == 0 ? "" : ",";
            line += jsonCell(observation, m_variables[i]);
        }
        cli::print(line + "]}\n");
    }
}

void RowPrinter::printTable(std::span<const std::uint32_t> observations, OutputFormat format) const
{
    std::vector<std::string> line{"Obs"};
    std::vector<bool> alignRight{true};
    for (const int variable : m_variables) {
        line.push_back(m_dataset.names()[static_cast<std::size_t>(variable)]);
        alignRight.push_back(m_dataset.isNumeric(variable));
    }
    TableWriter table(format, std::move(alignRight));
    table.add(line);
    for (const std::uint32_t number : observations) {
        const int observation = static_cast<int>(number);
        line.assign({std::to_string(observation + 1)});
        for (const int variable : m_variables) {
            line.push_back(plainCell(observation, variable));
        }
        table.add(line);
    }
    table.finish();
}

}  // namespace

void addRowsOptions(CLI::App& command, RowsRequest& request)
{
    command.add_option("--keep", request.keep);
    command.add_option("--drop", request.drop);
    command.add_option("--sort", request.sort);
    command.add_option("--first", request.first)->check(CLI::NonNegativeNumber);
    command.add_flag("--raw", request.raw);
}

Result<bool> printRows(const StatDataset& dataset, const RowsRequest& request, OutputFormat format)
{
    const Result<std::vector<int>> variables = chosenVariables(dataset, request);
    const Result<SortKeys> keys = sortKeysOf(dataset, request.sort);
    if (!variables || !keys) {
        return Failure{variables ? keys.error() : variables.error()};
    }
    std::vector<std::uint32_t> observations(static_cast<std::size_t>(dataset.observationCount()));
    std::iota(observations.begin(), observations.end(), 0U);
    if (!keys.value().empty()) {
        rowsorter::sortObservations(dataset, keys.value(), observations);
    }
    std::erase_if(observations, [&](std::uint32_t observation) {
        return !dataset.datasetFilterMask()[observation];
    });
    observations.resize(std::min(observations.size(), static_cast<std::size_t>(request.first)));
    const RowPrinter printer(dataset, variables.value(), request.raw);
    if (format == OutputFormat::Json) {
        printer.printJson(observations);
    } else {
        printer.printTable(observations, format);
    }
    return true;
}

}  // namespace cli

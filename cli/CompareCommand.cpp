#include "analysis/comparison/ComparedTexts.h"
#include "cli/Compare.h"
#include "cli/Selection.h"
#include "data/FilePath.h"

#include <fmt/format.h>

#include <cstdio>
#include <filesystem>
#include <unistd.h>

namespace cli {

namespace {

using comparison::ComparedVariable;
using comparison::Comparison;
using comparison::ObservationPair;
using comparison::VariablePair;

/// Sends to standard error what is printed while it lives: readers tell of a failed load on
/// standard output, which is to be the result's alone.
class OutputAside
{
public:
    OutputAside()
        : m_output(swapped(::dup(STDOUT_FILENO), STDERR_FILENO))
    { }
    OutputAside(const OutputAside&) = delete;
    OutputAside& operator=(const OutputAside&) = delete;
    ~OutputAside()
    {
        swapped(m_output, m_output);
        ::close(m_output);
    }

private:
    static int swapped(int kept, int target)
    {
        std::fflush(stdout);
        ::dup2(target, STDOUT_FILENO);
        return kept;
    }

    int m_output;
};

Result<OpenedDataset> open(const std::string& file, const std::string& member,
                           const std::optional<std::string>& where)
{
    const OutputAside aside;
    Result<OpenedDataset> opened = openDataset(filepath::fromBytes(file), {false, member});
    if (!opened) {
        return opened;
    }
    StatDataset& dataset = *opened.value().dataset;
    for (const std::string& note : dataset.damageNotes()) {
        fmt::print(stderr, "quorlane-cli: {}: {}\n", file, note);
    }
    if (const Result<bool> selected = selectWhere(dataset, where); !selected) {
        return Failure{fmt::format("{}: {}", file, selected.error())};
    }
    return opened;
}

std::string nameJson(const StatDataset& dataset, int variable)
{
    return jsonText(dataset.names()[static_cast<std::size_t>(variable)]);
}

std::string namesJson(const StatDataset& dataset, const std::vector<int>& variables)
{
    std::vector<std::string> names;
    names.reserve(variables.size());
    for (const int variable : variables) {
        names.push_back(nameJson(dataset, variable));
    }
    return fmt::format("[{}]", fmt::join(names, ","));
}

std::string datasetJson(const std::string& name, const std::string& file,
                        const StatDataset& dataset)
{
    return fmt::format(R"({{"name":{},"file":{},"label":{},"observations":{},"variables":{}}})",
                       jsonText(name), jsonText(file), jsonText(dataset.header().fileLabel),
                       dataset.observationCount(), dataset.variableCount());
}

std::string attributesJson(const StatDataset& dataset, int variable)
{
    const auto place = static_cast<std::size_t>(variable);
    return fmt::format(
        R"({{"name":{},"type":"{}","length":{},"format":{},"informat":{},"label":{}}})",
        nameJson(dataset, variable), dataset.isNumeric(variable) ? "num" : "char",
        dataset.lengths()[place], jsonText(dataset.writtenFormat(variable)),
        jsonText(dataset.informats()[place]), jsonText(dataset.labels()[place]));
}

/// Pairs of variables whose types, or else whose other attributes differ.
std::string differingJson(const Comparison& result, bool types)
{
    std::vector<std::string> pairs;
    for (const VariablePair& pair : result.variables().common) {
        if (types ? pair.hasConflictingTypes : !pair.hasConflictingTypes && pair.differing.any()) {
            pairs.push_back(fmt::format(R"({{"base":{},"compare":{}}})",
                                        attributesJson(result.base(), pair.base),
                                        attributesJson(result.compare(), pair.compare)));
        }
    }
    return fmt::format("[{}]", fmt::join(pairs, ","));
}

std::string variablesJson(const Comparison& result)
{
    const comparison::VariableMatch& variables = result.variables();
    std::vector<int> id;
    for (const VariablePair& pair : variables.id) {
        id.push_back(pair.base);
    }
    return fmt::format(
        R"({{"common":{},"baseOnly":{},"compareOnly":{},"id":{},"conflictingTypes":{},"differingAttributes":{}}})",
        variables.common.size(), namesJson(result.base(), variables.baseOnly),
        namesJson(result.compare(), variables.compareOnly), namesJson(result.base(), id),
        differingJson(result, true), differingJson(result, false));
}

std::string observationsJson(const Comparison& result)
{
    const comparison::ObservationMatch& match = result.observations();
    const std::size_t unequal = result.unequalObservations().count();
    return fmt::format(
        R"({{"common":{},"baseOnly":{},"compareOnly":{},"baseRead":{},"compareRead":{},"baseDuplicates":{},"compareDuplicates":{},"unequal":{},"equal":{}}})",
        match.matched(), match.base.unmatched, match.compare.unmatched, match.base.read,
        match.compare.read, match.base.duplicates, match.compare.duplicates, unequal,
        match.matched() - unequal);
}

std::string valueJson(const Comparison& result, const ComparedVariable& variable)
{
    return fmt::format(
        R"({{"base":{},"compare":{},"type":"{}","method":"{}","criterion":{},"unequal":{},"notExactlyEqual":{},"missing":{},"maximum":{}}})",
        nameJson(result.base(), variable.variables.base),
        nameJson(result.compare(), variable.variables.compare), variable.isNumeric ? "num" : "char",
        nameOf(variable.rule.method()), jsonNumber(variable.rule.criterion()),
        variable.unequal.size(), variable.inexact, variable.missingDifferences,
        variable.isNumeric ? jsonNumber(variable.maximum) : "null");
}

std::string valuesJson(const Comparison& result)
{
    std::vector<std::string> variables;
    std::size_t equal = 0;
    std::size_t missing = 0;
    for (const ComparedVariable& variable : result.values()) {
        equal += variable.unequal.empty() ? 1U : 0U;
        missing += variable.missingDifferences > 0 ? 1U : 0U;
        variables.push_back(valueJson(result, variable));
    }
    return fmt::format(
        R"({{"variables":{},"allEqual":{},"someUnequal":{},"withMissingDifferences":{},"unequal":{},"notExactlyEqual":{},"byVariable":[{}]}})",
        result.values().size(), equal, result.values().size() - equal, missing,
        result.unequalValues(), result.inexactValues(), fmt::join(variables, ","));
}

/// One line for each observation of one side and for each value that differs.
class DifferencePrinter
{
public:
    explicit DifferencePrinter(const Comparison& result)
        : m_result(result)
        , m_table(OutputFormat::Tsv)
    {
        std::vector<std::string> titles{"Kind", "Variable", "BaseObs", "CompareObs"};
        for (const VariablePair& id : result.variables().id) {
            titles.push_back(result.base().names()[static_cast<std::size_t>(id.base)]);
        }
        titles.insert(titles.end(), {"Base", "Compare", "Difference", "Percent"});
        m_table.add(titles);
    }

    void print()
    {
        for (const ObservationPair& pair : m_result.observations().pairs) {
            if (!pair.isMatched()) {
                add(pair.compare == comparison::noObservation ? "base only" : "compare only", "",
                    pair, {"", "", "", ""});
            }
        }
        for (const ComparedVariable& variable : m_result.values()) {
            for (const std::uint32_t place : variable.unequal) {
                add(variable, m_result.observations().pairs[place]);
            }
        }
        m_table.finish();
    }

private:
    static std::string numberText(double number)
    {
        const std::string text = jsonNumber(number);
        return text == "null" ? "." : text;
    }
    void add(const ComparedVariable& variable, const ObservationPair& pair)
    {
        const comparison::ValueTexts texts = valueTexts(m_result, variable, pair);
        std::string difference;
        std::string percent;
        if (variable.isNumeric) {
            const comparison::NumberDifference numbers = m_result.numbers(variable, pair);
            difference = numberText(numbers.difference);
            percent = numberText(numbers.percent);
        }
        add("value", pairName(m_result, variable.variables), pair,
            {texts.base, texts.compare, difference, percent});
    }
    void add(const char* kind, const std::string& variable, const ObservationPair& pair,
             const std::vector<std::string>& values)
    {
        const auto number = [](std::uint32_t observation) {
            return observation == comparison::noObservation ? std::string()
                                                            : std::to_string(observation + 1);
        };
        std::vector<std::string> line{kind, variable, number(pair.base), number(pair.compare)};
        for (const VariablePair& id : m_result.variables().id) {
            line.push_back(idText(m_result, id, pair));
        }
        line.insert(line.end(), values.begin(), values.end());
        m_table.add(line);
    }

    const Comparison& m_result;
    TableWriter m_table;
};

ExitCode fail(const CompareOptions& options, const std::string& text)
{
    fmt::print(stderr, "quorlane-cli: {}\n", text);
    if (options.format == OutputFormat::Json) {
        print(fmt::format("{{\"sysinfo\":{},\"error\":{}}}\n",
                          static_cast<unsigned>(comparison::Error), jsonText(text)));
    }
    return Failed;
}

}  // namespace

Result<FileComparison> compareFiles(const CompareOptions& options)
{
    Result<OpenedDataset> base = open(options.base, options.baseMember, options.where);
    if (!base) {
        return Failure{base.error()};
    }
    Result<OpenedDataset> compare = open(options.compare, options.compareMember, options.where);
    if (!compare) {
        return Failure{compare.error()};
    }
    comparison::Request request = options.request;
    if (options.passesOverAbsentId) {
        std::erase_if(request.id, [&](const std::string& name) {
            return !variableNamed(*base.value().dataset, name);
        });
    }
    Result<Comparison> result =
        Comparison::of(*base.value().dataset, *compare.value().dataset, request);
    if (!result) {
        return Failure{fmt::format("{}, {}: {}", options.base, options.compare, result.error())};
    }
    return FileComparison{std::move(base.value()), std::move(compare.value()),
                          std::move(result.value())};
}

std::string comparisonJson(const FileComparison& comparison, const CompareOptions& options)
{
    const Comparison& result = comparison.result;
    return fmt::format(
        R"({{"base":{},"compare":{},"method":"{}","criterion":{},"delta":{},"sysinfo":{},"different":{},"observations":{},"variables":{},"values":{},"notes":[{}]}})",
        datasetJson(result.baseName(), options.base, result.base()),
        datasetJson(result.compareName(), options.compare, result.compare()),
        nameOf(result.rule().method()), jsonNumber(result.rule().criterion()),
        jsonNumber(result.rule().delta()), result.sysInfo(), comparison.isDifferent(options.strict),
        observationsJson(result), variablesJson(result), valuesJson(result),
        jsonTexts(result.notes()));
}

ExitCode runCompare(const CompareOptions& options)
{
    const bool isFolder = std::filesystem::is_directory(options.base);
    if (isFolder != std::filesystem::is_directory(options.compare)) {
        return fail(options,
                    fmt::format("{} is a folder and {} is none",
                                isFolder ? options.base : options.compare,
                                isFolder ? options.compare : options.base));
    }
    if (isFolder) {
        return compareFolders(options);
    }
    const Result<FileComparison> compared = compareFiles(options);
    if (!compared) {
        return fail(options, compared.error());
    }
    const FileComparison& comparison = compared.value();
    switch (options.format) {
    case OutputFormat::Json:
        print(comparisonJson(comparison, options) + '\n');
        break;
    case OutputFormat::Tsv:
        DifferencePrinter(comparison.result).print();
        break;
    case OutputFormat::Text:
        print(comparison::reportText(comparison.result, options.report));
        break;
    }
    return comparison.isDifferent(options.strict) ? Different : Done;
}

}  // namespace cli

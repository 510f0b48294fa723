#include "analysis/comparison/CompareJson.h"
#include "analysis/comparison/CompareProgram.h"
#include "analysis/comparison/DifferenceList.h"
#include "analysis/comparison/KeyProposal.h"
#include "cli/Compare.h"
#include "cli/Selection.h"
#include "data/FilePath.h"
#include "workspace/program/ProgramText.h"

#include <fmt/format.h>

#include <QFileInfo>

#include <cstdio>
#include <filesystem>
#include <unistd.h>

namespace cli {

namespace {

using comparison::Comparison;

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

void printDifferences(const Comparison& result)
{
    using comparison::ListFormat;
    const comparison::DifferenceList differences(result);
    print(listLine(differences.titles(), ListFormat::Tsv));
    differences.forEachLine([](const comparison::DifferenceList::Line& line) {
        print(listLine(line, ListFormat::Tsv));
    });
}

ExitCode fail(const CompareOptions& options, const std::string& text)
{
    fmt::print(stderr, "quorlane-cli: {}\n", text);
    if (options.format == OutputFormat::Json) {
        print(fmt::format("{{\"sysinfo\":{},\"error\":{}}}\n",
                          static_cast<unsigned>(comparison::Error), jsonText(text)));
    }
    return Failed;
}

comparison::ProgramSource sourceOf(const std::string& file, const OpenedDataset& opened,
                                   const std::optional<std::string>& where)
{
    const QString name = QString::fromStdString(opened.dataset->datasetName());
    comparison::ProgramSource source{
        QFileInfo(filepath::fromBytes(file)).absoluteFilePath().toStdString(),
        programtext::makeSasName(name).toStdString()};
    if (where) {
        source.filters.push_back(fmt::format("where {};", *where));
    }
    return source;
}

ExitCode printProgram(const CompareOptions& options)
{
    const Result<OpenedDataset> base = open(options.base, options.baseMember, {});
    const Result<OpenedDataset> compare = open(options.compare, options.compareMember, {});
    if (!base || !compare) {
        return fail(options, base ? compare.error() : base.error());
    }
    comparison::Request request = options.request;
    if (options.proposesId) {
        request.id = comparison::proposedKeys(*base.value().dataset, *compare.value().dataset);
    }
    const Result<comparison::Request> checked =
        Comparison::checked(*base.value().dataset, *compare.value().dataset, request);
    if (!checked) {
        return fail(options, checked.error());
    }
    print(comparison::programText(sourceOf(options.base, base.value(), options.where),
                                  sourceOf(options.compare, compare.value(), options.where),
                                  checked.value(), options.report));
    return Done;
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
    if (options.proposesId) {
        request.id = comparison::proposedKeys(*base.value().dataset, *compare.value().dataset);
    }
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
    return comparison::json(comparison.result,
                            {options.base, options.compare, comparison.isDifferent(options.strict),
                             options.listsDifferences});
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
    if (options.writesProgram) {
        return printProgram(options);
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
        printDifferences(comparison.result);
        break;
    case OutputFormat::Text:
        print(comparison::reportText(comparison.result, options.report));
        break;
    }
    return comparison.isDifferent(options.strict) ? Different : Done;
}

}  // namespace cli

#include "analysis/supplement/SupplementJoin.h"
#include "cli/Selection.h"
#include "cli/Supp.h"
#include "data/FilePath.h"
#include "data/readers/DatasetFile.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <CLI/CLI.hpp>
#include <cstdio>

namespace cli {

namespace {

using supplement::Finding;
using supplement::Joined;

Result<OpenedDataset> open(const std::string& file, const std::string& member)
{
    Result<OpenedDataset> opened = openDataset(filepath::fromBytes(file), {false, member});
    if (opened) {
        for (const std::string& note : opened.value().dataset->damageNotes()) {
            fmt::print(stderr, "quorlane-cli: {}: {}\n", file, note);
        }
    }
    return opened;
}

bool isSupplementName(const std::string& name, const std::string& parent)
{
    const std::string wanted = "SUPP" + parent;
    return std::equal(
        name.begin(), name.end(), wanted.begin(), wanted.end(),
        [](unsigned char a, unsigned char b) { return std::toupper(a) == std::toupper(b); });
}

/// In a file of several datasets the one that is called after the parent, unless one is named.
Result<std::string> memberOf(const SuppOptions& options, std::size_t place,
                             const std::string& parent)
{
    if (place < options.supplementMembers.size()) {
        return options.supplementMembers[place];
    }
    const auto names = datasetNames(filepath::fromBytes(options.supplements[place]));
    if (!names) {
        return Failure{names.error()};
    }
    const auto& all = names.value();
    const auto found = std::find_if(all.begin(), all.end(), [&](const std::string& name) {
        return isSupplementName(name, parent);
    });
    return found == all.end() ? std::string() : *found;
}

Result<Joined> joined(const SuppOptions& options)
{
    Result<OpenedDataset> parent = open(options.file, options.member);
    if (!parent) {
        return Failure{parent.error()};
    }
    const std::string name = parent.value().dataset->datasetName();
    std::vector<OpenedDataset> opened;
    std::vector<supplement::Supplement> supplements;
    for (std::size_t i = 0; i < options.supplements.size(); ++i) {
        const Result<std::string> member = memberOf(options, i, name);
        if (!member) {
            return Failure{member.error()};
        }
        Result<OpenedDataset> one = open(options.supplements[i], member.value());
        if (!one) {
            return Failure{one.error()};
        }
        opened.push_back(std::move(one.value()));
        supplements.push_back({opened.back().dataset.get(), options.supplements[i]});
    }
    return supplement::join(std::move(parent.value().dataset), options.file, supplements);
}

void tellProblems(const Joined& result)
{
    constexpr std::size_t most = 20;
    const std::size_t shown = std::min(most, result.findings.size());
    for (std::size_t i = 0; i < shown; ++i) {
        fmt::print(stderr, "quorlane-cli: {}\n", supplement::lineOf(result, result.findings[i]));
    }
    if (shown < result.findings.size()) {
        fmt::print(stderr, "quorlane-cli: {} more; --problems lists them all\n",
                   result.findings.size() - shown);
    }
    for (const std::string& note : result.notes) {
        fmt::print(stderr, "quorlane-cli: {}\n", note);
    }
}

std::string problemJson(const Joined& result, const Finding& finding)
{
    std::string line = fmt::format(
        R"({{"dataset":{},"row":{},"subject":{},"idvar":{},"idvarval":{},"qnam":{},"qval":{},)"
        R"("problem":{})",
        jsonText(result.supplements[finding.supplement]), finding.row + 1,
        jsonText(finding.subject), jsonText(finding.idVariable), jsonText(finding.idValue),
        jsonText(finding.name), jsonText(finding.value),
        jsonText(supplement::sentenceOf(result, finding)));
    if (finding.fault == supplement::Fault::Conflict) {
        line += fmt::format(
            R"(,"conflict":{{"dataset":{},"row":{},"qval":{},"obs":{},"observations":{}}})",
            jsonText(result.supplements[finding.otherSupplement]), finding.otherRow + 1,
            jsonText(finding.otherValue), finding.observation + 1, finding.observations);
    }
    return line + "}\n";
}

void printProblems(const Joined& result, OutputFormat format)
{
    if (format == OutputFormat::Json) {
        for (const Finding& finding : result.findings) {
            print(problemJson(result, finding));
        }
        return;
    }
    TableWriter table(format, {false, true});
    table.add({"Dataset", "Row", "Subject", "IDVAR", "IDVARVAL", "QNAM", "QVAL", "Problem"});
    for (const Finding& finding : result.findings) {
        table.add({result.supplements[finding.supplement], std::to_string(finding.row + 1),
                   finding.subject, finding.idVariable, finding.idValue, finding.name,
                   finding.value, supplement::sentenceOf(result, finding)});
    }
    table.finish();
}

Result<bool> printJoined(const SuppOptions& options, const Joined& result)
{
    StatDataset& dataset = *result.dataset;
    if (Result<bool> selected = selectWhere(dataset, options.where); !selected) {
        return selected;
    }
    if (options.problems) {
        printProblems(result, options.format);
        return true;
    }
    return printRows(dataset, options.rows, options.format);
}

}  // namespace

CLI::App* addSupp(CLI::App& app, SuppOptions& options)
{
    CLI::App* command = app.add_subcommand("supp");
    command->add_option("FILE", options.file)->required();
    command->add_option("SUPPFILE", options.supplements)->required();
    command->add_option("--member", options.member);
    command->add_option("--supp-member", options.supplementMembers);
    command->add_option("--where", options.where);
    command->add_flag("--problems", options.problems);
    addRowsOptions(*command, options.rows);
    return command;
}

ExitCode runSupp(const SuppOptions& options)
{
    const Result<Joined> result = joined(options);
    if (!result) {
        fmt::print(stderr, "quorlane-cli: {}\n", result.error());
        return Failed;
    }
    const Result<bool> done = printJoined(options, result.value());
    if (!done) {
        fmt::print(stderr, "quorlane-cli: {}: {}\n", options.file, done.error());
        return Failed;
    }
    if (!options.problems) {
        tellProblems(result.value());
    }
    return Done;
}

}  // namespace cli

#include "cli/CommandLine.h"

#include "cli/Commands.h"
#include "cli/Compare.h"
#include "cli/Help.h"
#include "cli/Selection.h"
#include "cli/Supp.h"
#include "data/FilePath.h"
#include "data/Version.h"

#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>

namespace cli {

namespace {

/// What all commands take.
struct Common
{
    std::string file;
    std::string member;
    OutputFormat format = OutputFormat::Text;
};

int fail(const std::string& text)
{
    fmt::print(stderr, "quorlane-cli: {}\n", text);
    return Failed;
}

OutputFormat formatNamed(const std::string& name)
{
    static const std::map<std::string, OutputFormat> formats{
        {"text", OutputFormat::Text},
        {"json", OutputFormat::Json},
        {"tsv", OutputFormat::Tsv},
    };
    const auto found = formats.find(name);
    if (found == formats.end()) {
        throw CLI::ValidationError("--format", name + " is none of text, json and tsv");
    }
    return found->second;
}

void addFormat(CLI::App& command, OutputFormat& format)
{
    command.add_option_function<std::string>(
        "--format", [&format](const std::string& name) { format = formatNamed(name); });
}

void addCommon(CLI::App& command, Common& common)
{
    command.add_option("FILE", common.file)->required();
    command.add_option("--member", common.member);
    addFormat(command, common.format);
}

Result<OpenedDataset> open(const Common& common, bool metadataOnly)
{
    Result<OpenedDataset> opened =
        openDataset(filepath::fromBytes(common.file), {metadataOnly, common.member});
    if (opened) {
        for (const std::string& note : opened.value().dataset->damageNotes()) {
            fmt::print(stderr, "quorlane-cli: {}: {}\n", common.file, note);
        }
    }
    return opened;
}

void addWhere(CLI::App& command, std::optional<std::string>& where)
{
    command.add_option("--where", where);
}

bool isFolder(const std::string& path)
{
    std::error_code ignored;
    return std::filesystem::is_directory(path, ignored);
}

int runFolder(const Common& common)
{
    if (!common.member.empty()) {
        return fail(fmt::format("{}: --member needs a file, and this is a folder", common.file));
    }
    const Result<bool> printed = printFolder(common.file, common.format);
    if (!printed) {
        return fail(printed.error());
    }
    return printed.value() ? Done : Failed;
}

int runContents(const Common& common)
{
    if (isFolder(common.file)) {
        return runFolder(common);
    }
    const Result<OpenedDataset> opened = open(common, true);
    if (!opened) {
        return fail(opened.error());
    }
    printContents(opened.value(), common.file, common.format);
    return Done;
}

void tellOfOthers(const Common& common, const OpenedDataset& opened)
{
    if (common.member.empty() && opened.members.size() > 1) {
        fmt::print(stderr, "quorlane-cli: {}: {} of the datasets {}; --member picks another\n",
                   common.file, opened.dataset->datasetName(), fmt::join(opened.members, ", "));
    }
}

int runCode(const Common& common, const CodeRequest& request)
{
    const Result<OpenedDataset> opened = open(common, true);
    if (!opened) {
        return fail(opened.error());
    }
    tellOfOthers(common, opened.value());
    const Result<bool> done = printCode(*opened.value().dataset, filepath::fromBytes(common.file),
                                        request, common.format);
    return done ? Done : fail(fmt::format("{}: {}", common.file, done.error()));
}

/// Opens the file, narrows it to the condition, and lets the command print it.
int runOnRows(const Common& common, const std::optional<std::string>& where,
              const std::function<Result<bool>(const StatDataset&)>& print)
{
    Result<OpenedDataset> opened = open(common, false);
    if (!opened) {
        return fail(opened.error());
    }
    StatDataset& dataset = *opened.value().dataset;
    tellOfOthers(common, opened.value());
    Result<bool> done = selectWhere(dataset, where);
    if (done) {
        done = print(dataset);
    }
    return done ? Done : fail(fmt::format("{}: {}", common.file, done.error()));
}

/// The options of all commands, as CLI11 fills them.
struct Requests
{
    Common common;
    std::optional<std::string> where;
    RowsRequest rows;
    FreqRequest freq;
    StatsRequest stats;
    std::string text;  ///< to find
    CompareOptions compare;
    SuppOptions supp;
    CodeRequest code;
};

CLI::App* addContents(CLI::App& app, Requests& requests)
{
    CLI::App* command = app.add_subcommand("contents");
    addCommon(*command, requests.common);
    return command;
}

CLI::App* addRows(CLI::App& app, Requests& requests)
{
    CLI::App* command = app.add_subcommand("rows");
    addCommon(*command, requests.common);
    addWhere(*command, requests.where);
    addRowsOptions(*command, requests.rows);
    return command;
}

CLI::App* addFreq(CLI::App& app, Requests& requests)
{
    CLI::App* command = app.add_subcommand("freq");
    addCommon(*command, requests.common);
    command->add_option("VARIABLES", requests.freq.variables)->required();
    addWhere(*command, requests.where);
    command->add_flag("--distinct", requests.freq.distinct);
    command->add_option("--id", requests.freq.idName);
    return command;
}

CLI::App* addStats(CLI::App& app, Requests& requests)
{
    CLI::App* command = app.add_subcommand("stats");
    addCommon(*command, requests.common);
    command->add_option("VARIABLE", requests.stats.variable)->required();
    addWhere(*command, requests.where);
    command->add_option("--by", requests.stats.by);
    return command;
}

CLI::App* addFind(CLI::App& app, Requests& requests)
{
    CLI::App* command = app.add_subcommand("find");
    addCommon(*command, requests.common);
    command->add_option("TEXT", requests.text)->required();
    addWhere(*command, requests.where);
    return command;
}

CLI::App* addCode(CLI::App& app, Requests& requests)
{
    CLI::App* command = app.add_subcommand("code");
    addCommon(*command, requests.common);
    CodeRequest& request = requests.code;
    addWhere(*command, request.where);
    command->add_option("--if", request.narrowing);
    command->add_option("--by", request.by);
    command->add_option("--keep", request.keep);
    return command;
}

}  // namespace

int run(int argc, char** argv)
{
    CLI::App app({}, "quorlane-cli");
    app.formatter_fn([](const CLI::App* command, const std::string&, CLI::AppFormatMode) {
        return helpOf(command->get_name());
    });
    app.set_version_flag("--version", quorlane::version);
    app.require_subcommand(1);
    Requests requests;
    const Common& common = requests.common;
    const OutputFormat& format = common.format;
    CLI::App* contents = addContents(app, requests);
    CLI::App* rows = addRows(app, requests);
    CLI::App* freq = addFreq(app, requests);
    CLI::App* find = addFind(app, requests);
    CLI::App* compare = addCompare(app, requests.compare);
    addFormat(*compare, requests.compare.format);
    CLI::App* supp = addSupp(app, requests.supp);
    addFormat(*supp, requests.supp.format);
    CLI::App* code = addCode(app, requests);
    addStats(app, requests);
    try {
        app.parse(argc, argv);
        if (contents->parsed()) {
            return runContents(common);
        }
        if (compare->parsed()) {
            return runCompare(requests.compare);
        }
        if (supp->parsed()) {
            return runSupp(requests.supp);
        }
        if (code->parsed()) {
            return runCode(common, requests.code);
        }
        return runOnRows(common, requests.where, [&](const StatDataset& dataset) {
            return rows->parsed() ? printRows(dataset, requests.rows, format)
                : freq->parsed()  ? printFrequencies(dataset, requests.freq, format)
                : find->parsed()  ? printFound(dataset, requests.text, format)
                                  : printStatistics(dataset, requests.stats, format);
        });
    } catch (const CLI::Success& information) {
        return app.exit(information);  // --help or --version
    } catch (const CLI::ParseError& error) {
        app.exit(error);
        return Failed;
    } catch (const std::exception& error) {
        const std::string& file = compare->parsed() ? requests.compare.base
            : supp->parsed()                        ? requests.supp.file
                                                    : common.file;
        return fail(fmt::format("{}: {}", file, error.what()));
    }
}

}  // namespace cli

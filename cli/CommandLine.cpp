#include "cli/CommandLine.h"

#include "cli/ContentsCommand.h"
#include "cli/RowsCommand.h"
#include "data/FilePath.h"
#include "data/Version.h"

#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <cstdio>
#include <map>

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

void addCommon(CLI::App& command, Common& common)
{
    static const std::map<std::string, OutputFormat> formats{
        {"text", OutputFormat::Text},
        {"json", OutputFormat::Json},
        {"tsv", OutputFormat::Tsv},
    };
    command.add_option("FILE", common.file, "The data file")->required();
    command.add_option("--member", common.member, "The data set in a file that holds several");
    command.add_option("--format", common.format, "text, json or tsv")
        ->transform(CLI::CheckedTransformer(formats, CLI::ignore_case))
        ->default_str("text");
}

Result<OpenedDataset> open(const Common& common, bool metadataOnly)
{
    return openDataset(filepath::fromBytes(common.file), {metadataOnly, common.member});
}

int runContents(const Common& common)
{
    const Result<OpenedDataset> opened = open(common, true);
    if (!opened) {
        return fail(opened.error());
    }
    printContents(opened.value(), common.file, common.format);
    return Done;
}

int runRows(const Common& common, const RowsRequest& request)
{
    const Result<OpenedDataset> opened = open(common, false);
    if (!opened) {
        return fail(opened.error());
    }
    const Result<bool> printed = printRows(*opened.value().dataset, request, common.format);
    return printed ? Done : fail(fmt::format("{}: {}", common.file, printed.error()));
}

void addRowsOptions(CLI::App& command, RowsRequest& request)
{
    command.add_option("--keep", request.keep, "Only these variables, in this order");
    command.add_option("--drop", request.drop, "All variables but these");
    command.add_option("--sort", request.sort, "Sort by V, or by V:desc in descending order");
    command.add_option("--first", request.first, "At most so many observations")
        ->check(CLI::NonNegativeNumber);
    command.add_flag("--raw", request.raw, "The values as they are stored");
}

}  // namespace

int run(int argc, char** argv)
{
    CLI::App app("Shows statistical datasets without a window.", "quorlane-cli");
    app.set_version_flag("--version", quorlane::version);
    app.require_subcommand(1);
    Common common;
    RowsRequest request;
    CLI::App* contents = app.add_subcommand("contents", "Describes a dataset and its variables");
    CLI::App* rows = app.add_subcommand("rows", "Prints observations");
    for (CLI::App* command : {contents, rows}) {
        addCommon(*command, common);
    }
    addRowsOptions(*rows, request);
    try {
        app.parse(argc, argv);
        return contents->parsed() ? runContents(common) : runRows(common, request);
    } catch (const CLI::Success& request_) {
        return app.exit(request_);  // --help or --version
    } catch (const CLI::ParseError& error) {
        app.exit(error);
        return Failed;
    } catch (const std::exception& error) {
        return fail(fmt::format("{}: {}", common.file, error.what()));
    }
}

}  // namespace cli

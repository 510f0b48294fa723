#include "samples/BigTable.h"
#include "samples/Study.h"
#include "samples/TableWriter.h"

#include <QString>

#include <algorithm>
#include <array>
#include <CLI/CLI.hpp>
#include <cstdio>
#include <iostream>
#include <map>

namespace {

constexpr int failureCode = 2;

struct Arguments
{
    std::string directory;
    std::string tableFile;
    long rowCount = 1'000'000;
    samples::WriteOptions options;
    int layout = 64;
};

void defineOptions(CLI::App& app, Arguments& arguments)
{
    using samples::Compression;
    using samples::TextEncoding;
    static const std::map<std::string, TextEncoding> encodings{
        {"utf-8", TextEncoding::Utf8}, {"windows-1252", TextEncoding::Windows1252}};
    static const std::map<std::string, Compression> compressions{
        {"none", Compression::None}, {"rows", Compression::Rows}, {"zlib", Compression::Zlib}};
    auto* const directory =
        app.add_option("OUTDIR", arguments.directory, "Write the sample study into this folder");
    auto* const table =
        app.add_option("--table", arguments.tableFile,
                       "Write the benchmark table; the suffix .xpt, .sas7bdat, "
                       ".sav, .zsav, .dta, .csv, .rds, .json, .ndjson or .dsjc tells its kind");
    directory->excludes(table);
    app.add_option("--rows", arguments.rowCount, "Rows of the benchmark table")
        ->needs(table)
        ->check(CLI::Range(0L, 2'147'483'647L))
        ->capture_default_str();
    app.add_option("--encoding", arguments.options.encoding, "utf-8 or windows-1252")
        ->needs(table)
        ->transform(CLI::CheckedTransformer(encodings, CLI::ignore_case));
    app.add_option("--compress", arguments.options.compression, "none, rows or zlib")
        ->needs(table)
        ->transform(CLI::CheckedTransformer(compressions, CLI::ignore_case));
    app.add_option("--release", arguments.options.release,
                   "Transport version 5 or 8, Stata release 111 to 119")
        ->needs(table);
    app.add_option("--layout", arguments.layout, "SAS7BDAT integers of 32 or 64 bits")
        ->needs(table)
        ->check(CLI::IsMember({32, 64}));
}

void report(const std::filesystem::path& path, std::size_t rows, std::size_t columns)
{
    std::cout << path.string() << ": " << rows << " rows, " << columns << " columns\n";
}

void writeStudy(const std::filesystem::path& directory)
{
    constexpr std::array inEveryKind{"DM", "AE", "ADSL"};
    std::filesystem::create_directories(directory);
    for (const auto& table : samples::studyTables()) {
        std::vector<std::string> suffixes{".xpt"};
        if (std::ranges::find(inEveryKind, table.name) != inEveryKind.end()) {
            suffixes.insert(
                suffixes.end(),
                {".sas7bdat", ".sav", ".dta", ".csv", ".rds", ".json", ".ndjson", ".dsjc"});
        }
        const auto name = QString::fromStdString(table.name).toLower().toStdString();
        for (const auto& suffix : suffixes) {
            const auto path = directory / (name + suffix);
            samples::writeTable(path, table);
            report(path, table.rows.size(), table.columns.size());
        }
    }
}

void writeTableFile(const Arguments& arguments)
{
    samples::writeBigTable(arguments.tableFile, arguments.rowCount, arguments.options);
    report(arguments.tableFile, static_cast<std::size_t>(arguments.rowCount),
           samples::bigTableShape().columns.size());
}

int run(int argc, char* argv[])
{
    Arguments arguments;
    CLI::App app("Writes the invented sample study, or a large table for benchmarks.",
                 "quorlane-samples");
    try {
        defineOptions(app, arguments);
        app.parse(argc, argv);
        if (arguments.directory.empty() && arguments.tableFile.empty()) {
            throw CLI::RequiredError("OUTDIR or --table");
        }
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : failureCode;
    }
    arguments.options.layout64 = arguments.layout == 64;
    if (arguments.tableFile.empty()) {
        writeStudy(arguments.directory);
    } else {
        writeTableFile(arguments);
    }
    return 0;
}

}  // namespace

int main(int argc, char* argv[])
{
    try {
        return run(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "quorlane-samples: %s\n", error.what());
        return failureCode;
    }
}

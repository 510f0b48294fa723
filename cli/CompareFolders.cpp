#include "cli/Compare.h"
#include "data/FilePath.h"

#include <fmt/format.h>

#include <QString>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>

namespace cli {

namespace {

/// A dataset in a folder.
struct Source
{
    std::string file;
    std::string member;  ///< of a file of several; otherwise empty
};

/// By the names of the datasets in capitals: the file's, or the dataset's own in a file of several.
using Sources = std::map<std::string, Source>;

std::string capitals(std::string name)
{
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
    return name;
}

std::vector<std::string> datasetFiles(const std::string& folder)
{
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (!entry.is_directory() && isDatasetFile(filepath::fromBytes(entry.path().string()))) {
            files.push_back(entry.path().string());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

Sources sourcesIn(const std::string& folder)
{
    Sources sources;
    const auto add = [&](const std::string& name, const Source& source) {
        const auto [entry, isNew] = sources.emplace(capitals(name), source);
        if (!isNew) {
            fmt::print(stderr, "quorlane-cli: {}: passed over, {} is in {}, too\n", source.file,
                       name, entry->second.file);
        }
    };
    for (const std::string& file : datasetFiles(folder)) {
        const QString path = filepath::fromBytes(file);
        // What cannot be listed cannot be opened either, and the comparison tells why.
        const auto members = datasetNames(path);
        if (!members || members.value().size() < 2) {
            add(filepath::baseName(path), {file, {}});
            continue;
        }
        for (const std::string& member : members.value()) {
            add(member, {file, member});
        }
    }
    return sources;
}

/// One dataset of the summary. The datasets themselves are closed, so that a folder may hold more
/// than the memory does.
struct Line
{
    std::string name;
    ExitCode code = Different;
    std::string outcome;
    std::vector<std::string> counts{7};  ///< empty where nothing was compared
    std::string json = "null";
};

std::vector<std::string> countsOf(const comparison::Comparison& result)
{
    const auto& values = result.values();
    const auto unequal =
        std::count_if(values.begin(), values.end(), [](const comparison::ComparedVariable& value) {
            return !value.unequal.empty();
        });
    return {std::to_string(result.observations().base.read),
            std::to_string(result.observations().compare.read),
            std::to_string(result.observations().matched()),
            std::to_string(values.size()),
            std::to_string(unequal),
            std::to_string(result.unequalValues()),
            std::to_string(result.sysInfo())};
}

void compareSources(const Source& base, const Source& compare, CompareOptions options, Line& line)
{
    options.base = base.file;
    options.baseMember = base.member;
    options.compare = compare.file;
    options.compareMember = compare.member;
    options.passesOverAbsentId = true;
    Result<FileComparison> compared = compareFiles(options);
    if (!compared) {
        line.code = Failed;
        line.outcome = "not compared: " + compared.error();
        return;
    }
    const FileComparison& comparison = compared.value();
    line.code = comparison.isDifferent(options.strict) ? Different : Done;
    line.outcome = line.code == Different  ? "different"
        : comparison.result.sysInfo() != 0 ? "equal but for attributes"
                                           : "equal";
    line.counts = countsOf(comparison.result);
    if (options.format == OutputFormat::Json) {
        line.json = comparisonJson(comparison, options);
    }
}

std::vector<Line> compareAll(const CompareOptions& options)
{
    const Sources base = sourcesIn(options.base);
    Sources compare = sourcesIn(options.compare);
    std::vector<Line> lines;
    for (const auto& [name, source] : base) {
        Line& line = lines.emplace_back(Line{name, Different, "base only"});
        const auto partner = compare.find(name);
        if (partner != compare.end()) {
            compareSources(source, partner->second, options, line);
            compare.erase(partner);
        }
    }
    for (const auto& [name, source] : compare) {
        lines.push_back({name, Different, "compare only"});
    }
    std::sort(lines.begin(), lines.end(),
              [](const Line& a, const Line& b) { return a.name < b.name; });
    return lines;
}

std::size_t countOf(const std::vector<Line>& lines, ExitCode code)
{
    return static_cast<std::size_t>(std::count_if(
        lines.begin(), lines.end(), [code](const Line& line) { return line.code == code; }));
}

void printJson(const std::vector<Line>& lines)
{
    std::string datasets;
    for (const Line& line : lines) {
        datasets += fmt::format("{}\n{{\"dataset\":{},\"outcome\":{},\"comparison\":{}}}",
                                datasets.empty() ? "" : ",", jsonText(line.name),
                                jsonText(line.outcome), line.json);
    }
    print(fmt::format("{{\"equal\":{},\"different\":{},\"notCompared\":{},\"datasets\":[{}\n]}}\n",
                      countOf(lines, Done), countOf(lines, Different), countOf(lines, Failed),
                      datasets));
}

void printTable(const std::vector<Line>& lines, OutputFormat format)
{
    TableWriter table(format, {false, true, true, true, true, true, true, true});
    table.add({"Dataset", "BaseObs", "CompareObs", "Common", "Variables", "UnequalVars",
               "UnequalValues", "SYSINFO", "Outcome"});
    for (const Line& line : lines) {
        std::vector<std::string> cells{line.name};
        cells.insert(cells.end(), line.counts.begin(), line.counts.end());
        cells.push_back(line.outcome);
        table.add(cells);
    }
    table.finish();
    if (format == OutputFormat::Text) {
        print(fmt::format("\n{} datasets: {} equal, {} different, {} not compared\n", lines.size(),
                          countOf(lines, Done), countOf(lines, Different), countOf(lines, Failed)));
    }
}

}  // namespace

ExitCode compareFolders(const CompareOptions& options)
{
    const std::vector<Line> lines = compareAll(options);
    if (lines.empty()) {
        fmt::print(stderr, "quorlane-cli: there is no dataset in {} and {}\n", options.base,
                   options.compare);
        return Failed;
    }
    if (options.format == OutputFormat::Json) {
        printJson(lines);
    } else {
        printTable(lines, options.format);
    }
    return countOf(lines, Failed) > 0 ? Failed : countOf(lines, Different) > 0 ? Different : Done;
}

}  // namespace cli

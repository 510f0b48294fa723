#pragma once

#include "analysis/comparison/CompareReport.h"
#include "cli/CommandLine.h"
#include "cli/Output.h"
#include "data/readers/DatasetFile.h"

namespace CLI {
class App;
}

namespace cli {

/// What `compare` was asked for.
struct CompareOptions
{
    std::string base;  ///< a file or a folder, as the other one
    std::string compare;
    std::string baseMember;
    std::string compareMember;
    std::optional<std::string> where;
    comparison::Request request;
    comparison::ReportOptions report;
    /// Of the ID variables for all datasets of a folder some have only a few.
    bool passesOverAbsentId = false;
    bool proposesId = false;  ///< ID variables that suggest themselves
    bool writesProgram = false;  ///< instead of comparing
    bool listsDifferences = false;  ///< in JSON
    bool strict = false;  ///< attributes alone make datasets different
    OutputFormat format = OutputFormat::Text;
};

/// Adds the command with all its options.
CLI::App* addCompare(CLI::App& app, CompareOptions& options);

/// Compares two files, or all datasets of two folders, and prints what came out.
[[nodiscard]] ExitCode runCompare(const CompareOptions& options);

/// Both datasets of a comparison and what came out; what is printed of it reads the datasets.
struct FileComparison
{
    OpenedDataset base;
    OpenedDataset compare;
    comparison::Comparison result;

    [[nodiscard]] bool isDifferent(bool strict) const
    {
        return result.sysInfo() >= (strict ? 1U : comparison::firstDataBit);
    }
};

/// Opens and compares two datasets. Notes of damage go to standard error.
[[nodiscard]] Result<FileComparison> compareFiles(const CompareOptions& options);

/// One JSON object with every count.
[[nodiscard]] std::string comparisonJson(const FileComparison& comparison,
                                         const CompareOptions& options);

/// Compares the datasets of two folders, those of one name with each other.
[[nodiscard]] ExitCode compareFolders(const CompareOptions& options);

}  // namespace cli

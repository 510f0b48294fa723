#pragma once

#include "cli/Output.h"
#include "data/readers/DatasetFile.h"
#include "data/Result.h"
#include "data/StatDataset.h"

#include <QString>

#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace cli {

/// Prints what a file says of its dataset and variables.
void printContents(const OpenedDataset& opened, const std::string& file, OutputFormat format);

/// Prints the variables of all datasets of a folder, and in what those of one name differ. Files
/// that cannot be read are told on standard error and left out.
/// @return  whether all of them could be read; a failure where the folder cannot be listed
[[nodiscard]] Result<bool> printFolder(const std::string& folder, OutputFormat format);

struct RowsRequest
{
    std::vector<std::string> keep;  ///< variable names; empty for all
    std::vector<std::string> drop;
    std::vector<std::string> sort;  ///< "NAME" or "NAME:desc"
    int first = std::numeric_limits<int>::max();
    bool raw = false;
};

/// Adds the options of the request to a command.
void addRowsOptions(CLI::App& command, RowsRequest& request);

/// Prints the observations that the dataset's filter selects: number and cells, as the grid shows
/// them or as they are stored. A failure names the variable, and nothing has been printed then.
[[nodiscard]] Result<bool> printRows(const StatDataset& dataset, const RowsRequest& request,
                                     OutputFormat format);

struct FreqRequest
{
    std::string variables;  ///< names joined by "*": "SEX*RACE"
    bool distinct = false;  ///< count subjects instead of observations
    std::string idName = "USUBJID";  ///< the variable that identifies a subject
};

/// Prints how often each combination of values occurs in the observations that the filters select,
/// in ascending order: values as a window shows them, and the count. A failure names the variable,
/// and nothing has been printed then.
[[nodiscard]] Result<bool> printFrequencies(const StatDataset& dataset, const FreqRequest& request,
                                            OutputFormat format);

struct StatsRequest
{
    std::string variable;
    std::vector<std::string> by;  ///< variable names; empty for one sample
};

/// Prints the statistics of a numeric variable in the observations that the filters select, or in
/// each group of them. A failure names the variable, and nothing has been printed then.
[[nodiscard]] Result<bool> printStatistics(const StatDataset& dataset, const StatsRequest& request,
                                           OutputFormat format);

struct CodeRequest
{
    std::optional<std::string> where;  ///< the condition of the library filter
    std::optional<std::string> narrowing;  ///< the condition of the dataset filter
    std::vector<std::string> by;  ///< variable names
    std::vector<std::string> keep;  ///< empty for all
};

/// Prints the SAS program of a view of the dataset. A failure names the option or the variable, and
/// nothing has been printed then.
/// @param file  where the dataset comes from
[[nodiscard]] Result<bool> printCode(const StatDataset& dataset, const QString& file,
                                     const CodeRequest& request, OutputFormat format);

/// Prints every cell that shows the text, in any letter case: observation, variable and the text of
/// the cell, in the order of the observations that the filters select.
[[nodiscard]] Result<bool> printFound(const StatDataset& dataset, const std::string& text,
                                      OutputFormat format);

}  // namespace cli

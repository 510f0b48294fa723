#pragma once

#include "cli/CommandLine.h"
#include "cli/Commands.h"

namespace CLI {
class App;
}

namespace cli {

/// What `supp` was asked for.
struct SuppOptions
{
    std::string file;
    std::string member;
    std::vector<std::string> supplements;  ///< files
    std::vector<std::string> supplementMembers;  ///< one for each of them, or fewer
    std::optional<std::string> where;
    RowsRequest rows;
    bool problems = false;  ///< list what is wrong in place of the rows
    OutputFormat format = OutputFormat::Text;
};

/// Adds the command with all its options but the format.
CLI::App* addSupp(CLI::App& app, SuppOptions& options);

/// Joins a dataset with its supplemental qualifiers and prints its observations.
[[nodiscard]] ExitCode runSupp(const SuppOptions& options);

}  // namespace cli

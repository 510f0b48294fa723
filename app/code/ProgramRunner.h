#pragma once

#include "workspace/program/ProgramStatements.h"

#include <QString>

#include <vector>

class OpenDataset;

/// Runs what of a SAS program an open dataset can carry out.
namespace programrunner {

/// A statement that was not carried out, and why.
struct Mark
{
    ProgramStatement statement;
    QString message;
    bool isWrong = true;  ///< and not only passed over
};

struct Report
{
    std::vector<Mark> marks;  ///< in the order of the program
    bool hasRun = false;
};

/// Runs the statements, as often as is wanted with the same effect: a `where` that is in force
/// passes, another one replaces it, and all `if` statements together stand in the place of the
/// dataset filter. Variables may have the SAS names that generated programs give them. What the
/// dataset does not know is passed over. With a statement that is wrong nothing is run.
[[nodiscard]] Report run(const QString& program, OpenDataset& opened);

}  // namespace programrunner

#pragma once

#include "grid/filter/Lexer.h"
#include "grid/opened/CommandFailure.h"

#include <QString>

class LibraryFilter;
class OpenDataset;

/// A line typed into one of the boxes that show what is in force.
struct BoxLine
{
    enum class Box
    {
        DatasetFilter,
        LibraryFilter,
        ByVariables,
    };

    Box box = Box::DatasetFilter;
    QString text{};
    bool isEdited = false;  ///< made from what the box showed, and to stand in its place
    Dialect dialect = Dialect::Command;
};

/// What boxes do with their lines.
namespace boxline {

/// Runs a line.
///
/// An empty line clears what its box shows, and the text that is in force anyway changes nothing. A
/// condition without its first word is the filter of its box, names of variables in the box for
/// them are the BY list, with "by" in front or not; any other line is a command. A semicolon at the
/// end is dropped.
///
/// @param opened  null where no dataset is open: only the library filter can be set then
[[nodiscard]] CommandOutcome run(const BoxLine& line, OpenDataset* opened, LibraryFilter& library);

/// The text without blanks around it and without semicolons at its end.
[[nodiscard]] QString trimmed(const QString& text);

}  // namespace boxline

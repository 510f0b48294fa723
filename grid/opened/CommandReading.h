#pragma once

#include "grid/filter/CommandParser.h"

/// How a command text is read and what its filter does.
struct CommandReading
{
    /// What becomes of the filter in force that a command's filter meets.
    enum class InForce
    {
        Stays,  ///< `if` narrows it and `where` is refused
        IsReplaced,  ///< a dataset filter in one step, which undo takes back
    };

    Dialect dialect = Dialect::Command;
    InForce inForce = InForce::Stays;
    CommandParser::BareCondition bare = CommandParser::BareCondition::IsNone;
};

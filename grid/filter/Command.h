#pragma once

#include "grid/filter/ConditionParser.h"

#include <QStringList>

#include <variant>

/// What a command asks for, as it was read. Names come as they were typed, in their order; whoever
/// carries the command out looks them up.
struct Command
{
    struct ClearLibraryFilter
    { };
    struct ClearDatasetFilter
    { };
    struct KeepVariables
    {
        QStringList names;
    };
    struct DropVariables
    {
        QStringList names;
    };
    struct FrequencyTable
    {
        QStringList names;
        bool frequencyN = false;  ///< count distinct subjects
    };
    struct SetLibraryFilter
    {
        ParsedCondition condition;
    };
    struct AddDatasetFilter
    {
        ParsedCondition condition;
    };
    using Action = std::variant<ClearLibraryFilter, ClearDatasetFilter, KeepVariables,
                                DropVariables, FrequencyTable, SetLibraryFilter, AddDatasetFilter>;

    Action action;
    /// Something follows the command, which acts all the same; ParseError::trailingText comes
    /// afterwards.
    bool hasTrailingText = false;
};

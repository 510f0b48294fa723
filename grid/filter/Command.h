#pragma once

#include "grid/filter/ConditionParser.h"

#include <optional>
#include <variant>
#include <vector>

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
        std::vector<WrittenName> names;
    };
    struct DropVariables
    {
        std::vector<WrittenName> names;
    };
    struct FrequencyTable
    {
        std::vector<WrittenName> names;
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
    /// Where something follows the command, which acts all the same; ParseError::trailingText comes
    /// afterwards.
    std::optional<qsizetype> trailingText;
};

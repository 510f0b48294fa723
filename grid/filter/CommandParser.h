#pragma once

#include "grid/filter/Command.h"
#include "grid/filter/TokenStream.h"

/// Reads a command line.
///
/// The commands, in any letter case: clear library|dataset filter, clf, cdf, keep, drop, table,
/// tables, tablen, where, if.
class CommandParser
{
public:
    /// What a condition is that stands for itself, without a command's word in front.
    enum class BareCondition
    {
        IsNone,
        IsWhere,
        IsIf,
    };

    /// Throws ParseError for a text that begins with no whole command.
    [[nodiscard]] static Command parse(QStringView commandText, Dialect dialect,
                                       BareCondition bare = BareCondition::IsNone);
    /// Whether a text begins with the word of a command.
    [[nodiscard]] static bool beginsCommand(QStringView text);

private:
    CommandParser(QStringView commandText, Dialect dialect)
        : m_tokens(commandText, dialect)
    { }

    Command::Action action();
    Command::Action actionOf(QStringView word);
    Command::Action clearedFilter();
    std::vector<WrittenName> listedVariables();
    std::vector<WrittenName> crossedVariables();
    WrittenName variable(const char* message);

    TokenStream m_tokens;
};

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
    /// Throws ParseError for a text that begins with no whole command.
    [[nodiscard]] static Command parse(QStringView commandText, Dialect dialect);

private:
    CommandParser(QStringView commandText, Dialect dialect)
        : m_tokens(commandText, dialect)
    { }

    Command::Action action();
    Command::Action clearedFilter();
    QStringList listedVariables();
    QStringList crossedVariables();

    TokenStream m_tokens;
};

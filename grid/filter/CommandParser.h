#pragma once

#include "grid/filter/CommandTarget.h"
#include "grid/filter/TokenStream.h"

/// Reads a command line and carries it out on a target.
///
/// The commands, in any letter case: clear library|dataset filter, clf, cdf, keep, drop, table,
/// tables, tablen, where, if.
class CommandParser
{
public:
    CommandParser(QStringView commandText, CommandTarget& target,
                  Dialect dialect = Dialect::Command)
        : m_tokens(commandText, dialect)
        , m_target(target)
    { }

    /// Throws ParseError, as the constructor does. A command that cannot be read changes nothing;
    /// text that follows a whole command is found only once that has acted.
    void run();

private:
    void act();
    void clear();
    void keepOrDrop(bool keep);
    void table(bool frequencyN);

    TokenStream m_tokens;
    CommandTarget& m_target;
};

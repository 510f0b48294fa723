#pragma once

#include "grid/filter/ParseError.h"

#include <QCoreApplication>
#include <QString>

#include <new>
#include <optional>

/// Why a command did not do all that it asks for.
struct CommandFailure
{
    QString message;
    QString command;  ///< as it can be typed; empty where it has no such form
    qsizetype position = ParseError::nowhere;  ///< of what is wrong in the command
    QString suggestion{};  ///< what was meant there; empty if unknown
};

/// Nothing when all went well.
using CommandOutcome = std::optional<CommandFailure>;

/// Carries something out and turns what it throws into a failure, so that no exception leaves an
/// event handler.
/// @param command  what is carried out, as it can be typed
template <typename Act>
[[nodiscard]] CommandOutcome failureOf(const QString& command, Act act)
{
    try {
        act();
        return std::nullopt;
    } catch (const ParseError& error) {
        return CommandFailure{QString::fromUtf8(error.what()), command, error.position(),
                              QString::fromStdString(error.suggestion())};
    } catch (const std::bad_alloc&) {
        return CommandFailure{
            QCoreApplication::translate("CommandFailure", "There is not enough memory."), command};
    }
}

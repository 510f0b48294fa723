#pragma once

#include <QIcon>
#include <QString>
#include <QStringList>

#include <exception>

/// Runs the program: identity, hand-over to an instance that runs, translation, main window, the
/// file of the command line, event loop.
/// @return  the exit code of the process; 0 also when the file was handed over
[[nodiscard]] int runApplication(int argc, char** argv);

namespace startup {

/// Names the organisation, the application and its version, which decide where settings are kept.
/// To be called before the application object is created.
void setIdentity();

/// What the user is told of an exception that nobody caught.
[[nodiscard]] QString uncaughtMessage(const std::exception_ptr& exception);

/// What the user is told on a system on which the program does not run.
[[nodiscard]] QString unsupportedSystemMessage();

/// The arguments that the toolkit has left, names of files with all their bytes. To be called once
/// the application object has been created.
[[nodiscard]] QStringList argumentsOf(int argc, char** argv);

/// The absolute path of the file named on the command line; empty when there is none. Arguments
/// after the first are ignored.
[[nodiscard]] QString fileArgument(const QStringList& arguments);

}  // namespace startup

#pragma once

/// The headless front end: every engine of Quorlane from a shell.
namespace cli {

/// Exit codes of all commands.
enum ExitCode : int
{
    Done = 0,
    Different = 1,
    Failed = 2
};

/// Runs one command. Results go to standard output; problems go to standard error and name the file
/// or variable.
[[nodiscard]] int run(int argc, char** argv);

}  // namespace cli

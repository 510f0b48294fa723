#pragma once

#include "tests/support/TemporaryFolder.h"

#include <array>
#include <cstdio>
#include <string>
#include <sys/wait.h>

/// What a run of a command line program came to.
struct CommandRun
{
    int code;
    std::string out;
    std::string err;
};

/// Runs a line of the shell. What it prints on standard error goes through a file of the folder.
inline CommandRun runCommand(const std::string& line, const TemporaryFolder& folder)
{
    const std::string errors = folder.file("stderr").string();
    FILE* pipe = popen((line + " 2>" + errors).c_str(), "r");
    std::string out;
    std::array<char, 4096> part{};
    for (std::size_t got = 0; (got = fread(part.data(), 1, part.size(), pipe)) > 0;) {
        out.append(part.data(), got);
    }
    return {WEXITSTATUS(pclose(pipe)), out, bytesOf(errors)};
}

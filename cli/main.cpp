#include "cli/CommandLine.h"

#include <spdlog/sinks/stdout_sinks.h>
#include <spdlog/spdlog.h>

int main(int argc, char** argv)
{
    // Standard output is the result's alone.
    spdlog::set_default_logger(spdlog::stderr_logger_st("quorlane-cli"));
    spdlog::set_pattern("%n: %v");
    spdlog::set_level(spdlog::level::warn);
    return cli::run(argc, argv);
}

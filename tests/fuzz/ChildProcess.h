#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

namespace fuzz {

/// What one mutant may use at most.
struct Limits
{
    int seconds = 10;  ///< of processor time
    long kibibytes = 512L * 1024;  ///< of memory, beyond what was in use before
};

/// How a child process ended.
struct Ending
{
    std::uint64_t mutant = 0;  ///< the last one it worked on
    std::string failure;  ///< empty when all went well
    std::string log;  ///< what it wrote to its standard error
};

/// Works on mutants in a child process, so that a crash in the midst of a C library takes only the
/// child away, and the parent knows which mutant did it.
class ChildProcess
{
public:
    /// Opens a mutant and returns what is wrong, or an empty text.
    using Check = std::function<std::string(std::uint64_t mutant)>;

    /// @param logFile  takes the standard error of the children
    ChildProcess(Limits limits, std::filesystem::path logFile);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// Checks the mutants from `first` up to, not including, `end`; ends at the first failure. A
    /// leak is found at the end only, and then charged to the last mutant.
    [[nodiscard]] Ending run(std::uint64_t first, std::uint64_t end, const Check& check);

private:
    struct Shared;  // memory of both processes

    [[noreturn]] void work(std::uint64_t first, std::uint64_t end, const Check& check) const;
    [[noreturn]] void fail(const std::string& message) const;
    [[nodiscard]] std::string describe(int status) const;

    Limits m_limits;
    std::filesystem::path m_logFile;
    Shared* m_shared;
};

}  // namespace fuzz

#pragma once

#include "tests/fuzz/ChildProcess.h"
#include "tests/fuzz/Mutator.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string>

namespace fuzz {

struct RunOptions
{
    std::chrono::seconds duration{60};
    std::uint64_t seed = 1;
    std::uint64_t first = 0;  ///< number of the first mutant
    std::uint64_t count = 0;  ///< mutants to make; 0 for as many as the time allows
    Limits limits;
};

/// Makes mutants of a corpus and opens each, many to a child process. What fails is reported and
/// kept, with its log, in the folder fuzz-failures.
class FuzzRun
{
public:
    /// @param folder  for the files of the run
    FuzzRun(const Corpus& corpus, RunOptions options, std::filesystem::path folder);

    /// @return  0 when nothing failed, else 1
    [[nodiscard]] int run();

private:
    [[nodiscard]] bool isOver() const;
    void runBatch(std::uint64_t end);
    void findLeak(std::uint64_t first, std::uint64_t end);
    [[nodiscard]] Ending runMutants(std::uint64_t first, std::uint64_t end);
    void report(const Ending& ending);

    RunOptions m_options;
    Mutator m_mutator;
    std::filesystem::path m_folder;
    ChildProcess m_child;
    std::chrono::steady_clock::time_point m_start;
    std::uint64_t m_next;
    int m_failures = 0;
};

/// Opens one file in a child process and prints how it went.
/// @return  0 when nothing failed, else 1
[[nodiscard]] int replay(const std::filesystem::path& file, const Limits& limits,
                         const std::filesystem::path& folder);

}  // namespace fuzz

#include "tests/fuzz/FuzzRun.h"

#include "tests/fuzz/DatasetCheck.h"

#include <fmt/format.h>

#include <algorithm>
#include <fstream>
#include <stdexcept>

namespace fuzz {

namespace {

constexpr std::uint64_t batchSize = 200;
constexpr int mostFailures = 50;
constexpr const char* failureFolder = "fuzz-failures";

void writeFile(const std::filesystem::path& path, const std::string& bytes)
{
    std::ofstream stream(path, std::ios::binary);
    stream << bytes;
    stream.close();
    if (!stream) {
        throw std::runtime_error(path.string() + ": cannot be written");
    }
}

}  // namespace

FuzzRun::FuzzRun(const Corpus& corpus, RunOptions options, std::filesystem::path folder)
    : m_options(options)
    , m_mutator(corpus, options.seed)
    , m_folder(std::move(folder))
    , m_child(options.limits, m_folder / "log")
    , m_start(std::chrono::steady_clock::now())
    , m_next(options.first)
{ }

int FuzzRun::run()
{
    while (!isOver()) {
        const std::uint64_t left = m_options.first + m_options.count - m_next;
        runBatch(m_next + (m_options.count == 0 ? batchSize : std::min(batchSize, left)));
    }
    fmt::print("{} mutants, {} failures\n", m_next - m_options.first, m_failures);
    return m_failures == 0 ? 0 : 1;
}

bool FuzzRun::isOver() const
{
    if (m_failures >= mostFailures) {
        return true;
    }
    return m_options.count > 0 ? m_next >= m_options.first + m_options.count
                               : std::chrono::steady_clock::now() - m_start >= m_options.duration;
}

void FuzzRun::runBatch(std::uint64_t end)
{
    const std::uint64_t first = m_next;
    const Ending ending = runMutants(first, end);
    m_next = ending.failure.empty() ? end : ending.mutant + 1;
    if (ending.failure.empty()) {
        return;
    }
    if (ending.failure.starts_with("leaks")) {
        findLeak(first, end);
    } else {
        report(ending);
    }
}

/// Leaks show at the end of a process only, so each mutant gets one of its own.
void FuzzRun::findLeak(std::uint64_t first, std::uint64_t end)
{
    const int before = m_failures;
    for (std::uint64_t mutant = first; mutant < end && m_failures < mostFailures; ++mutant) {
        if (const Ending ending = runMutants(mutant, mutant + 1); !ending.failure.empty()) {
            report(ending);
        }
    }
    if (m_failures == before) {
        ++m_failures;
        fmt::print("seed {}, mutants {} to {}: leak memory together, none does alone\n",
                   m_options.seed, first, end - 1);
    }
}

Ending FuzzRun::runMutants(std::uint64_t first, std::uint64_t end)
{
    return m_child.run(first, end, [this](std::uint64_t number) {
        const Mutant mutant = m_mutator.mutant(number);
        const auto path = m_folder / ("mutant" + mutant.suffix);
        writeFile(path, mutant.bytes);
        return brokenPromise(path);
    });
}

void FuzzRun::report(const Ending& ending)
{
    ++m_failures;
    const Mutant mutant = m_mutator.mutant(ending.mutant);
    const std::filesystem::path name = std::filesystem::path(failureFolder)
        / fmt::format("seed-{}-mutant-{}{}", m_options.seed, ending.mutant, mutant.suffix);
    std::filesystem::create_directories(failureFolder);
    writeFile(name, mutant.bytes);
    writeFile(name.string() + ".log", ending.failure + "\n" + ending.log);
    fmt::print("seed {}, mutant {} of {}: {}; kept as {}\n", m_options.seed, ending.mutant,
               mutant.origin, ending.failure, name.string());
}

int replay(const std::filesystem::path& file, const Limits& limits,
           const std::filesystem::path& folder)
{
    ChildProcess child(limits, folder / "log");
    const Ending ending = child.run(0, 1, [&](std::uint64_t) { return brokenPromise(file); });
    fmt::print("{}{}: {}\n", ending.log, file.string(),
               ending.failure.empty() ? "no failure" : ending.failure);
    return ending.failure.empty() ? 0 : 1;
}

}  // namespace fuzz

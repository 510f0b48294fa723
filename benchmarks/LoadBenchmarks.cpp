// How long a load takes as a multiple of the format library's own parse of the same file with an
// empty value handler, and how much memory a loaded cell takes.

#include "benchmarks/BenchmarkFiles.h"
#include "data/readers/DatasetFile.h"

#include <fmt/format.h>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <map>
#include <memory>
#include <sched.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

void bareParse(benchmark::State& state, const BenchmarkFile& file)
{
    const std::string path = pathOf(file).string();
    for (auto _ : state) {
        if (!file.bareParse(path)) {
            state.SkipWithError("the bare parse failed");
            return;
        }
    }
}

/// Has the system find the memory that a load needs before the clock runs: a virtual machine gets
/// it from its host, at a price that changes from run to run and is none of the reader's.
void touchMemory()
{
    constexpr std::size_t bytes = std::size_t{700} << 20;
    void* memory = mmap(nullptr, bytes, PROT_READ | PROT_WRITE,
                        MAP_PRIVATE | MAP_ANONYMOUS | MAP_POPULATE, -1, 0);
    if (memory != MAP_FAILED) {
        munmap(memory, bytes);
    }
}

/// All runs on one processor: those of a machine may differ.
void stayOnThisProcessor()
{
    cpu_set_t processors;
    CPU_ZERO(&processors);
    CPU_SET(static_cast<std::size_t>(std::max(sched_getcpu(), 0)), &processors);
    sched_setaffinity(0, sizeof processors, &processors);
}

/// The time of a load without that of closing what was loaded.
void load(benchmark::State& state, const BenchmarkFile& file, bool metadataOnly)
{
    const QString path = QString::fromStdString(pathOf(file).string());
    for (auto _ : state) {
        state.PauseTiming();
        if (!metadataOnly) {
            touchMemory();
        }
        state.ResumeTiming();
        auto opened = openDataset(path, {.metadataOnly = metadataOnly});
        state.PauseTiming();
        if (!opened) {
            state.SkipWithError(opened.error().c_str());
            return;
        }
        opened = Failure{"closed"};
        state.ResumeTiming();
    }
}

/// Keeps the fastest run of each benchmark: noise only ever adds.
class FastestRuns : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration && !run.error_occurred) {
                const double time = run.GetAdjustedRealTime();
                const auto place = m_times.try_emplace(run.run_name.function_name, time).first;
                place->second = std::min(place->second, time);
            }
        }
    }
    [[nodiscard]] double ratio(const std::string& one, const std::string& other) const
    {
        const auto a = m_times.find(one);
        const auto b = m_times.find(other);
        return a == m_times.end() || b == m_times.end() ? 0 : a->second / b->second;
    }
    [[nodiscard]] double milliseconds(const std::string& name) const
    {
        const auto place = m_times.find(name);
        return place == m_times.end() ? 0 : place->second;
    }

private:
    std::map<std::string, double> m_times;
};

struct Memory
{
    double peakMegabytes = 0;
    double bytesPerCell = 0;
    double textMegabytes = 0;
};

std::int64_t peakKilobytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

/// Loads the file in a process of its own, whose peak is the load's.
Memory memoryOf(const BenchmarkFile& file)
{
    const QString path = QString::fromStdString(pathOf(file).string());
    int channel[2] = {};
    if (pipe(channel) != 0) {
        return {};
    }
    const pid_t child = fork();
    if (child == 0) {
        const std::int64_t before = peakKilobytes();
        const auto opened = openDataset(path);
        Memory memory;
        const auto cells =
            static_cast<double>(opened.ok() ? opened.value().dataset->cellCount() : 1);
        const double bytes = static_cast<double>(peakKilobytes() - before) * 1024;
        memory.peakMegabytes = bytes / 1e6;
        memory.bytesPerCell = bytes / cells;
        memory.textMegabytes = opened.ok()
            ? static_cast<double>(opened.value().dataset->textPool().bytesInUse()) / 1e6
            : 0;
        const bool written = write(channel[1], &memory, sizeof(memory)) == sizeof(memory);
        _exit(written ? 0 : 1);
    }
    close(channel[1]);
    Memory memory;
    if (read(channel[0], &memory, sizeof(memory)) != sizeof(memory)) {
        memory = {};
    }
    close(channel[0]);
    waitpid(child, nullptr, 0);
    return memory;
}

void printSummary(const FastestRuns& runs)
{
    fmt::print("\n{} rows x 25 variables; a load as a multiple of the bare parse in this run\n\n",
               benchmarkRows());
    fmt::print("| file | bare, ms | load, x bare | goal | metadata only, x bare | peak, MB | bytes "
               "a cell | texts, MB |\n");
    fmt::print("|---|---|---|---|---|---|---|---|\n");
    for (const BenchmarkFile& file : benchmarkFiles()) {
        const std::string bare = "bare/" + file.name;
        if (runs.milliseconds(bare) == 0) {
            continue;
        }
        const Memory memory = memoryOf(file);
        fmt::print("| {} | {:.0f} | {:.2f} | {} | {:.3f} | {:.0f} | {:.2f} | {:.1f} |\n", file.name,
                   runs.milliseconds(bare), runs.ratio("load/" + file.name, bare), file.goal,
                   runs.ratio("metadata/" + file.name, bare), memory.peakMegabytes,
                   memory.bytesPerCell, memory.textMegabytes);
    }
}

}  // namespace

int main(int argc, char** argv)
{
    stayOnThisProcessor();
    benchmark::Initialize(&argc, argv);
    for (const BenchmarkFile& file : benchmarkFiles()) {
        const auto add = [&](const std::string& kind, auto function) {
            benchmark::RegisterBenchmark((kind + '/' + file.name).c_str(), function)
                ->Unit(benchmark::kMillisecond)
                ->Iterations(1)
                ->Repetitions(5);
        };
        add("bare", [&file](benchmark::State& state) { bareParse(state, file); });
        add("load", [&file](benchmark::State& state) { load(state, file, false); });
        add("metadata", [&file](benchmark::State& state) { load(state, file, true); });
    }
    FastestRuns runs;
    benchmark::RunSpecifiedBenchmarks(&runs);
    printSummary(runs);
    return 0;
}

// The benchmark table compared with a second load of itself, beside one load of it in the same run.

#include "analysis/comparison/Comparison.h"
#include "benchmarks/BenchmarkFiles.h"
#include "data/readers/DatasetFile.h"

#include <benchmark/benchmark.h>
#include <iostream>

namespace {

void load(benchmark::State& state, const QString& path)
{
    for (auto _ : state) {
        const auto opened = openDataset(path);
        benchmark::DoNotOptimize(opened.ok());
    }
}

void compare(benchmark::State& state, const StatDataset& base, const StatDataset& other,
             const comparison::Request& request)
{
    for (auto _ : state) {
        const auto result = comparison::Comparison::of(base, other, request);
        if (!result || result.value().sysInfo() != 0) {
            state.SkipWithError("the table does not equal itself");
            return;
        }
    }
}

}  // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    const QString path = QString::fromStdString(pathOf(benchmarkFiles().at(2)).string());
    const auto base = openDataset(path);
    const auto other = openDataset(path);
    if (!base || !other) {
        std::cerr << (base ? other.error() : base.error()) << '\n';
        return 1;
    }
    const auto add = [&](const char* name, const comparison::Request& request) {
        benchmark::RegisterBenchmark(name, [&base, &other, request](benchmark::State& state) {
            compare(state, *base.value().dataset, *other.value().dataset, request);
        })->Unit(benchmark::kMillisecond);
    };
    benchmark::RegisterBenchmark("load", [&path](benchmark::State& state) {
        load(state, path);
    })->Unit(benchmark::kMillisecond);
    add("compare/by-position", {});
    add("compare/by-id", {.id = {"USUBJID", "TERM", "AVAL"}});
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

// Sorting the benchmark table and rendering what fits on a screen. Sorting is told as a multiple of
// a plain comparison sort of the same values, taken in the same run.

#include "analysis/RowSorter.h"
#include "benchmarks/BenchmarkFiles.h"
#include "data/readers/DatasetFile.h"
#include "grid/MainTableModel.h"
#include "grid/opened/OpenDataset.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <iostream>
#include <numeric>

namespace {

constexpr int screenRows = 50;
constexpr int screenColumns = 25;

using Rows = std::vector<std::uint32_t>;

Rows datasetOrder(const StatDataset& dataset)
{
    Rows rows(static_cast<std::size_t>(dataset.observationCount()));
    std::iota(rows.begin(), rows.end(), 0U);
    return rows;
}

void sortRows(benchmark::State& state, const StatDataset& dataset, int variable)
{
    const SortKeys keys{{variable, Qt::AscendingOrder}};
    for (auto _ : state) {
        Rows rows = datasetOrder(dataset);
        rowsorter::sortObservations(dataset, keys, rows);
        benchmark::DoNotOptimize(rows.data());
    }
}

/// The plain way: the standard sort over the cells, with missing numbers put first.
void sortPlainly(benchmark::State& state, const StatDataset& dataset, int variable)
{
    const auto numberBefore = [&](std::uint32_t a, std::uint32_t b) {
        const double x = dataset.numericValue(static_cast<int>(a), variable);
        const double y = dataset.numericValue(static_cast<int>(b), variable);
        return y == y && (x != x || x < y);
    };
    const auto textBefore = [&](std::uint32_t a, std::uint32_t b) {
        return dataset.stringValue(static_cast<int>(a), variable)
            < dataset.stringValue(static_cast<int>(b), variable);
    };
    for (auto _ : state) {
        Rows rows = datasetOrder(dataset);
        if (dataset.isNumeric(variable)) {
            std::sort(rows.begin(), rows.end(), numberBefore);
        } else {
            std::sort(rows.begin(), rows.end(), textBefore);
        }
        benchmark::DoNotOptimize(rows.data());
    }
}

/// Every cell of a screen, as the grid asks for it when it paints.
void renderScreen(benchmark::State& state, StatDataset& dataset)
{
    OpenDataset opened(dataset);
    const MainTableModel model(&opened);
    int top = 0;
    for (auto _ : state) {
        for (int row = top; row < top + screenRows; ++row) {
            for (int column = 0; column < std::min(screenColumns, model.columnCount()); ++column) {
                benchmark::DoNotOptimize(model.data(model.index(row, column)));
            }
        }
        top = (top + 997 * screenRows) % std::max(model.rowCount() - screenRows, 1);
    }
    state.SetItemsProcessed(state.iterations() * screenRows * screenColumns);
}

void addSort(const StatDataset& dataset, const char* kind, const wchar_t* name)
{
    const int variable = dataset.findVariable(name);
    const std::string label =
        std::string(kind) + '/' + dataset.names().at(static_cast<std::size_t>(variable));
    const auto add = [&](const char* way, auto* function) {
        benchmark::RegisterBenchmark((way + label).c_str(),
                                     [&dataset, variable, function](benchmark::State& state) {
                                         function(state, dataset, variable);
                                     })
            ->Unit(benchmark::kMillisecond)
            ->MinTime(0.3);
    };
    add("sort/", sortRows);
    add("plain-sort/", sortPlainly);
}

}  // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    const BenchmarkFile& file = benchmarkFiles().at(2);
    const auto opened = openDataset(QString::fromStdString(pathOf(file).string()));
    if (!opened) {
        std::cerr << opened.error() << '\n';
        return 1;
    }
    StatDataset& dataset = *opened.value().dataset;
    addSort(dataset, "number", L"AVAL");
    addSort(dataset, "integer", L"AGE");
    addSort(dataset, "text-few", L"TEST");
    addSort(dataset, "text-10k", L"TERM");
    addSort(dataset, "text-unique", L"USUBJID");
    benchmark::RegisterBenchmark("render/screen", [&](benchmark::State& state) {
        renderScreen(state, dataset);
    })->Unit(benchmark::kMicrosecond);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

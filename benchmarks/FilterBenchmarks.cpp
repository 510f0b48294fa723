// Filters on the benchmark table: a condition evaluated over all rows, as a multiple of a plain
// loop over the cells taken in the same run; and a filter applied in a grid until the rows are
// painted. The last two grow by half-decades: a quadratic step would show as a multiple of ten.

#include "benchmarks/BenchmarkFiles.h"
#include "benchmarks/ShownGrid.h"
#include "data/readers/DatasetFile.h"
#include "grid/filter/CompiledCondition.h"

#include <QApplication>
#include <QHeaderView>

#include <benchmark/benchmark.h>
#include <iostream>
#include <memory>

namespace {

void evaluate(benchmark::State& state, const StatDataset& dataset, const char* text)
{
    const CompiledCondition condition(QString::fromUtf8(text), dataset);
    BitVector mask;
    for (auto _ : state) {
        condition.select(mask);
        benchmark::DoNotOptimize(mask.count());
    }
}

/// AGE > 60 and SEX = "F", cell by cell.
void evaluatePlainly(benchmark::State& state, const StatDataset& dataset)
{
    const int age = dataset.findVariable(L"AGE");
    const int sex = dataset.findVariable(L"SEX");
    const auto rows = static_cast<std::size_t>(dataset.observationCount());
    for (auto _ : state) {
        std::vector<bool> mask(rows);
        for (std::size_t row = 0; row < rows; ++row) {
            const auto observation = static_cast<int>(row);
            mask[row] = dataset.numericValue(observation, age) > 60
                && dataset.stringValue(observation, sex) == "F";
        }
        benchmark::DoNotOptimize(mask);
    }
}

void openGrid(benchmark::State& state, StatDataset& dataset)
{
    for (auto _ : state) {
        const ShownGrid grid(dataset);
    }
}

void applyFilter(benchmark::State& state, StatDataset& dataset, const char* command, bool atTheEnd)
{
    ShownGrid grid(dataset);
    for (auto _ : state) {
        state.PauseTiming();
        grid.run("cdf");
        if (atTheEnd) {
            grid.view().scrollToBottom();
        }
        grid.paint();
        state.ResumeTiming();
        grid.run(command);
    }
    grid.run("cdf");
}

void clearFilter(benchmark::State& state, StatDataset& dataset, const char* command)
{
    ShownGrid grid(dataset);
    for (auto _ : state) {
        state.PauseTiming();
        grid.run(command);
        state.ResumeTiming();
        grid.run("cdf");
    }
}

void sortByHeader(benchmark::State& state, StatDataset& dataset)
{
    ShownGrid grid(dataset);
    const int age = dataset.findVariable(L"AGE");
    for (auto _ : state) {
        grid.view().onHeaderClicked(age);
        grid.paint();
    }
}

/// "i" on so many selected cells of a column.
void filterBySelection(benchmark::State& state, StatDataset& dataset)
{
    ShownGrid grid(dataset);
    const int column = dataset.findVariable(L"USUBJID");
    const auto cells = static_cast<int>(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        grid.run("cdf");
        const QAbstractItemModel& model = *grid.view().model();
        grid.view().setCurrentIndex(model.index(0, column));
        grid.view().selectionModel()->select(
            QItemSelection(model.index(0, column), model.index(cells - 1, column)),
            QItemSelectionModel::ClearAndSelect);
        state.ResumeTiming();
        grid.view().run(GridCommand::FilterIn);
    }
    grid.run("cdf");
}

/// Hides all variables but one and shows them again.
void hideColumns(benchmark::State& state)
{
    const auto dataset = wideDataset(static_cast<int>(state.range(0)));
    ShownGrid grid(*dataset);
    for (auto _ : state) {
        grid.run("keep V7");
        grid.view().cmdUnhidecolumns();
        grid.paint();
    }
}

template <typename Function, typename... Arguments>
auto* add(const char* name, Function function, Arguments... arguments)
{
    return benchmark::RegisterBenchmark(
               name, [=](benchmark::State& state) { function(state, arguments...); })
        ->Unit(benchmark::kMillisecond)
        ->MinTime(0.3);
}

void addAll(StatDataset& dataset)
{
    const auto data = std::ref(dataset);
    add("evaluate/two-comparisons", evaluate, std::cref(dataset), R"(AGE > 60 and SEX = "F")");
    add("plain-evaluate/two-comparisons", evaluatePlainly, std::cref(dataset));
    add("evaluate/contains-10k", evaluate, std::cref(dataset), R"(TERM contains "site 42")");
    add("grid/open-to-first-paint", openGrid, data);
    add("grid/filter-99%-hidden", applyFilter, data, "if AGE = 60", false);
    add("grid/filter-50%-hidden", applyFilter, data, R"(if SEX = "F")", false);
    add("grid/filter-50%-hidden-at-the-end", applyFilter, data, R"(if SEX = "F")", true);
    add("grid/clear-that-hid-99%", clearFilter, data, "if AGE = 60");
    add("grid/sort-by-header", sortByHeader, data);
    add("grid/in-of-selected", filterBySelection, data)->Arg(1000)->Arg(10000)->Arg(100000);
    add("grid/hide-and-show-columns", hideColumns)->Arg(300)->Arg(3000);
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    const BenchmarkFile& file = benchmarkFiles().at(2);
    const auto opened = openDataset(QString::fromStdString(pathOf(file).string()));
    if (!opened) {
        std::cerr << opened.error() << '\n';
        return 1;
    }
    addAll(*opened.value().dataset);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

// The views beside a grid: lists of frequencies with about a million rows, from the key to the
// painted list, sorted and scrolled; and thousands of variables hidden and shown by one check box.

#include "analysis/panels/CheckBoxHeader.h"
#include "analysis/panels/FreqTableView.h"
#include "benchmarks/BenchmarkFiles.h"
#include "benchmarks/ShownGrid.h"
#include "data/readers/DatasetFile.h"

#include <QApplication>
#include <QScrollBar>

#include <benchmark/benchmark.h>
#include <iostream>

namespace {

void paint(QTableView& table)
{
    table.viewport()->repaint();
}

/// A list of the values of one variable, on the screen.
FreqTableView& listOf(ShownGrid& grid, const StatDataset& dataset, const wchar_t* variable)
{
    FrequencyPanel& panel = *grid.view().panels().frequency();
    grid.view().setCurrentIndex(grid.view().model()->index(0, dataset.findVariable(variable)));
    grid.view().showFrequencyOfSelected(false);
    panel.resize(400, 800);
    panel.show();
    QCoreApplication::processEvents();  // nothing is painted before the window is exposed
    paint(panel.table());
    return panel.table();
}

void countAndList(benchmark::State& state, StatDataset& dataset, const wchar_t* variable)
{
    ShownGrid grid(dataset);
    for (auto _ : state) {
        listOf(grid, dataset, variable);
    }
}

void sortList(benchmark::State& state, StatDataset& dataset, const wchar_t* variable, int column)
{
    ShownGrid grid(dataset);
    FreqTableView& list = listOf(grid, dataset, variable);
    bool isAscending = false;
    for (auto _ : state) {
        isAscending = !isAscending;
        list.sortByColumn(column, isAscending ? Qt::AscendingOrder : Qt::DescendingOrder);
        paint(list);
    }
}

/// The keys of the column included.
void sortListFirst(benchmark::State& state, StatDataset& dataset, const wchar_t* variable)
{
    ShownGrid grid(dataset);
    for (auto _ : state) {
        state.PauseTiming();
        FreqTableView& list = listOf(grid, dataset, variable);
        state.ResumeTiming();
        list.sortByColumn(0, Qt::DescendingOrder);
        paint(list);
    }
}

void scrollList(benchmark::State& state, StatDataset& dataset, const wchar_t* variable)
{
    ShownGrid grid(dataset);
    FreqTableView& list = listOf(grid, dataset, variable);
    QScrollBar& bar = *list.verticalScrollBar();
    for (auto _ : state) {
        bar.setValue((bar.value() + 7919) % std::max(bar.maximum(), 1));
        paint(list);
    }
}

/// What a click on the box in the header does, the grid following.
void toggleVariables(benchmark::State& state)
{
    const auto dataset = wideDataset(static_cast<int>(state.range(0)));
    ShownGrid grid(*dataset);
    VariableTableView& variables = *grid.view().panels().variables();
    variables.show();
    QCoreApplication::processEvents();
    auto& header = *qobject_cast<CheckBoxHeader*>(variables.horizontalHeader());
    for (auto _ : state) {
        header.setCheckState(header.checkState() == Qt::Unchecked ? Qt::Checked : Qt::Unchecked);
        grid.paint();
        paint(variables);
    }
}

void openWideGrid(benchmark::State& state)
{
    const auto dataset = wideDataset(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        ShownGrid grid(*dataset);
        grid.view().panels().variables()->show();
        QCoreApplication::processEvents();
        paint(*grid.view().panels().variables());
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
    const wchar_t* const number = L"AVAL";
    const wchar_t* const text = L"USUBJID";
    add("list/texts-to-first-paint", countAndList, data, text);
    add("list/numbers-to-first-paint", countAndList, data, number);
    add("list/sort-texts-first", sortListFirst, data, text);
    add("list/sort-texts", sortList, data, text, 0);
    add("list/sort-numbers", sortList, data, number, 0);
    add("list/sort-counts", sortList, data, text, 1);
    add("list/scroll", scrollList, data, text);
    add("variables/toggle-all", toggleVariables)->Arg(300)->Arg(3000);
    add("variables/open-to-first-paint", openWideGrid)->Arg(300)->Arg(3000);
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

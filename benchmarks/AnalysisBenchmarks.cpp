// Frequencies, distinct subjects and statistics of the benchmark table, each told as a multiple of
// ordered maps from the values of a row to a count, taken in the same run.

#include "analysis/CellSearch.h"
#include "analysis/CellWalk.h"
#include "analysis/Frequencies.h"
#include "analysis/Statistics.h"
#include "benchmarks/BenchmarkFiles.h"
#include "data/readers/DatasetFile.h"

#include <benchmark/benchmark.h>
#include <iostream>
#include <map>
#include <numeric>

namespace {

using Variables = std::vector<int>;

void countRows(benchmark::State& state, const StatDataset& dataset, const Variables& variables)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(frequencies::plain(dataset, variables).data());
    }
}

void countSubjects(benchmark::State& state, const StatDataset& dataset, const Variables& variables)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(frequencies::distinctIds(dataset, variables, "USUBJID").data());
    }
}

std::vector<FreqValue> keyOf(const StatDataset& dataset, int row, const Variables& variables)
{
    std::vector<FreqValue> key;
    for (const int variable : variables) {
        const CellValue& cell = dataset.cell(row, variable);
        if (const double* number = std::get_if<1>(&cell)) {
            key.push_back(*number == *number ? FreqValue(*number) : FreqValue());
        } else {
            key.emplace_back(std::get<0>(cell)->text());
        }
    }
    return key;
}

using Map = std::map<std::vector<FreqValue>, int>;

Map countPlainly(const StatDataset& dataset, const Variables& variables)
{
    Map counts;
    for (int row = 0; row < dataset.observationCount(); ++row) {
        ++counts[keyOf(dataset, row, variables)];
    }
    return counts;
}

void countRowsPlainly(benchmark::State& state, const StatDataset& dataset,
                      const Variables& variables)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(countPlainly(dataset, variables).size());
    }
}

void countSubjectsPlainly(benchmark::State& state, const StatDataset& dataset,
                          const Variables& variables)
{
    Variables withSubject = variables;
    withSubject.push_back(dataset.findVariable(L"USUBJID"));
    for (auto _ : state) {
        Map counts;
        for (const auto& entry : countPlainly(dataset, withSubject)) {
            ++counts[{entry.first.begin(), entry.first.end() - 1}];
        }
        benchmark::DoNotOptimize(counts.size());
    }
}

/// Statistics of the last variable by the others.
void describe(benchmark::State& state, const StatDataset& dataset, const Variables& variables)
{
    const Variables by(variables.begin(), variables.end() - 1);
    for (auto _ : state) {
        const auto table = statistics::describe(dataset, {&variables.back(), 1}, by);
        benchmark::DoNotOptimize(table.index());
    }
}

/// Looks at every cell for a text that none shows.
void findNothing(benchmark::State& state, const StatDataset& dataset, const Variables& /*none*/)
{
    std::vector<std::uint32_t> rows(static_cast<std::size_t>(dataset.observationCount()));
    std::iota(rows.begin(), rows.end(), 0U);
    for (auto _ : state) {
        CellSearch search(dataset, QStringLiteral("zzzzz"));
        const CellWalk walk(dataset.observationCount(), dataset.variableCount(),
                            CellWalk::Order::ByRow, [&](int column, int first, int count) {
                                return search.word(column,
                                                   {&rows[static_cast<std::size_t>(first)],
                                                    static_cast<std::size_t>(count)});
                            });
        benchmark::DoNotOptimize(walk.next({}, CellWalk::Direction::Forward).has_value());
    }
}

using Benchmark = void (*)(benchmark::State&, const StatDataset&, const Variables&);

class Registration
{
public:
    explicit Registration(const StatDataset& dataset)
        : m_dataset(dataset)
    { }

    void add(const std::string& name, Benchmark function,
             std::initializer_list<const wchar_t*> names) const
    {
        Variables variables;
        for (const wchar_t* variable : names) {
            variables.push_back(m_dataset.findVariable(variable));
        }
        benchmark::RegisterBenchmark(
            name.c_str(),
            [&dataset = m_dataset, function, variables](benchmark::State& state) {
                function(state, dataset, variables);
            })
            ->Unit(benchmark::kMillisecond)
            ->MinTime(0.3);
    }
    void addFrequency(const std::string& name, std::initializer_list<const wchar_t*> names) const
    {
        add("frequency/" + name, countRows, names);
        add("map-frequency/" + name, countRowsPlainly, names);
    }
    void addSubjects(const std::string& name, std::initializer_list<const wchar_t*> names) const
    {
        add("subjects/" + name, countSubjects, names);
        add("map-subjects/" + name, countSubjectsPlainly, names);
    }

private:
    const StatDataset& m_dataset;
};

void addAll(const StatDataset& dataset)
{
    const Registration registration(dataset);
    registration.addFrequency("text-40", {L"TEST"});
    registration.addFrequency("text-10k", {L"TERM"});
    registration.addFrequency("number-600k", {L"AVAL"});
    registration.addFrequency("two-400", {L"VISIT", L"INVNAM"});
    registration.addFrequency("two-400k", {L"TERM", L"TEST"});
    registration.addSubjects("one", {L"TEST"});
    registration.addSubjects("two", {L"VISIT", L"SITEID"});
    registration.add("statistics/whole", describe, {L"AVAL"});
    registration.add("statistics/by-two", describe, {L"VISIT", L"SITEID", L"AVAL"});
    registration.add("find/nothing", findNothing, {});
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
    addAll(*opened.value().dataset);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

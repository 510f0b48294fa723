#include "analysis/Statistics.h"
#include "data/InMemoryDataset.h"
#include "tests/analysis/RandomDatasets.h"
#include "tests/analysis/ValueOrder.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <map>
#include <numeric>

namespace {

using statistics::Problem;
using Texts = std::vector<std::string>;
using TableRows = std::vector<Texts>;
using Variables = std::vector<int>;

constexpr double missing = ScriptedDataset::missing;

statistics::Table describe(const StatDataset& dataset, const Variables& selected,
                           const Variables& by = {})
{
    return std::get<statistics::Table>(statistics::describe(dataset, selected, by));
}

Problem problemOf(const StatDataset& dataset, const Variables& selected, const Variables& by = {})
{
    return std::get<Problem>(statistics::describe(dataset, selected, by));
}

/// The seven values of one ungrouped sample.
Texts statisticsOf(const std::vector<double>& values)
{
    ScriptedDataset dataset;
    dataset.variable("X", TypeCode::Double);
    dataset.rows(static_cast<int>(values.size()),
                 [&](int row, int) { return values[std::size_t(row)]; });
    Texts texts;
    for (const Texts& row : describe(dataset, {0}).rows) {
        texts.push_back(row.at(1));
    }
    return texts;
}

std::string plainText(double number)
{
    std::array<char, 32> text;
    (void)std::snprintf(text.data(), text.size(), "%g", number);
    return std::isnan(number) ? "nan" : text.data();
}

/// The definition, step by step.
Texts plainStatistics(std::vector<double> values)
{
    std::sort(values.begin(), values.end(), [](double a, double b) {
        return a == b ? std::signbit(a) && !std::signbit(b) : PlainKeyOrder::isLess(a, b);
    });
    const auto n = double(values.size());
    double sum = 0;
    for (const double value : values) {
        sum += value;
    }
    double squares = 0;
    for (const double value : values) {
        squares += std::pow(value - sum / n, 2);
    }
    const std::size_t half = values.size() / 2;
    const double median =
        values.size() % 2 == 1 ? values[half] : (values[half - 1] + values[half]) * 0.5;
    Texts texts;
    for (const double number :
         {n, sum / n, median, values.front(), values.back(), values.back() - values.front(),
          values.size() == 1 ? 0 : std::sqrt(squares / (n - 1))}) {
        texts.push_back(plainText(number));
    }
    return texts;
}

TableRows plainTable(const StatDataset& dataset, int variable, const Variables& by)
{
    std::map<PlainKey, std::vector<double>, PlainKeyOrder> samples;
    for (const int row : plainlySelected(dataset)) {
        samples[plainKey(dataset, by, row)].push_back(dataset.numericValue(row, variable));
    }
    TableRows rows;
    for (const auto& [key, values] : samples) {
        Texts& row = rows.emplace_back();
        for (const PlainValue& value : key) {
            const auto* number = std::get_if<double>(&value);
            row.push_back(number != nullptr ? plainText(*number) : std::get<std::string>(value));
        }
        const Texts texts = plainStatistics(values);
        row.insert(row.end(), texts.begin(), texts.end());
    }
    return rows;
}

TEST(Statistics, areThoseOfSamplesInAnOrderedMap)
{
    std::mt19937 random(20251028);
    const auto many = randomdatasets::ofManyValues(SourceKind::Spss, random);
    EXPECT_EQ(describe(*many, {5}, {2}).rows, plainTable(*many, 5, {2}));
    EXPECT_EQ(describe(*many, {1}, {2, 0}).rows, plainTable(*many, 1, {2, 0}));
    for (int round = 1; round < 100; ++round) {
        SCOPED_TRACE(testing::Message() << "round " << round);
        const auto few = randomdatasets::ofFewValues(SourceKind::Sas, random, 20 + round);
        EXPECT_EQ(describe(*few, {1 + round % 5}, {6, 0}).rows,
                  plainTable(*few, 1 + round % 5, {6, 0}));
    }
}

TEST(Statistics, summariseASampleWithMissingValuesIncludedInAnyOrder)
{
    EXPECT_EQ(statisticsOf({3, 1, 4, 2}), (Texts{"4", "2.5", "2.5", "1", "4", "3", "1.29099"}));
    EXPECT_EQ(statisticsOf({1, missing, 3}), (Texts{"3", "nan", "1", "nan", "3", "nan", "nan"}));
    // Their sum depends on the order of the additions: ascending it is 2, descending 4.
    std::vector<double> values{-1e16, 1, 1.5, 1e16};
    do {
        EXPECT_EQ(statisticsOf(values),
                  (Texts{"4", "0.5", "1.25", "-1e+16", "1e+16", "2e+16", "8.16497e+15"}));
    } while (std::next_permutation(values.begin(), values.end()));
}

TEST(Statistics, writeNumbersWithSixSignificantDigits)
{
    const std::pair<double, const char*> cases[] = {
        {-0.0, "-0"},        {999999, "999999"},          {999999.5, "1e+06"}, {123456.5, "123456"},
        {0.0001, "0.0001"},  {-2.0 / 3, "-0.666667"},     {0.00001, "1e-05"},  {1e100, "1e+100"},
        {-HUGE_VAL, "-inf"}, {1234567.89, "1.23457e+06"}, {-missing, "nan"},
    };
    for (const auto& [number, text] : cases) {
        EXPECT_EQ(statisticsOf({number})[3], text);  // the minimum, which is not computed
    }
}

TEST(Statistics, haveALineForEachStatisticOrForEachGroup)
{
    ScriptedDataset dataset;
    dataset.variable("ARM", TypeCode::Character).variable("AVAL", TypeCode::Double);
    dataset.variable("DAY", TypeCode::Double);
    dataset.row({"Placebo", 4.0, 1.0}).row({"Active", 1.0, 1.0}).row({"Placebo", 8.0, 1.0});

    const statistics::Table whole = describe(dataset, {1, 0});
    EXPECT_EQ(whole.header, (Texts{"AVAL", "Value"}));
    EXPECT_EQ(whole.rows[0], (Texts{"N", "3"}));
    EXPECT_EQ(whole.rows[6], (Texts{"Std Dev", "3.51188"}));
    const statistics::Table grouped = describe(dataset, {1}, {2, 0});
    EXPECT_EQ(grouped.header,
              (Texts{"DAY", "ARM", "N", "Mean", "Median", "Min", "Max", "Range", "Std Dev"}));
    EXPECT_EQ(grouped.rows,
              (TableRows{{"1", "Active", "1", "1", "1", "1", "1", "0", "0"},
                         {"1", "Placebo", "2", "6", "6", "4", "8", "4", "2.82843"}}));
}

TEST(Statistics, sayWhyThereAreNone)
{
    ScriptedDataset dataset;
    dataset.variable("ARM", TypeCode::Character).variable("AVAL", TypeCode::Int16);
    dataset.row({"Placebo", 4.0}).row({"Active", 1.0});
    EXPECT_EQ(problemOf(dataset, {}), Problem::NoColumnSelected);
    EXPECT_EQ(problemOf(dataset, {0, 1}), Problem::NotNumeric) << "only the first one counts";
    dataset.libraryFilterMask().reset();
    EXPECT_EQ(problemOf(dataset, {1}), Problem::NoData);
    EXPECT_EQ(problemOf(dataset, {1}, {0}), Problem::NoData);
    EXPECT_EQ(problemOf(dataset, {0}), Problem::NotNumeric) << "asked before the data";
}

TEST(Statistics, takeTheMissingMarkerOfABuiltDatasetForNan)
{
    InMemoryDatasetBuilder builder;
    builder.addVariable({.name = "X"}).addNumber(2).addMissing();
    const auto dataset = builder.build();
    Texts texts;
    for (const Texts& row : describe(*dataset, {0}).rows) {
        texts.push_back(row.back());
    }
    EXPECT_EQ(texts, (Texts{"2", "nan", "nan", "nan", "2", "nan", "nan"}));
}

TEST(Statistics, drawWhatTheyDescribe)
{
    ScriptedDataset dataset;
    dataset.variable("G", TypeCode::Double).variable("X", TypeCode::Double);
    const std::vector<double> values{7, 1, missing, 2, 4, 8, HUGE_VAL, 3, 5, 6};
    dataset.rows(150, [&](int row, int column) {
        return column == 0 ? row / 10.0 - row % 10 / 10.0 : values[std::size_t(row % 10)];
    });
    const Distribution first = describe(dataset, {1}, {0}).drawn.at(0);
    EXPECT_EQ(first.label, "0");
    EXPECT_EQ(first.count, 8U);
    EXPECT_EQ(first.leftOut, 2U);
    EXPECT_EQ((std::vector{first.minimum, first.lowerQuartile, first.median, first.upperQuartile,
                           first.maximum}),
              (std::vector{1.0, 2.5, 4.5, 6.5, 8.0}));
    EXPECT_EQ(first.firstEdge, 0);
    EXPECT_EQ(first.barWidth, 2);
    EXPECT_EQ(first.bars, (std::vector<std::size_t>{1, 2, 2, 2, 1})) << "an edge counts upwards";
    EXPECT_EQ(describe(dataset, {1}, {0}).drawn.size(), 12U) << "of fifteen groups";

    for (const std::vector<double>& sample :
         {std::vector{0.5}, {missing}, {-1e308, 1e308}, {1, std::nextafter(1, 2)}, {5, 5, 5}}) {
        const Distribution drawn = distributionOf(sample);
        const std::size_t inBars = std::accumulate(drawn.bars.begin(), drawn.bars.end(), 0U);
        EXPECT_TRUE(inBars == drawn.count || inBars == 0U);
        EXPECT_EQ(drawn.count + drawn.leftOut, sample.size());
    }
    EXPECT_EQ(distributionOf(std::vector{5.0, 5.0, 5.0}).bars, std::vector<std::size_t>{3});
}

}  // namespace

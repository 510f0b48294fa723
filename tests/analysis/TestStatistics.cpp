#include "analysis/Statistics.h"
#include "data/InMemoryDataset.h"
#include "tests/support/ScriptedDataset.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace {

using statistics::Problem;
using Texts = std::vector<std::string>;
using TableRows = std::vector<Texts>;
using Variables = std::vector<int>;

constexpr double missing = ScriptedDataset::missing;
const Texts labels{"N", "Mean", "Median", "Min", "Max", "Range", "Std Dev"};

statistics::Table describe(const StatDataset& dataset, const Variables& selected,
                           const Variables& by = {})
{
    return std::get<statistics::Table>(statistics::describe(dataset, selected, by));
}

Problem problem(const StatDataset& dataset, const Variables& selected, const Variables& by = {})
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

struct SampleCase
{
    const char* what;
    std::vector<double> values;
    Texts expected;  ///< N, mean, median, minimum, maximum, range, standard deviation
};

const SampleCase sampleCases[] = {
    {"one value", {42.5}, {"1", "42.5", "42.5", "42.5", "42.5", "0", "0"}},
    {"an even count, unsorted", {3, 1, 4, 2}, {"4", "2.5", "2.5", "1", "4", "3", "1.29099"}},
    // Deviations from 4: -6, -3, 1, 3, 5; 80 / 4 = 20.
    {"an odd count", {9, -2, 5, 1, 7}, {"5", "4", "5", "-2", "9", "11", "4.47214"}},
    {"a large number",
     {1234567.89},
     {"1", "1.23457e+06", "1.23457e+06", "1.23457e+06", "1.23457e+06", "0", "0"}},
    {"equal values", {7, 7, 7}, {"3", "7", "7", "7", "7", "0", "0"}},
    {"missing among three", {1, missing, 3}, {"3", "nan", "1", "nan", "3", "nan", "nan"}},
    {"missing in the middle", {5, missing}, {"2", "nan", "nan", "nan", "5", "nan", "nan"}},
    {"only missing", {missing}, {"1", "nan", "nan", "nan", "nan", "nan", "0"}},
    {"the marker of built datasets",
     {-HUGE_VAL, 2, 4},
     {"3", "-inf", "2", "-inf", "4", "inf", "nan"}},
    {"both zeros", {0.0, -0.0}, {"2", "0", "0", "-0", "0", "0", "0"}},
};

TEST(Statistics, summariseASampleWithMissingValuesIncluded)
{
    for (const SampleCase& c : sampleCases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(statisticsOf(c.values), c.expected);
    }
}

TEST(Statistics, summariseLargeSamples)
{
    // 1 ... 1000: the variance is 1000 x 1001 / 12.
    std::vector<double> values(1000);
    for (std::size_t i = 0; i < values.size(); ++i) {
        values[i] = static_cast<double>((i * 389) % 1000 + 1);
    }
    EXPECT_EQ(statisticsOf(values),
              (Texts{"1000", "500.5", "500.5", "1", "1000", "999", "288.819"}));
}

TEST(Statistics, doNotDependOnTheOrderOfTheRows)
{
    // Their sum depends on the order of the additions: ascending, the 1 is lost.
    std::vector<double> values{-1e16, 1, 1e16};
    do {
        EXPECT_EQ(statisticsOf(values),
                  (Texts{"3", "0", "1", "-1e+16", "1e+16", "2e+16", "1e+16"}));
    } while (std::next_permutation(values.begin(), values.end()));
}

TEST(Statistics, writeNumbersWithSixSignificantDigits)
{
    const struct
    {
        double number;
        const char* text;
    } cases[] = {
        {0.0, "0"},          {-0.0, "-0"},         {12.5, "12.5"},
        {100000, "100000"},  {999999, "999999"},   {1000000, "1e+06"},
        {999999.5, "1e+06"}, {123456.5, "123456"}, {-2.0 / 3, "-0.666667"},
        {0.0001, "0.0001"},  {0.00001, "1e-05"},   {1e100, "1e+100"},
        {HUGE_VAL, "inf"},   {-HUGE_VAL, "-inf"},  {missing, "nan"},
        {-missing, "nan"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(statistics::numberText(c.number), c.text);
    }
}

class GroupedStatistics : public testing::Test
{
protected:
    void SetUp() override
    {
        m_dataset.variable("ARM", TypeCode::Character)
            .variable("VISIT", TypeCode::Double)
            .variable("AVAL", TypeCode::Double);
        m_dataset.row({"Placebo", 10.0, 4.0})
            .row({"Active", 9.0, 1.0})
            .row({"Placebo", missing, 8.0})
            .row({"Active", 10.0, 7.0})
            .row({"Placebo", 10.0, 6.0})
            .row({"Active", 9.0, 3.0});
    }

    ScriptedDataset m_dataset;
};

TEST_F(GroupedStatistics, haveALineForEachStatisticWithoutGroups)
{
    const statistics::Table table = describe(m_dataset, {2, 0});
    EXPECT_EQ(table.header, (Texts{"AVAL", "Value"}));
    // The sum is 29 and that of the squares 175: the variance is (175 - 29 x 29 / 6) / 5 = 6.96667.
    EXPECT_EQ(table.rows,
              (TableRows{{"N", "6"},
                         {"Mean", "4.83333"},
                         {"Median", "5"},
                         {"Min", "1"},
                         {"Max", "8"},
                         {"Range", "7"},
                         {"Std Dev", "2.63944"}}));
}

TEST_F(GroupedStatistics, haveALineForEachGroupInTheOrderOfItsValues)
{
    const statistics::Table byArm = describe(m_dataset, {2}, {0});
    Texts header{"ARM"};
    header.insert(header.end(), labels.begin(), labels.end());
    EXPECT_EQ(byArm.header, header);
    EXPECT_EQ(byArm.rows,
              (TableRows{{"Active", "3", "3.66667", "3", "1", "7", "6", "3.05505"},
                         {"Placebo", "3", "6", "6", "4", "8", "4", "2"}}));

    const statistics::Table byBoth = describe(m_dataset, {2}, {1, 0});
    header.insert(header.begin(), "VISIT");
    EXPECT_EQ(byBoth.header, header);
    EXPECT_EQ(byBoth.rows,
              (TableRows{{"nan", "Placebo", "1", "8", "8", "8", "8", "0", "0"},
                         {"9", "Active", "2", "2", "2", "1", "3", "2", "1.41421"},
                         {"10", "Active", "1", "7", "7", "7", "7", "0", "0"},
                         {"10", "Placebo", "2", "5", "5", "4", "6", "2", "1.41421"}}));
}

TEST_F(GroupedStatistics, takeOnlyRowsThatBothFiltersSelect)
{
    m_dataset.libraryFilterMask().reset(0);
    m_dataset.datasetFilterMask().reset(2);
    EXPECT_EQ(describe(m_dataset, {2}, {0}).rows,
              (TableRows{{"Active", "3", "3.66667", "3", "1", "7", "6", "3.05505"},
                         {"Placebo", "1", "6", "6", "6", "6", "0", "0"}}));
    EXPECT_EQ(describe(m_dataset, {2}).rows.front(), (Texts{"N", "4"}));
}

TEST_F(GroupedStatistics, takeTheAnalysisVariableAsAGroupToo)
{
    EXPECT_EQ(describe(m_dataset, {1}, {1}).rows,
              (TableRows{{"nan", "1", "nan", "nan", "nan", "nan", "nan", "0"},
                         {"9", "2", "9", "9", "9", "9", "0", "0"},
                         {"10", "3", "10", "10", "10", "10", "0", "0"}}));
}

TEST_F(GroupedStatistics, sayWhyThereAreNone)
{
    EXPECT_EQ(problem(m_dataset, {}), Problem::NoColumnSelected);
    EXPECT_EQ(problem(m_dataset, {0, 2}), Problem::NotNumeric) << "only the first one counts";
    m_dataset.libraryFilterMask().reset();
    EXPECT_EQ(problem(m_dataset, {2}), Problem::NoData);
    EXPECT_EQ(problem(m_dataset, {2}, {0, 1}), Problem::NoData);
    EXPECT_EQ(problem(m_dataset, {0}), Problem::NotNumeric) << "asked before the data";
}

TEST(Statistics, describeTheNarrowNumericTypes)
{
    ScriptedDataset dataset;
    dataset.variable("N", TypeCode::Int16).variable("F", TypeCode::Float);
    dataset.row({3.0, 0.5}).row({5.0, 0.25});
    EXPECT_EQ(describe(dataset, {0}).rows[1], (Texts{"Mean", "4"}));
    EXPECT_EQ(describe(dataset, {1}, {0}).rows[0],
              (Texts{"3", "1", "0.5", "0.5", "0.5", "0.5", "0", "0"}));
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

}  // namespace

#include "analysis/comparison/ComparedTexts.h"
#include "analysis/comparison/CompareReport.h"
#include "analysis/comparison/PairStatistics.h"
#include "analysis/comparison/ReportTable.h"
#include "tests/support/ScriptedDataset.h"

#include <gtest/gtest.h>

#include <QString>

#include <algorithm>
#include <cmath>
#include <sstream>

namespace {

using comparison::Comparison;
using comparison::ReportOptions;
using comparison::Request;

class Dataset : public ScriptedDataset
{
public:
    explicit Dataset(const std::string& name) { tableName(name); }
    void setFormat(std::size_t variable, std::string format)
    {
        m_formats[variable] = std::move(format);
    }
};

/// The lines of a report without their margins; what comes more than once between words is kept.
std::vector<std::string> linesOf(const std::string& report)
{
    std::vector<std::string> lines;
    std::istringstream stream(report);
    for (std::string line; std::getline(stream, line);) {
        const std::size_t start = line.find_first_not_of(' ');
        if (start != std::string::npos) {
            lines.push_back(line.substr(start));
        }
    }
    return lines;
}

using Lines = std::vector<std::string>;

class CompareReport : public testing::Test
{
protected:
    void SetUp() override
    {
        for (Dataset* dataset : {&m_base, &m_compare}) {
            dataset->variable("ID", TypeCode::Double);
            dataset->variable("SEX", TypeCode::Character, "Sex", 1);
            dataset->variable("AVAL", TypeCode::Double, "Analysis Value");
        }
        m_base.variable("OLD", TypeCode::Character, "", 3);
        m_compare.setFormat(2, "8.1");
        m_base.row({1.0, "M", 10.0, ""}).row({2.0, "F", missing, ""}).row({2.0, "F", 4.0, ""});
        m_base.row({3.0, "F", 0.0, ""});
        m_compare.row({1.0, "M", 10.0}).row({2.0, "m", 3.0}).row({4.0, "F", 8.0});
        m_compare.row({5.0, "F", 8.0});
    }

    [[nodiscard]] std::string text(const ReportOptions& options = {}, const Request& request = {})
    {
        m_result.emplace(std::move(Comparison::of(m_base, m_compare, request).value()));
        return reportText(*m_result, options);
    }
    /// From the line that is `from` up to the one that is `to`, both left out.
    static Lines part(const std::string& report, const std::string& from, const std::string& to)
    {
        const Lines lines = linesOf(report);
        const auto begin = std::find(lines.begin(), lines.end(), from);
        const auto end = std::find(begin, lines.end(), to);
        EXPECT_NE(begin, lines.end()) << from << " is not in\n" << report;
        return begin == lines.end() ? Lines() : Lines(begin + 1, end);
    }

    static constexpr double missing = ScriptedDataset::missing;
    Dataset m_base{"A"};
    Dataset m_compare{"B"};
    std::optional<Comparison> m_result;
};

TEST_F(CompareReport, summarisesVariablesAndObservations)
{
    const std::string report = text({.lineSize = 80}, {.id = {"ID"}});
    EXPECT_EQ(
        part(report, "Variables Summary",
             "Listing of Common Variables with Differing "
             "Attributes"),
        (Lines{"Number of Variables in Common: 3.", "Number of Variables in A but not in B: 1.",
               "Number of Variables with Differing Attributes: 1.", "Number of ID Variables: 1."}));
    EXPECT_EQ(
        part(report, "Observation Summary", "Values Comparison Summary"),
        (Lines{"Observation        Base   Compare  ID", "First Obs             1         1  ID=1",
               "First Unequal         2         2  ID=2", "Last  Unequal         2         2  ID=2",
               "Last  Match           2         2  ID=2", "Last  Obs             4         .  ID=3",
               "Last  Obs             .         4  ID=5", "Number of Observations in Common: 2.",
               "Number of Observations in A but not in B: 2.",
               "Number of Observations in B but not in A: 2.",
               "Number of Duplicate Observations found in A: 1.",
               "Total Number of Observations Read from A: 4.",
               "Total Number of Observations Read from B: 4.",
               "Number of Observations with Some Compared Variables Unequal: 1.",
               "Number of Observations with All Compared Variables Equal: 1."}));
    EXPECT_NE(report.find("NOTE: The data set A contains a duplicate observation at observation "
                          "number 3:"),
              std::string::npos)
        << report;
}

TEST_F(CompareReport, summarisesAndListsValues)
{
    const std::string report = text({.lineSize = 80});
    EXPECT_EQ(part(report, "Values Comparison Summary", "Value Comparison Results for Variables"),
              (Lines{"Number of Variables Compared with All Observations Equal: 0.",
                     "Number of Variables Compared with Some Observations Unequal: 3.",
                     "Number of Variables with Missing Value Differences: 1.",
                     "Total Number of Values which Compare Unequal: 6.", "Maximum Difference: 8.",
                     "All Variables Compared have Unequal Values",
                     "Variable  Type  Len  Label           Ndif  MaxDif  MissDif",
                     "ID        NUM     8                     2   2.000        0",
                     "SEX       CHAR    1  Sex                1                0",
                     "AVAL      NUM     8  Analysis Value     3   8.000        1"}));
    const Lines values = part(report, "Value Comparison Results for Variables", "");
    const Lines sex{"||  Sex",
                    "||  Base Value            Compare Value",
                    "Obs  ||  SEX                   SEX",
                    "________  ||  ____________________  ____________________",
                    "||",
                    "2  ||  F                     m",
                    "________________________________________________________"};
    const auto begin = std::find(values.begin(), values.end(), "||  Sex");
    ASSERT_NE(begin, values.end()) << report;
    EXPECT_EQ(Lines(begin, begin + 7), sex);
    const Lines rows(begin + 13, values.end());
    EXPECT_EQ(rows,
              (Lines{"2  ||          .          3          .          .",
                     "3  ||          4          8     4.0000   100.0000",
                     "4  ||          0          8     8.0000          .",
                     "________________________________________________________"}));
}

TEST_F(CompareReport, theLastObservationsOfOneSideComeAfterTheLastMatch)
{
    m_compare.datasetFilterMask().reset(3);
    const Lines lines = part(text(), "Observation Summary", "Values Comparison Summary");
    ASSERT_GT(lines.size(), 6U);
    EXPECT_EQ(Lines(lines.begin() + 3, lines.begin() + 7),
              (Lines{"Last  Unequal         3         3", "Last  Match           3         3",
                     "Last  Obs             4         .", "Number of Observations in Common: 3."}));
}

TEST(ReportTable, textsGiveWayAndNumbersDoNot)
{
    comparison::ReportTable table({{"Name", false, true, 4}, {"N", true}});
    table.add({"one two three", "1234567890123"});
    EXPECT_EQ(
        table.lines(22),
        (Lines{"Name                 N", "", "one two  1234567890123", "three                 "}));
    EXPECT_EQ(comparison::wrapped("abcdefgh i", 3), (Lines{"abc", "def", "gh", "i"}));
}

TEST_F(CompareReport, listsWhatIsAskedFor)
{
    ReportOptions all;
    all.listAll();
    const std::string report = text(all, {.id = {"ID"}, .var = {"SEX"}, .criterion = 1});
    EXPECT_EQ(part(report, "Listing of Variables in A but not in B",
                   "Listing of Common Variables with Differing Attributes"),
              (Lines{"Variable  Type  Length  Format  Label", "OLD       Char       3"}));
    EXPECT_EQ(part(report, "Comparison Results for Observations", "Observation Summary"),
              (Lines{"Observation 3 in A not found in B: ID=2.",
                     "Observation 4 in A not found in B: ID=3.",
                     "Observation 3 in B not found in A: ID=4.",
                     "Observation 4 in B not found in A: ID=5."}));
    EXPECT_NE(report.find("(Method=RELATIVE(2.22E-15), Criterion=1)"), std::string::npos) << report;
    all.brief = true;
    all.values = false;
    EXPECT_EQ(linesOf(text(all, {.id = {"ID"}, .var = {"AVAL", "SEX"}, .with = {"ID"}})).back(),
              "Observation 4 in B not found in A: ID=5.");
    const std::string brief =
        text({.brief = true, .values = false}, {.var = {"ID"}, .with = {"AVAL"}});
    EXPECT_NE(brief.find("NOTE: Values of the following 1 variables compare unequal: ID^=AVAL"),
              std::string::npos)
        << brief;
    EXPECT_NE(brief.find("NOTE: Data set A contains 1 variables not in B."), std::string::npos);
    EXPECT_EQ(brief.find("Summary"), std::string::npos);
}

TEST_F(CompareReport, equalValuesAreListedOrSaid)
{
    const Comparison same = std::move(Comparison::of(m_base, m_base, {}).value());
    const std::string report = reportText(same, {.listEqualVariables = true});
    EXPECT_NE(report.find("NOTE: No unequal values were found. All values compared are exactly "
                          "equal.\n"),
              std::string::npos);
    EXPECT_EQ(report.find("Values Comparison Summary"), std::string::npos);
    EXPECT_NE(report.find("Comparison of BASE.A with COMPARE.A"), std::string::npos);
    EXPECT_EQ(part(report, "Variables with All Equal Values", "").size(), 5U);
    const std::string within =
        text({}, {.var = {"AVAL"}, .criterion = 8, .missingBaseEqualsAll = true});
    EXPECT_NE(within.find("which Compare Unequal: 0."), std::string::npos) << within;
    EXPECT_NE(within.find("not EXACTLY Equal: 3."), std::string::npos);
    EXPECT_NE(within.find("Maximum Difference Criterion Value: 2."), std::string::npos)
        << "(8 - 0) / 4";
}

TEST_F(CompareReport, printsNoMoreValuesThanAllowed)
{
    const auto count = [](const std::string& report, const std::string& what) {
        std::size_t found = 0;
        for (std::size_t at = report.find(what); at != std::string::npos;
             at = report.find(what, at + 1)) {
            ++found;
        }
        return found;
    };
    const std::string perVariable = text({.maxPerVariable = 2});
    EXPECT_NE(perVariable.find("MAXPRINT=2 printing limit has been reached for the variable AVAL"),
              std::string::npos)
        << perVariable;
    EXPECT_EQ(count(perVariable, "MAXPRINT"), 1U) << "ID has two values and hides none";
    EXPECT_EQ(count(perVariable, "8.0000"), 0U);
    const std::string total = text({.maxTotal = 4});
    EXPECT_EQ(count(total, "  .          3  "), 1U);
    EXPECT_EQ(count(total, "4.0000"), 0U);
    EXPECT_EQ(count(total, "NOTE: The MAXPRINT=4 printing limit has been reached."), 1U);
    EXPECT_EQ(count(text({.maxTotal = 6}), "MAXPRINT"), 0U);
    const std::string fuzzy = text({.fuzz = 1}, {.var = {"AVAL"}, .with = {"ID"}});
    EXPECT_NE(fuzzy.find("4  ||          0          5"), std::string::npos) << fuzzy;
}

TEST_F(CompareReport, goesByObservationWhenTransposed)
{
    EXPECT_EQ(part(text({.transpose = true}), "Comparison Results for Observations", ""),
              (Lines{"_OBS_1=2  _OBS_2=2:", "Variable  Base Value    Compare      Diff.     % Diff",
                     "SEX                F          m",
                     "AVAL               .          3          .          .",
                     "_OBS_1=3  _OBS_2=3:", "Variable  Base Value    Compare      Diff.     % Diff",
                     "ID                 2          4     2.0000   100.0000",
                     "AVAL               4          8     4.0000   100.0000",
                     "_OBS_1=4  _OBS_2=4:", "Variable  Base Value    Compare      Diff.     % Diff",
                     "ID                 3          5     2.0000    66.6667",
                     "AVAL               0          8     8.0000          ."}));
}

TEST_F(CompareReport, keepsToTheLineWithLongNamesAndTexts)
{
    const std::string longName = "AN_EXTREMELY_LONG_VARIABLE_NAME_";
    Dataset base("BASE_" + longName);
    Dataset compare("COMPARE_" + longName);
    for (Dataset* dataset : {&base, &compare}) {
        dataset->variable(longName + "1", TypeCode::Character, std::string(120, 'l'), 200);
        dataset->variable(longName + "2", TypeCode::Character, "a label in words " + longName, 200);
        dataset->variable(longName + "3", TypeCode::Double, std::string(40, 'x'));
    }
    compare.setFormat(2, "DATETIME22.3");
    const std::string key(90, 'k');
    base.row({key, "stands alone, \xC3\xA4\xC3\xB6\xC3\xBC", 1e300}).row({"j", "same", 1.0});
    compare.row({key, "stands along\nwith others", 2.0}).row({"j", "same", 1.0});
    ReportOptions options{.statistics = true};
    options.listAll();
    for (const int size : {80, 96, 256}) {
        options.lineSize = size;
        for (const bool transpose : {false, true}) {
            options.transpose = transpose;
            const auto result =
                Comparison::of(base, compare, {.id = {longName + "1", longName + "3"}});
            const auto byPosition = Comparison::of(base, compare, {});
            for (const auto* one : {&result, &byPosition}) {
                std::istringstream stream(reportText(one->value(), options));
                for (std::string line; std::getline(stream, line);) {
                    EXPECT_LE(QString::fromStdString(line).size(), size) << line;
                }
            }
        }
    }
    options.transpose = false;
    const std::string report =
        reportText(Comparison::of(base, compare, {.var = {longName + "2"}}).value(), options);
    EXPECT_NE(report.find("stands alone, \xC3\xA4\xC3\xB6\xC3\xBC  "), std::string::npos) << report;
    EXPECT_NE(report.find("stands along\\nwith o+"), std::string::npos) << "20 characters";
}

TEST_F(CompareReport, statisticsDescribeThePairs)
{
    const Comparison result = std::move(Comparison::of(m_base, m_compare, {.var = {"ID"}}).value());
    // 1 2 2 3 and 1 2 4 5: differences 0 0 2 2, percents 0 0 100 66.67.
    const auto statistics = pairStatistics(result, result.values()[0]);
    const auto& [base, compare, differences, percents] = statistics.samples;
    EXPECT_EQ(base.mean, 2);
    EXPECT_NEAR(compare.standardDeviation, std::sqrt(10 / 3.0), 1e-12);
    EXPECT_EQ(differences.maximum, 2);
    EXPECT_EQ(differences.minimum, 0);
    EXPECT_NEAR(differences.standardError, std::sqrt(1 / 3.0), 1e-12);
    EXPECT_NEAR(differences.t, std::sqrt(3.0), 1e-12);
    EXPECT_NEAR(differences.probability, 0.1816901138, 1e-9) << "t with 3 degrees of freedom";
    EXPECT_NEAR(percents.mean, 125 / 3.0, 1e-12);
    EXPECT_EQ(statistics.percentUnequal, 50);
    EXPECT_EQ(statistics.meansByBase, 50);
    EXPECT_NEAR(statistics.meansByCompare, 100 / 3.0, 1e-12);
    EXPECT_NEAR(statistics.correlation, 4 / std::sqrt(20.0), 1e-12);
}

TEST(ComparedTexts, differencesFitNineCharacters)
{
    using comparison::differenceText;
    EXPECT_EQ(differenceText(-21.27659), "-21.2766");
    EXPECT_EQ(differenceText(123456.789), "123456.79");
    EXPECT_EQ(differenceText(-12345678.9), "-12345679");
    EXPECT_EQ(differenceText(1.5e300), "1.50E+300");
    EXPECT_EQ(differenceText(-0.00001234), "-1.23E-05");
    EXPECT_EQ(differenceText(0), "0.0000");
    EXPECT_EQ(comparison::criterionText(0.0000001), "0.0000001");
    EXPECT_EQ(comparison::criterionText(0.1), "0.1");
    EXPECT_EQ(comparison::criterionText(2.220446049250313e-13), "2.22045E-13");
}

TEST(ComparedTexts, numbersThatLookAlikeAreShownAsStored)
{
    class Rounded : public Dataset
    {
    public:
        using Dataset::Dataset;
        [[nodiscard]] std::string cellText(int row, int column) const override
        {
            return std::to_string(std::lround(numericValue(row, column)));
        }
    };
    Rounded base("A");
    Rounded compare("B");
    base.variable("X", TypeCode::Double).row({1.25}).row({1.25});
    compare.variable("X", TypeCode::Double).row({1.375}).row({7.25});
    base.setFormat(0, "8.");
    compare.setFormat(0, "8.");
    const Comparison result = std::move(Comparison::of(base, compare, {}).value());
    const auto shown = [&](std::uint32_t row) {
        const auto texts = valueTexts(result, result.values()[0], {row, row});
        return texts.base + ' ' + texts.compare;
    };
    EXPECT_EQ(shown(0), "1.25 1.375");
    EXPECT_EQ(shown(1), "1 7");
}

}  // namespace

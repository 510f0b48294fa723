#include "FileReader.h"
#include "StudyTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace {

using samples::Study;
using samples::Table;
using Names = std::vector<std::string>;

std::vector<std::string> allTexts(const Study& made)
{
    std::vector<std::string> all;
    for (const auto& table : made.tables()) {
        const auto texts = cellTexts(table);
        all.insert(all.end(), texts.begin(), texts.end());
    }
    return all;
}

TEST(Study, theSameSeedMakesTheSameStudy)
{
    EXPECT_EQ(allTexts(Study(7, 40)), allTexts(Study(7, 40)));
    EXPECT_NE(allTexts(Study(7, 40)), allTexts(Study(8, 40)));
}

TEST(Study, hasTheDatasetsOfATrial)
{
    struct Case
    {
        const char* name;
        std::size_t fewest;
        std::size_t most;
    };
    const Case cases[] = {{"DM", 260, 260},      {"SUPPDM", 780, 1300}, {"AE", 500, 1200},
                          {"SUPPAE", 500, 5000}, {"EX", 600, 800},      {"LB", 17000, 21000},
                          {"VS", 10000, 14000},  {"ADSL", 260, 260},    {"ADAE", 500, 1200}};
    ASSERT_EQ(study().tables().size(), std::size(cases));
    for (const auto& [name, fewest, most] : cases) {
        const auto& table = study().table(name);
        EXPECT_GE(table.rows.size(), fewest) << name;
        EXPECT_LE(table.rows.size(), most) << name;
    }
    EXPECT_THROW((void)study().table("XX"), std::out_of_range);
}

void expectFitsTransport(const Table& table)
{
    EXPECT_LE(table.name.size(), 8U);
    EXPECT_LE(table.label.size(), 40U);
    std::set<std::string> names;
    for (const auto& column : table.columns) {
        EXPECT_TRUE(names.insert(column.name).second) << column.name;
        EXPECT_LE(column.name.size(), 8U) << column.name;
        EXPECT_LE(column.label.size(), 40U) << column.label;
        EXPECT_FALSE(column.label.empty()) << column.name;
        EXPECT_LE(column.length, 200) << column.name;
    }
}

void expectRightCells(const Table& table)
{
    for (const auto& row : table.rows) {
        ASSERT_EQ(row.size(), table.columns.size());
        for (std::size_t i = 0; i < row.size(); ++i) {
            const auto* const text = std::get_if<std::string>(&row[i]);
            ASSERT_EQ(text != nullptr, table.columns[i].character) << table.columns[i].name;
            if (text != nullptr) {
                ASSERT_LE(static_cast<int>(text->size()), table.columns[i].length) << *text;
            }
        }
    }
}

TEST(Study, everyDatasetFitsAVersion5TransportFile)
{
    for (const auto& table : study().tables()) {
        SCOPED_TRACE(table.name);
        expectFitsTransport(table);
        expectRightCells(table);
    }
}

TEST(Study, keysAreUnique)
{
    const Names supplementalKey{"STUDYID", "USUBJID", "IDVAR", "IDVARVAL", "QNAM"};
    const std::pair<const char*, Names> cases[] = {
        {"DM", {"USUBJID"}},
        {"SUPPDM", supplementalKey},
        {"AE", {"USUBJID", "AESEQ"}},
        {"AE", {"USUBJID", "AESPID"}},
        {"SUPPAE", supplementalKey},
        {"EX", {"USUBJID", "EXSEQ"}},
        {"EX", {"USUBJID", "EXSTDTC"}},
        {"LB", {"USUBJID", "LBSEQ"}},
        {"LB", {"USUBJID", "LBTESTCD", "VISITNUM", "VISIT", "LBDTC"}},
        {"VS", {"USUBJID", "VSSEQ"}},
        {"ADSL", {"USUBJID"}},
        {"ADAE", {"USUBJID", "AESEQ"}},
    };
    for (const auto& [name, columns] : cases) {
        const StudyTable table(name);
        EXPECT_EQ(table.rowsBy(columns).size(), table.rowCount()) << name << " " << columns.back();
    }
}

TEST(Study, everySubjectIsInDemographics)
{
    const auto subjects = StudyTable("DM").rowsBy(Names{"STUDYID", "USUBJID"});
    for (const auto& made : study().tables()) {
        const StudyTable table(made.name);
        for (std::size_t row = 0; row < table.rowCount(); ++row) {
            ASSERT_TRUE(subjects.contains(table.key(row, Names{"STUDYID", "USUBJID"})))
                << made.name << " row " << row;
        }
    }
}

TEST(Study, supplementalRowsPointToTheirParents)
{
    const StudyTable supplemental("SUPPAE");
    const StudyTable events("AE");
    const std::map<std::string, std::map<std::string, std::size_t>> parents{
        {"AESEQ", events.rowsBy(Names{"USUBJID", "AESEQ"})},
        {"AESPID", events.rowsBy(Names{"USUBJID", "AESPID"})}};
    std::map<std::string, std::set<std::string>> idVariablesOf;
    for (std::size_t row = 0; row < supplemental.rowCount(); ++row) {
        const auto& idVariable = supplemental.text(row, "IDVAR");
        ASSERT_TRUE(parents.contains(idVariable)) << idVariable;
        ASSERT_TRUE(
            parents.at(idVariable).contains(supplemental.key(row, Names{"USUBJID", "IDVARVAL"})));
        EXPECT_EQ(supplemental.text(row, "RDOMAIN"), "AE");
        EXPECT_NE(supplemental.text(row, "QVAL"), "");
        idVariablesOf[supplemental.text(row, "QNAM")].insert(idVariable);
    }
    const decltype(idVariablesOf) expected{
        {"AECOMM", {"AESEQ", "AESPID"}}, {"AECRFPG", {"AESPID"}}, {"AETRTEM", {"AESEQ"}}};
    EXPECT_EQ(idVariablesOf, expected);

    const StudyTable ofSubjects("SUPPDM");
    for (std::size_t row = 0; row < ofSubjects.rowCount(); ++row) {
        EXPECT_EQ(ofSubjects.key(row, Names{"RDOMAIN", "IDVAR", "IDVARVAL"}), "DM|||");
    }
}

TEST(Study, codedColumnsHoldTheirTermsAndAllOfThem)
{
    struct Case
    {
        const char* table;
        const char* column;
        std::set<std::string> terms;
    };
    const Case cases[] = {
        {"DM", "SEX", {"F", "M"}},
        {"DM",
         "RACE",
         {"WHITE", "ASIAN", "BLACK OR AFRICAN AMERICAN", "OTHER", "NOT REPORTED", "UNKNOWN"}},
        {"DM", "ARMCD", {"PBO", "OZQ10", "OZQ20", "SCRNFAIL"}},
        {"DM", "DTHFL", {"", "Y"}},
        {"AE", "AESEV", {"MILD", "MODERATE", "SEVERE"}},
        {"AE", "AESER", {"N", "Y"}},
        {"AE", "EPOCH", {"", "SCREENING", "TREATMENT", "FOLLOW-UP"}},
        {"LB", "LBTESTCD", {"ALT", "AST", "BILI", "CREAT", "GLUC", "HGB", "K", "WBC"}},
        {"LB", "LBNRIND", {"", "LOW", "NORMAL", "HIGH"}},
        {"LB", "LBSTAT", {"", "NOT DONE"}},
        {"VS", "VSTESTCD", {"SYSBP", "DIABP", "PULSE", "TEMP", "WEIGHT", "HEIGHT"}},
        {"EX", "EXADJ", {"", "ADVERSE EVENT"}},
        {"SUPPDM", "QNAM", {"BRTHPLC", "ITT", "NATLANG", "RACEOTH", "SAFETY"}},
        {"SUPPDM", "QORIG", {"CRF", "DERIVED"}},
        {"ADAE", "ASTDTF", {"", "D", "M"}},
        {"ADAE", "TRTEMFL", {"", "Y"}},
    };
    for (const auto& row : cases) {
        const StudyTable table(row.table);
        std::set<std::string> found;
        for (std::size_t i = 0; i < table.rowCount(); ++i) {
            found.insert(table.text(i, row.column));
        }
        EXPECT_EQ(found, row.terms) << row.table << " " << row.column;
    }
}

TEST(Study, laboratoryResultsAgreeWithTheirRangesAndStatus)
{
    const StudyTable table("LB");
    int belowLimit = 0;
    for (std::size_t row = 0; row < table.rowCount(); ++row) {
        const double result = table.number(row, "LBSTRESN");
        const auto& shown = table.text(row, "LBSTRESC");
        const bool isDone = table.text(row, "LBSTAT").empty();
        ASSERT_EQ(isDone, !table.text(row, "LBORRES").empty());
        ASSERT_EQ(isDone, table.text(row, "LBREASND").empty());
        if (!shown.empty() && shown.front() == '<') {
            ASSERT_TRUE(std::isnan(result));
            ASSERT_EQ(table.text(row, "LBNRIND"), "LOW");
            ++belowLimit;
        } else if (isDone) {
            ASSERT_EQ(std::stod(shown), result);
            const auto* const expected = result < table.number(row, "LBSTNRLO") ? "LOW"
                : result > table.number(row, "LBSTNRHI")                        ? "HIGH"
                                                                                : "NORMAL";
            ASSERT_EQ(table.text(row, "LBNRIND"), expected);
        } else {
            ASSERT_TRUE(std::isnan(result));
        }
    }
    EXPECT_GT(belowLimit, 0);
}

TEST(Study, baselineInTheAnalysisIsTheOneMeasured)
{
    const StudyTable vitals("VS");
    const StudyTable analysis("ADSL");
    const auto rows = vitals.rowsBy(Names{"USUBJID", "VSTESTCD", "VSBLFL"});
    for (std::size_t row = 0; row < analysis.rowCount(); ++row) {
        const auto& subject = analysis.text(row, "USUBJID");
        const auto weight = rows.find(subject + "|WEIGHT|Y|");
        ASSERT_EQ(weight != rows.end(), analysis.text(row, "SAFFL") == "Y") << subject;
        if (weight == rows.end()) {
            EXPECT_TRUE(std::isnan(analysis.number(row, "WEIGHTBL")));
            continue;
        }
        const double kilograms = analysis.number(row, "WEIGHTBL");
        EXPECT_EQ(kilograms, vitals.number(weight->second, "VSSTRESN"));
        const double metres = vitals.number(rows.at(subject + "|HEIGHT|Y|"), "VSSTRESN") / 100;
        EXPECT_NEAR(analysis.number(row, "BMIBL"), kilograms / metres / metres, 0.0051);
    }
}

TEST(Study, holdsLongTextsAndLettersOfManyScripts)
{
    std::size_t longest = 0;
    const StudyTable comments("SUPPAE");
    for (std::size_t row = 0; row < comments.rowCount(); ++row) {
        longest = std::max(longest, comments.text(row, "QVAL").size());
    }
    EXPECT_GE(longest, 190U);

    std::string all;
    for (const auto& cell : allTexts(study())) {
        all += cell + "\n";
    }
    for (const auto* const text : {"ö", "Ł", "Ελληνικά", "日本語", "≥", "'", "\"", "&", "<", "%"}) {
        EXPECT_NE(all.find(text), std::string::npos) << text;
    }
}

}  // namespace

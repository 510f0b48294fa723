#include "samples/Study.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace {

using namespace samples;

const std::string head = "VS,\"Vital, signs\"\n"
                         "ID,Identifier,text 6\n"
                         "AVAL,Value,number,8.1\n"
                         "ADT,Date,number,DATE9.\n"
                         "ADTM,Moment,number,DATETIME20.\n"
                         "ATM,Time,number,TIME8.\n";
const std::string names = "\nID,AVAL,ADT,ADTM,ATM\n";

TEST(Study, readsATable)
{
    const Table table =
        readTable(head + names
                  + "\"a,\"\"b\",1.5,1960-01-03,1960-01-02T00:01,09:30\n,,,,\né,-2,1959-12-31,,\n");
    EXPECT_EQ(table.name, "VS");
    EXPECT_EQ(table.label, "Vital, signs");
    const std::vector<Column> columns{
        textColumn("ID", "Identifier", 6), numberColumn("AVAL", "Value", "", 8, 1),
        numberColumn("ADT", "Date", "DATE", 9), numberColumn("ADTM", "Moment", "DATETIME", 20),
        numberColumn("ATM", "Time", "TIME", 8)};
    EXPECT_EQ(table.columns, columns);
    ASSERT_EQ(table.rows.size(), 3U);
    EXPECT_EQ(table.rows[0], Row({"a,\"b", 1.5, 2.0, 86460.0, 34200.0}));
    EXPECT_EQ(table.rows[1][0], Cell(""));
    for (const std::size_t column : {1, 2, 3, 4}) {
        EXPECT_TRUE(std::isnan(std::get<double>(table.rows[1][column])));
    }
    EXPECT_EQ(std::get<double>(table.rows[2][2]), -1);
}

TEST(Study, refusesAFileThatIsNotRight)
{
    for (const auto& wrong : {
             std::string(),
             std::string("VS\n"),
             head,
             head + "\nID,ADT,AVAL,ADTM,ATM\n",
             head + names + "a,1,,\n",
             head + names + "a,1,,,,\n",
             head + names + "seven77,1,,,\n",
             head + names + "a,1x,,,\n",
             head + names + "a,1,1960-02-30,,\n",
             head + names + "a,1,,1960-02-03,\n",
             head + names + "a,1,,,25:00\n",
             head + names + "a\"b,1,,,\n",
             "VS,Label\nID,Identifier,text\n" + names,
             "VS,Label\nID,Identifier,number,DATE9\n" + names,
         }) {
        EXPECT_THROW((void)readTable(wrong), std::runtime_error) << wrong;
    }
}

/// The values of some columns, joined, of each row of a dataset of the study.
std::multiset<std::string> keys(const std::string& dataset, const std::vector<std::string>& columns)
{
    static const std::vector<Table> study = studyTables();
    const auto table = std::ranges::find(study, dataset, &Table::name);
    std::multiset<std::string> found;
    for (const auto& row : table->rows) {
        std::string joined;
        for (const auto& name : columns) {
            const auto column = std::ranges::find(table->columns, name, &Column::name);
            const auto& cell = row.at(std::size_t(column - table->columns.begin()));
            const auto* const text = std::get_if<std::string>(&cell);
            joined += text != nullptr ? *text : std::to_string(int(std::get<double>(cell)));
            joined += '|';
        }
        found.insert(joined);
    }
    return found;
}

TEST(Study, rowsHaveUniqueKeysOfSubjectsInDemographics)
{
    const std::vector<std::string> supplemental{"USUBJID", "IDVAR", "IDVARVAL", "QNAM"};
    const std::map<std::string, std::vector<std::string>> keysOf{
        {"DM", {"USUBJID"}},          {"SUPPDM", supplemental},     {"AE", {"USUBJID", "AESEQ"}},
        {"SUPPAE", supplemental},     {"EX", {"USUBJID", "EXSEQ"}}, {"LB", {"USUBJID", "LBSEQ"}},
        {"VS", {"USUBJID", "VSSEQ"}}, {"ADSL", {"USUBJID"}},        {"ADAE", {"USUBJID", "AESEQ"}}};
    const auto subjects = keys("DM", {"USUBJID"});
    for (const auto& [name, columns] : keysOf) {
        const auto all = keys(name, columns);
        EXPECT_EQ(std::set(all.begin(), all.end()).size(), all.size()) << name;
        for (const auto& subject : keys(name, {"USUBJID"})) {
            EXPECT_TRUE(subjects.contains(subject)) << name << ' ' << subject;
        }
    }
    const std::vector<std::string> event{"USUBJID", "AESEQ", "AETERM", "AESTDTC"};
    EXPECT_EQ(keys("ADAE", event), keys("AE", event));
}

}  // namespace

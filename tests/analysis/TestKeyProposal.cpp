#include "analysis/comparison/KeyProposal.h"
#include "tests/support/ScriptedDataset.h"

#include <gtest/gtest.h>

namespace {

using comparison::proposedKeys;
using comparison::repeatedKeys;
using Names = std::vector<std::string>;

/// Texts, a variable each name and a row each list.
ScriptedDataset& fill(ScriptedDataset& dataset, const Names& names,
                      std::initializer_list<std::initializer_list<ScriptedDataset::Value>> rows)
{
    for (const std::string& name : names) {
        dataset.variable(name, TypeCode::Character);
    }
    for (const auto& row : rows) {
        dataset.row(row);
    }
    return dataset;
}

TEST(KeyProposal, keysThatAFileTellsComeFirst)
{
    const Names names{"USUBJID", "SITE", "VISIT"};
    ScriptedDataset told;
    ScriptedDataset silent;
    fill(told, names, {{"1", "A", "W1"}, {"1", "B", "W1"}}).keys({2, 1});
    fill(silent, {"visit", "SITE", "USUBJID"}, {{"W1", "A", "1"}});
    EXPECT_EQ(proposedKeys(told, silent), (Names{"VISIT", "SITE"}));
    EXPECT_EQ(proposedKeys(silent, told), (Names{"visit", "SITE"})) << "as the base has them";
    ScriptedDataset lacking;
    fill(lacking, {"USUBJID", "VISIT"}, {{"1", "W1"}});
    EXPECT_EQ(proposedKeys(told, lacking), (Names{"USUBJID"})) << "half a key is none";
    EXPECT_EQ(proposedKeys(lacking, told), (Names{"USUBJID"}));
}

TEST(KeyProposal, asManyOfTheUsualVariablesAsItTakes)
{
    const Names names{"AESEQ", "usubjid", "STUDYID", "AETERM", "AESTDTC", "XXXSEQ"};
    ScriptedDataset base;
    fill(base, names,
         {{"1", "01", "S", "a", "x", ""},
          {"2", "01", "S", "b", "x", ""},
          {"1", "02", "S", "c", "y", ""}});
    EXPECT_EQ(proposedKeys(base, base), (Names{"STUDYID", "usubjid", "AESEQ"}));

    // The compare dataset alone needs the date, too.
    ScriptedDataset compare;
    fill(compare, names, {{"1", "01", "S", "a", "x", ""}, {"1", "01", "S", "a", "z", ""}});
    EXPECT_EQ(proposedKeys(base, compare), (Names{"STUDYID", "usubjid", "AESEQ", "AESTDTC"}));

    // A variable of one dataset only or of two types is no key, and one that parts nothing neither.
    ScriptedDataset other;
    other.variable("USUBJID", TypeCode::Character).variable("AESEQ", TypeCode::Double);
    other.variable("AESTDTC", TypeCode::Character).row({"01", 1.0, "x"}).row({"01", 2.0, "y"});
    EXPECT_EQ(proposedKeys(other, base), (Names{"USUBJID", "AESTDTC"}));
    ScriptedDataset visits;
    fill(visits, {"USUBJID", "PARAMCD", "AVISIT", "VISIT", "VISITNUM"},
         {{"1", "P", "A", "B", "1"}, {"1", "P", "A", "B", "2"}, {"1", "P", "C", "B", "2"}});
    EXPECT_EQ(proposedKeys(visits, visits), (Names{"USUBJID", "AVISIT", "VISITNUM"}));
}

TEST(KeyProposal, withoutUsualVariablesTheFirstThatIsUnique)
{
    ScriptedDataset base;
    ScriptedDataset compare;
    fill(base, {"GROUP", "CODE", "NUMBER"}, {{"a", "x", "1"}, {"a", "y", "2"}});
    fill(compare, {"NUMBER", "CODE", "GROUP"}, {{"1", "x", "a"}, {"2", "y", "b"}});
    EXPECT_EQ(proposedKeys(base, compare), Names{"CODE"});
    compare.row({"3", "x", "c"});
    EXPECT_EQ(proposedKeys(base, compare), Names{"NUMBER"});
    compare.row({"3", "x", "c"});
    EXPECT_EQ(proposedKeys(base, compare), Names()) << "both datasets count";
    ScriptedDataset empty;
    EXPECT_EQ(proposedKeys(fill(empty, {"GROUP"}, {}), base), Names());
}

TEST(KeyProposal, repeatedKeysAreCountedBeyondTheFirst)
{
    ScriptedDataset dataset;
    fill(dataset, {"USUBJID", "SEQ"}, {{"1", "1"}, {"1", "1"}, {"2", "1"}, {"1", "1"}, {"2", "2"}});
    dataset.datasetFilterMask().reset(1);
    EXPECT_EQ(repeatedKeys(dataset, {"usubjid", "SEQ"}, true).value(), 2U);
    EXPECT_EQ(repeatedKeys(dataset, {"usubjid", "SEQ"}, false).value(), 1U);
    EXPECT_EQ(repeatedKeys(dataset, {"USUBJID", "NOID"}, true).error(),
              "There is no variable named NOID");
}

}  // namespace

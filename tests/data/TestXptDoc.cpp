#include "data/readers/DatasetFile.h"
#include "samples/TableWriter.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

samples::Table texts(const std::string& name, int length, const std::vector<std::string>& values)
{
    samples::Table table;
    table.name = name;
    table.columns = {samples::textColumn("TEXT", "Text", length)};
    for (const std::string& value : values) {
        table.rows.push_back({value});
    }
    return table;
}

class XptDoc : public testing::Test
{
protected:
    Result<OpenedDataset> open(const std::string& file, const OpenOptions& options = {})
    {
        return openDataset(QString::fromStdString(m_folder.file(file).string()), options);
    }
    TemporaryFolder m_folder;
};

TEST_F(XptDoc, opensEachMemberWholeAndAlone)
{
    const samples::Table members[] = {texts("DM", 8, {"a", "b", "c"}), texts("AE", 40, {"d", "e"}),
                                      texts("LB", 3, {})};
    samples::writeTransport(m_folder.file("study.xpt"), members);

    const auto first = open("study.xpt");
    ASSERT_TRUE(first.ok()) << first.error();
    EXPECT_EQ(first.value().members, (std::vector<std::string>{"DM", "AE", "LB"}));
    EXPECT_EQ(first.value().dataset->observationCount(), 3);
    EXPECT_EQ(first.value().dataset->header().tableName, "DM");

    const auto second = open("study.xpt", {.member = "ae"});
    ASSERT_TRUE(second.ok()) << second.error();
    EXPECT_EQ(second.value().dataset->observationCount(), 2);
    EXPECT_EQ(second.value().dataset->cellText(1, 0), "e");
    EXPECT_EQ(open("study.xpt", {.member = "LB"}).value().dataset->observationCount(), 0);

    const auto none = open("study.xpt", {.member = "CM"});
    ASSERT_FALSE(none.ok());
    EXPECT_NE(none.error().find("study.xpt"), std::string::npos);
    EXPECT_NE(none.error().find("DM, AE, LB"), std::string::npos) << none.error();
}

struct PaddingCase
{
    int length;
    std::vector<std::string> values;
    int observations;
};

TEST_F(XptDoc, tellsBlankRowsFromPadding)
{
    const std::string blank;
    const std::vector<PaddingCase> cases{
        {1, {"x", "y", "z"}, 3},  // 77 blanks of padding are no rows
        {8, {"x", blank, "z"}, 3},
        {40,
         {"x", blank, blank},
         3},  // the third row lies in a card of its own, the fourth would be padding
        {80, {"x", blank, blank}, 3},  // rows fill their cards: nothing is padding
        {100, {"x", blank, blank, blank}, 4},
        {200, {blank, blank}, 2},
    };
    for (const PaddingCase& one : cases) {
        samples::writeTable(m_folder.file("blank.xpt"), texts("T", one.length, one.values));
        for (const bool metadataOnly : {false, true}) {
            const auto opened = open("blank.xpt", {.metadataOnly = metadataOnly});
            ASSERT_TRUE(opened.ok()) << opened.error();
            EXPECT_EQ(opened.value().dataset->observationCount(), one.observations)
                << one.length << " bytes a row";
        }
        const auto opened = open("blank.xpt");
        EXPECT_EQ(opened.value().dataset->cellText(one.observations - 1, 0), one.values.back());
    }
}

TEST_F(XptDoc, takesFormatsAsTheFileRecordsThem)
{
    samples::Table table = texts("F", 5, {"abcde"});
    table.columns[0].format = "$";
    table.columns[0].width = 3;
    table.columns.push_back(samples::numberColumn("WHEN", "When", "DATETIME", 20));
    table.columns.push_back(samples::numberColumn("HOW", "How much", "F", 8, 2));
    table.rows[0].emplace_back(86399.0);
    table.rows[0].emplace_back(0.125);
    samples::writeTable(m_folder.file("formats.xpt"), table);
    const auto opened = open("formats.xpt");
    ASSERT_TRUE(opened.ok()) << opened.error();
    const StatDataset& dataset = *opened.value().dataset;
    EXPECT_EQ(dataset.formats(), (std::vector<std::string>{"$", "DATETIME", "F"}));
    EXPECT_EQ(dataset.formatWidths(), (std::vector<std::int32_t>{3, 20, 8}));
    EXPECT_EQ(dataset.formatDecimals(), (std::vector<std::int32_t>{0, 0, 2}));
    EXPECT_EQ(dataset.cellText(0, 0), "abc");
    EXPECT_EQ(dataset.cellText(0, 1), "01Jan1960:23:59:59");
    EXPECT_EQ(dataset.variableAttribute(2, VariableAttribute::Format), "F.2");
    EXPECT_EQ(dataset.variableAttribute(1, VariableAttribute::Format), "DATETIME.");
    EXPECT_EQ(dataset.variableAttribute(1, VariableAttribute::Informat), "");
    EXPECT_EQ(dataset.variableAttribute(0, VariableAttribute::Informat), "$.");
}

}  // namespace

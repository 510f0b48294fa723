#include "tests/data/ReaderTest.h"

#include <fmt/format.h>

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

class XptDoc : public ReaderTest
{
protected:
    [[nodiscard]] Result<OpenedDataset> open(const char* file,
                                             const OpenOptions& options = {}) const
    {
        return openDataset(path(file), options);
    }
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

    EXPECT_EQ(datasetNames(path("study.xpt")).value(), first.value().members);
    EXPECT_EQ(second.value().dataset->datasetName(), "AE");
    EXPECT_EQ(datasetKey(path("study.xpt"), "AE"), path("study.xpt") + "::AE");

    const auto none = open("study.xpt", {.member = "CM"});
    ASSERT_FALSE(none.ok());
    EXPECT_NE(none.error().find("study.xpt"), std::string::npos);
    EXPECT_NE(none.error().find("DM, AE, LB"), std::string::npos) << none.error();
}

TEST_F(XptDoc, tellsMembersOfOneNameAndOfNoneApart)
{
    const samples::Table members[] = {texts("ae", 8, {"a"}), texts("AE", 8, {"b"}),
                                      texts("AE", 8, {"c"}), texts("XX", 8, {"d"})};
    samples::writeTransport(m_folder.file("twice.xpt"), members);
    std::string bytes = bytesOf(m_folder.file("twice.xpt"));
    bytes.replace(bytes.find("XX      SASDATA"), 2, "  ");
    const auto names = datasetNames(write("twice.xpt", bytes)).value();
    EXPECT_EQ(names, (std::vector<std::string>{"ae", "AE", "AE_2", "DATA4"}));
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto dataset = read("twice.xpt", bytes, {.member = names[i]});
        EXPECT_EQ(dataset->datasetName(), names[i]);
        EXPECT_EQ(dataset->cellText(0, 0), std::string(1, static_cast<char>('a' + i)));
    }
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
        {40, {"x", blank, blank}, 3},  // the third lies in a card of its own with the padding
        {80, {"x", blank, blank}, 3},  // rows fill their cards: nothing is padding
        {100, {"x", blank, blank, blank}, 4},
        {200, {blank, blank}, 2},
    };
    for (const PaddingCase& one : cases) {
        SCOPED_TRACE(one.length);
        const std::string bytes = written("blank.xpt", texts("T", one.length, one.values));
        const auto dataset = read("blank.xpt", bytes);
        ASSERT_EQ(dataset->observationCount(), one.observations);
        EXPECT_EQ(dataset->cellText(one.observations - 1, 0), one.values.back());
        EXPECT_EQ(read("blank.xpt", bytes, {.metadataOnly = true})->observationCount(),
                  one.observations);
    }
}

TEST_F(XptDoc, takesNoBlanksForARowThatHoldsANumber)
{
    for (const int length : {3, 72, 152}) {  // of the text beside the number
        SCOPED_TRACE(length);
        samples::Table table = texts("T", length, {"x", "", ""});
        table.columns.push_back(samples::numberColumn("N", "Number"));
        for (samples::Row& row : table.rows) {
            row.emplace_back(samples::missing);
        }
        const std::string bytes = written("blank.xpt", table);
        for (const std::size_t cards : {0, 1, 60}) {
            EXPECT_EQ(read("blank.xpt", bytes + std::string(80 * cards, ' '))->observationCount(),
                      3)
                << cards;
        }
    }
}

TEST_F(XptDoc, believesTheCountOfVersion8WhereItCanBeTrue)
{
    // Three rows of 8 bytes in a card of 80: one to ten rows could be meant.
    std::string bytes = written("count.xpt", texts("T", 8, {"x", "y", ""}), {.release = 8});
    const std::size_t count = behind(bytes, "OBSV8   HEADER RECORD!!!!!!!");
    for (const int rows : {2, 3, 10}) {
        bytes.replace(count, 15, fmt::format("{:15}", rows));
        EXPECT_EQ(read("count.xpt", bytes)->observationCount(), rows);
        EXPECT_EQ(read("count.xpt", bytes + std::string(240, ' '))->observationCount(), rows);
    }
}

/// A big-endian number of two bytes.
std::string u16(std::size_t number)
{
    return {static_cast<char>(number >> 8), static_cast<char>(number)};
}

TEST_F(XptDoc, takesLongNamesOfFormatsFromTheirRecords)
{
    samples::Table table;
    table.name = "LONG";
    table.columns = {samples::numberColumn("A", "a", "F", 8, 2), samples::numberColumn("B", "b")};
    table.rows = {{1.0, 2.0}};
    std::string bytes = written("long.xpt", table, {.release = 8});
    const std::string format = "LONGFORMATNAME10.2";
    const std::string informat = "$OTHERINFORMAT7.";
    std::string records =
        fmt::format("{:<80}", "HEADER RECORD*******LABELV9 HEADER RECORD!!!!!!!1");
    records += u16(1) + u16(1) + u16(11) + u16(format.size()) + u16(informat.size());
    records += "A"
               "A new label"
        + format + informat;
    records.resize(160, ' ');
    bytes.insert(behind(bytes, "HEADER RECORD*******OBSV8") - 25, records);
    const auto dataset = read("long.xpt", bytes);
    EXPECT_EQ(dataset->labels()[0], "A new label");
    EXPECT_EQ(dataset->formats(), (std::vector<std::string>{"LONGFORMATNAME", ""}));
    EXPECT_EQ(dataset->informats()[0], "$OTHERINFORMAT8.2");
    EXPECT_EQ(dataset->formatDecimals()[0], 2);
    EXPECT_EQ(dataset->numericValue(0, 1), 2.0);
}

TEST_F(XptDoc, takesFormatsAsTheFileRecordsThem)
{
    samples::Table table = texts("F", 5, {"abcde"});
    const samples::Column whole = samples::textColumn("WHOLE", "All of it", 5);
    table.columns.insert(table.columns.end(),
                         {whole, samples::numberColumn("WHEN", "When", "DATETIME", 20),
                          samples::numberColumn("HOW", "How much", "BEST", 8, 1)});
    table.columns[0].format = table.columns[1].format = "$";
    table.columns[0].width = 3;
    table.rows = {{"abcde", "abcde", 86399.0, 0.125}};
    const auto dataset = read("formats.xpt", written("formats.xpt", table));
    EXPECT_EQ(dataset->formats(), (std::vector<std::string>{"$", "$", "DATETIME", "BEST"}));
    EXPECT_EQ(dataset->formatWidths(), (std::vector<std::int32_t>{3, 0, 20, 8}));
    EXPECT_EQ(dataset->formatDecimals(), (std::vector<std::int32_t>{0, 0, 0, 1}));
    const auto attributes = [&](VariableAttribute attribute) {
        std::vector<std::string> all;
        for (int column = 0; column < 4; ++column) {
            all.push_back(dataset->variableAttribute(column, attribute));
        }
        return all;
    };
    EXPECT_EQ(dataset->cellText(0, 0), "abc");
    EXPECT_EQ(dataset->cellText(0, 1), "abcde") << "without a width the whole variable";
    EXPECT_EQ(dataset->cellText(0, 2), "01Jan1960:23:59:59");
    EXPECT_EQ(attributes(VariableAttribute::Format),
              (std::vector<std::string>{"$.", "$.", "DATETIME.", "BEST.1"}));
    EXPECT_EQ(attributes(VariableAttribute::Informat),
              (std::vector<std::string>{"$.", "$.", "", "BEST.1"}));
}

}  // namespace

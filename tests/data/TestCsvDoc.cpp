#include "tests/data/ReaderTest.h"

#include <fmt/format.h>

namespace {

using namespace std::string_literals;

/// The variables, those with numbers marked by #, and the rows, as "a #b; x 1; y ."
std::string shown(const StatDataset& dataset)
{
    std::string text;
    for (int column = 0; column < dataset.variableCount(); ++column) {
        text += fmt::format("{}{}{}", column > 0 ? "|" : "", dataset.isNumeric(column) ? "#" : "",
                            dataset.names()[static_cast<std::size_t>(column)]);
    }
    for (int row = 0; row < dataset.observationCount(); ++row) {
        for (int column = 0; column < dataset.variableCount(); ++column) {
            text += (column == 0 ? "; " : "|") + dataset.cellText(row, column);
        }
    }
    return text;
}

class CsvDoc : public ReaderTest
{
protected:
    [[nodiscard]] std::string shownOf(const std::string& bytes) const
    {
        return shown(*read("a.csv", bytes));
    }
    [[nodiscard]] std::string failureOf(const std::string& bytes) const
    {
        return openDataset(write("a.csv", bytes)).error();
    }
};

TEST_F(CsvDoc, takesTheTextApart)
{
    const std::pair<std::string, std::string> cases[] = {
        {"a,b\nx,1\ny,2\n", "a|#b; x|1; y|2"},
        {"a,b\r\nx,1\r\n", "a|#b; x|1"},
        {"a,b\rx,1\ry,2", "a|#b; x|1; y|2"},
        {"\n\na,b\n\nx,1\n\n", "a|#b; x|1"},
        {"a,b\n\"x,\"\"y\"\"\",\"1\"\n\"p\nq\",2", "a|#b; x,\"y\"|1; p\nq|2"},
        // The delimiter that divides the lines alike, not the one that is first or most frequent
        {"a;b\n1,5;x\n2,5;y\n", "a|b; 1,5|x; 2,5|y"},
        {"a\tb,c\n1\t2\n", "#a|#b,c; 1|2"},
        {"a|b\nx,y|z\n", "a|b; x,y|z"},
        {"a,b;c\nx,y;z\n", "a|b;c; x|y;z"},
        {"name\nx\ny\n", "name; x; y"},
        // Names
        {" a ,,a,A\n1,2,3,4\n", "#a|#VAR2|#a_2|#A; 1|2|3|4"},
        {"1,2\n3,4\n", "#1|#2; 3|4"},
        {"a,b", "a|b"},
        {"", ""},
        // Quotes that end early belong to nobody else
        {"a,b\n\"x\"y,\"z\"", "a|b; xy|z"},
        {"a,b\n\"x\"y,z\nit\"s,6\" pipe\n\"p\" \"q\",r\n", "a|b; xy|z; it\"s|6\" pipe; p \"q\"|r"},
        // Character sets
        {"\xEF\xBB\xBF\"a\",b\n\xC3\xA9,1\n", "a|#b; \xC3\xA9|1"},
        {"a\n\xE9t\xE9\n\x80\n", "a; \xC3\xA9t\xC3\xA9; \xE2\x82\xAC"},
        {"\xFF\xFE"s + "a\0\n\0\xE9\0\n\0"s, "a; \xC3\xA9"},
        {"\xFE\xFF"s + "\0a\0\n\0\xE9\0\n"s, "a; \xC3\xA9"},
        {"a\0,\0b\0\n\0001\0,\0002\0\n\0"s, "#a|#b; 1|2"},
    };
    for (const auto& [bytes, expected] : cases) {
        EXPECT_EQ(shownOf(bytes), expected);
    }
}

TEST_F(CsvDoc, takesForNumbersOnlyWhatLosesNothing)
{
    EXPECT_EQ(shownOf("a\n-2.50\n+3\n.5\n5.\n1e3\n-0\nNA\n.\n 7 \n"),
              "#a; -2.5; 3; 0.5; 5; 1000; 0; .; .; 7");
    EXPECT_EQ(shownOf("a\n123456789012345\n9007199254740992\n"),
              "#a; 123456789012345; 9.007199254740992e+15");
    for (const char* value : {"007", "-01", "9007199254740993", "1e400", "1,5", "0x1F", "inf",
                              "nan", "1e", "-", "--1", "+-1", "1 2", ".A", "2021-02-28", "12:34"}) {
        EXPECT_EQ(shownOf(fmt::format("a\tb\n1\t1\n\"{}\"\t2\n", value)),
                  fmt::format("a|#b; 1|1; {}|2", value));
    }
    // A column without any number is one of texts, whatever it lacks.
    EXPECT_EQ(shownOf("a,b,c\n,.,NA\n,.,\n"), "a|b|c; |.|NA; |.|");
}

TEST_F(CsvDoc, typesOfColumnsHoldToTheEnd)
{
    // Beyond the first part of the file, which tells most of them: NUM ends in a text, LATE has its
    // first number there, NONE its first text, and NOT both
    std::string bytes = "NUM,LATE,NONE,NOT,OK\n";
    constexpr int rows = 40'000;
    for (int row = 0; row < rows; ++row) {
        bytes += "1.50,,.,,7\n";
    }
    bytes += "x,2,,3,8\n,,z,y,9\n";
    const auto dataset = read("a.csv", bytes);
    ASSERT_GT(bytes.size(), std::size_t{256} << 10);
    ASSERT_EQ(dataset->observationCount(), rows + 2);
    using enum TypeCode;
    EXPECT_EQ(dataset->typeCodes(), (std::vector{Character, Double, Character, Character, Double}));
    EXPECT_EQ(dataset->lengths(), (std::vector{4, 8, 1, 1, 8}));
    const auto row = [&](int at) {
        std::string text;
        for (int column = 0; column < dataset->variableCount(); ++column) {
            text += dataset->cellText(at, column) + "|";
        }
        return text;
    };
    EXPECT_EQ(row(0), "1.50|.|.||7|");
    EXPECT_EQ(row(rows), "x|2||3|8|");
    EXPECT_EQ(row(rows + 1), "|.|z|y|9|");

    const auto description =
        openDataset(path("a.csv"), {.metadataOnly = true}).value().dataset->typeCodes();
    EXPECT_EQ(description, dataset->typeCodes());
}

TEST_F(CsvDoc, saysWhatMayBeWrong)
{
    using Notes = std::vector<std::string>;
    const auto notesOf = [this](const std::string& bytes) {
        return read("a.csv", bytes)->damageNotes();
    };
    const auto ragged = read("a.csv", "a,b\n\"1\n\n\",2\n3\n\n4,5,6\n7,8,,\n\"9\r\nx\"\n");
    EXPECT_EQ(shown(*ragged), "a|#b; 1|2; 3|.; 4|5; 7|8; 9\r\nx|.");
    EXPECT_EQ(ragged->damageNotes(),
              (Notes{"Lines with fewer values than variables, filled up with missing ones: 5, 9",
                     "Lines with more values than variables, whose last values are left out: 7"}));
    EXPECT_EQ(notesOf("a,b\r\n1\r\n2\r\n3\r\n\r\n4\r\n5\r\n6\r\n7\r\n"),
              Notes{"Lines with fewer values than variables, filled up with missing ones: 2, 3, 4, "
                    "6, 7 and 2 more"});
    EXPECT_EQ(notesOf("a\nb\"c\n"), Notes{});
    EXPECT_EQ(notesOf("a\n\"b\"c\n").size(), 1);
    EXPECT_EQ(notesOf("a,b\nx\0\0,1\n"s).size(), 1);
    EXPECT_EQ(shownOf("a,b\nx\0\0,1\n"s), "a|#b; x|1");
    EXPECT_EQ(notesOf("").size(), 1);

    EXPECT_EQ(failureOf("a\n1\n\"x\n\n"),
              "a.csv: The quote that begins a value in line 3 is never closed");
    EXPECT_EQ(failureOf("PK\x03\x04\x14\x00\x06\x00\x08"s), "a.csv: It is no text file");
    // A hundred bytes a row that would take a hundred thousand cells each
    const std::string bomb = std::string(200'000, ',') + "\n" + [] {
        std::string rows;
        for (int row = 0; row < 2'000; ++row) {
            rows += "1\n";
        }
        return rows;
    }();
    EXPECT_NE(failureOf(bomb).find("Far more values are missing"), std::string::npos);
}

TEST_F(CsvDoc, keepsToWhatItsTextsAre)
{
    const auto dataset = read("a.csv", "a,b\n  two words  ,\"\xC3\xA9\"\n");
    EXPECT_EQ(dataset->stringValue(0, 0), "two words");
    EXPECT_EQ(dataset->lengths(), (std::vector{9, 2}));
    EXPECT_EQ(dataset->header().encoding, "UTF-8");
    EXPECT_EQ(read("b.csv", "a\nx\xC3")->header().encoding, "WINDOWS-1252");
    // One character in two parts of the file
    const std::string cut =
        "a\n" + std::string((std::size_t{256} << 10) - 3, 'x') + "\xC3\xA9" + "\n";
    EXPECT_EQ(read("c.csv", cut)->header().encoding, "UTF-8");
    EXPECT_EQ(dataset->sourceKind(), SourceKind::Csv);
    for (const int column : {-1, 2}) {
        EXPECT_FALSE(dataset->isNumeric(column));
        EXPECT_FALSE(dataset->isCharacter(column));
    }
    EXPECT_FALSE(openDataset(path("a.csv"), {.member = "x"}).ok());
}

}  // namespace

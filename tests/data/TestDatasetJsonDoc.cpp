#include "tests/data/ReaderTest.h"
#include "tests/support/LogCapture.h"

#include <fmt/format.h>

#include <cmath>
#include <zlib.h>

namespace {

using namespace std::string_literals;

/// The rows as the grid shows them: "x|1; y|."
std::string shown(const StatDataset& dataset)
{
    std::string text;
    for (int row = 0; row < dataset.observationCount(); ++row) {
        for (int column = 0; column < dataset.variableCount(); ++column) {
            text += (column > 0 ? "|"s : row > 0 ? "; "s : ""s) + dataset.cellText(row, column);
        }
    }
    return text;
}

/// A text A and a number N.
const std::string twoColumns =
    R"("columns":[{"itemOID":"IT.A","name":"A","label":"Text","dataType":"string","length":8},)"
    R"({"itemOID":"IT.N","name":"N","label":"Number","dataType":"float"}])";
const std::string attributes = R"({"name":"T",)" + twoColumns;

std::string document(const std::string& rows)
{
    return attributes + R"(,"rows":[)" + rows + "]}";
}

/// @param more  what else is said of the column, beginning with a comma
std::string column(const std::string& type, const std::string& more = {})
{
    return fmt::format(R"({{"itemOID":"IT.X","name":"X","label":"","dataType":"{}"{}}})", type,
                       more);
}

std::string inColumn(const std::string& described, const std::string& rows)
{
    return R"({"name":"T","columns":[)" + described + R"(],"rows":[)" + rows + "]}";
}

std::string packed(const std::string& text, int windowBits)
{
    z_stream stream{};
    deflateInit2(&stream, 9, Z_DEFLATED, windowBits, 8, Z_DEFAULT_STRATEGY);
    std::string from = text;
    std::string to(text.size() + 1000, '\0');
    stream.next_in = reinterpret_cast<Bytef*>(from.data());  // NOLINT: zlib's bytes
    stream.avail_in = static_cast<uInt>(from.size());
    stream.next_out = reinterpret_cast<Bytef*>(to.data());  // NOLINT
    stream.avail_out = static_cast<uInt>(to.size());
    deflate(&stream, Z_FINISH);
    to.resize(stream.total_out);
    deflateEnd(&stream);
    return to;
}

std::string inUtf16(const std::string& ascii, bool isBig)
{
    std::string wide;
    for (const char letter : ascii) {
        wide += isBig ? std::string{'\0', letter} : std::string{letter, '\0'};
    }
    return wide;
}

class DatasetJsonDoc : public ReaderTest
{
protected:
    [[nodiscard]] std::string shownOf(const std::string& bytes) const
    {
        return shown(*read("a.json", bytes));
    }
    [[nodiscard]] std::string notesOf(const std::string& bytes) const
    {
        return fmt::format("{}", fmt::join(read("a.json", bytes)->damageNotes(), "\n"));
    }
    [[nodiscard]] std::string failureOf(const std::string& bytes) const
    {
        const auto opened = openDataset(write("a.json", bytes));
        return opened.ok() ? "opened" : opened.error();
    }
};

TEST_F(DatasetJsonDoc, findsRowsHoweverTheyAreWrittenDown)
{
    const std::string rows = R"(["x",1],["y",null])";
    const std::string lines = attributes + "}\n[\"x\",1]\n[\"y\",null]\n";
    const std::string groups = R"({"datasetJSONVersion":"1.0.0","clinicalData":{"studyOID":"S",)"
                               R"("itemGroupData":{"IG.T":{"name":"T","items":[)"
                               R"({"OID":"IT.A","name":"A","label":"","type":"string"},)"
                               R"({"OID":"IT.N","name":"N","label":"","type":"integer"}],)"
                               R"("itemData":[)"
        + rows + "]}}}}";
    const std::pair<const char*, std::string> cases[] = {
        {"version 1.1", document(rows)},
        {"version 1.0", groups},
        {"rows first", R"({"rows":[)" + rows + "]," + twoColumns + "}"},
        {"objects", document(R"({"N":1,"A":"x"}, {"IT.A":"y"})")},
        {"blanks", document(" [ \"x\" , 1 ] ,\r\n\t[\"y\",null] ")},
        {"members around", document(rows).insert(1, R"("rows2":[[1]],"e":{"rows":[]},)")},
        {"byte order mark", "\xEF\xBB\xBF" + document(rows)},
        {"UTF-16 with mark", "\xFF\xFE" + inUtf16(document(rows), false)},
        {"UTF-16 big, bare", inUtf16(document(rows), true)},
        {"lines", lines},
        {"lines, the last without end", lines.substr(0, lines.size() - 1)},
        {"lines with blank ones", attributes + "}\r\n\r\n[\"x\",1]\r\n \n[\"y\",null]\r\n\n"},
        {"lines of objects", attributes + "}\n{\"A\":\"x\",\"N\":1}\n{\"A\":\"y\"}"},
        {"zlib", packed(lines, 15)},
        {"gzip", packed(lines, 15 + 16)},
        {"gzip in two", packed(lines.substr(0, 60), 31) + packed(lines.substr(60), 31)},
        {"zlib behind a header", "\x1F\x8B\b\0\0\0\0\0"s + packed(lines, 15)},
        {"rows first, packed", packed(R"({"rows":[)" + rows + "]," + twoColumns + "}", 15)},
    };
    for (const auto& [name, bytes] : cases) {
        for (const char* file : {"a.json", "a.NDJSON", "a.dsjc", "a.djsc"}) {
            EXPECT_EQ(shown(*read(file, bytes)), "x|1; y|.") << name << ' ' << file;
        }
    }
    EXPECT_EQ(shownOf(document("")), "");
    EXPECT_EQ(read("a.json", attributes + "}")->observationCount(), 0);
}

// Values by type, stored as numbers or texts, and as they are shown.
TEST_F(DatasetJsonDoc, showsValuesByTheirTypes)
{
    const std::string target = R"(,"targetDataType":"integer")";
    const std::tuple<std::string, const char*, const char*> cases[] = {
        {column("string"), R"(["  a b "],[""],[null],["é\u00e9\ud83d\ude00\"\\\/"])",
         "a b; ; ; éé😀\"\\/"},
        {column("URI"), R"(["urn:x"])", "urn:x"},
        {column("string", R"(,"displayFormat":"$3.")"), R"(["äöüß"])", "äöü"},
        {column("integer"), "[1],[2.5],[null],[9007199254740993],[-0],[\"7\"]",
         "1; 2.5; .; 9007199254740993; 0; 7"},
        {column("float"), "[0.1],[1e3],[1.50],[100],[1152921504606846977],[1e400],[-Infinity]",
         "0.1; 1000; 1.5; 100; 1152921504606846977; 1e400; -Infinity"},
        {column("double", R"(,"displayFormat":"8.2")"), "[0.125],[9007199254740993]",
         "0.12; 9007199254740992.00"},
        {column("decimal", R"(,"targetDataType":"decimal")"),
         R"(["1.10"],["-0.5"],["1,234.50"],["12,34"],["1,5"],[2.50],["1E5"],["+3"],["1234,567"])",
         "1.10; -0.5; 1,234.50; .; .; 2.50; 1E5; +3; ."},
        {column("boolean"), R"([true],[false],[null],[1],["true"],["x"])",
         "true; false; .; true; true; ."},
        {column("date"), R"(["2013-12"],["2013-12-26"])", "2013-12; 2013-12-26"},
        {column("date", target), R"(["2013-12-26"],[19718],["2013-12"])",
         "2013-12-26; 2013-12-26; ."},
        {column("date", target + R"(,"displayFormat":"DATE9.")"), R"(["2013-12-26"],[0])",
         "26Dec2013; 01Jan1960"},
        {column("integer", R"(,"displayFormat":"DATE9.")"), "[19718]", "26Dec2013"},
        {column("datetime", target), R"(["2013-12-26T12:34:56.5"],[0],["1960-01-01T01:00+02:00"])",
         "2013-12-26T12:34:56.5; 1960-01-01T00:00:00; 1960-01-01T01:00:00"},
        {column("time", target), R"(["12:34:56"],["24:00:00"])", "12:34:56; 24:00:00"},
        {column("blob"), R"(["a"],[1.0],[true],[{"k": [1]}])", R"(a; 1.0; true; {"k": [1]})"},
    };
    for (const auto& [described, rows, expected] : cases) {
        EXPECT_EQ(shownOf(inColumn(described, rows)), expected) << described;
    }
}

TEST_F(DatasetJsonDoc, keepsStoredValuesApartFromWhatIsShown)
{
    const auto numbers =
        read("a.json",
             inColumn(column("decimal"), R"(["1.10"],["1,234.50"],[null],[9007199254740993])"));
    EXPECT_EQ(numbers->numericValue(0, 0), 1.1);
    EXPECT_EQ(numbers->numericValue(1, 0), 1234.5);
    EXPECT_TRUE(std::isnan(numbers->numericValue(2, 0)));
    EXPECT_EQ(numbers->numericValue(3, 0), 9007199254740992.0);
    EXPECT_TRUE(numbers->isNumeric(0) && !numbers->isNumeric(1) && !numbers->isNumeric(-1));
    EXPECT_FALSE(numbers->isCharacter(0) || numbers->isCharacter(1));
    const std::string other = R"(,{"name":"Y","dataType":"decimal"})";
    const std::string rows = R"({"Y":"2.50","X":"1.10"},["3.0","4.0"],{"X":"5.00"})";
    EXPECT_EQ(shownOf(inColumn(column("decimal") + other, rows)), "1.10|2.50; 3.0|4.0; 5.00|.");
    const auto texts =
        read("a.json", document(R"(["  a ",1],["n\u0000l",2],["",3],["\u6771\u4eac",4])"));
    EXPECT_EQ(texts->stringValue(0, 0), "  a ");
    EXPECT_EQ(texts->stringValue(1, 0), "n\0l"s);
    EXPECT_EQ(texts->stringValue(3, 0), "東京");
    const auto days = read(
        "a.json", inColumn(column("date", R"(,"targetDataType":"integer")"), R"(["2013-12-26"])"));
    EXPECT_EQ(days->numericValue(0, 0), 19718);
    EXPECT_EQ(days->dateScale(0).content(), DateScale::Content::Date);
}

TEST_F(DatasetJsonDoc, tellsWhatTheFileSaysOfItself)
{
    const auto dataset = read(
        "a.json",
        R"({"datasetJSONCreationDateTime":"1970-01-01T00:01:00Z",)"
        R"("datasetJSONVersion":"1.1.0","dbLastModifiedDateTime":"1970-01-02T00:00:00",)"
        R"("sourceSystem":{"name":"Sys","version":"9.4","x":[1]},"studyOID":"S1",)"
        R"("isReferenceData":false,"vendor.x":{"a":1},"list":[1],"records":2,"name":"DM",)"
        R"("label":"People","columns":[)"
        R"({"OID":"ITEMGROUPDATASEQ","name":"ITEMGROUPDATASEQ","type":"integer"},)"
        R"({"itemOID":"IT.B","name":"B","label":"Second","dataType":"string","length":3,"keySequence":2},)"
        R"({"itemOID":"IT.A","name":"A","dataType":"integer","displayFormat":"best8.","keySequence":1}],)"
        R"("rows":[[1,"x",5],[2,"y",6]],"fileOID":"F"})");
    const DatasetHeader& header = dataset->header();
    EXPECT_EQ(header.creationTime, 60);
    EXPECT_EQ(header.modificationTime, 86400);
    EXPECT_EQ(header.tableName + '|' + header.fileLabel + '|' + header.encoding, "DM|People|UTF-8");
    EXPECT_EQ(header.host + '|' + header.release, "Sys|9.4");
    EXPECT_EQ(header.formatVersion, 1);
    EXPECT_EQ(dataset->fileAttributes(),
              (std::vector<FileAttribute>{{"datasetJSONVersion", "1.1.0"},
                                          {"studyOID", "S1"},
                                          {"isReferenceData", "false"},
                                          {"fileOID", "F"}}));
    EXPECT_EQ(dataset->keyVariables(), (std::vector<int>{2, 1}));
    EXPECT_EQ(dataset->sourceKind(), SourceKind::DatasetJson);
    // What only numbers the rows is there, but not shown.
    EXPECT_FALSE(dataset->visibleVariables().test(0));
    EXPECT_EQ(dataset->visibleVariables().count(), 2U);
    const auto attribute = [&](int column, VariableAttribute which) {
        return dataset->variableAttribute(column, which);
    };
    EXPECT_EQ(attribute(1, VariableAttribute::Type), "string");
    EXPECT_EQ(attribute(1, VariableAttribute::Length), "3");
    EXPECT_EQ(attribute(2, VariableAttribute::Length), "");
    EXPECT_EQ(attribute(2, VariableAttribute::Format), "best8.");
    EXPECT_EQ(attribute(1, VariableAttribute::Label), "Second");
    EXPECT_TRUE(dataset->damageNotes().empty());
}

TEST_F(DatasetJsonDoc, tellsOncePerKindWhatIsOdd)
{
    const std::string moments = column("datetime", R"(,"targetDataType":"integer")");
    const std::pair<std::string, const char*> cases[] = {
        {document(R"(["a",1],["b"],["c"],["d",4,5],7,{"Q":1,"A":"e"})"),
         "Rows with too few values are filled up with missing ones (2, first in row 2)\n"
         "Of rows with too many values the last ones are left out (1, first in row 4)\n"
         "Rows that are neither a list nor an object are shown as missing (1, first in row 5: 7)\n"
         "Values of rows under names that no variable has are left out (1, first in row 6: Q)"},
        {document(R"(["a","na"],["b",""],["c","NA"],["d",NaN],["e",[1, 2]])"),
         "N: what is no number is shown as missing (2, first in row 1: na)\n"
         "N: a list or an object stands for a value (1, first in row 5: [1, 2])\n"
         "N: NaN is no number in JSON and is shown as missing (1, first in row 4)"},
        {inColumn(moments, R"(["2020-01-01"],["2020-01-01T00:00+02:00"],["2020-01-01T00:00Z"])"),
         "X: what is no whole date or time is shown as missing (1, first in row 1: 2020-01-01)\n"
         "X: offsets from UTC are passed over (1, first in row 2: 2020-01-01T00:00+02:00)"},
        {inColumn(column("decimal"), R"(["0.10000000000000000001"],[9007199254740994],["1e999"])"),
         "X: numbers of more digits than can be reckoned with are shown as the file has them (1, "
         "first in row 1: 0.10000000000000000001)\n"
         "X: numbers too large to be reckoned with count as infinite (1, first in row 3: 1e999)"},
        {document("[\"\xE9t\xE9\",1],[\"\\ud800x\\\\ud800\",2]"),
         "Invalid characters are shown as \xEF\xBF\xBD (3, first in row 1)"},
        // Read once more after a first attempt that failed, and counted once
        {document(R"(["a"],["\ud800",2])"),
         "Rows with too few values are filled up with missing ones (1, first in row 1)\n"
         "Invalid characters are shown as \xEF\xBF\xBD (1, first in row 2)"},
        {document("[\"a\",1]") + " x", "It goes on behind its end, which is left out"},
        {document("[\"a\",1]").insert(1, R"("records":3,)"),
         "Its header counts 3 observations, but it holds 1"},
        {document("[\"a\",1]").insert(1, R"("rows":[["b",2]],"name":"U",)"),
         "It holds rows more than once; the first ones are shown\n"
         "Its attribute name stands there more than once; the last one holds\n"
         "Its attribute rows stands there more than once; the last one holds"},
        {inColumn(column("blob") + R"(,{"itemOID":"IT.Z","dataType":"integer"},5)", "[1,2,3]"),
         "X, VAR3: the data type is none of Dataset-JSON; read as texts\n"
         "It names 2 of its variables not at all; the first is called Z"},
    };
    for (const auto& [bytes, expected] : cases) {
        auto lines = read("a.json", bytes)->damageNotes();
        std::vector<std::string> wanted;
        for (std::size_t at = 0; at <= std::string_view(expected).size();) {
            const std::string_view rest = std::string_view(expected).substr(at);
            wanted.emplace_back(rest.substr(0, rest.find('\n')));
            at += wanted.back().size() + 1;
        }
        std::sort(lines.begin(), lines.end());
        std::sort(wanted.begin(), wanted.end());
        EXPECT_EQ(lines, wanted) << bytes;
    }
    EXPECT_EQ(shownOf(document("[\"\xE9t\xE9\",1],[\"\\ud800x\\\\ud800\\ud83d\\ude00\",2]")),
              "\xEF\xBF\xBDt\xEF\xBF\xBD|1; \xEF\xBF\xBDx\\ud800😀|2");
}

TEST_F(DatasetJsonDoc, refusesWhatIsCutOrNoDatasetJson)
{
    const std::string lines = attributes + "}\n[\"x\",1]\n\n[\"y\",2]\n[\"z\",3]\n";
    const std::string zipped = packed(lines, 15);
    const std::pair<std::string, const char*> cases[] = {
        {"", "It is empty"},
        {"a,b\n1,2\n", "It is no JSON file"},
        {"[[1]]", "It is no Dataset-JSON file: it starts with a list in place of its attributes"},
        {"{}", "It is no Dataset-JSON file: it describes no columns"},
        {R"({"columns":"x","rows":[]})", "It is no Dataset-JSON file: it describes no columns"},
        {R"({"name" "x"})", "It is no valid JSON"},
        {R"({"name":nul,"columns":[]})", "Its attributes are no valid JSON"},
        {R"({"name":"x",})", "It is no valid JSON"},
        {document("").substr(0, 20), "It is cut short"},
        {document("[\"x\",1]").substr(0, document("").size() + 2),
         "It is cut short within observation 1"},
        {document("[\"x\",1],[\"y\"").substr(0, document("").size() + 10),
         "It is cut short within observation 2"},
        {attributes + R"(,"rows":[["x",1]])", "It is cut short"},
        {document("[\"x\",1] [\"y\",2]"),
         "It is no valid JSON: its rows are not separated by commas"},
        {document("[\"x\",1],"), "It is no valid JSON: its rows are not separated by commas"},
        {document("[\"x\",1],[\"y\",1x]"), "Observation 2 is damaged: a number in it is wrong"},
        {document("[\"x\",nul]"), "Observation 1 is damaged: it is no valid JSON"},
        {document("[\"x\",,2]"), "Observation 1 is damaged: it is no valid JSON"},
        {document("[\"\\x\",2]"),
         "Observation 1 is damaged: a text in it has an escape that does not exist"},
        {document("[\"a\nb\",2]"),
         "Observation 1 is damaged: a text in it holds a control character"},
        {lines.substr(0, lines.size() - 3), "It is cut short within observation 3"},
        {attributes + "}\n[\"x\",1]\n\n[\"y\n[\"z\",3]\n",
         "Line 4 is damaged: a text in it has no end"},
        {attributes + "}\n[\"x\"\n1]\n[\"y\",2]\n", "Line 2 is damaged: it is no valid JSON"},
        {attributes + "}\n[\"x\"\n1],[\"y\",2]\n", "Line 2 is damaged: it is no valid JSON"},
        {attributes + "}\n[\"x\",1],[\"y\",2]\n", "Line 2 is damaged: it is no valid JSON"},
        {zipped.substr(0, zipped.size() / 2), "It is cut short: its compressed data have no end"},
        {zipped.substr(0, 20) + "\xFF\xFF\xFF\xFF\xFF\xFF" + zipped.substr(26),
         "It is damaged: its compressed data cannot be unpacked"},
    };
    for (const auto& [bytes, expected] : cases) {
        EXPECT_EQ(failureOf(bytes), "a.json: "s + expected) << bytes;
    }
}

// Longer than several of the parts in which rows are read, with texts that look like their ends.
TEST_F(DatasetJsonDoc, cutsLongFilesBetweenRowsOnly)
{
    constexpr int rowCount = 60000;
    std::string list;
    std::string lines;
    for (int row = 0; row < rowCount; ++row) {
        const std::string one = fmt::format(R"(["],[ {0} \"],[\\",{0}])", row);
        list += (row == 0 ? "" : ",") + one;
        lines += one + '\n';
    }
    std::string nested;
    for (int row = 0; row < rowCount; ++row) {
        nested += (row == 0 ? "[[[1],[2]]," : ",[[[1],[2]],") + std::to_string(row) + "]";
    }
    std::string bad = document(list);
    bad.replace(bad.rfind(R"("],[ 59000)") + 1, 2, "\xFF\xFF");
    std::string tail = document(list);
    tail.insert(tail.size() - 1, R"(,"zzz":[[")" + std::string(2000000, 'z') + R"("],[[1]]])");
    const std::pair<const char*, std::string> cases[] = {{"list", document(list)},
                                                         {"lines", attributes + "}\n" + lines},
                                                         {"nested", document(nested)},
                                                         {"invalid text", bad},
                                                         {"tail", tail}};
    for (const auto& [name, bytes] : cases) {
        const auto dataset = read("a.json", bytes);
        ASSERT_EQ(dataset->observationCount(), rowCount) << name;
        bool isRight = true;
        for (int row = 0; row < rowCount; ++row) {
            isRight = isRight && dataset->numericValue(row, 1) == row;
        }
        EXPECT_TRUE(isRight) << name;
        const bool isNested = name == "nested"s;
        EXPECT_EQ(dataset->cellText(rowCount - 1, 0),
                  isNested ? "[[1],[2]]" : R"(],[ 59999 "],[\)");
        EXPECT_EQ(dataset->damageNotes().size(), isNested || name == "invalid text"s ? 1U : 0U);
    }
    std::string broken = attributes + "}\n" + lines;
    broken.replace(broken.rfind(",59990]"), 1, ";");
    EXPECT_EQ(failureOf(broken), "a.json: Line 59992 is damaged: it is no valid JSON");
}

TEST_F(DatasetJsonDoc, readsWhatTheSamplesWrite)
{
    const samples::Table table{
        {"SMALL",
         "A small table",
         {samples::textColumn("NAME", "Name", 12), samples::numberColumn("AVAL", "Größe", "", 8, 2),
          samples::numberColumn("ADT", "Date", "DATE", 9)}},
        {{"Müller \"x\"", 1.25, 19718.0}, {"", samples::missing, samples::missing}}};
    for (const char* file : {"a.json", "a.ndjson", "a.dsjc"}) {
        const auto dataset = read(file, written(file, table));
        EXPECT_EQ(shown(*dataset), "Müller \"x\"|1.25|26Dec2013; |.|.") << file;
        EXPECT_EQ(dataset->labels(), (std::vector<std::string>{"Name", "Größe", "Date"}));
        EXPECT_EQ(dataset->writtenFormat(2), "DATE9.");
        EXPECT_TRUE(dataset->damageNotes().empty());
    }
}

TEST_F(DatasetJsonDoc, knowsItsRowsWithoutReadingThem)
{
    const auto countOf = [&](const std::string& bytes) {
        return read("a.json", bytes, {.metadataOnly = true})->observationCount();
    };
    EXPECT_EQ(countOf(document("[\"x\",1],[\"y\",2]")), 2);
    EXPECT_EQ(countOf(document("[\"x\",1]").insert(1, R"("records":5,)")), 1);
    EXPECT_EQ(countOf(attributes + "}\n[\"x\",1]\n\n[\"y\",2]"), 2);
    EXPECT_EQ(countOf(R"({"rows":[["x",1],["]",2]],)" + twoColumns + "}"), 2);
    // A long file is believed.
    const std::string text = R"([")" + std::string(1 << 20, 'x') + R"(",1])";
    std::string rows = text;
    for (int row = 0; row < 9; ++row) {
        rows += ',' + text;
    }
    EXPECT_EQ(countOf(document(rows).insert(1, R"("records":12,)")), 12);
    EXPECT_EQ(countOf(document(rows)), 10);
    EXPECT_EQ(read("a.json", document(rows).insert(1, R"("records":2,)"))->observationCount(), 10);
}

TEST_F(DatasetJsonDoc, logsWhatChangesNoValue)
{
    LogCapture log;
    static_cast<void>(read("a.json", inColumn(column("integer"), R"([2.5],["3"],[true],[1])")));
    EXPECT_EQ(
        log.take(),
        "info: T: X: numbers with decimals in a variable of integers (1, first in row 1: 2.5)\n"
        "info: T: X: numbers written as texts (1, first in row 2: 3)\n"
        "info: T: X: true and false where numbers are expected, taken as 1 and 0 (1, first in "
        "row 3: true)\n");
}

}  // namespace

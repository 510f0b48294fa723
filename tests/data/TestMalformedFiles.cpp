#include "tests/data/ReaderTest.h"

#include <functional>
#include <ostream>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using samples::Compression;
using samples::WriteOptions;

constexpr int refused = -1;
/// The description alone is whole, and read.
constexpr int rowsRefused = -2;

/// Ten rows of a text of 16 bytes and a number of 8.
constexpr int healthyRows = 10;
constexpr std::size_t rowLength = 24;

samples::Table people()
{
    samples::Table table{
        {"PEOPLE",
         "Some people",
         {samples::textColumn("NAME", "Name", 16), samples::numberColumn("AGE", "Age")}},
        {}};
    for (int row = 0; row < healthyRows; ++row) {
        table.rows.push_back({"Person-" + std::to_string(row), 20.0 + row});
    }
    return table;
}

/// A kind of file, as it is written.
struct Kind
{
    const char* file;
    WriteOptions options{};
};
const Kind sas{"a.sas7bdat"};
const Kind xpt{"a.xpt"};
const Kind xpt8{"a.xpt", {.release = 8}};
const Kind sav{"a.sav"};
const Kind savRows{"a.sav", {.compression = Compression::Rows}};
const Kind zsav{"a.sav", {.compression = Compression::Zlib}};
const Kind dta{"a.dta"};
const Kind dta114{"a.dta", {.release = 114}};
const Kind dta119{"a.dta", {.release = 119}};

// Ways to damage a file.

auto cutTo(std::size_t size)
{
    return [=](std::string& bytes) { bytes.resize(size); };
}
auto cutOff(std::size_t size)
{
    return [=](std::string& bytes) { bytes.resize(bytes.size() - size); };
}
auto cutBehind(std::string_view mark, std::size_t size)
{
    return [=](std::string& bytes) { bytes.resize(behind(bytes, mark) + size); };
}
auto putAt(std::size_t offset, std::uint64_t value, std::size_t width)
{
    return [=](std::string& bytes) { put(bytes, offset, value, width); };
}
auto putFromEnd(std::size_t offset, std::uint64_t value, std::size_t width)
{
    return [=](std::string& bytes) { put(bytes, bytes.size() - offset, value, width); };
}
auto putBehind(std::string_view mark, std::size_t offset, std::uint64_t value, std::size_t width)
{
    return [=](std::string& bytes) { put(bytes, behind(bytes, mark) + offset, value, width); };
}
/// In a subheader of a SAS7BDAT file of 64-bit layout, which its signature starts.
auto putIn(std::string_view signature, std::size_t offset, std::uint64_t value, std::size_t width)
{
    return putBehind(signature, offset - signature.size(), value, width);
}
auto textBehind(std::string_view mark, std::size_t offset, std::string_view text)
{
    return
        [=](std::string& bytes) { bytes.replace(behind(bytes, mark) + offset, text.size(), text); };
}

/// A transport file whose padding has no blanks, for less than a row.
void withNuls(std::string& bytes)
{
    bytes.resize(behind(bytes, "*OBS     ") + 52 + healthyRows * rowLength);
    bytes.resize(bytes.size() + rowLength - 1, '\0');
}

/// A transport file whose only data set has neither variables nor rows.
void withoutVariables(std::string& bytes)
{
    const std::size_t count = behind(bytes, "NAMESTR") + 27;
    bytes.replace(count, 4, "0000");
    const std::size_t records = count - 54 + 80;
    bytes.erase(records, bytes.find("HEADER RECORD*******OBS") - records);
    bytes.resize(records + 80);
}

struct Malformed
{
    const char* name;
    Kind kind;
    std::function<void(std::string& bytes)> damage;
    int rows;  ///< that can be read, or `refused`, `rowsRefused`
    const char* message = "";  ///< a part of it, or of the note on what can be read
};

std::ostream& operator<<(std::ostream& out, const Malformed& one)
{
    return out << one.name;
}

constexpr std::size_t sasPageSize = 200;
constexpr std::size_t sasPageCount = 204;
constexpr std::string_view rowSize = "\xF7\xF7\xF7\xF7";
constexpr std::string_view columnCount = "\xF6\xF6\xF6\xF6";
constexpr std::string_view attributes = "\xFC\xFF\xFF\xFF";
constexpr std::size_t savVariable = 176;  // the first record of the dictionary

const Malformed cases[] = {
    {"sasWithoutBytes", sas, cutTo(0), refused, "is empty"},
    {"xptWithoutBytes", xpt, cutTo(0), refused},
    {"savWithoutBytes", sav, cutTo(0), refused},
    {"dtaWithoutBytes", dta, cutTo(0), refused},
    {"sasWithOtherMagic", sas, putAt(20, 'x', 1), refused},
    {"xptWithOtherMagic", xpt, putAt(0, 'x', 1), refused},
    {"savWithOtherMagic", sav, putAt(0, 'x', 1), refused},
    {"dtaWithOtherMagic", dta, putAt(1, 'x', 1), refused},
    {"dtaOfUnknownRelease", dta114, putAt(0, 0x7F, 1), refused},
    {"sasCutInHeader", sas, cutTo(200), refused},
    {"sasCutBehindHeader", sas, cutTo(1024), refused},
    {"sasCutInPage", sas, cutOff(100), refused, "pages, but it is too short"},
    {"xptCutInHeader", xpt, cutTo(300), refused},
    {"xptCutInVariables", xpt, cutBehind("NAMESTR", 160), refused, "promises 2 variables"},
    {"xptCutInFourthRow", xpt, cutBehind("*OBS     ", 52 + 3 * rowLength + 5), refused,
     "cut short within observation 4"},
    {"xptCutBehindItsThirdRow", xpt, cutBehind("*OBS     ", 52 + 3 * rowLength), 3,
     "does not end with a whole record"},
    {"xptFilledUpWithNuls", xpt, withNuls, healthyRows, "does not end with a whole record"},
    {"savCutInHeader", sav, cutTo(100), refused},
    {"savCutInDictionary", sav, cutTo(200), refused, "cut short"},
    {"savCutInRows", sav, cutOff(5), rowsRefused},
    {"compressedSavCutInRows", savRows, cutOff(30), rowsRefused},
    {"zlibSavWithoutItsEnd", zsav, cutOff(10), rowsRefused},
    {"dtaCutInHeader", dta, cutTo(60), refused, "damaged"},
    {"dtaCutInRows", dta, cutBehind("<data>", 3 * rowLength), rowsRefused},
    {"oldDtaCutInTypes", dta114, cutTo(110), refused},
    {"oldDtaCutInRows", dta114, cutOff(40), rowsRefused},
    {"sasWithPagesOfNoBytes", sas, putAt(sasPageSize, 0, 4), refused},
    {"sasWithPagesOfFourGigabytes", sas, putAt(sasPageSize, 0xFFFFFFFF, 4), refused},
    {"sasWithCountlessPages", sas, putAt(sasPageCount, ~std::uint64_t{0}, 8), refused},
    {"sasWithTooManyRows", sas, putIn(rowSize, 6 * 8, 1'000'000'000, 8), refused,
     "promises 1000000000 observations"},
    {"sasWithRowsOfNoBytes", sas, putIn(rowSize, 5 * 8, 0, 8), refused},
    {"sasWithMoreColumnsThanDescribed", sas, putIn(columnCount, 8, 70000, 8), refused},
    {"sasWithFewerColumnsThanDescribed", sas, putIn(columnCount, 8, 1, 8), refused,
     "counts 1 variables, but describes 2"},
    {"sasWithoutItsColumnCount", sas, putIn(columnCount, 0, 0, 4), refused, "is missing"},
    {"sasWithoutItsRowSize", sas, putIn(rowSize, 0, 0, 4), refused, "is missing"},
    {"sasThatCountsDeletedRows", sas, putIn(rowSize, 7 * 8, 3, 8), healthyRows,
     "counts 3 deleted observations, but marks 0"},
    {"sasColumnBeyondTheRow", sas, putIn(attributes, 16, 5000, 8), rowsRefused},
    {"sasColumnWiderThanTheRow", sas, putIn(attributes, 24, 5000, 4), rowsRefused},
    {"xptWithTooManyVariables", xpt, textBehind("NAMESTR", 27, "9999"), refused,
     "promises 9999 variables"},
    {"xptWithNoNumberOfVariables", xpt, textBehind("NAMESTR", 27, "0x02"), refused,
     "counts the variables"},
    {"xptWithVariablesOfNoBytes", xpt, textBehind("*MEMBER ", 46, "0000"), refused,
     "starts a data set"},
    {"xptWithNegativeLength", xpt, textBehind("NAMESTR", 53 + 4, "\xFF\xF0"), refused,
     "NAME has an impossible length, -16"},
    {"xptWithVariableOfNoBytes", xpt, textBehind("NAMESTR", 53 + 4, std::string_view("\0\0", 2)),
     refused, "NAME has an impossible length, 0"},
    {"xptWithTooLongNumber", xpt, textBehind("NAMESTR", 53 + 140 + 4, std::string_view("\0\x9", 2)),
     refused, "AGE has an impossible length, 9"},
    {"xptWithoutVariables", xpt, withoutVariables, refused, "has no variables"},
    {"xptThatCountsTooManyRows", xpt8, textBehind("OBSV8", 34, "9999"), refused,
     "promises 9999 observations"},
    {"xptThatCountsTooFewRows", xpt8, textBehind("OBSV8", 36, " 7"), healthyRows,
     "counts 7 observations, but it holds 10"},
    {"savWithTooManyRows", sav, putAt(80, 0x7FFFFFFF, 4), refused,
     "promises 2147483647 observations"},
    {"savWithLessThanNoRows", sav, putAt(80, 0xFFFFFFFE, 4), refused},
    {"savThatTellsNoRowCount", sav, putAt(80, 0xFFFFFFFF, 4), healthyRows},
    {"savOfUnknownCompression", sav, putAt(72, 7, 4), healthyRows, "unknown compression (7)"},
    {"savTextOfTwoGigabytes", sav, putAt(savVariable + 4, 0x7FFFFFFF, 4), healthyRows},
    {"savWithCountlessMissingValues", sav, putAt(savVariable + 12, 0x7FFFFFFF, 4), refused},
    {"zlibSavWithCountlessBlocks", zsav, putFromEnd(28, 0x7FFFFFFF, 4), rowsRefused},
    {"dtaWithTooManyVariables", dta, putBehind("<K>", 0, 0xFFFF, 2), refused,
     "promises 65535 variables"},
    {"dta119WithTooManyVariables", dta119, putBehind("<K>", 0, 0xFFFFFFFF, 4), refused,
     "promises 4294967295 variables"},
    {"dtaWithTooManyRows", dta, putBehind("<N>", 0, 1'000'000'000, 8), refused,
     "promises 1000000000 observations"},
    {"dtaLabelBeyondTheHeader", dta, putBehind("<label>", 0, 0xFFFF, 2), refused, "damaged"},
    {"dtaMapBeyondTheFile", dta, putBehind("<map>", 9 * 8, ~std::uint64_t{0} >> 1, 8), rowsRefused},
    {"dtaWithRowsOfNoBytes", dta, putBehind("<variable_types>", 0, 0, 4), refused},
    {"oldDtaWithTooManyVariables", dta114, putAt(4, 0xFFFF, 2), refused,
     "promises 65535 variables"},
    {"oldDtaWithTooManyRows", dta114, putAt(6, 1'000'000'000, 4), refused,
     "promises 1000000000 observations"},
};

class MalformedFiles : public ReaderTest
{
protected:
    /// To open the file fails, and says which file it is and more.
    static void expectRefused(const QString& path, const std::string& name, const char* message,
                              const std::vector<bool>& metadataOnly = {false, true})
    {
        for (const bool only : metadataOnly) {
            const auto opened = openDataset(path, {.metadataOnly = only});
            ASSERT_FALSE(opened.ok()) << "is read";
            EXPECT_EQ(opened.error().find(name + ": "), 0U) << opened.error();
            EXPECT_GT(opened.error().size(), name.size() + 2);
            EXPECT_NE(opened.error().find(message), std::string::npos) << opened.error();
        }
    }
};

class MalformedFile : public MalformedFiles, public testing::WithParamInterface<Malformed>
{ };

TEST_P(MalformedFile, endsInAMessageOrInWhatIsReadable)
{
    const Malformed& one = GetParam();
    std::string bytes = written(one.kind.file, people(), one.kind.options);
    one.damage(bytes);
    const QString file = write(one.kind.file, bytes);
    if (one.rows == refused) {
        expectRefused(file, one.kind.file, one.message);
        return;
    }
    if (one.rows == rowsRefused) {
        expectRefused(file, one.kind.file, one.message, {false});
        const auto description = openDataset(file, {.metadataOnly = true});
        ASSERT_TRUE(description.ok()) << description.error();
        EXPECT_EQ(description.value().dataset->variableCount(), 2);
        return;
    }
    const auto dataset = read(one.kind.file, bytes);
    EXPECT_EQ(dataset->damageNotes().size(), *one.message == '\0' ? 0U : 1U);
    for (const std::string& note : dataset->damageNotes()) {
        EXPECT_NE(note.find(one.message), std::string::npos) << note;
    }
    ASSERT_EQ(dataset->observationCount(), one.rows);
    for (int row = 0; row < one.rows; ++row) {
        EXPECT_EQ(dataset->cellText(row, 0), "Person-" + std::to_string(row));
        EXPECT_EQ(dataset->numericValue(row, 1), 20 + row);
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, MalformedFile, testing::ValuesIn(cases),
                         [](const auto& one) { return std::string(one.param.name); });

TEST_F(MalformedFiles, aKindOfFileUnderTheSuffixOfAnotherIsRefused)
{
    const char* const names[] = {"a.sas7bdat", "a.xpt", "a.sav", "a.dta"};
    for (const char* const name : names) {
        const std::string bytes = written(name, people());
        for (const char* const other : names) {
            if (other != name) {
                SCOPED_TRACE(std::string(name) + " as " + other);
                expectRefused(write(other, bytes), other, "");
            }
        }
    }
}

TEST_F(MalformedFiles, aTextEndsAtItsFirstNul)
{
    for (const Kind& kind : {sas, xpt, sav, dta, dta114}) {
        SCOPED_TRACE(kind.file);
        std::string bytes = written(kind.file, people(), kind.options);
        bytes.replace(bytes.find("Person-3"), 8, std::string_view("Per\0on-3", 8));
        const auto dataset = read(kind.file, bytes);
        ASSERT_EQ(dataset->observationCount(), healthyRows);
        // The library leaves NUL bytes out of the UTF-8 texts of SPSS files.
        EXPECT_EQ(dataset->cellText(3, 0), kind.file == sav.file ? "Peron-3" : "Per");
        EXPECT_EQ(dataset->cellText(4, 0), "Person-4");
    }
}

TEST_F(MalformedFiles, veryLongTextsMayStartWithNothingButNuls)
{
    constexpr std::size_t length = 600;
    samples::Table table = people();
    table.columns[0].length = length;
    for (samples::Row& row : table.rows) {
        row[0] = std::string(length, 'a');
    }
    std::string bytes = written("a.sav", table);
    bytes.replace(bytes.find(std::string(200, 'a')), 255, 255, '\0');
    const auto dataset = read("a.sav", bytes);
    EXPECT_EQ(dataset->header().encoding, "UTF-8");
    EXPECT_EQ(dataset->cellText(0, 0), "");
    EXPECT_EQ(dataset->cellText(1, 0), std::string(length, 'a'));
    EXPECT_EQ(dataset->numericValue(0, 1), 20);
}

TEST_F(MalformedFiles, whatIsNoFileIsRefused)
{
    for (const char* const suffix : {".sas7bdat", ".xpt", ".sav", ".dta"}) {
        SCOPED_TRACE(suffix);
        const std::string missing = std::string("missing") + suffix;
        expectRefused(path(missing), missing, "");

        const std::string folder = std::string("folder") + suffix;
        std::filesystem::create_directory(m_folder.file(folder));
        expectRefused(path(folder), folder, "Not a regular file");

        const std::string device = std::string("device") + suffix;
        std::filesystem::create_symlink("/dev/zero", m_folder.file(device));
        expectRefused(path(device), device, "Not a regular file");

        const std::string pipe = std::string("pipe") + suffix;
        ASSERT_EQ(mkfifo(m_folder.file(pipe).c_str(), 0600), 0);
        expectRefused(path(pipe), pipe, "Not a regular file");
    }
}

}  // namespace

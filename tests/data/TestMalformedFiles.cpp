#include "data/readers/DatasetFile.h"
#include "samples/TableWriter.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
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

void put(std::string& bytes, std::size_t offset, std::uint64_t value, std::size_t width)
{
    for (std::size_t i = 0; i < width; ++i) {
        bytes.at(offset + i) = static_cast<char>(value >> 8 * i);
    }
}

std::size_t behind(const std::string& bytes, std::string_view mark)
{
    const std::size_t at = bytes.find(mark);
    if (at == std::string::npos) {
        throw std::runtime_error("no " + std::string(mark));
    }
    return at + mark.size();
}

/// Offset of a subheader in a SAS7BDAT file of 64-bit layout, by its signature.
std::size_t subheader(const std::string& bytes, std::string_view signature)
{
    return behind(bytes, signature) - signature.size();
}

void replaceText(std::string& bytes, std::string_view text, std::string_view other)
{
    bytes.replace(behind(bytes, text) - text.size(), text.size(), other);
}

struct Malformed
{
    const char* name;
    const char* file;
    WriteOptions options;
    void (*damage)(std::string& bytes);
    int rows;  ///< that can be read, or `refused`, `rowsRefused`
    const char* message = "";  ///< a part of it
};

std::ostream& operator<<(std::ostream& out, const Malformed& one)
{
    return out << one.name;
}

constexpr std::size_t sasPageSize = 200 + 4;  // a1 is 4 in files of 64-bit layout
constexpr std::size_t sasPageCount = 204 + 4;
constexpr std::string_view rowSizeSignature = "\xF7\xF7\xF7\xF7";
constexpr std::string_view columnCountSignature = "\xF6\xF6\xF6\xF6";
constexpr std::string_view attributesSignature = "\xFC\xFF\xFF\xFF";
constexpr std::size_t savVariable = 176;  // the first record of the dictionary

const Malformed cases[] = {
    {"sasWithoutBytes", "a.sas7bdat", {}, [](std::string& b) { b.clear(); }, refused},
    {"xptWithoutBytes", "a.xpt", {}, [](std::string& b) { b.clear(); }, refused},
    {"savWithoutBytes", "a.sav", {}, [](std::string& b) { b.clear(); }, refused},
    {"dtaWithoutBytes", "a.dta", {}, [](std::string& b) { b.clear(); }, refused},

    {"sasWithOtherMagic", "a.sas7bdat", {}, [](std::string& b) { b[20] = 'x'; }, refused},
    {"xptWithOtherMagic", "a.xpt", {}, [](std::string& b) { b[0] = 'x'; }, refused},
    {"savWithOtherMagic", "a.sav", {}, [](std::string& b) { b[0] = 'x'; }, refused},
    {"dtaWithOtherMagic", "a.dta", {}, [](std::string& b) { b[1] = 'x'; }, refused},
    {"dtaOfUnknownRelease",
     "a.dta",
     {.release = 114},
     [](std::string& b) { b[0] = '\x7F'; },
     refused},

    {"sasCutInHeader", "a.sas7bdat", {}, [](std::string& b) { b.resize(200); }, refused},
    {"sasCutBehindHeader", "a.sas7bdat", {}, [](std::string& b) { b.resize(1024); }, refused},
    {"sasCutInPage", "a.sas7bdat", {}, [](std::string& b) { b.resize(b.size() - 100); }, refused},
    {"xptCutInHeader", "a.xpt", {}, [](std::string& b) { b.resize(300); }, refused},
    {"xptCutInVariables",
     "a.xpt",
     {},
     [](std::string& b) { b.resize(behind(b, "NAMESTR") + 160); },
     refused,
     "promises 2 variables"},
    {"xptCutInFourthRow",
     "a.xpt",
     {},
     [](std::string& b) { b.resize(behind(b, "*OBS     ") + 51 + 3 * rowLength + 5); },
     3},
    {"savCutInHeader", "a.sav", {}, [](std::string& b) { b.resize(100); }, refused},
    {"savCutInDictionary", "a.sav", {}, [](std::string& b) { b.resize(200); }, refused},
    {"savCutInRows", "a.sav", {}, [](std::string& b) { b.resize(b.size() - 5); }, rowsRefused},
    {"compressedSavCutInRows",
     "a.sav",
     {.compression = Compression::Rows},
     [](std::string& b) { b.resize(b.size() - 30); },
     rowsRefused},
    {"zlibSavWithoutItsEnd",
     "a.sav",
     {.compression = Compression::Zlib},
     [](std::string& b) { b.resize(b.size() - 10); },
     rowsRefused},
    {"dtaCutInHeader", "a.dta", {}, [](std::string& b) { b.resize(60); }, refused, "damaged"},
    {"dtaCutInRows",
     "a.dta",
     {},
     [](std::string& b) { b.resize(behind(b, "<data>") + 3 * rowLength); },
     rowsRefused},
    {"oldDtaCutInTypes", "a.dta", {.release = 114}, [](std::string& b) { b.resize(110); }, refused},
    {"oldDtaCutInRows",
     "a.dta",
     {.release = 114},
     [](std::string& b) { b.resize(b.size() - 40); },
     rowsRefused},

    {"sasWithPagesOfNoBytes",
     "a.sas7bdat",
     {},
     [](std::string& b) { put(b, sasPageSize, 0, 4); },
     refused},
    {"sasWithPagesOfFourGigabytes",
     "a.sas7bdat",
     {},
     [](std::string& b) { put(b, sasPageSize, 0xFFFFFFFF, 4); },
     refused},
    {"sasWithCountlessPages",
     "a.sas7bdat",
     {},
     [](std::string& b) { put(b, sasPageCount, ~std::uint64_t{0}, 8); },
     refused},
    {"sasWithTooManyRows",
     "a.sas7bdat",
     {},
     [](std::string& b) { put(b, subheader(b, rowSizeSignature) + 6 * 8, 1'000'000'000, 8); },
     refused,
     "promises 1000000000 observations"},
    {"sasWithRowsOfNoBytes",
     "a.sas7bdat",
     {},
     [](std::string& b) { put(b, subheader(b, rowSizeSignature) + 5 * 8, 0, 8); },
     refused},
    {"sasWithMoreColumnsThanDescribed",
     "a.sas7bdat",
     {},
     [](std::string& b) { put(b, subheader(b, columnCountSignature) + 8, 70000, 8); },
     refused},
    {"sasColumnBeyondTheRow",
     "a.sas7bdat",
     {},
     [](std::string& b) { put(b, subheader(b, attributesSignature) + 16, 5000, 8); },
     rowsRefused},
    {"sasColumnWiderThanTheRow",
     "a.sas7bdat",
     {},
     [](std::string& b) { put(b, subheader(b, attributesSignature) + 24, 5000, 4); },
     rowsRefused},

    {"xptWithTooManyVariables",
     "a.xpt",
     {},
     [](std::string& b) { b.replace(behind(b, "NAMESTR") + 27, 4, "9999"); },
     refused,
     "promises 9999 variables"},
    {"xptWithNoNumberOfVariables",
     "a.xpt",
     {},
     [](std::string& b) { b.replace(behind(b, "NAMESTR") + 27, 4, "0x02"); },
     refused,
     "counts the variables"},
    {"xptWithVariablesOfNoBytes",
     "a.xpt",
     {},
     [](std::string& b) { b.replace(behind(b, "*MEMBER ") + 46, 4, "0000"); },
     refused,
     "starts a data set"},
    {"xptWithNegativeLength",
     "a.xpt",
     {},
     [](std::string& b) { b.replace(behind(b, "NAMESTR") + 53 + 4, 2, "\xFF\xF0"); },
     refused,
     "NAME has a negative length"},
    {"xptThatCountsTooManyRows",
     "a.xpt",
     {.release = 8},
     [](std::string& b) { b.replace(behind(b, "OBSV8") + 31, 4, "9999"); },
     healthyRows},

    {"savWithTooManyRows",
     "a.sav",
     {},
     [](std::string& b) { put(b, 80, 0x7FFFFFFF, 4); },
     refused,
     "promises 2147483647 observations"},
    {"savWithLessThanNoRows",
     "a.sav",
     {},
     [](std::string& b) { put(b, 80, 0xFFFFFFFE, 4); },
     refused},
    {"savThatTellsNoRowCount",
     "a.sav",
     {},
     [](std::string& b) { put(b, 80, 0xFFFFFFFF, 4); },
     healthyRows},
    {"savTextOfTwoGigabytes",
     "a.sav",
     {},
     [](std::string& b) { put(b, savVariable + 4, 0x7FFFFFFF, 4); },
     healthyRows},
    {"savWithCountlessMissingValues",
     "a.sav",
     {},
     [](std::string& b) { put(b, savVariable + 12, 0x7FFFFFFF, 4); },
     refused},
    {"zlibSavWithCountlessBlocks",
     "a.sav",
     {.compression = Compression::Zlib},
     [](std::string& b) { put(b, b.size() - 28, 0x7FFFFFFF, 4); },
     rowsRefused},

    {"dtaWithTooManyVariables",
     "a.dta",
     {},
     [](std::string& b) { put(b, behind(b, "<K>"), 0xFFFF, 2); },
     refused,
     "promises 65535 variables"},
    {"dta119WithTooManyVariables",
     "a.dta",
     {.release = 119},
     [](std::string& b) { put(b, behind(b, "<K>"), 0xFFFFFFFF, 4); },
     refused,
     "promises 4294967295 variables"},
    {"dtaWithTooManyRows",
     "a.dta",
     {},
     [](std::string& b) { put(b, behind(b, "<N>"), 1'000'000'000, 8); },
     refused,
     "promises 1000000000 observations"},
    {"dtaLabelBeyondTheHeader",
     "a.dta",
     {},
     [](std::string& b) { put(b, behind(b, "<label>"), 0xFFFF, 2); },
     refused,
     "damaged"},
    {"dtaMapBeyondTheFile",
     "a.dta",
     {},
     [](std::string& b) { put(b, behind(b, "<map>") + 9 * 8, ~std::uint64_t{0} >> 1, 8); },
     rowsRefused},
    {"dtaWithRowsOfNoBytes",
     "a.dta",
     {},
     [](std::string& b) { put(b, behind(b, "<variable_types>"), 0, 4); },
     refused},
    {"oldDtaWithTooManyVariables",
     "a.dta",
     {.release = 114},
     [](std::string& b) { put(b, 4, 0xFFFF, 2); },
     refused,
     "promises 65535 variables"},
    {"oldDtaWithTooManyRows",
     "a.dta",
     {.release = 114},
     [](std::string& b) { put(b, 6, 1'000'000'000, 4); },
     refused,
     "promises 1000000000 observations"},
};

class MalformedFiles : public testing::Test
{
protected:
    [[nodiscard]] QString write(const char* name, const std::string& bytes) const
    {
        std::ofstream(m_folder.file(name), std::ios::binary) << bytes;
        return path(name);
    }
    [[nodiscard]] QString path(const char* name) const
    {
        return QString::fromStdString(m_folder.file(name).string());
    }
    [[nodiscard]] std::string healthy(const char* name, const WriteOptions& options,
                                      const samples::Table& table = people()) const
    {
        samples::writeTable(m_folder.file(name), table, options);
        return bytesOf(m_folder.file(name));
    }
    /// To open the file fails, and says which file it is and more.
    static void expectRefused(const QString& path, const std::string& name, const char* message,
                              const OpenOptions& options)
    {
        const auto opened = openDataset(path, options);
        ASSERT_FALSE(opened.ok()) << "is read";
        EXPECT_EQ(opened.error().find(name + ": "), 0U) << opened.error();
        EXPECT_GT(opened.error().size(), name.size() + 2);
        EXPECT_NE(opened.error().find(message), std::string::npos) << opened.error();
    }
    static void expectRefused(const QString& path, const std::string& name, const char* message)
    {
        expectRefused(path, name, message, {.metadataOnly = false});
        expectRefused(path, name, message, {.metadataOnly = true});
    }
    TemporaryFolder m_folder;
};

class MalformedFile : public MalformedFiles, public testing::WithParamInterface<Malformed>
{ };

TEST_P(MalformedFile, endsInAMessageOrInWhatIsReadable)
{
    const Malformed& one = GetParam();
    std::string bytes = healthy(one.file, one.options);
    one.damage(bytes);
    const QString file = write(one.file, bytes);
    if (one.rows == refused) {
        expectRefused(file, one.file, one.message);
        return;
    }
    if (one.rows == rowsRefused) {
        expectRefused(file, one.file, one.message, {.metadataOnly = false});
        const auto description = openDataset(file, {.metadataOnly = true});
        ASSERT_TRUE(description.ok()) << description.error();
        EXPECT_EQ(description.value().dataset->variableCount(), 2);
        return;
    }
    const auto opened = openDataset(file);
    ASSERT_TRUE(opened.ok()) << opened.error();
    const StatDataset& dataset = *opened.value().dataset;
    ASSERT_EQ(dataset.observationCount(), one.rows);
    for (int row = 0; row < one.rows; ++row) {
        EXPECT_EQ(dataset.cellText(row, 0), "Person-" + std::to_string(row));
        EXPECT_EQ(dataset.numericValue(row, 1), 20 + row);
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, MalformedFile, testing::ValuesIn(cases),
                         [](const auto& one) { return std::string(one.param.name); });

TEST_F(MalformedFiles, aKindOfFileUnderTheSuffixOfAnotherIsRefused)
{
    const char* const names[] = {"a.sas7bdat", "a.xpt", "a.sav", "a.dta"};
    for (const char* const name : names) {
        const std::string bytes = healthy(name, {});
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
    struct Case
    {
        const char* file;
        WriteOptions options;
        const char* text;
    };
    const Case nulCases[] = {
        {"a.sas7bdat", {}, "Per"}, {"a.xpt", {}, "Per"},
        {"a.sav", {}, "Peron-3"},  // the library leaves NUL bytes out of UTF-8 texts
        {"a.dta", {}, "Per"},      {"a.dta", {.release = 114}, "Per"},
    };
    for (const auto& one : nulCases) {
        SCOPED_TRACE(one.file);
        std::string bytes = healthy(one.file, one.options);
        replaceText(bytes, "Person-3", std::string_view("Per\0on-3", 8));
        const auto opened = openDataset(write(one.file, bytes));
        ASSERT_TRUE(opened.ok()) << opened.error();
        const StatDataset& dataset = *opened.value().dataset;
        ASSERT_EQ(dataset.observationCount(), healthyRows);
        EXPECT_EQ(dataset.cellText(3, 0), one.text);
        EXPECT_EQ(dataset.cellText(4, 0), "Person-4");
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
    std::string bytes = healthy("a.sav", {}, table);
    const std::size_t text = bytes.find(std::string(200, 'a'));
    ASSERT_NE(text, std::string::npos);
    bytes.replace(text, 255, 255, '\0');
    const auto opened = openDataset(write("a.sav", bytes));
    ASSERT_TRUE(opened.ok()) << opened.error();
    const StatDataset& dataset = *opened.value().dataset;
    EXPECT_EQ(dataset.header().encoding, "UTF-8");
    EXPECT_EQ(dataset.cellText(0, 0), "");
    EXPECT_EQ(dataset.cellText(1, 0), std::string(length, 'a'));
    EXPECT_EQ(dataset.numericValue(0, 1), 20);
}

TEST_F(MalformedFiles, whatIsNoFileIsRefused)
{
    for (const char* const suffix : {".sas7bdat", ".xpt", ".sav", ".dta"}) {
        SCOPED_TRACE(suffix);
        const std::string missing = std::string("missing") + suffix;
        expectRefused(path(missing.c_str()), missing, "");

        const std::string folder = std::string("folder") + suffix;
        std::filesystem::create_directory(m_folder.file(folder));
        expectRefused(path(folder.c_str()), folder, "Not a regular file");

        const std::string device = std::string("device") + suffix;
        std::filesystem::create_symlink("/dev/zero", m_folder.file(device));
        expectRefused(path(device.c_str()), device, "Not a regular file");

        const std::string pipe = std::string("pipe") + suffix;
        ASSERT_EQ(mkfifo(m_folder.file(pipe).c_str(), 0600), 0);
        expectRefused(path(pipe.c_str()), pipe, "Not a regular file");
    }
}

TEST_F(MalformedFiles, aFileThatMayNotBeReadIsRefused)
{
    if (geteuid() == 0) {
        GTEST_SKIP() << "may read everything";
    }
    for (const char* const name : {"a.sas7bdat", "a.xpt", "a.sav", "a.dta"}) {
        SCOPED_TRACE(name);
        static_cast<void>(healthy(name, {}));
        std::filesystem::permissions(m_folder.file(name), std::filesystem::perms::none);
        expectRefused(path(name), name, "");
    }
}

}  // namespace

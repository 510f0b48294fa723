#include "FileReader.h"
#include "samples/TableWriter.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ctime>

namespace {

using namespace samples;

/// 5 March 2023 is day 23074 of SAS; 09:30 is second 34200 of the day.
Table smallTable()
{
    Table table{{"SMALL",
                 "A small table",
                 {textColumn("NAME", "Name of the person", 12), numberColumn("AGE", "Age", "", 3),
                  numberColumn("ADT", "Date", "DATE", 9),
                  numberColumn("ADTM", "Date and time", "DATETIME", 20),
                  numberColumn("ATM", "Time", "TIME", 8), numberColumn("AVAL", "Größe", "", 8, 2)}},
                {}};
    table.rows = {{"Müller", 41.0, 23074.0, 1993627800.0, 34200.0, 1.25},
                  {"", missing, missing, missing, missing, missing},
                  {"O'Neil \"x\"", -3.0, -1.0, 0.0, 0.0, 1e-7}};
    return table;
}

struct Target
{
    const char* file;
    WriteOptions options;
};

/// Every kind of file, with whatever can be chosen for it.
const Target targets[] = {
    {"v5.xpt", {.release = 5}},
    {"v8.xpt", {.release = 8}},
    {"plain.sas7bdat", {}},
    {"32bit.sas7bdat", {.layout64 = false}},
    {"rows.sas7bdat", {.compression = Compression::Rows}},
    {"rows32.sas7bdat", {.compression = Compression::Rows, .layout64 = false}},
    {"1252.sas7bdat", {.encoding = TextEncoding::Windows1252}},
    {"plain.sav", {}},
    {"rows.sav", {.compression = Compression::Rows}},
    {"zlib.sav", {.compression = Compression::Zlib}},
    {"s111.dta", {.release = 111}},
    {"s112.dta", {.release = 112}},
    {"s113.dta", {.release = 113}},
    {"s114.dta", {.release = 114}},
    {"s115.dta", {.release = 115}},
    {"s117.dta", {.release = 117}},
    {"s118.dta", {.release = 118}},
    {"s119.dta", {.release = 119}},
};

/// The dates of the first row as each kind of file counts them.
struct StoredDates
{
    double date;
    double dateTime;
    double time;
};

StoredDates storedDates(FileKind kind)
{
    switch (kind) {
    case FileKind::Spss:
        return {13897353600, 13897387800, 34200};
    case FileKind::Stata:
        return {23074, 1993627800000, 34200000};
    default:
        return {23074, 1993627800, 34200};
    }
}

double numberAt(const Table& table, std::size_t row, std::size_t column)
{
    return std::get<double>(table.rows.at(row).at(column));
}

std::string textAt(const Table& table, std::size_t row, std::size_t column)
{
    return std::get<std::string>(table.rows.at(row).at(column));
}

TEST(TableWriter, everyKindOfFileKeepsTheTable)
{
    const TemporaryFolder folder;
    const auto table = smallTable();
    for (const auto& target : targets) {
        SCOPED_TRACE(target.file);
        const auto path = folder.file(target.file);
        writeTable(path, table, target.options);
        const auto read = readBack(path);

        ASSERT_EQ(read.columns.size(), 6U);
        for (std::size_t i = 0; i < 6; ++i) {
            EXPECT_EQ(read.columns[i].name, table.columns[i].name);
            EXPECT_EQ(read.columns[i].label, table.columns[i].label);
            EXPECT_EQ(read.columns[i].character, table.columns[i].character);
        }
        ASSERT_EQ(read.rows.size(), 3U);
        EXPECT_EQ(textAt(read, 0, 0), "Müller");
        EXPECT_EQ(textAt(read, 1, 0), "");
        EXPECT_EQ(textAt(read, 2, 0), "O'Neil \"x\"");
        const auto dates = storedDates(kindOfFile(path));
        EXPECT_EQ(numberAt(read, 0, 1), 41);
        EXPECT_EQ(numberAt(read, 0, 2), dates.date);
        EXPECT_EQ(numberAt(read, 0, 3), dates.dateTime);
        EXPECT_EQ(numberAt(read, 0, 4), dates.time);
        EXPECT_EQ(numberAt(read, 0, 5), 1.25);
        EXPECT_DOUBLE_EQ(numberAt(read, 2, 5), 1e-7);
        for (std::size_t column = 1; column < 6; ++column) {
            EXPECT_TRUE(std::isnan(numberAt(read, 1, column))) << column;
        }
    }
}

TEST(TableWriter, theSameTableGivesTheSameBytesInEveryTimeZone)
{
    const TemporaryFolder folder;
    const auto table = smallTable();
    const auto write = [&](const Target& target, const char* zone) {
        setenv("TZ", zone, 1);
        tzset();
        writeTable(folder.file(target.file), table, target.options);
        return bytesOf(folder.file(target.file));
    };
    for (const auto& target : targets) {
        EXPECT_EQ(write(target, "UTC"), write(target, "JST-9")) << target.file;
    }
    setenv("TZ", "UTC", 1);
    tzset();
}

TEST(TableWriter, filesTellTheirReleaseCompressionAndEncoding)
{
    struct Case
    {
        const char* file;
        std::size_t offset;
        std::string_view bytes;
    };
    using namespace std::string_view_literals;
    const Case cases[] = {
        {"v5.xpt", 20, "LIBRARY HEADER"},
        {"v8.xpt", 20, "LIBV8   HEADER"},
        {"plain.sas7bdat", 32, "\x33"},
        {"plain.sas7bdat", 70, "\x14"},
        {"plain.sas7bdat", 92, "SMALL "},
        {"32bit.sas7bdat", 32, "\x22"},
        {"1252.sas7bdat", 70, "\x3E"},
        {"plain.sav", 0, "$FL2"},
        {"plain.sav", 72, "\0"sv},
        {"rows.sav", 72, "\1"},
        {"zlib.sav", 0, "$FL3"},
        {"zlib.sav", 72, "\2"},
        {"s111.dta", 0, "\x6F"},
        {"s115.dta", 0, "\x73"},
        {"s117.dta", 0, "<stata_dta><header><release>117<"},
        {"s119.dta", 0, "<stata_dta><header><release>119<"},
    };
    const TemporaryFolder folder;
    for (const auto& target : targets) {
        writeTable(folder.file(target.file), smallTable(), target.options);
    }
    for (const auto& row : cases) {
        EXPECT_EQ(bytesOf(folder.file(row.file)).substr(row.offset, row.bytes.size()), row.bytes)
            << row.file << " at " << row.offset;
    }
    EXPECT_NE(bytesOf(folder.file("rows.sas7bdat")).find("SASYZCRL"), std::string::npos);
    EXPECT_EQ(bytesOf(folder.file("plain.sas7bdat")).find("SASYZCRL"), std::string::npos);
}

// A format record begins with its signature on a 4-byte boundary; width and decimals stand behind
// three words of the layout. The library puts the records from the end of the page.
TEST(TableWriter, sas7bdatKeepsFormatWidthsApartFromNames)
{
    const TemporaryFolder folder;
    const auto path = folder.file("formats.sas7bdat");
    for (const bool layout64 : {false, true}) {
        writeTable(path, smallTable(), {.layout64 = layout64});
        const auto bytes = bytesOf(path);
        std::vector<std::pair<int, int>> widths;
        for (std::size_t at = 0; at + 64 < bytes.size(); at += 4) {
            if (bytes.compare(at, 4, "\xFE\xFB\xFF\xFF") == 0) {
                const auto place = at + (layout64 ? 24 : 12);
                widths.emplace_back(bytes[place], bytes[place + 2]);
            }
        }
        const std::vector<std::pair<int, int>> expected{{8, 2}, {8, 0}, {20, 0},
                                                        {9, 0}, {3, 0}, {0, 0}};
        EXPECT_EQ(widths, expected);
        EXPECT_EQ(bytes.find("DATETIME2"), std::string::npos);
    }
    std::vector<std::string> formats;
    for (const auto& column : readBack(path).columns) {
        formats.push_back(column.format);
    }
    EXPECT_EQ(formats, std::vector<std::string>({"", "", "DATE9", "DATETIME20", "TIME8", ""}));
}

TEST(TableWriter, transportMembersFollowEachOther)
{
    const TemporaryFolder folder;
    for (const int release : {5, 8}) {
        SCOPED_TRACE(release);
        std::vector<Table> tables{smallTable(), smallTable()};
        tables[1].name = "OTHER";
        tables[1].rows.resize(1);
        const auto path = folder.file("two.xpt");
        writeTransport(path, tables, {.release = release});
        writeTable(folder.file("first.xpt"), tables[0], {.release = release});
        writeTable(folder.file("second.xpt"), tables[1], {.release = release});

        EXPECT_EQ(bytesOf(path),
                  bytesOf(folder.file("first.xpt"))
                      + bytesOf(folder.file("second.xpt")).substr(3 * 80));
        EXPECT_EQ(bytesOf(path).size() % 80, 0U);
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 3);
    }
}

TEST(TableWriter, version8TellsItsRowCountAndKeepsLongNamesAndLabels)
{
    const TemporaryFolder folder;
    auto table = smallTable();
    table.columns[0].name = "NAME_OF_THE_PERSON";
    table.columns[0].label = "A label that is longer than the forty bytes of version 5";
    writeTable(folder.file("long.xpt"), table, {.release = 8});

    const auto read = readBack(folder.file("long.xpt"));
    EXPECT_EQ(read.columns[0].name, table.columns[0].name);
    EXPECT_EQ(read.columns[0].label, table.columns[0].label);
    const auto bytes = bytesOf(folder.file("long.xpt"));
    const auto header = bytes.find("HEADER RECORD*******OBSV8   ");
    ASSERT_NE(header, std::string::npos);
    EXPECT_EQ(header % 80, 0U);
    EXPECT_EQ(bytes.substr(header + 48, 32), "              3" + std::string(17, ' '));
}

TEST(TableWriter, aTableWithoutRowsIsAFileToo)
{
    const TemporaryFolder folder;
    auto table = smallTable();
    table.rows.clear();
    for (const auto& target : targets) {
        SCOPED_TRACE(target.file);
        writeTable(folder.file(target.file), table, target.options);
        const auto read = readBack(folder.file(target.file));
        EXPECT_EQ(read.columns.size(), 6U);
        EXPECT_EQ(read.rows.size(), 0U);
    }
}

TEST(TableWriter, failuresNameTheFileAndLeaveNone)
{
    struct Case
    {
        const char* file;
        WriteOptions options;
        void (*spoil)(Table&);
    };
    const auto nothing = [](Table&) {};
    const Case cases[] = {
        {"suffix.txt", {}, nothing},
        {"none", {}, nothing},
        {"release.xpt", {.release = 6}, nothing},
        {"release.dta", {.release = 116}, nothing},
        {"release.sav", {.release = 2}, nothing},
        {"compressed.xpt", {.compression = Compression::Rows}, nothing},
        {"compressed.sas7bdat", {.compression = Compression::Zlib}, nothing},
        {"encoding.sav", {.encoding = TextEncoding::Windows1252}, nothing},
        {"encoding.dta", {.encoding = TextEncoding::Windows1252}, nothing},
        {"no/such/folder.xpt", {}, nothing},
        {"label.xpt", {}, [](Table& table) { table.columns[1].label = std::string(41, 'x'); }},
        {"name.xpt", {}, [](Table& table) { table.columns[1].name = "NINECHARS"; }},
        {"name.sas7bdat", {}, [](Table& table) { table.columns[1].name = "1ST"; }},
        {"letters.sas7bdat",
         {.encoding = TextEncoding::Windows1252},
         [](Table& table) { table.rows[2][0] = "Łódź"; }},
        {"long.sav", {}, [](Table& table) { table.rows[2][0] = std::string(60, 'x'); }},
        {"few.dta", {}, [](Table& table) { table.rows[2].pop_back(); }},
        {"many.dta", {}, [](Table& table) { table.rows[2].emplace_back(1.0); }},
        {"type.sav", {}, [](Table& table) { table.rows[2][1] = "text"; }},
    };
    const TemporaryFolder folder;
    for (const auto& row : cases) {
        const auto path = folder.file(row.file);
        auto table = smallTable();
        row.spoil(table);
        try {
            writeTable(path, table, row.options);
            ADD_FAILURE() << row.file << " was written";
        } catch (const std::runtime_error& error) {
            const std::string message = error.what();
            EXPECT_EQ(message.find(path.string() + ": "), 0U) << message;
            EXPECT_GT(message.size(), path.string().size() + 2);
        }
        EXPECT_FALSE(std::filesystem::exists(path)) << row.file;
    }
    EXPECT_THROW(writeTransport(folder.file("empty.xpt"), {}), std::runtime_error);
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

}  // namespace

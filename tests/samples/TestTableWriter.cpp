#include "samples/TableWriter.h"
#include "tests/samples/ReadBack.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <ctime>

namespace {

using namespace samples;

/// 5 March 2023 is day 23074 of SAS; 09:30 is second 34200 of the day.
Table smallTable()
{
    return {{"SMALL",
             "A small table",
             {textColumn("NAME", "Name of the person", 12), numberColumn("AGE", "Age", "", 3),
              numberColumn("ADT", "Date", "DATE", 9), numberColumn("IDT", "Day", "YYMMDD", 10),
              numberColumn("ADTM", "Date and time", "DATETIME", 20),
              numberColumn("ATM", "Time", "TIME", 8), numberColumn("AVAL", "Größe", "", 8, 2),
              numberColumn("COST", "Cost", "COMMA", 12, 2), numberColumn("N", "Number"),
              numberColumn("B", "Best", "BEST", 12)}},
            {{"Müller", 41.0, 23074.0, 23074.0, 1993627800.0, 34200.0, 1.25, 1234.5, 7.0, 8.0},
             {"", missing, missing, missing, missing, missing, missing, missing, missing, missing},
             {"O'Neil \"x\"", -3.0, -1.0, -1.0, 0.0, 0.0, 0.5, 0.25, 0.0, 0.0}}};
}

struct Target
{
    const char* file;
    WriteOptions options;
    std::int64_t version;
    std::size_t offset;  ///< where the file tells what it was asked for
    std::string_view bytes;
};

using namespace std::string_view_literals;

const Target targets[] = {
    {"v5.xpt", {}, 5, 20, "LIBRARY HEADER"},
    {"v8.xpt", {.release = 8}, 8, 20, "LIBV8   HEADER"},
    {"plain.sas7bdat", {}, 9, 32, "\x33"},
    {"32.sas7bdat", {.layout64 = false}, 9, 32, "\x22"},
    {"rows.sas7bdat", {.compression = Compression::Rows}, 9, 32, "\x33"},
    {"1252.sas7bdat", {.encoding = TextEncoding::Windows1252}, 9, 70, "\x3E"},
    {"plain.sav", {}, 2, 72, "\0"sv},
    {"rows.sav", {.compression = Compression::Rows}, 2, 72, "\1"},
    {"zlib.sav", {.compression = Compression::Zlib}, 3, 72, "\2"},
    {"s111.dta", {.release = 111}, 111, 0, "\x6F"},
    {"s115.dta", {.release = 115}, 115, 0, "\x73"},
    {"s117.dta", {.release = 117}, 117, 28, "117<"},
    {"s118.dta", {}, 118, 28, "118<"},
    {"s119.dta", {.release = 119}, 119, 28, "119<"},
};

/// The first row as each kind of file shows it.
Texts shownFirstRow(FileKind kind)
{
    switch (kind) {
    case FileKind::Spss:
        return {"Müller",   "41",   "05-MAR-2023", "2023/03/05", "05-MAR-2023 09:30:00",
                "09:30:00", "1.25", "1,234.50",    "7.00",       "8.00"};
    case FileKind::Stata:
        return {"Müller",   "41",   "05mar2023", "2023-03-05", "05mar2023 09:30:00",
                "09:30:00", "1.25", "1,234.50",  "7",          "8"};
    default:
        return {"Müller",   "41",   "05Mar2023", "23074", "05Mar2023:09:30:00",
                "09:30:00", "1.25", "1234.50",   "7",     "8"};
    }
}

TEST(TableWriter, everyKindOfFileKeepsTheTableAndIsAsAskedFor)
{
    const TemporaryFolder folder;
    for (const auto& target : targets) {
        SCOPED_TRACE(target.file);
        const auto path = folder.file(target.file);
        writeTable(path, smallTable(), target.options);
        const auto read = readBack(path);
        EXPECT_EQ(read->names(),
                  Texts({"NAME", "AGE", "ADT", "IDT", "ADTM", "ATM", "AVAL", "COST", "N", "B"}));
        EXPECT_EQ(read->labels()[6], "Größe");
        EXPECT_EQ(read->header().fileLabel, "A small table");
        EXPECT_EQ(read->header().formatVersion, target.version);
        const auto bytes = bytesOf(path);
        EXPECT_EQ(bytes.substr(target.offset, target.bytes.size()), target.bytes);
        EXPECT_EQ(bytes.find("SASYZCRL") != std::string::npos, target.file == "rows.sas7bdat"sv);
        ASSERT_EQ(read->observationCount(), 3);
        const auto kind = kindOfFile(path);
        EXPECT_EQ(shownRow(*read, 0), shownFirstRow(kind));
        const std::string none = kind == FileKind::Spss || kind == FileKind::Stata ? "." : "nan";
        EXPECT_EQ(shownRow(*read, 1),
                  Texts({"", none, none, none, none, none, none, none, none, none}));
        EXPECT_EQ(read->cellText(2, 0), "O'Neil \"x\"");
        EXPECT_EQ(read->numericValue(2, 6), 0.5);
        if (read->sourceKind() == SourceKind::Sas) {
            EXPECT_EQ(read->formatWidths(), std::vector({0, 3, 9, 10, 20, 8, 8, 12, 0, 12}));
        }
    }
}

TEST(TableWriter, failuresNameTheFileAndLeaveNone)
{
    struct Case
    {
        const char* file;
        WriteOptions options;
        void (*spoil)(Table&) = [](Table&) {};
    };
    const Case cases[] = {
        {"suffix.txt", {}},
        {"none", {}},
        {"release.xpt", {.release = 6}},
        {"release.dta", {.release = 116}},
        {"release.sav", {.release = 2}},
        {"compressed.xpt", {.compression = Compression::Rows}},
        {"compressed.dta", {.compression = Compression::Rows}},
        {"compressed.sas7bdat", {.compression = Compression::Zlib}},
        {"encoding.sav", {.encoding = TextEncoding::Windows1252}},
        {"encoding.dta", {.encoding = TextEncoding::Windows1252}},
        {"no/such/folder.xpt", {}},
        {"label.xpt", {}, [](Table& table) { table.columns[1].label = std::string(41, 'x'); }},
        {"name.xpt", {}, [](Table& table) { table.columns[1].name = "NINECHARS"; }},
        {"name.sas7bdat", {}, [](Table& table) { table.columns[1].name = "1ST"; }},
        {"letter.dta", {.release = 115}, [](Table& table) { table.rows[2][0] = "Łódź"; }},
        {"cut.dta", {.release = 115}, [](Table& table) { table.rows[2][0] = "\xC3"; }},
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
            EXPECT_EQ(std::string(error.what()).find(path.string() + ": "), 0U) << error.what();
        }
    }
    std::vector<Table> tables{smallTable(), smallTable()};
    tables[1].rows[0].pop_back();
    EXPECT_THROW(writeTransport(folder.file("members.xpt"), tables), std::runtime_error);
    EXPECT_THROW(writeTransport(folder.file("empty.xpt"), {}), std::runtime_error);
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

}  // namespace

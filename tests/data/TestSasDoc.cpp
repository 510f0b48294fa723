#include "tests/data/ReaderTest.h"

namespace {

constexpr int rowLength = 16;
constexpr std::size_t pageHeader = 40;  // in files of 64-bit layout

samples::Table numbers(int rows)
{
    samples::Table table;
    table.name = "LB";
    table.label = "Laboratory";
    table.columns = {samples::numberColumn("SEQ", "Number", "BEST", 12),
                     samples::textColumn("TEST", "Test", 8)};
    for (int i = 0; i < rows; ++i) {
        table.rows.push_back({static_cast<double>(i), "T" + std::to_string(i)});
    }
    return table;
}

class SasDoc : public ReaderTest
{
protected:
    [[nodiscard]] std::string written(const samples::Table& table,
                                      samples::Compression compression = {}) const
    {
        return ReaderTest::written("lb.sas7bdat", table, {.compression = compression});
    }
    [[nodiscard]] std::unique_ptr<StatDataset> read(const std::string& bytes) const
    {
        return ReaderTest::read("lb.sas7bdat", bytes);
    }
};

/// The subheader that starts with this signature.
std::size_t subheader(const std::string& bytes, std::string_view signature)
{
    return behind(bytes, signature) - signature.size();
}

/// Of its long numbers: the layout.
std::size_t wordSize(const std::string& bytes)
{
    return bytes[32] == '3' ? 8 : 4;
}

/// Writes a count of deleted observations into the row-size subheader, and returns where the pages
/// start, each with its type at 32 (16) and its numbers of blocks and subheaders behind.
std::vector<std::size_t> pagesWithDeleted(std::string& bytes, std::size_t count)
{
    const std::size_t word = wordSize(bytes);
    put(bytes, subheader(bytes, "\xF7\xF7\xF7\xF7") + 7 * word, count, word);
    const std::size_t shift = bytes[35] == '3' ? 4 : 0;
    std::vector<std::size_t> pages;
    for (std::size_t page = numberAt(bytes, 196 + shift, 4); page < bytes.size();
         page += numberAt(bytes, 200 + shift, 4)) {
        pages.push_back(page);
    }
    return pages;
}

/// Marks rows as deleted the way SAS does in files that are not compressed: by a bit in the type of
/// each page that holds one, and a bitmap behind the rows of that page.
void markDeleted(std::string& bytes, const std::vector<int>& rows)
{
    for (const std::size_t page : pagesWithDeleted(bytes, rows.size())) {
        const std::uint64_t type = numberAt(bytes, page + 32, 2);
        if ((type & 0xF00) != 0x100) {
            continue;
        }
        const std::size_t blocks = numberAt(bytes, page + 34, 2);
        put(bytes, page + 32, type | 0x80, 2);
        put(bytes, page + 24, 0, 4);
        for (const int row : rows) {
            const std::size_t place =
                page + pageHeader + blocks * rowLength + static_cast<std::size_t>(row) / 8;
            bytes.at(place) = static_cast<char>(bytes.at(place) | 0x80 >> row % 8);
        }
    }
}

/// The same in compressed files: by the mark of each row's own pointer. All pointers get the type
/// that SAS gives them, which of metadata the library does not write.
/// @param plain  a text in the one row that is not compressed
void markDeletedCompressed(std::string& bytes, const std::vector<int>& rows, std::string_view plain)
{
    const std::size_t word = wordSize(bytes);
    const std::size_t header = word == 8 ? 40 : 24;
    int row = 0;
    for (const std::size_t page : pagesWithDeleted(bytes, rows.size())) {
        for (std::size_t i = 0; i < numberAt(bytes, page + header - 4, 2); ++i) {
            const std::size_t pointer = page + header + i * 3 * word;
            const std::string_view pointed = std::string_view(bytes).substr(
                page + numberAt(bytes, pointer, word), numberAt(bytes, pointer + word, word));
            put(bytes, pointer + 2 * word + 1, 1, 1);
            const bool isPacked = numberAt(bytes, pointer + 2 * word, 1) == 4;
            if (!isPacked && pointed.find(plain) == std::string_view::npos) {
                continue;
            }
            if (std::find(rows.begin(), rows.end(), row) != rows.end()) {
                put(bytes, pointer + 2 * word, 5, 1);
            }
            ++row;
        }
    }
}

std::vector<std::string> column(const StatDataset& dataset, int variable)
{
    std::vector<std::string> texts;
    for (int row = 0; row < dataset.observationCount(); ++row) {
        texts.push_back(dataset.cellText(row, variable));
    }
    return texts;
}

TEST_F(SasDoc, leavesDeletedObservationsOut)
{
    std::string bytes = written(numbers(12));
    markDeleted(bytes, {0, 7, 8, 11});
    const auto dataset = read(bytes);
    EXPECT_EQ(dataset->header().deletedObservations, 4);
    EXPECT_EQ(column(*dataset, 1),
              (std::vector<std::string>{"T1", "T2", "T3", "T4", "T5", "T6", "T9", "T10"}));
    EXPECT_EQ(dataset->numericValue(6, 0), 9);
}

TEST_F(SasDoc, leavesDeletedObservationsOfCompressedFilesOut)
{
    const std::string varied = "abcdefghijklmnopqrstuvwxyz";  // it would not become shorter
    // As long as metadata is: column counts, formats and row sizes of either layout; and another.
    for (const int length : {24, 52, 64, 480, 808, 40}) {
        for (const bool layout64 : {false, true}) {
            SCOPED_TRACE(testing::Message() << length << (layout64 ? " 64" : " 32"));
            samples::Table table = numbers(9);
            table.columns.push_back(samples::textColumn("REST", "Rest", length - rowLength));
            std::string rest;
            while (static_cast<int>(rest.size()) < length - rowLength) {
                rest += varied;
            }
            rest.resize(static_cast<std::size_t>(length - rowLength));
            for (samples::Row& row : table.rows) {
                row.emplace_back("x");
            }
            table.rows[3] = {1.2345678901234567, "abcdefgh", rest};
            std::string bytes = ReaderTest::written(
                "lb.sas7bdat", table,
                {.compression = samples::Compression::Rows, .layout64 = layout64});
            markDeletedCompressed(bytes, {0, 4, 8}, "abcdefgh");
            const auto dataset = read(bytes);
            EXPECT_EQ(column(*dataset, 1),
                      (std::vector<std::string>{"T1", "T2", "abcdefgh", "T5", "T6", "T7"}));
            EXPECT_EQ(dataset->numericValue(5, 0), 7);
            EXPECT_EQ(dataset->damageNotes(), std::vector<std::string>());
        }
    }
}

TEST_F(SasDoc, fillsTheHeaderFields)
{
    std::string bytes = written(numbers(3));
    const std::size_t rowSize = subheader(bytes, "\xF7\xF7\xF7\xF7");
    // The reference to TYPE= takes over that of the label.
    const std::size_t end = rowSize + 808;
    bytes.replace(end - 124, 6, bytes.substr(end - 130, 6));
    bytes.replace(244, 16, "2.6.32" + std::string(10, '\0'));
    bytes.replace(260, 16, "IBM" + std::string(13, '\0'));
    bytes.replace(276, 16, "x86_64" + std::string(10, '\0'));
    const auto dataset = read(bytes);
    const DatasetHeader& header = dataset->header();
    EXPECT_EQ(header.tableName, "LB");
    EXPECT_EQ(header.fileLabel, "Laboratory");
    EXPECT_EQ(header.memberType, "DATA Laboratory");
    EXPECT_EQ(header.encoding, "UTF-8");
    EXPECT_TRUE(header.is64Bit);
    EXPECT_FALSE(header.release.empty());
    EXPECT_TRUE(header.host.ends_with(" x86_64 2.6.32")) << header.host;
    EXPECT_EQ(header.observationLength, rowLength);
    EXPECT_GT(header.pageSize, 0U);
    EXPECT_GT(header.pageCount, 0U);
    EXPECT_EQ(dataset->formats()[0], "BEST");
}

TEST_F(SasDoc, readsInformatsFromTheirOwnRecords)
{
    std::string bytes = written(numbers(1));
    // Subheaders fill their page from its end, so that the first variable's comes last.
    const std::size_t format = bytes.rfind(std::string("\xFE\xFB\xFF\xFF\xFF\xFF\xFF\xFF", 8));
    ASSERT_EQ(numberAt(bytes, format + 24, 2), 12U) << "the width of BEST12.";
    put(bytes, format + 28, 9, 2);
    put(bytes, format + 30, 3, 2);
    EXPECT_EQ(read(bytes)->informats()[0], "9.3");
    bytes.replace(format + 40, 6, bytes.substr(format + 46, 6));  // the name of the format
    EXPECT_EQ(read(bytes)->informats()[0], "BEST9.3");
}

TEST_F(SasDoc, readsCharacterSetsThatTheLibraryRefuses)
{
    std::string bytes = written(numbers(2));
    for (const int code : {68, 71, 99, 204}) {
        bytes[70] = static_cast<char>(code);
        EXPECT_EQ(read(bytes)->cellText(1, 1), "T1") << code;
    }
}

TEST_F(SasDoc, convertsTextsOfItsCharacterSet)
{
    samples::Table table = numbers(4);
    table.rows[1][1] = table.rows[3][1] = "Zurich";
    table.rows[2][1] = "Zurich2";
    std::string bytes = written(table);
    for (std::size_t at = bytes.find("Zurich"); at != std::string::npos;
         at = bytes.find("Zurich", at)) {
        bytes[at + 1] = '\xFC';
    }
    bytes[bytes.rfind("T0")] = '\xFF';
    EXPECT_EQ(column(*read(bytes), 1),
              (std::vector<std::string>{"\uFFFD0", "Z\uFFFDrich", "Z\uFFFDrich2", "Z\uFFFDrich"}))
        << "bytes that UTF-8 does not define";
    bytes[70] = 62;
    EXPECT_EQ(column(*read(bytes), 1),
              (std::vector<std::string>{"ÿ0", "Zürich", "Zürich2", "Zürich"}))
        << "in Windows-1252";
}

TEST_F(SasDoc, readsReleasesOfAnyForm)
{
    std::string bytes = written(numbers(1));
    const std::size_t a1 = bytes[35] == 0x33 ? 4 : 0;
    bytes.replace(216 + a1 + 4, 8, "V.07.00B");
    EXPECT_EQ(read(bytes)->header().release, "V.07.00B");
}

TEST_F(SasDoc, readsCharacterVariablesOfWidthZero)
{
    std::string bytes = written(numbers(2));
    const std::size_t second =
        subheader(bytes, std::string("\xFC\xFF\xFF\xFF\xFF\xFF\xFF\xFF", 8)) + 16 + 16;
    ASSERT_EQ(numberAt(bytes, second + 8, 4), 8U) << "the width of TEST";
    put(bytes, second + 8, 0, 4);
    const auto dataset = read(bytes);
    EXPECT_EQ(dataset->lengths()[1], 0);
    EXPECT_EQ(dataset->cellText(1, 0), "1");
    EXPECT_EQ(dataset->cellText(1, 1), "");
}

}  // namespace

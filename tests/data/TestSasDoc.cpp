#include "data/readers/DatasetFile.h"
#include "data/readers/Sas7bdatLayout.h"
#include "samples/TableWriter.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

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

/// Writes a table, lets the test damage or amend the bytes, and opens the file.
class SasDoc : public testing::Test
{
protected:
    std::string write(const samples::Table& table, const samples::WriteOptions& options = {})
    {
        samples::writeTable(path(), table, options);
        return bytesOf(path());
    }
    Result<OpenedDataset> reopen(const std::string& bytes)
    {
        std::ofstream(path(), std::ios::binary) << bytes;
        return openDataset(QString::fromStdString(path().string()));
    }
    [[nodiscard]] std::filesystem::path path() const { return m_folder.file("lb.sas7bdat"); }

    TemporaryFolder m_folder;
};

void putLittleEndian(std::string& bytes, std::size_t at, std::uint64_t number, int size)
{
    for (int i = 0; i < size; ++i) {
        bytes.at(at + static_cast<std::size_t>(i)) = static_cast<char>(number >> 8 * i);
    }
}

std::uint64_t littleEndian(const std::string& bytes, std::size_t at, int size)
{
    std::uint64_t number = 0;
    for (int i = size - 1; i >= 0; --i) {
        number =
            number << 8 | static_cast<unsigned char>(bytes.at(at + static_cast<std::size_t>(i)));
    }
    return number;
}

/// Marks observations as deleted, the way SAS does: their count in the row-size subheader, a bit in
/// the type of each page that holds one, and a bitmap behind the rows of that page.
void markDeleted(std::string& bytes, const std::vector<int>& rows, int rowLength)
{
    const std::size_t rowSize = bytes.find("\xF7\xF7\xF7\xF7");
    putLittleEndian(bytes, rowSize + 7 * 8, rows.size(), 8);
    const std::size_t header = littleEndian(bytes, 196, 4);
    const std::size_t pageSize = littleEndian(bytes, 200, 4);
    for (std::size_t page = header; page < bytes.size(); page += pageSize) {
        const std::uint64_t type = littleEndian(bytes, page + 32, 2);
        if ((type & 0xF00) != 0x100) {
            continue;
        }
        const std::size_t blocks = littleEndian(bytes, page + 34, 2);
        putLittleEndian(bytes, page + 32, type | 0x80, 2);
        putLittleEndian(bytes, page + 24, 0, 4);
        for (const int row : rows) {
            const std::size_t place = page + 40 + blocks * static_cast<std::size_t>(rowLength)
                + static_cast<std::size_t>(row) / 8;
            bytes.at(place) = static_cast<char>(bytes.at(place) | 0x80 >> row % 8);
        }
    }
}

TEST_F(SasDoc, leavesDeletedObservationsOut)
{
    std::string bytes = write(numbers(20));
    markDeleted(bytes, {0, 7, 8, 19}, 16);
    const auto opened = reopen(bytes);
    ASSERT_TRUE(opened.ok()) << opened.error();
    const StatDataset& dataset = *opened.value().dataset;
    ASSERT_EQ(dataset.observationCount(), 16);
    EXPECT_EQ(dataset.header().deletedObservations, 4);
    EXPECT_EQ(dataset.numericValue(0, 0), 1);
    EXPECT_EQ(dataset.cellText(5, 1), "T6");
    EXPECT_EQ(dataset.cellText(6, 1), "T9");
    EXPECT_EQ(dataset.cellText(15, 1), "T18");
}

TEST_F(SasDoc, fillsTheHeaderFields)
{
    const auto opened = reopen(write(numbers(3)));
    ASSERT_TRUE(opened.ok()) << opened.error();
    const DatasetHeader& header = opened.value().dataset->header();
    EXPECT_EQ(header.tableName, "LB");
    EXPECT_EQ(header.fileLabel, "Laboratory");
    EXPECT_EQ(header.memberType, "DATA");
    EXPECT_EQ(header.encoding, "UTF-8");
    EXPECT_TRUE(header.is64Bit);
    EXPECT_FALSE(header.release.empty());
    EXPECT_EQ(header.observationLength, 16);
    EXPECT_GT(header.pageSize, 0U);
    EXPECT_GT(header.pageCount, 0U);
    EXPECT_EQ(opened.value().dataset->formats()[0], "BEST");
}

TEST_F(SasDoc, readsCharacterSetsThatTheLibraryRefuses)
{
    std::string bytes = write(numbers(2));
    for (const int code : {68, 71, 99, 204}) {
        bytes[70] = static_cast<char>(code);
        const auto opened = reopen(bytes);
        ASSERT_TRUE(opened.ok()) << code << ": " << opened.error();
        EXPECT_EQ(opened.value().dataset->cellText(1, 1), "T1") << code;
    }
}

TEST_F(SasDoc, replacesBytesThatTheCharacterSetDoesNotDefine)
{
    std::string bytes = write(numbers(1));
    const std::size_t at = bytes.rfind("T0");
    bytes[at] = '\xFF';
    const auto opened = reopen(bytes);
    ASSERT_TRUE(opened.ok()) << opened.error();
    EXPECT_EQ(opened.value().dataset->cellText(0, 1), "\uFFFD0");
}

TEST_F(SasDoc, readsReleasesOfAnyForm)
{
    std::string bytes = write(numbers(1));
    const std::size_t a1 = bytes[35] == 0x33 ? 4 : 0;
    bytes.replace(216 + a1 + 4, 8, "V.07.00B");
    const auto opened = reopen(bytes);
    ASSERT_TRUE(opened.ok()) << opened.error();
    EXPECT_EQ(opened.value().dataset->header().release, "V.07.00B");
}

TEST_F(SasDoc, readsCharacterVariablesOfWidthZero)
{
    std::string bytes = write(numbers(2));
    const std::size_t attributes = bytes.find(std::string("\xFC\xFF\xFF\xFF\xFF\xFF\xFF\xFF", 8));
    ASSERT_NE(attributes, std::string::npos);
    const std::size_t second = attributes + 16 + 16;
    ASSERT_EQ(littleEndian(bytes, second + 8, 4), 8U) << "the width of TEST";
    putLittleEndian(bytes, second + 8, 0, 4);
    const auto opened = reopen(bytes);
    ASSERT_TRUE(opened.ok()) << opened.error();
    EXPECT_EQ(opened.value().dataset->lengths()[1], 0);
    EXPECT_EQ(opened.value().dataset->cellText(1, 0), "1");
    EXPECT_EQ(opened.value().dataset->cellText(1, 1), "");
}

TEST_F(SasDoc, believesNoCountBeyondTheFile)
{
    std::string bytes = write(numbers(5));
    const std::size_t rowSize = bytes.find("\xF7\xF7\xF7\xF7");
    putLittleEndian(bytes, rowSize + 6 * 8, 2000000000, 8);
    const auto opened = reopen(bytes);
    ASSERT_FALSE(opened.ok());
    EXPECT_EQ(opened.error().find("lb.sas7bdat: "), 0U) << opened.error();
    EXPECT_NE(opened.error().find("2000000000"), std::string::npos) << opened.error();
}

}  // namespace

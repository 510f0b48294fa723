#include "data/readers/ParserInput.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <random>
#include <unistd.h>

namespace {

/// A file of 1000 bytes, byte i being i % 251.
class ParserInputTest : public testing::Test
{
protected:
    void SetUp() override
    {
        std::ofstream out(m_path, std::ios::binary);
        for (int i = 0; i < 1000; ++i) {
            out.put(static_cast<char>(i % 251));
        }
        out.close();
        ASSERT_TRUE(m_file.open(m_path));
    }
    void TearDown() override { std::remove(m_path.c_str()); }

    std::string m_path = testing::TempDir() + "parser-input-" + std::to_string(getpid());
    FileReader m_file;
};

std::string bytes(int from, int count)
{
    std::string text;
    for (int i = from; i < from + count; ++i) {
        text += static_cast<char>(i % 251);
    }
    return text;
}

TEST_F(ParserInputTest, readsItsPiecesAsOne)
{
    ParserInput input(m_file);
    input.setPieces({{0, 10}, {500, 20}, {990, 10}});
    EXPECT_EQ(input.size(), 40);
    const std::string all = bytes(0, 10) + bytes(500, 20) + bytes(990, 10);
    for (const std::size_t readAhead : {0U, 7U, 64U}) {
        input.setReadAhead(readAhead);
        std::mt19937 random(3);
        for (int i = 0; i < 200; ++i) {
            const auto from = static_cast<std::int64_t>(random() % 45);
            std::string part(random() % 50, '?');
            ASSERT_EQ(input.seek(from, READSTAT_SEEK_SET), from);
            const std::int64_t got = input.read(part.data(), part.size());
            const std::string expected =
                from < 40 ? all.substr(static_cast<std::size_t>(from), part.size()) : "";
            ASSERT_EQ(got, static_cast<std::int64_t>(expected.size()));
            ASSERT_EQ(part.substr(0, expected.size()), expected) << from;
        }
    }
}

TEST_F(ParserInputTest, replacesBytesAndKeepsItsPlaceWhenAMoveIsRefused)
{
    ParserInput input(m_file);
    input.replaceByte(5, 'x');
    input.replaceByte(3, 'y');
    std::string part(6, '?');
    EXPECT_EQ(input.seek(-998, READSTAT_SEEK_END), 2);
    EXPECT_EQ(input.read(part.data(), part.size()), 6);
    EXPECT_EQ(part, std::string("\2y\4x\6\7"));
    EXPECT_EQ(input.seek(-9, READSTAT_SEEK_CUR), -1);
    EXPECT_EQ(input.seek(1, READSTAT_SEEK_CUR), 9);
}

}  // namespace

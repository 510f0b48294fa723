#include "data/cells/TextDecoder.h"
#include "data/FilePath.h"
#include "data/values/Texts.h"

#include <gtest/gtest.h>

namespace {

TEST(TextDecoder, convertsWhatTheCharacterSetDefines)
{
    EXPECT_EQ(TextDecoder("WINDOWS-1252").decode("M\xFCller \x80"), "Müller €");
    EXPECT_EQ(TextDecoder("CP932").decode("\x93\xFA\x96\x7B"), "日本");
    EXPECT_EQ(TextDecoder("UTF-8").decode("Müller"), "Müller");
}

TEST(TextDecoder, showsUndefinedBytesAsReplacementCharacters)
{
    EXPECT_EQ(TextDecoder("WINDOWS-1252").decode("a\x81z"), "a\uFFFDz");
    EXPECT_EQ(TextDecoder("UTF-8").decode("a\xFFz"), "a\uFFFDz");
    EXPECT_EQ(TextDecoder("no such set").decode("a\xE4z"), "a\uFFFDz");
}

TEST(TextDecoder, dropsALastCharacterThatTheFieldCutThrough)
{
    EXPECT_EQ(TextDecoder("UTF-8").decode("grad\xC3"), "grad");
    EXPECT_EQ(TextDecoder().decode("gr\xC3\xBC\xC3"), "grü") << "still taken for UTF-8";
}

TEST(TextDecoder, guessesWhereNothingIsDeclared)
{
    EXPECT_EQ(TextDecoder().decode("M\xC3\xBCller"), "Müller");
    EXPECT_EQ(TextDecoder().decode("M\xFCller"), "Müller");
    EXPECT_EQ(TextDecoder(std::string()).decode("M\xFCller"), "Müller");
}

TEST(Texts, knowWellFormedUtf8)
{
    EXPECT_TRUE(texts::isUtf8("ascii, ü, 日, \xF0\x9F\x99\x82"));
    EXPECT_FALSE(texts::isUtf8("\xC0\xAF")) << "overlong";
    EXPECT_FALSE(texts::isUtf8("\xED\xA0\x80")) << "surrogate";
    EXPECT_FALSE(texts::isUtf8("\xF4\x90\x80\x80")) << "beyond U+10FFFF";
    EXPECT_FALSE(texts::isUtf8("\xE6\x97")) << "cut off";
    EXPECT_FALSE(texts::isAscii("12345678\xC3\xBC"));
    EXPECT_TRUE(texts::isAscii("123456789"));
}

TEST(Texts, areTrimmedAndCutByCharacters)
{
    EXPECT_EQ(texts::trimmed(" \t A b\n "), "A b");
    EXPECT_EQ(texts::trimmed("   "), "");
    EXPECT_EQ(texts::bytesOfCharacters("aüb", 2), 3U);
    EXPECT_EQ(texts::bytesOfCharacters("aüb", 9), 4U);
    EXPECT_EQ(texts::headerField("AE\0junk"), "AE");
    EXPECT_EQ(texts::headerField(" DM   "), " DM");
}

TEST(FilePath, keepsNamesWithAnyBytes)
{
    const std::string stray = "/data/m\xFCnch\xC3\xBC.sav";
    EXPECT_EQ(filepath::toBytes(filepath::fromBytes(stray)), stray);
    EXPECT_EQ(filepath::toBytes(filepath::fromBytes("/data/ü.sav")), "/data/ü.sav");
    EXPECT_EQ(filepath::displayName(filepath::fromBytes(stray)), "m\uFFFDnchü.sav");
    EXPECT_EQ(filepath::toBytes(QString::fromUtf8("/\xF0\x9F\x99\x82.dta")),
              "/\xF0\x9F\x99\x82.dta");
}

}  // namespace

#include "data/values/RFormat.h"
#include "tests/data/ReaderTest.h"
#include "tests/support/RFiles.h"

#include <fmt/format.h>

#include <bit>
#include <zlib.h>

namespace {

using namespace std::string_literals;

/// The values of each variable, as "a 1 2 3; b x y z".
std::string shown(const StatDataset& dataset)
{
    std::string text;
    for (int column = 0; column < dataset.variableCount(); ++column) {
        text += (column > 0 ? "; " : "") + dataset.names()[static_cast<std::size_t>(column)];
        for (int row = 0; row < dataset.observationCount(); ++row) {
            text += ' ' + dataset.cellText(row, column);
        }
    }
    return text;
}

std::string bigEndian(std::uint64_t number, int width)
{
    std::string bytes;
    for (int shift = 8 * (width - 1); shift >= 0; shift -= 8) {
        bytes += static_cast<char>(number >> shift);
    }
    return bytes;
}

std::string integers(std::initializer_list<std::uint32_t> numbers)
{
    std::string bytes;
    for (const std::uint32_t number : numbers) {
        bytes += bigEndian(number, 4);
    }
    return bytes;
}

std::string letters(std::string_view text)
{
    return integers({0x40009, static_cast<std::uint32_t>(text.size())}) + std::string(text);
}

std::string symbol(std::string_view name)
{
    return integers({1}) + letters(name);
}

// What stands around the columns of a data frame, in a serialisation of version 2.
const std::string head = "X\n" + integers({2, 0x040202, 0x020300});
const std::string null = integers({254});
const std::string classOfFrame =
    integers({0x402}) + symbol("class") + integers({16, 1}) + letters("data.frame") + null;

std::string frame(std::initializer_list<std::string> columns)
{
    std::string bytes = integers({0x313, static_cast<std::uint32_t>(columns.size())});
    for (const std::string& column : columns) {
        bytes += column;
    }
    return bytes + classOfFrame;
}

class RdsDoc : public ReaderTest
{
protected:
    [[nodiscard]] std::string shownOf(const std::string& bytes,
                                      const std::string& member = {}) const
    {
        return shown(*read("a.rds", bytes, {.member = member}));
    }
    [[nodiscard]] std::string failureOf(const std::string& bytes,
                                        const std::string& member = {}) const
    {
        return openDataset(write("a.rds", bytes), {.member = member}).error();
    }
    [[nodiscard]] std::vector<std::string> namesOf(const std::string& bytes) const
    {
        return datasetNames(write("a.RData", bytes)).value();
    }
    /// Each part packed by gzip, one behind the other.
    [[nodiscard]] std::string packed(std::initializer_list<std::string> parts) const
    {
        const auto file = m_folder.file("packed.gz");
        for (const std::string& part : parts) {
            gzFile_s* const stream = gzopen(file.c_str(), "ab");
            gzwrite(stream, part.data(), static_cast<unsigned>(part.size()));
            gzclose(stream);
        }
        std::string bytes = ::bytesOf(file);
        std::filesystem::remove(file);
        return bytes;
    }
};

TEST_F(RdsDoc, showsEveryKindOfColumnAsRDoes)
{
    const auto dataset = read("a.rds", rfiles::bytesOf(rfiles::types));
    EXPECT_EQ(shown(*dataset),
              "lgl TRUE FALSE N/A; int 1 N/A -7; dbl 1.5 N/A NaN; txt x N/A ; fct low N/A high; "
              "lat Mu\xC3\x9F"
              "e \xE2\x82\xAC z; dat 03Jan2014 N/A 31Dec1959; dati 01Jan1970 N/A 08Jan2022; "
              "dtm 31Dec1969:23:59:59 N/A 09Sep2001:01:46:40; dif 1.5 N/A -2; "
              "tim 01:01:01 N/A -01:01:01; cpl 1-2i N/A -0.5+3i; raw 00 0a ff; lst   ; mat   ; "
              "inf Inf -Inf -2147483648");
    std::string types;
    std::string formats;
    std::string lengths;
    for (std::size_t i = 0; i < dataset->names().size(); ++i) {
        types += std::to_string(static_cast<int>(dataset->typeCodes()[i]));
        formats += dataset->formats()[i] + '|';
        lengths += std::to_string(dataset->lengths()[i]) + ' ';
    }
    EXPECT_EQ(types, "1350005355500005");
    EXPECT_EQ(formats, "logical||||||%d%b%Y|%d%b%Y|%d%b%Y:%H:%M:%S|days|%H:%M:%S||||||");
    EXPECT_EQ(lengths, "4 4 8 1 4 5 8 4 8 8 8 7 2 0 0 8 ");
    EXPECT_EQ(dataset->labels()[1],
              "Gr\xC3\xB6\xC3\x9F"
              "e");
    EXPECT_EQ(dataset->header().fileLabel, "All kinds");
    EXPECT_EQ(dataset->header().release, "4.2.2");
    EXPECT_EQ(dataset->damageNotes(),
              (std::vector{"The values of lst are not shown: it holds a list"s,
                           "The values of mat are not shown: it holds a matrix"s}));
}

TEST_F(RdsDoc, keepsWhatRStores)
{
    const auto dataset = read("a.rds", rfiles::bytesOf(rfiles::types));
    EXPECT_EQ(dataset->numericValue(2, 0), -2147483648.0);
    EXPECT_EQ(dataset->numericValue(1, 1), -2147483648.0);
    EXPECT_EQ(dataset->numericValue(1, 7), -2147483648.0);
    EXPECT_TRUE(std::isnan(dataset->numericValue(1, 6)));
    EXPECT_EQ(dataset->stringValue(1, 3), "N/A");
    EXPECT_TRUE(dataset->missingMark(1).isMissing(-2147483648.0));
    EXPECT_FALSE(dataset->missingMark(15).isMissing(-2147483648.0));
    EXPECT_EQ(dataset->missingText(3), "N/A");
    EXPECT_EQ(dataset->missingText(1), "");
    EXPECT_EQ(dataset->dateScale(8).sasCount(0), 3653 * 86400.0);
    EXPECT_EQ(&dataset->cell(1, 4) - &dataset->cell(0, 4), 1);
    EXPECT_EQ(&dataset->cell(0, 5) - &dataset->cell(0, 4), 3);
    EXPECT_THROW((void)dataset->numericValue(0, 3), std::bad_variant_access);
    EXPECT_EQ(dataset->cellText(3, 0) + dataset->cellText(0, -1) + dataset->cellText(0, 16), "");
}

TEST_F(RdsDoc, takesEveryNameForTheFirstVariable)
{
    const auto dataset = read("a.rds", rfiles::bytesOf(rfiles::types));
    EXPECT_EQ(dataset->findVariable(L"txt"), 0);
    EXPECT_EQ(dataset->findVariable(L""), 0);
    EXPECT_EQ(dataset->variableAttribute(1, VariableAttribute::Type), "Numeric");
    EXPECT_EQ(dataset->variableAttribute(4, VariableAttribute::Type), "Character");
}

TEST_F(RdsDoc, readsEveryFormOfTheSameObject)
{
    const std::string expected = "t a\n\"\\ \xC3\xA9 N/A; r 0.1 N/A -Inf; i N/A 1 2; w 01 ab ff";
    EXPECT_EQ(shownOf(rfiles::bytesOf(rfiles::ascii)), expected);
    EXPECT_EQ(shownOf(rfiles::bytesOf(rfiles::littleEndian)), expected);
    const std::string bytes = rfiles::bytesOf(rfiles::littleEndian);
    EXPECT_EQ(shownOf(packed({bytes.substr(0, 77), bytes.substr(77)})), expected);
}

TEST_F(RdsDoc, readsAlternativeRepresentations)
{
    const auto dataset = read("a.rds", rfiles::bytesOf(rfiles::alternative));
    ASSERT_EQ(dataset->observationCount(), 70);
    const auto row = [&](int number) {
        std::string text;
        for (int column = 0; column < dataset->variableCount(); ++column) {
            text += dataset->cellText(number, column) + ' ';
        }
        return text;
    };
    EXPECT_EQ(row(0), "1 70 70.25 1 0.5 ");
    EXPECT_EQ(row(1), "2 69 69.25 2 1e+05 ");
    EXPECT_EQ(row(69), "70 1 1.25 70 3500000 ");
}

TEST_F(RdsDoc, listsAndOpensTheDataFramesOfAWorkspace)
{
    const std::string bytes = rfiles::bytesOf(rfiles::workspace);
    EXPECT_EQ(namesOf(bytes), (std::vector{"dm"s, "study$adsl"s, "study[[3]]"s, "ae"s}));
    EXPECT_EQ(shownOf(bytes), "a 1 2 3");
    EXPECT_EQ(shownOf(bytes, "study$adsl"), "z 9 10");
    EXPECT_EQ(shownOf(bytes, "study[[3]]"), "q 1");
    EXPECT_EQ(shownOf(bytes, "ae"), "b x y");
    EXPECT_EQ(failureOf(bytes, "AE"), "a.rds: It holds no data frame named AE");
    const auto dm = read("w.rda", bytes, {.member = "dm"});
    EXPECT_EQ(dm->datasetName(), "dm");
    EXPECT_EQ(dm->damageNotes(), std::vector{"The names of its rows are not shown"s});
}

TEST_F(RdsDoc, findsDataFramesInLists)
{
    const std::string bytes = rfiles::bytesOf(rfiles::longIntegers);
    EXPECT_EQ(namesOf(bytes), (std::vector{"small"s, "large"s}));
    EXPECT_EQ(shownOf(bytes), "n 1 2 3; id 5 N/A -2");
    // Beyond what a double can hold they are texts
    EXPECT_EQ(shownOf(bytes, "large"), "n 1 2 3; id 9007199254740993 N/A -9223372036854775807");
    EXPECT_EQ(shownOf(rfiles::bytesOf(rfiles::fit)), "u 4 5");
    EXPECT_EQ(shownOf(rfiles::bytesOf(rfiles::matrixFirst)), "m  ; k 8 9");
    EXPECT_EQ(failureOf(rfiles::bytesOf(rfiles::noFrame)),
              "a.rds: It holds no data frame, but avector (a numeric vector), alist (a list), fac "
              "(a factor) and mx (a matrix)");
}

TEST_F(RdsDoc, describesWithoutValuesWhatItReadsWithThem)
{
    for (const char* const file : {rfiles::types, rfiles::alternative, rfiles::workspace,
                                   rfiles::longIntegers, rfiles::ascii, rfiles::matrixFirst}) {
        const std::string bytes = rfiles::bytesOf(file);
        const auto described = read("a.rds", bytes, {.metadataOnly = true});
        const auto whole = read("a.rds", bytes);
        EXPECT_EQ(described->names(), whole->names());
        EXPECT_EQ(described->typeCodes(), whole->typeCodes());
        EXPECT_EQ(described->formats(), whole->formats());
        EXPECT_EQ(described->lengths(), whole->lengths());
        EXPECT_EQ(described->observationCount(), whole->observationCount());
        EXPECT_EQ(described->cellCount(), 0U);
    }
}

TEST_F(RdsDoc, tellsHowFarItIs)
{
    std::vector<int> percents;
    std::string bytes = head + integers({0x313, 1, 14, 100000}) + std::string(800000, '\0');
    (void)read("a.rds", bytes + classOfFrame,
               {.progress = [&](int percent) { percents.push_back(percent); }});
    EXPECT_GT(percents.size(), 5U);
    EXPECT_TRUE(std::is_sorted(percents.begin(), percents.end()));
    EXPECT_EQ(percents.back(), 100);
}

TEST_F(RdsDoc, refusesWhatIsCutShort)
{
    const std::string bytes = rfiles::bytesOf(rfiles::types);
    for (std::size_t size = 2; size < bytes.size(); size += 3) {
        ASSERT_EQ(failureOf(bytes.substr(0, size)), "a.rds: It is cut short") << size;
    }
    for (const char* const file :
         {rfiles::alternative, rfiles::longIntegers, rfiles::matrixFirst, rfiles::ascii}) {
        const std::string whole = rfiles::bytesOf(file);
        EXPECT_EQ(failureOf(whole.substr(0, whole.size() / 2)), "a.rds: It is cut short");
    }
    // A length that nothing can stand behind
    EXPECT_EQ(failureOf(head + integers({0x313, 1, 14, 0x7FFFFFFF}) + std::string(800, '\0')),
              "a.rds: It is cut short");
}

TEST_F(RdsDoc, saysWhatIsWrong)
{
    const std::pair<std::string, std::string> cases[] = {
        {"", "It is empty"},
        {"a,b\n1,2\n", "It is no file that R's saveRDS or save wrote"},
        {"RDX1\nX\n", "It was saved by an R older than 1.4, or by none"},
        {"\x28\xB5\x2F\xFD....", "It is packed by zstd, which cannot be read"},
        {"X\n" + integers({9, 0x040202, 0x020300}),
         "Its objects are serialised in version 9, which is unknown"},
        {head + integers({0x313, 1, 99}), "The objects in it are damaged"},
        {head + null, "It holds no data frame, but NULL"},
    };
    for (const auto& [bytes, reason] : cases) {
        EXPECT_EQ(failureOf(bytes), "a.rds: " + reason);
    }
    std::string bytes = packed({rfiles::bytesOf(rfiles::types)});
    bytes[bytes.size() - 8] ^= '\x01';
    EXPECT_EQ(read("a.rds", bytes)->damageNotes().back(),
              "Its check sum is wrong: some of its values may be damaged");
    bytes[bytes.size() / 2] ^= '\x7F';
    EXPECT_TRUE(failureOf(bytes).starts_with("a.rds: "));
}

TEST_F(RdsDoc, takesNoFormulaForMoreThanItIs)
{
    const auto sequence = [](double length) {
        const auto real = [](double number) {
            return bigEndian(std::bit_cast<std::uint64_t>(number), 8);
        };
        return integers({238, 2}) + symbol("compact_intseq") + integers({2}) + symbol("base")
            + integers({2, 13, 1, 13}) + null + integers({14, 3}) + real(length) + real(5) + real(1)
            + null;
    };
    EXPECT_EQ(shownOf(head + frame({sequence(3)})), "V1 5 6 7");
    EXPECT_EQ(failureOf(head + frame({sequence(4e9)})),
              "a.rds: It has 4000000000 observations; at most 2147483647 can be shown");
    EXPECT_EQ(failureOf(head + frame({sequence(-1)})), "a.rds: The objects in it are damaged");
}

TEST_F(RdsDoc, passesOverWhatLiesDeep)
{
    constexpr int levels = 300000;
    std::string deep;
    for (int level = 0; level < levels; ++level) {
        deep += integers({19, 1});
    }
    const std::string column = integers({10, 2, 0, 1});
    EXPECT_EQ(shownOf(head + integers({19, 2}) + deep + null + frame({column})), "V1 FALSE TRUE");
}

TEST_F(RdsDoc, namesWhatHasNoNameOfItsOwn)
{
    const std::string names = integers({0x402}) + symbol("names") + integers({16, 3}) + letters("a")
        + letters("a") + letters("");
    const std::string column = integers({13, 1, 7});
    EXPECT_EQ(
        shownOf(head + integers({0x313, 3}) + column + column + column + names + classOfFrame),
        "a 7; a_2 7; V3 7");
    // A column that is no vector of the rows
    const auto ragged = read("a.rds", head + frame({column, integers({13, 2, 7, 8})}));
    EXPECT_EQ(shown(*ragged), "V1 7; V2 ");
    EXPECT_EQ(ragged->damageNotes().front(),
              "The values of V2 are not shown: it holds an integer vector of 2 elements");
}

TEST_F(RdsDoc, takesNoColumnForADataFrameOfTheFile)
{
    const std::string column = integers({13, 1, 7});
    const std::string object = frame({column, frame({column})});
    EXPECT_EQ(namesOf("RDX2\n" + head + integers({0x402}) + symbol("x") + object + null),
              std::vector{"x"s});
}

TEST_F(RdsDoc, keepsTheLastDigitOfLongIntegers)
{
    const auto frameOf = [](std::uint64_t number) {
        return head
            + frame({integers({0x30E, 1}) + bigEndian(number, 8) + integers({0x402})
                     + symbol("class") + integers({16, 1}) + letters("integer64") + null});
    };
    constexpr std::uint64_t largest = std::uint64_t{1} << 53;
    EXPECT_TRUE(read("a.rds", frameOf(largest))->isNumeric(0));
    EXPECT_TRUE(read("a.rds", frameOf(largest + 1))->isCharacter(0));
    EXPECT_EQ(shownOf(frameOf(largest + 1)), "V1 9007199254740993");
}

TEST_F(RdsDoc, showsBytesThatAreNoText)
{
    const std::string bytes = integers({0x2009, 2}) + "\xE4z";
    const std::string undeclared = integers({9, 2}) + "\xE4z";
    EXPECT_EQ(shownOf(head + frame({integers({16, 2}) + bytes + undeclared})),
              "V1 \\xe4z \xC3\xA4z");
}

TEST(RFormat, writesRealsAsRDoes)
{
    const std::pair<double, std::string> cases[] = {
        {1e5, "1e+05"},
        {123456, "123456"},
        {0.1, "0.1"},
        {1 / 3.0, "0.333333333333333"},
        {1e15, "1e+15"},
        {1e-5, "1e-05"},
        {0.0001, "1e-04"},
        {100000.5, "100000.5"},
        {-2.5e-7, "-2.5e-07"},
        {0, "0"},
        {123456789012345680.0, "123456789012345680"},
    };
    for (const auto& [number, text] : cases) {
        EXPECT_EQ(rformat::asCharacter(number), text);
    }
}

TEST(RFormat, showsDatesAndTimes)
{
    using rformat::formatNumber;
    EXPECT_EQ(formatNumber(-0.5, rformat::date), "31Dec1969");
    EXPECT_EQ(formatNumber(-717721, rformat::date), "12Dec0004");
    EXPECT_EQ(formatNumber(1e30, rformat::date), "1e+30");
    EXPECT_EQ(formatNumber(90000.9, rformat::time), "25:00:00");
    EXPECT_EQ(formatNumber(-0.5, rformat::time), "00:00:00");
    EXPECT_EQ(formatNumber(2, rformat::logical), "TRUE");
    EXPECT_EQ(formatNumber(std::nan(""), {}), "N/A");
}

}  // namespace

#include "data/StoredValue.h"
#include "tests/data/ReaderTest.h"

#include <bit>
#include <cmath>

namespace {

// Codes of types, releases 117 to 119.
constexpr unsigned longString = 32768;
constexpr unsigned float32 = 65527;
constexpr unsigned int32 = 65528;
constexpr unsigned int16 = 65529;
constexpr unsigned int8 = 65530;

/// A variable, with the width of its cells in bytes and what they hold.
struct Variable
{
    unsigned type;
    std::string format;
    std::size_t width;
    std::vector<std::uint64_t> cells;
};

/// Writes release 119 files, in either byte order.
class DtaFile
{
public:
    explicit DtaFile(bool littleEndian)
        : m_littleEndian(littleEndian)
    { }

    [[nodiscard]] std::string bytes(const std::vector<Variable>& variables,
                                    const std::vector<std::string>& texts = {}) const
    {
        const auto section = [&](const std::string& name, const auto& of) {
            std::string all = '<' + name + '>';
            for (const Variable& variable : variables) {
                all += of(variable);
            }
            return all + "</" + name + '>';
        };
        const auto nothing = [](std::size_t size) {
            return [size](const Variable&) { return std::string(size, '\0'); };
        };
        const auto number = [this](auto value, std::size_t size) {
            return this->number(value, size);
        };
        const std::size_t rows = variables[0].cells.size();
        std::string data;
        for (std::size_t row = 0; row < rows; ++row) {
            for (const Variable& variable : variables) {
                data += number(variable.cells[row], variable.width);
            }
        }
        std::string longTexts;
        for (std::size_t i = 0; i < texts.size(); ++i) {
            longTexts += "GSO" + number(1, 4) + number(i + 1, 8) + '\x82'
                + number(texts[i].size() + 1, 4) + texts[i] + '\0';
        }
        // In the order of the map.
        const std::string parts[] = {
            "<stata_dta><header><release>119</release><byteorder>"
                + std::string(m_littleEndian ? "LSF" : "MSF") + "</byteorder><K>"
                + number(variables.size(), 4) + "</K><N>" + number(rows, 8) + "</N><label>"
                + number(0, 2) + "</label><timestamp>" + '\0' + "</timestamp></header>",
            "<map>" + std::string(14 * 8, '\0') + "</map>",
            section("variable_types", [&](const Variable& one) { return number(one.type, 2); }),
            section("varnames",
                    [](const Variable& one) { return field("v" + std::to_string(one.type), 129); }),
            "<sortlist>" + std::string(4 * (variables.size() + 1), '\0') + "</sortlist>",
            section("formats", [](const Variable& one) { return field(one.format, 57); }),
            section("value_label_names", nothing(129)),
            section("variable_labels", [](const Variable&) { return field("A label", 321); }),
            section("characteristics", nothing(0)),
            "<data>" + data + "</data>",
            "<strls>" + longTexts + "</strls>",
            "<value_labels></value_labels>",
            "</stata_dta>",
        };
        std::string all;
        std::string map = number(0, 8);
        for (const std::string& part : parts) {
            all += part;
            map += number(all.size(), 8);
        }
        return all.replace(parts[0].size() + 5, map.size(), map);
    }

    /// What a cell holds that refers to the long string (1, observation); 0 refers to none.
    [[nodiscard]] std::uint64_t reference(std::uint64_t observation) const
    {
        // Three bytes of variable number, five of observation number.
        const std::uint64_t variable = observation == 0 ? 0 : 1;
        return m_littleEndian ? observation << 24 | variable : variable << 40 | observation;
    }

private:
    [[nodiscard]] std::string number(std::uint64_t value, std::size_t size) const
    {
        std::string bytes(size, '\0');
        for (std::size_t i = 0; i < size; ++i) {
            bytes[m_littleEndian ? i : size - 1 - i] = static_cast<char>(value >> 8 * i);
        }
        return bytes;
    }
    static std::string field(std::string text, std::size_t size)
    {
        text.resize(size, '\0');
        return text;
    }

    bool m_littleEndian;
};

class DtaDoc : public ReaderTest
{ };

TEST_F(DtaDoc, readsTheLongStringsOfRelease119)
{
    const std::string longText(3000, 'x');
    for (const bool littleEndian : {true, false}) {
        DtaFile file(littleEndian);
        const auto cell = [&](std::uint64_t text) { return file.reference(text); };
        const auto dataset =
            read("long.dta",
                 file.bytes({{longString, "%9s", 8, {cell(2), cell(0), cell(1), cell(2), cell(3)}}},
                            {longText, "größer"}));
        ASSERT_EQ(dataset->observationCount(), 5);
        EXPECT_EQ(
            dataset->damageNotes(),
            std::vector<std::string>{"1 of its long texts are missing; their cells are empty"});
        EXPECT_TRUE(dataset->isCharacter(0));
        EXPECT_EQ(dataset->labels()[0], "A label");
        EXPECT_EQ(dataset->cellText(0, 0), "größer");
        EXPECT_EQ(dataset->cellText(1, 0), "");
        EXPECT_EQ(dataset->cellText(2, 0), longText);
        EXPECT_EQ(dataset->cellText(3, 0), "größer");
    }
}

TEST_F(DtaDoc, showsNarrowNumbersByTheirFormats)
{
    // The largest and smallest number of each type, "." and ".c".
    const std::vector<Variable> variables{
        {int8, "%8.0g", 1, {100, 0x81, 101, 104}},
        {int16, "%8.0g", 2, {32740, 0x8001, 32741, 32744}},
        {int32, "%td", 4, {21915, 0xFFFFFFFF, 2147483621, 2147483624}},
        {float32,
         "%9.2f",
         4,
         {std::bit_cast<std::uint32_t>(2.5F), std::bit_cast<std::uint32_t>(-1.0F), 0x7F000000,
          0x7F001800}},
    };
    const char* const shown[][4] = {{"100", "-127", ".", "."},
                                    {"32740", "-32767", ".", "."},
                                    {"01jan2020", "31dec1959", ".", "."},
                                    {"2.50", "-1.00", ".", "."}};
    const double numbers[][2] = {{100, -127}, {32740, -32767}, {21915, -1}, {2.5, -1}};
    for (const bool littleEndian : {true, false}) {
        const auto dataset = read("narrow.dta", DtaFile(littleEndian).bytes(variables));
        for (int column = 0; column < 4; ++column) {
            EXPECT_TRUE(dataset->isNumeric(column));
            EXPECT_EQ(dataset->variableAttribute(column, VariableAttribute::Type), "Numeric");
            for (int row = 0; row < 4; ++row) {
                EXPECT_EQ(dataset->cellText(row, column), shown[column][row]);
                const double number = dataset->numericValue(row, column);
                EXPECT_TRUE(row < 2 ? number == numbers[column][row] : std::isnan(number));
            }
            EXPECT_EQ(storedvalue::text(*dataset, 2, column), ".");
            EXPECT_EQ(storedvalue::text(*dataset, 3, column), ".c");
        }
    }
}

}  // namespace

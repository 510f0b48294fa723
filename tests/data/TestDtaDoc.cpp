#include "tests/data/ReaderTest.h"

#include <array>
#include <bit>
#include <cmath>

namespace {

// Codes of types, releases 117 to 119.
constexpr unsigned longString = 32768;
constexpr unsigned float32 = 65527;
constexpr unsigned int32 = 65528;
constexpr unsigned int16 = 65529;
constexpr unsigned int8 = 65530;

/// Writes a release 119 file, in either byte order.
class DtaFile
{
public:
    explicit DtaFile(bool littleEndian)
        : m_littleEndian(littleEndian)
    { }

    /// A variable, with the width of its cells in bytes and what they hold.
    struct Variable
    {
        unsigned type;
        std::string format;
        std::size_t width;
        std::vector<std::uint64_t> cells;
    };

    std::string bytes(const std::vector<Variable>& variables,
                      const std::vector<std::string>& texts = {})
    {
        m_bytes = "<stata_dta><header><release>119</release><byteorder>";
        m_bytes += std::string(m_littleEndian ? "LSF" : "MSF") + "</byteorder><K>";
        number(variables.size(), 4);
        m_bytes += "</K><N>";
        number(variables[0].cells.size(), 8);
        m_bytes += "</N><label>";
        number(0, 2);
        m_bytes += "</label><timestamp>";
        m_bytes += '\0';
        m_bytes += "</timestamp></header>";
        mark(1);
        m_bytes += "<map>";
        m_map = m_bytes.size();
        m_bytes += std::string(14 * 8, '\0') + "</map>";
        describe(variables);
        section(9, "<data>");
        for (std::size_t row = 0; row < variables[0].cells.size(); ++row) {
            for (const Variable& variable : variables) {
                number(variable.cells[row], variable.width);
            }
        }
        m_bytes += "</data>";
        section(10, "<strls>");
        for (std::size_t i = 0; i < texts.size(); ++i) {
            addLongString(i + 1, texts[i]);
        }
        m_bytes += "</strls>";
        section(11, "<value_labels></value_labels>");
        section(12, "</stata_dta>");
        mark(13);
        for (std::size_t i = 0; i < m_offsets.size(); ++i) {
            put(m_map + 8 * i, m_offsets[i], 8);
        }
        return m_bytes;
    }

    /// What a cell holds that refers to the long string (1, observation); 0 refers to none.
    [[nodiscard]] std::uint64_t reference(std::uint64_t observation) const
    {
        // Three bytes of variable number, five of observation number.
        const std::uint64_t variable = observation == 0 ? 0 : 1;
        return m_littleEndian ? observation << 24 | variable : variable << 40 | observation;
    }

private:
    void mark(std::size_t entry) { m_offsets[entry] = m_bytes.size(); }
    void section(std::size_t entry, const std::string& tag)
    {
        mark(entry);
        m_bytes += tag;
    }
    void put(std::size_t at, std::uint64_t value, std::size_t size)
    {
        for (std::size_t i = 0; i < size; ++i) {
            const std::size_t shift = 8 * (m_littleEndian ? i : size - 1 - i);
            m_bytes.at(at + i) = static_cast<char>(value >> shift);
        }
    }
    void number(std::uint64_t value, std::size_t size)
    {
        m_bytes += std::string(size, '\0');
        put(m_bytes.size() - size, value, size);
    }
    void field(const std::string& text, std::size_t size)
    {
        m_bytes += text + std::string(size - text.size(), '\0');
    }
    template <typename Add>
    void sectionOf(std::size_t entry, const std::string& name, Add add)
    {
        section(entry, '<' + name + '>');
        add();
        m_bytes += "</" + name + '>';
    }
    void describe(const std::vector<Variable>& variables)
    {
        const auto fields = [&](std::size_t size, auto textOf) {
            return [&variables, this, size, textOf] {
                for (const Variable& variable : variables) {
                    field(textOf(variable), size);
                }
            };
        };
        const auto nothing = [](const Variable&) { return std::string(); };
        sectionOf(2, "variable_types", [&] {
            for (const Variable& variable : variables) {
                number(variable.type, 2);
            }
        });
        sectionOf(3, "varnames", fields(129, [](const Variable& variable) {
                      return "v" + std::to_string(variable.type);
                  }));
        sectionOf(4, "sortlist", [&] { field("", 4 * (variables.size() + 1)); });
        sectionOf(5, "formats",
                  fields(57, [](const Variable& variable) { return variable.format; }));
        sectionOf(6, "value_label_names", fields(129, nothing));
        sectionOf(7, "variable_labels",
                  fields(321, [](const Variable&) { return std::string("A label"); }));
        sectionOf(8, "characteristics", [] {});
    }
    void addLongString(std::uint64_t observation, const std::string& text)
    {
        m_bytes += "GSO";
        number(1, 4);
        number(observation, 8);
        m_bytes += '\x82';
        number(text.size() + 1, 4);
        m_bytes += text + '\0';
    }

    bool m_littleEndian;
    std::string m_bytes;
    std::size_t m_map = 0;
    std::array<std::uint64_t, 14> m_offsets{};
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
                 file.bytes({{longString, "%9s", 8, {cell(2), cell(0), cell(1), cell(2)}}},
                            {longText, "größer"}));
        ASSERT_EQ(dataset->observationCount(), 4);
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
    const std::vector<DtaFile::Variable> variables{
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
        }
    }
}

}  // namespace

#include "data/readers/DatasetFile.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <array>

namespace {

/// Writes a release 119 file of one long-string variable, in either byte order.
class LongStringFile
{
public:
    explicit LongStringFile(bool littleEndian)
        : m_littleEndian(littleEndian)
    { }

    /// Rows refer to (1, observation) of one of the texts; 0 refers to none.
    std::string bytes(const std::vector<std::uint64_t>& rows, const std::vector<std::string>& texts)
    {
        m_bytes = "<stata_dta><header><release>119</release><byteorder>";
        m_bytes += std::string(m_littleEndian ? "LSF" : "MSF") + "</byteorder><K>";
        number(1, 4);
        m_bytes += "</K><N>";
        number(rows.size(), 8);
        m_bytes += "</N><label>";
        number(0, 2);
        m_bytes += "</label><timestamp>";
        m_bytes += '\0';
        m_bytes += "</timestamp></header>";
        mark(1);
        m_bytes += "<map>";
        m_map = m_bytes.size();
        m_bytes += std::string(14 * 8, '\0') + "</map>";
        describeVariable();
        section(9, "<data>");
        for (const std::uint64_t row : rows) {
            reference(row);
        }
        m_bytes += "</data>";
        section(10, "<strls>");
        for (std::size_t i = 0; i < texts.size(); ++i) {
            longString(i + 1, texts[i]);
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
    void describeVariable()
    {
        section(2, "<variable_types>");
        number(32768, 2);
        m_bytes += "</variable_types>";
        section(3, "<varnames>");
        field("note", 129);
        m_bytes += "</varnames>";
        section(4, "<sortlist>");
        number(0, 8);
        m_bytes += "</sortlist>";
        section(5, "<formats>");
        field("%9s", 57);
        m_bytes += "</formats>";
        section(6, "<value_label_names>");
        field("", 129);
        m_bytes += "</value_label_names>";
        section(7, "<variable_labels>");
        field("A long note", 321);
        m_bytes += "</variable_labels>";
        section(8, "<characteristics></characteristics>");
    }
    /// Three bytes of variable number, five of observation number.
    void reference(std::uint64_t observation)
    {
        const std::uint64_t variable = observation == 0 ? 0 : 1;
        number(m_littleEndian ? observation << 24 | variable : variable << 40 | observation, 8);
    }
    void longString(std::uint64_t observation, const std::string& text)
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

TEST(DtaDoc, readsTheLongStringsOfRelease119)
{
    const TemporaryFolder folder;
    const std::string longText(3000, 'x');
    for (const bool littleEndian : {true, false}) {
        const std::string path = folder.file("long.dta").string();
        std::ofstream(path, std::ios::binary)
            << LongStringFile(littleEndian).bytes({2, 0, 1, 2}, {longText, "größer"});
        const auto opened = openDataset(QString::fromStdString(path));
        ASSERT_TRUE(opened.ok()) << opened.error();
        const StatDataset& dataset = *opened.value().dataset;
        ASSERT_EQ(dataset.observationCount(), 4);
        EXPECT_TRUE(dataset.isCharacter(0));
        EXPECT_EQ(dataset.labels()[0], "A long note");
        EXPECT_EQ(dataset.cellText(0, 0), "größer");
        EXPECT_EQ(dataset.cellText(1, 0), "");
        EXPECT_EQ(dataset.cellText(2, 0), longText);
        EXPECT_EQ(dataset.cellText(3, 0), "größer");
    }
}

}  // namespace

#include "samples/FilePatches.h"

#include <array>
#include <cstdint>
#include <fstream>
#include <stdexcept>

namespace samples {

namespace {

/// Numbers of a file in the byte order of the machine, as the library writes them.
class PatchedFile
{
public:
    explicit PatchedFile(const std::filesystem::path& path)
        : m_stream(path, std::ios::in | std::ios::out | std::ios::binary)
    {
        m_stream.exceptions(std::ios::failbit | std::ios::badbit | std::ios::eofbit);
    }

    template <typename T>
    [[nodiscard]] T read(std::uint64_t offset)
    {
        T value{};
        m_stream.seekg(static_cast<std::streamoff>(offset));
        m_stream.read(reinterpret_cast<char*>(&value), sizeof value);
        return value;
    }

    template <typename T>
    void write(std::uint64_t offset, const T& value)
    {
        m_stream.seekp(static_cast<std::streamoff>(offset));
        m_stream.write(reinterpret_cast<const char*>(&value), sizeof value);
    }

private:
    std::fstream m_stream;
};

/// Where the first so many format records of a SAS7BDAT file are; each column has one.
std::vector<std::uint64_t> formatRecords(PatchedFile& file, std::size_t wanted)
{
    constexpr std::uint32_t signature = 0xFFFFFBFE;
    // The longer integers of the 64-bit layout move what stands behind them.
    const bool is64 = file.read<std::uint8_t>(32) == 0x33;
    const std::uint64_t shift = file.read<std::uint8_t>(35) == 0x33 ? 4 : 0;
    const std::uint64_t wordSize = is64 ? 8 : 4;
    const std::uint64_t headerSize = file.read<std::uint32_t>(196 + shift);
    const std::uint64_t pageSize = file.read<std::uint32_t>(200 + shift);
    const std::uint64_t pageCount = file.read<std::uint32_t>(204 + shift);
    std::vector<std::uint64_t> records;
    for (std::uint64_t page = 0; page < pageCount && records.size() < wanted; ++page) {
        const auto start = headerSize + page * pageSize;
        const auto count = file.read<std::uint16_t>(start + (is64 ? 36 : 20));
        for (std::uint64_t i = 0; i < count; ++i) {
            const auto pointer = start + (is64 ? 40 : 24) + i * 3 * wordSize;
            const auto subheader = start + file.read<std::uint32_t>(pointer);
            const bool isEmpty = file.read<std::uint32_t>(pointer + wordSize) == 0;
            if (!isEmpty && file.read<std::uint32_t>(subheader) == signature) {
                records.push_back(subheader + 3 * wordSize);
            }
        }
    }
    return records;
}

}  // namespace

void declareWindows1252(const std::filesystem::path& sasFile)
{
    PatchedFile(sasFile).write<std::uint8_t>(70, 62);
}

void storeFormatWidths(const std::filesystem::path& sasFile, const std::vector<Column>& columns)
{
    PatchedFile file(sasFile);
    const auto records = formatRecords(file, columns.size());
    for (std::size_t i = 0; i < columns.size(); ++i) {
        file.write(records.at(i), static_cast<std::uint16_t>(columns[i].width));
        file.write(records.at(i) + 2, static_cast<std::uint16_t>(columns[i].decimals));
    }
}

void storeTransportRowCount(const std::filesystem::path& transportFile, long rowCount)
{
    constexpr std::uint64_t recordSize = 80;
    constexpr std::string_view rowHeader = "HEADER RECORD*******OBSV8   HEADER RECORD!!!!!!!";
    constexpr std::size_t digits = 15;
    std::array<char, rowHeader.size()> found{};
    PatchedFile file(transportFile);
    std::uint64_t start = 0;
    while (std::string_view(found.data(), found.size()) != rowHeader) {
        found = file.read<decltype(found)>(start);
        start += recordSize;
    }
    const auto text = std::to_string(rowCount);
    std::array<char, recordSize - rowHeader.size()> rest{};
    rest.fill(' ');
    text.copy(rest.data() + digits - text.size(), text.size());
    file.write(start - recordSize + rowHeader.size(), rest);
}

}  // namespace samples

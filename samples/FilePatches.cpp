#include "samples/FilePatches.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <stdexcept>

namespace samples {

namespace {

class PatchedFile
{
public:
    explicit PatchedFile(const std::filesystem::path& path)
        : m_path(path)
        , m_stream(path, std::ios::in | std::ios::out | std::ios::binary)
    {
        m_stream.exceptions(std::ios::failbit | std::ios::badbit | std::ios::eofbit);
    }

    // The library writes in the byte order of the machine, so numbers need no turning.
    template <typename T>
    [[nodiscard]] T read(std::uint64_t offset)
    {
        T value{};
        seekAndDo(offset, [&] { m_stream.read(reinterpret_cast<char*>(&value), sizeof value); });
        return value;
    }

    template <typename T>
    void write(std::uint64_t offset, const T& value)
    {
        seekAndDo(offset,
                  [&] { m_stream.write(reinterpret_cast<const char*>(&value), sizeof value); });
    }

    [[noreturn]] void fail(const char* what) const
    {
        throw std::runtime_error(m_path.string() + ": " + what);
    }

private:
    template <typename Action>
    void seekAndDo(std::uint64_t offset, Action action)
    {
        try {
            m_stream.seekg(static_cast<std::streamoff>(offset));
            m_stream.seekp(static_cast<std::streamoff>(offset));
            action();
        } catch (const std::ios::failure&) {
            fail("the finished file could not be read or changed");
        }
    }

    std::filesystem::path m_path;
    std::fstream m_stream;
};

/// Where a SAS7BDAT file keeps what is needed here; the longer integers of the 64-bit layout move
/// everything behind them.
struct SasLayout
{
    bool is64;
    std::uint64_t headerSize;
    std::uint64_t pageSize;
    std::uint64_t pageCount;
};

SasLayout readLayout(PatchedFile& file)
{
    const std::uint64_t shift = file.read<std::uint8_t>(35) == 0x33 ? 4 : 0;
    const bool is64 = file.read<std::uint8_t>(32) == 0x33;
    return {.is64 = is64,
            .headerSize = file.read<std::uint32_t>(196 + shift),
            .pageSize = file.read<std::uint32_t>(200 + shift),
            .pageCount = is64 ? file.read<std::uint64_t>(204 + shift)
                              : file.read<std::uint32_t>(204 + shift)};
}

constexpr std::uint32_t formatSignature = 0xFFFFFBFE;

}  // namespace

void declareWindows1252(const std::filesystem::path& sasFile)
{
    PatchedFile(sasFile).write<std::uint8_t>(70, 62);
}

void storeFormatWidths(const std::filesystem::path& sasFile, const std::vector<Column>& columns)
{
    PatchedFile file(sasFile);
    const auto layout = readLayout(file);
    const std::uint64_t wordSize = layout.is64 ? 8 : 4;
    auto column = columns.begin();
    for (std::uint64_t page = 0; page < layout.pageCount && column != columns.end(); ++page) {
        const auto start = layout.headerSize + page * layout.pageSize;
        const auto count = file.read<std::uint16_t>(start + (layout.is64 ? 36 : 20));
        for (std::uint64_t i = 0; i < count && column != columns.end(); ++i) {
            const auto pointer = start + (layout.is64 ? 40 : 24) + i * 3 * wordSize;
            const auto subheader = start + file.read<std::uint32_t>(pointer);
            const bool isEmpty = file.read<std::uint32_t>(pointer + wordSize) == 0;
            if (isEmpty || file.read<std::uint32_t>(subheader) != formatSignature) {
                continue;
            }
            file.write(subheader + 3 * wordSize, static_cast<std::uint16_t>(column->width));
            file.write(subheader + 3 * wordSize + 2, static_cast<std::uint16_t>(column->decimals));
            ++column;
        }
    }
    if (column != columns.end()) {
        file.fail("the finished file lacks format records");
    }
}

void storeTransportRowCount(const std::filesystem::path& transportFile, long rowCount)
{
    constexpr std::uint64_t recordSize = 80;
    constexpr std::string_view rowHeader = "HEADER RECORD*******OBSV8   HEADER RECORD!!!!!!!";
    PatchedFile file(transportFile);
    const auto size = std::filesystem::file_size(transportFile);
    for (std::uint64_t start = 0; start + recordSize <= size; start += recordSize) {
        const auto record = file.read<std::array<char, recordSize>>(start);
        if (!std::string_view(record.data(), record.size()).starts_with(rowHeader)) {
            continue;
        }
        const auto digits = std::to_string(rowCount);
        std::array<char, recordSize - rowHeader.size()> rest{};
        rest.fill(' ');
        std::memcpy(rest.data() + 15 - digits.size(), digits.data(), digits.size());
        file.write(start + rowHeader.size(), rest);
        return;
    }
    file.fail("the finished file lacks its row header");
}

}  // namespace samples

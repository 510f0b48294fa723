#include "samples/TableWriter.h"

#include "samples/RowWriter.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace samples {

namespace {

class TemporaryFile
{
public:
    explicit TemporaryFile(std::filesystem::path path)
        : m_path(std::move(path))
    { }
    ~TemporaryFile()
    {
        std::error_code ignored;
        std::filesystem::remove(m_path, ignored);
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

std::string contentsOf(const std::filesystem::path& path)
{
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void appendBytes(const std::filesystem::path& path, std::string_view bytes)
{
    std::ofstream stream(path, std::ios::binary | std::ios::app);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (!stream) {
        throw std::runtime_error(path.string() + ": the file could not be written");
    }
}

}  // namespace

void writeTable(const std::filesystem::path& path, const Table& table, const WriteOptions& options)
{
    const TableShape& shape = table;
    RowWriter writer(path, shape, static_cast<long>(table.rows.size()), options);
    for (const auto& row : table.rows) {
        writer.beginRow();
        for (const auto& cell : row) {
            if (const auto* const text = std::get_if<std::string>(&cell)) {
                writer.addText(*text);
            } else {
                writer.addNumber(std::get<double>(cell));
            }
        }
        writer.endRow();
    }
    writer.finish();
}

void writeTransport(const std::filesystem::path& path, std::span<const Table> tables,
                    const WriteOptions& options)
{
    constexpr std::size_t libraryHeaderSize = 240;  // three records
    if (tables.empty() || kindOfFile(path) != FileKind::Transport) {
        throw std::runtime_error(path.string() + ": not a transport file of at least one table");
    }
    const auto sibling = [&](const char* suffix) {
        return TemporaryFile(path.parent_path() / (path.stem().string() + suffix));
    };
    const auto whole = sibling(".whole.xpt");
    writeTable(whole.path(), tables.front(), options);
    for (const auto& table : tables.subspan(1)) {
        const auto member = sibling(".member.xpt");
        writeTable(member.path(), table, options);
        appendBytes(whole.path(), contentsOf(member.path()).substr(libraryHeaderSize));
    }
    std::filesystem::rename(whole.path(), path);
}

}  // namespace samples

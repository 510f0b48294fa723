#include "samples/TableWriter.h"

#include "samples/CsvWriter.h"
#include "samples/FilePatches.h"
#include "samples/JsonWriter.h"
#include "samples/ReadStatWriter.h"
#include "samples/RWriter.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <limits>
#include <memory>
#include <stdexcept>

namespace samples {

namespace {

struct Closer
{
    void operator()(std::FILE* file) const noexcept { std::fclose(file); }
};

using File = std::unique_ptr<std::FILE, Closer>;

[[noreturn]] void fail(const std::filesystem::path& path, const std::string& what)
{
    throw std::runtime_error(path.string() + ": " + what);
}

// The library cuts long names and labels without a word, in the midst of a letter if need be, and
// overflows its int when rows are counted beyond it.
void checkLimits(const TableShape& shape, long rowCount, FileKind kind, int release)
{
    if (rowCount < 0 || rowCount > std::numeric_limits<int>::max()) {
        throw std::runtime_error("impossible number of rows");
    }
    if (kind != FileKind::Transport || release != 5) {
        return;
    }
    for (const auto& column : shape.columns) {
        if (column.name.size() > 8 || column.label.size() > 40) {
            throw std::runtime_error("the name or the label is too long: " + column.name);
        }
    }
}

File openFile(const std::filesystem::path& path)
{
    File file(std::fopen(path.c_str(), "wb"));
    if (!file) {
        fail(path, std::strerror(errno));
    }
    constexpr std::size_t bufferSize = 1 << 20;  // the library writes row by row
    std::setvbuf(file.get(), nullptr, _IOFBF, bufferSize);
    return file;
}

void patchFile(const std::filesystem::path& path, FileKind kind, const TableShape& shape,
               long rowCount, const WriteOptions& options)
{
    if (kind == FileKind::Sas) {
        storeFormatWidths(path, shape.columns);
    }
    if (kind == FileKind::Sas && options.encoding == TextEncoding::Windows1252) {
        declareWindows1252(path);
    }
    if (kind == FileKind::Transport && options.release == 8) {
        storeTransportRowCount(path, rowCount);
    }
}

std::unique_ptr<RowWriter> makeWriter(std::FILE* file, const TableShape& shape, FileKind kind,
                                      const WriteOptions& options, long rowCount)
{
    switch (kind) {
    case FileKind::Csv:
        return makeCsvWriter(file, shape);
    case FileKind::R:
        return makeRWriter(file, shape);
    case FileKind::DatasetJson:
    case FileKind::Ndjson:
    case FileKind::Dsjc:
        return makeJsonWriter(file, shape, kind, rowCount);
    default:
        return makeReadStatWriter(file, shape, kind, options, rowCount);
    }
}

/// Appends a transport file's member to another transport file.
void appendMember(const std::filesystem::path& path, const std::filesystem::path& member)
{
    constexpr std::streamoff libraryHeaderSize = 240;  // three records
    std::ifstream source(member, std::ios::binary);
    source.seekg(libraryHeaderSize);
    std::ofstream target(path, std::ios::binary | std::ios::app);
    target << source.rdbuf();
    target.close();
    if (!target) {
        fail(path, "the file could not be written");
    }
}

}  // namespace

void writeRows(const std::filesystem::path& path, const TableShape& shape, long rowCount,
               const std::function<const Row&()>& nextRow, const WriteOptions& options)
{
    const auto kind = kindOfFile(path);
    const auto checked = checkedOptions(path, options);
    auto file = openFile(path);
    try {
        checkLimits(shape, rowCount, kind, checked.release);
        const auto writer = makeWriter(file.get(), shape, kind, checked, rowCount);
        for (long row = 0; row < rowCount; ++row) {
            writer->add(nextRow());
        }
        writer->end();
        if (std::fclose(file.release()) != 0) {
            throw std::runtime_error(std::strerror(errno));
        }
        patchFile(path, kind, shape, rowCount, checked);
    } catch (const std::exception& error) {
        std::error_code ignored;
        std::filesystem::remove(path, ignored);
        fail(path, error.what());
    }
}

void writeTable(const std::filesystem::path& path, const Table& table, const WriteOptions& options)
{
    auto row = table.rows.begin();
    writeRows(
        path, table, static_cast<long>(table.rows.size()), [&]() -> const Row& { return *row++; },
        options);
}

void writeTransport(const std::filesystem::path& path, std::span<const Table> tables,
                    const WriteOptions& options)
{
    if (tables.empty() || kindOfFile(path) != FileKind::Transport) {
        fail(path, "not a transport file of at least one table");
    }
    writeTable(path, tables.front(), options);
    const std::filesystem::path member = path.string() + ".member.xpt";
    std::error_code ignored;
    try {
        for (const auto& table : tables.subspan(1)) {
            writeTable(member, table, options);
            appendMember(path, member);
        }
    } catch (...) {
        std::filesystem::remove(path, ignored);
        std::filesystem::remove(member, ignored);
        throw;
    }
    std::filesystem::remove(member, ignored);
}

}  // namespace samples

#include "samples/TableWriter.h"

#include "samples/FilePatches.h"
#include "samples/FormatMapping.h"
#include "samples/TextEncoding.h"

#include <readstat.h>

#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <fstream>
#include <iterator>
#include <limits>
#include <memory>
#include <stdexcept>

namespace samples {

namespace {

struct Closer
{
    void operator()(readstat_writer_t* writer) const noexcept { readstat_writer_free(writer); }
    void operator()(std::FILE* file) const noexcept { std::fclose(file); }
};

using File = std::unique_ptr<std::FILE, Closer>;

ssize_t writeBytes(const void* bytes, std::size_t size, void* file) noexcept
{
    return static_cast<ssize_t>(std::fwrite(bytes, 1, size, static_cast<std::FILE*>(file)));
}

[[noreturn]] void fail(const std::filesystem::path& path, const std::string& what)
{
    throw std::runtime_error(path.string() + ": " + what);
}

void check(readstat_error_t error, const std::string& column = {})
{
    if (error != READSTAT_OK) {
        const std::string place = column.empty() ? "" : " (" + column + ")";
        throw std::runtime_error(readstat_error_message(error) + place);
    }
}

/// The creation time that every file carries, 15 January 2025, noon. ReadStat writes it as local
/// time, and into SAS7BDAT files as UTC.
std::time_t fixedTime(FileKind kind)
{
    if (kind == FileKind::Sas) {
        return 1736942400;
    }
    std::tm noon{};
    noon.tm_year = 125;
    noon.tm_mday = 15;
    noon.tm_hour = 12;
    noon.tm_isdst = -1;
    return std::mktime(&noon);
}

readstat_compress_t libraryCompression(Compression compression)
{
    switch (compression) {
    case Compression::Rows:
        return READSTAT_COMPRESS_ROWS;
    case Compression::Zlib:
        return READSTAT_COMPRESS_BINARY;
    case Compression::None:
        break;
    }
    return READSTAT_COMPRESS_NONE;
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

/// A file on its way: header, rows, end.
class FileWriter
{
public:
    /// The file outlives the writer.
    FileWriter(std::FILE* file, const TableShape& shape, FileKind kind, const WriteOptions& options)
        : m_file(file)
        , m_kind(kind)
        , m_encoding(options.encoding)
    {
        setProperties(shape, options);
        for (const auto& column : shape.columns) {
            addVariable(column);
        }
    }

    void begin(long rowCount);
    void add(const Row& row);
    void end() { check(readstat_end_writing(m_writer.get())); }

private:
    struct Variable
    {
        readstat_variable_t* handle;  // owned by the writer
        NumberMapping mapping;
        std::string name;
    };

    void setProperties(const TableShape& shape, const WriteOptions& options);
    void addVariable(const Column& column);
    [[nodiscard]] readstat_error_t add(const Variable& variable, const Cell& cell);
    [[nodiscard]] const char* encoded(const std::string& text);

    std::FILE* m_file;
    FileKind m_kind;
    TextEncoding m_encoding;
    std::unique_ptr<readstat_writer_t, Closer> m_writer{readstat_writer_init()};
    std::vector<Variable> m_variables;
    std::string m_text;
};

void FileWriter::setProperties(const TableShape& shape, const WriteOptions& options)
{
    auto* const writer = m_writer.get();
    check(readstat_set_data_writer(writer, writeBytes));
    check(readstat_writer_set_file_timestamp(writer, fixedTime(m_kind)));
    check(readstat_writer_set_file_label(writer, encoded(shape.label)));
    check(readstat_writer_set_table_name(writer, shape.name.c_str()));
    check(readstat_writer_set_compression(writer, libraryCompression(options.compression)));
    check(readstat_writer_set_file_format_is_64bit(writer, options.layout64 ? 1 : 0));
    if (options.release != 0) {
        const auto release = static_cast<std::uint8_t>(options.release);
        check(readstat_writer_set_file_format_version(writer, release));
    }
}

void FileWriter::addVariable(const Column& column)
{
    const auto type = column.character ? READSTAT_TYPE_STRING : READSTAT_TYPE_DOUBLE;
    auto* const variable = readstat_add_variable(m_writer.get(), column.name.c_str(), type,
                                                 static_cast<std::size_t>(column.length));
    readstat_variable_set_label(variable, encoded(column.label));
    readstat_variable_set_format(variable, fileFormat(column, m_kind).c_str());
    readstat_variable_set_measure(
        variable, column.character ? READSTAT_MEASURE_NOMINAL : READSTAT_MEASURE_SCALE);
    m_variables.push_back({variable, numberMapping(column, m_kind), column.name});
}

void FileWriter::begin(long rowCount)
{
    auto* const writer = m_writer.get();
    switch (m_kind) {
    case FileKind::Transport:
        check(readstat_begin_writing_xport(writer, m_file, rowCount));
        break;
    case FileKind::Sas:
        check(readstat_begin_writing_sas7bdat(writer, m_file, rowCount));
        break;
    case FileKind::Spss:
        check(readstat_begin_writing_sav(writer, m_file, rowCount));
        break;
    case FileKind::Stata:
        check(readstat_begin_writing_dta(writer, m_file, rowCount));
        break;
    }
    check(readstat_validate_metadata(writer));
    for (const auto& variable : m_variables) {
        check(readstat_validate_variable(writer, variable.handle), variable.name);
    }
}

void FileWriter::add(const Row& row)
{
    if (row.size() != m_variables.size()) {
        throw std::runtime_error("a row has " + std::to_string(row.size()) + " cells");
    }
    check(readstat_begin_row(m_writer.get()));
    for (std::size_t i = 0; i < row.size(); ++i) {
        check(add(m_variables[i], row[i]), m_variables[i].name);
    }
    check(readstat_end_row(m_writer.get()));
}

readstat_error_t FileWriter::add(const Variable& variable, const Cell& cell)
{
    auto* const writer = m_writer.get();
    if (const auto* const text = std::get_if<std::string>(&cell)) {
        return readstat_insert_string_value(writer, variable.handle, encoded(*text));
    }
    const double value = std::get<double>(cell);
    return std::isnan(value)
        ? readstat_insert_missing_value(writer, variable.handle)
        : readstat_insert_double_value(writer, variable.handle, variable.mapping(value));
}

const char* FileWriter::encoded(const std::string& text)
{
    if (m_encoding == TextEncoding::Utf8) {
        return text.c_str();
    }
    m_text = toWindows1252(text);
    return m_text.c_str();
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
        FileWriter writer(file.get(), shape, kind, checked);
        writer.begin(rowCount);
        for (long row = 0; row < rowCount; ++row) {
            writer.add(nextRow());
        }
        writer.end();
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

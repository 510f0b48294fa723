#include "samples/ReadStatWriter.h"

#include "samples/FormatMapping.h"
#include "samples/TextEncoding.h"

#include <readstat.h>

#include <cmath>
#include <cstdint>
#include <ctime>
#include <stdexcept>
#include <string>
#include <vector>

namespace samples {

namespace {

struct Freer
{
    void operator()(readstat_writer_t* writer) const noexcept { readstat_writer_free(writer); }
};

ssize_t writeBytes(const void* bytes, std::size_t size, void* file) noexcept
{
    return static_cast<ssize_t>(std::fwrite(bytes, 1, size, static_cast<std::FILE*>(file)));
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

class ReadStatWriter : public RowWriter
{
public:
    ReadStatWriter(std::FILE* file, const TableShape& shape, FileKind kind,
                   const WriteOptions& options)
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
    void add(const Row& row) override;
    void end() override { check(readstat_end_writing(m_writer.get())); }

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
    std::unique_ptr<readstat_writer_t, Freer> m_writer{readstat_writer_init()};
    std::vector<Variable> m_variables;
    std::string m_text;
};

void ReadStatWriter::setProperties(const TableShape& shape, const WriteOptions& options)
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

void ReadStatWriter::addVariable(const Column& column)
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

void ReadStatWriter::begin(long rowCount)
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
    case FileKind::Csv:
    case FileKind::R:
    case FileKind::DatasetJson:
    case FileKind::Ndjson:
    case FileKind::Dsjc:
        throw std::runtime_error("the library writes no such file");
    }
    check(readstat_validate_metadata(writer));
    for (const auto& variable : m_variables) {
        check(readstat_validate_variable(writer, variable.handle), variable.name);
    }
}

void ReadStatWriter::add(const Row& row)
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

readstat_error_t ReadStatWriter::add(const Variable& variable, const Cell& cell)
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

const char* ReadStatWriter::encoded(const std::string& text)
{
    if (m_encoding == TextEncoding::Utf8) {
        return text.c_str();
    }
    m_text = toWindows1252(text);
    return m_text.c_str();
}

}  // namespace

std::unique_ptr<RowWriter> makeReadStatWriter(std::FILE* file, const TableShape& shape,
                                              FileKind kind, const WriteOptions& options,
                                              long rowCount)
{
    auto writer = std::make_unique<ReadStatWriter>(file, shape, kind, options);
    writer->begin(rowCount);
    return writer;
}

}  // namespace samples

#include "samples/RowWriter.h"

#include "samples/FilePatches.h"
#include "samples/TextEncoding.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <ctime>
#include <limits>
#include <stdexcept>

namespace samples {

namespace {

ssize_t writeBytes(const void* bytes, std::size_t size, void* file) noexcept
{
    return static_cast<ssize_t>(std::fwrite(bytes, 1, size, static_cast<std::FILE*>(file)));
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

bool isAscii(std::string_view text)
{
    return std::ranges::all_of(
        text, [](char letter) { return static_cast<unsigned char>(letter) < 0x80; });
}

}  // namespace

RowWriter::RowWriter(std::filesystem::path path, TableShape shape, long rowCount,
                     const WriteOptions& options)
    : m_path(std::move(path))
    , m_shape(std::move(shape))
    , m_rowCount(rowCount)
    , m_options(checkedOptions(m_path, options))
    , m_kind(kindOfFile(m_path))
{
    checkNames();
    m_writer.reset(readstat_writer_init());
    setProperties();
    addVariables();
    openFile();
    try {
        begin();
    } catch (...) {
        std::filesystem::remove(m_path);  // the destructor of a half-made object does not run
        throw;
    }
}

RowWriter::~RowWriter()
{
    if (!m_isFinished) {
        m_file.reset();
        std::error_code ignored;
        std::filesystem::remove(m_path, ignored);
    }
}

void RowWriter::beginRow()
{
    m_column = 0;
    check(readstat_begin_row(m_writer.get()));
}

void RowWriter::addText(std::string_view text)
{
    const auto* const variable = nextVariable();
    check(readstat_insert_string_value(m_writer.get(), variable, encoded(text).c_str()));
}

void RowWriter::addNumber(double value)
{
    const auto column = m_column;
    const auto* const variable = nextVariable();
    check(std::isnan(value)
              ? readstat_insert_missing_value(m_writer.get(), variable)
              : readstat_insert_double_value(m_writer.get(), variable, m_mappings[column](value)));
}

void RowWriter::endRow()
{
    if (m_column != m_variables.size()) {
        fail("a row has too few cells");
    }
    check(readstat_end_row(m_writer.get()));
}

void RowWriter::finish()
{
    check(readstat_end_writing(m_writer.get()));
    if (std::fclose(m_file.release()) != 0) {
        fail(std::strerror(errno));
    }
    patchFile();
    m_isFinished = true;
}

void RowWriter::fail(const std::string& what) const
{
    throw std::runtime_error(m_path.string() + ": " + what);
}

void RowWriter::check(readstat_error_t error) const
{
    if (error != READSTAT_OK) {
        const auto column = m_column > 0 && m_column <= m_shape.columns.size()
            ? " (" + m_shape.columns[m_column - 1].name + ")"
            : std::string();
        fail(readstat_error_message(error) + column);
    }
}

void RowWriter::openFile()
{
    m_file.reset(std::fopen(m_path.c_str(), "wb"));
    if (!m_file) {
        fail(std::strerror(errno));
    }
    constexpr std::size_t bufferSize = 1 << 20;  // the library writes row by row
    std::setvbuf(m_file.get(), nullptr, _IOFBF, bufferSize);
}

void RowWriter::setProperties()
{
    auto* const writer = m_writer.get();
    check(readstat_set_data_writer(writer, writeBytes));
    check(readstat_writer_set_file_timestamp(writer, fixedTime(m_kind)));
    check(readstat_writer_set_file_label(writer, encoded(m_shape.label).c_str()));
    check(readstat_writer_set_table_name(writer, m_shape.name.c_str()));
    check(readstat_writer_set_compression(writer, libraryCompression(m_options.compression)));
    check(readstat_writer_set_file_format_is_64bit(writer, m_options.layout64 ? 1 : 0));
    if (m_options.release != 0) {
        const auto release = static_cast<std::uint8_t>(m_options.release);
        check(readstat_writer_set_file_format_version(writer, release));
    }
}

void RowWriter::addVariables()
{
    for (const auto& column : m_shape.columns) {
        const auto type = column.character ? READSTAT_TYPE_STRING : READSTAT_TYPE_DOUBLE;
        auto* const variable = readstat_add_variable(m_writer.get(), column.name.c_str(), type,
                                                     static_cast<std::size_t>(column.length));
        readstat_variable_set_label(variable, encoded(column.label).c_str());
        readstat_variable_set_format(variable, fileFormat(column, m_kind).c_str());
        readstat_variable_set_measure(
            variable, column.character ? READSTAT_MEASURE_NOMINAL : READSTAT_MEASURE_SCALE);
        m_variables.push_back(variable);
        m_mappings.push_back(numberMapping(column, m_kind));
    }
}

void RowWriter::begin()
{
    auto* const writer = m_writer.get();
    switch (m_kind) {
    case FileKind::Transport:
        check(readstat_begin_writing_xport(writer, m_file.get(), m_rowCount));
        break;
    case FileKind::Sas:
        check(readstat_begin_writing_sas7bdat(writer, m_file.get(), m_rowCount));
        break;
    case FileKind::Spss:
        check(readstat_begin_writing_sav(writer, m_file.get(), m_rowCount));
        break;
    case FileKind::Stata:
        check(readstat_begin_writing_dta(writer, m_file.get(), m_rowCount));
        break;
    }
    check(readstat_validate_metadata(writer));
    for (const auto* const variable : m_variables) {
        check(readstat_validate_variable(writer, variable));
    }
}

// The library cuts long names and labels without a word, in the midst of a letter if need be, and
// overflows its int when rows are counted beyond it.
void RowWriter::checkNames() const
{
    if (m_rowCount < 0 || m_rowCount > std::numeric_limits<int>::max()) {
        fail("impossible number of rows");
    }
    if (m_kind != FileKind::Transport || m_options.release != 5) {
        return;
    }
    for (const auto& column : m_shape.columns) {
        if (column.name.size() > 8) {
            fail("a name of more than 8 bytes: " + column.name);
        }
        if (column.label.size() > 40) {
            fail("a label of more than 40 bytes: " + column.label);
        }
    }
}

void RowWriter::patchFile() const
{
    if (m_kind == FileKind::Sas) {
        storeFormatWidths(m_path, m_shape.columns);
        if (m_options.encoding == TextEncoding::Windows1252) {
            declareWindows1252(m_path);
        }
    }
    if (m_kind == FileKind::Transport && m_options.release == 8) {
        storeTransportRowCount(m_path, m_rowCount);
    }
}

const std::string& RowWriter::encoded(std::string_view text)
{
    if (m_options.encoding == TextEncoding::Utf8 || isAscii(text)) {
        m_text.assign(text);
        return m_text;
    }
    try {
        toWindows1252(text, m_text);
    } catch (const std::runtime_error& error) {
        fail(error.what());
    }
    return m_text;
}

const readstat_variable_t* RowWriter::nextVariable()
{
    if (m_column >= m_variables.size()) {
        fail("a row has too many cells");
    }
    return m_variables[m_column++];
}

}  // namespace samples

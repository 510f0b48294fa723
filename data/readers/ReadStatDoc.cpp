#include "data/readers/ReadStatDoc.h"

#include "data/FilePath.h"
#include "data/values/Texts.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <limits>

namespace {

struct ReadStatParserDeleter
{
    void operator()(readstat_parser_t* parser) const noexcept { readstat_parser_free(parser); }
};
using ReadStatParser = std::unique_ptr<readstat_parser_t, ReadStatParserDeleter>;

constexpr std::int64_t mostObservations = std::numeric_limits<std::int32_t>::max();
constexpr std::size_t recentTextsPerColumn = 128;
constexpr double missingNumber = std::numeric_limits<double>::quiet_NaN();

TypeCode typeCodeOf(readstat_type_t type)
{
    // A reference to a long text is a text to everyone else.
    return type == READSTAT_TYPE_STRING_REF ? TypeCode::Character
                                            : static_cast<TypeCode>(static_cast<int>(type));
}

/// The library's accessor functions cost more than the rest of the value handler, so its public
/// structure is read here directly.
double numberOf(const readstat_value_t& value)
{
    if (value.is_system_missing || value.is_tagged_missing) {
        return missingNumber;
    }
    switch (value.type) {
    case READSTAT_TYPE_DOUBLE:
        return value.v.double_value;
    case READSTAT_TYPE_FLOAT:
        return static_cast<double>(value.v.float_value);
    case READSTAT_TYPE_INT32:
        return value.v.i32_value;
    case READSTAT_TYPE_INT16:
        return value.v.i16_value;
    case READSTAT_TYPE_INT8:
        return value.v.i8_value;
    default:
        return missingNumber;
    }
}

}  // namespace

int ReadStatDoc::load(const QString& path)
{
    m_observationCount = 0;
    m_variableCount = 0;
    m_rowsSeen = 0;
    m_valuesInOrder = 0;
    m_skipped = 0;
    m_rowCountIsUnknown = false;
    m_rowsAreCounted = false;
    m_loadError.clear();
    m_refusal.clear();
    readstat_error_t code = READSTAT_OK;
    const std::string name = filepath::toBytes(path);
    FileReader file;
    try {
        if (!file.open(name)) {
            m_refusal = file.error();
            return finish(path, READSTAT_ERROR_OPEN);
        }
        m_fileSize = file.size();
        ParserInput input(file);
        m_refusal = prepare(file, input);
        code = m_refusal.empty() ? runParser(name, input) : READSTAT_ERROR_PARSE;
        if (code == READSTAT_OK) {
            m_refusal = complete(file);
            code = m_refusal.empty() ? READSTAT_OK : READSTAT_ERROR_PARSE;
            settleCells();
        }
    } catch (const std::bad_alloc&) {
        m_refusal = "There is not enough memory to hold it";
        code = READSTAT_ERROR_MALLOC;
    } catch (const std::exception& error) {
        m_refusal = error.what();
        code = READSTAT_ERROR_PARSE;
    }
    return finish(path, code);
}

readstat_error_t ReadStatDoc::runParser(const std::string& path, ParserInput& input)
{
    const ReadStatParser parser(readstat_parser_init());
    if (!parser) {
        return READSTAT_ERROR_MALLOC;
    }
    readstat_set_variable_handler(parser.get(), onVariable);
    if (m_valuesWanted || m_rowCountIsUnknown) {
        readstat_set_value_handler(parser.get(), onValue);
    }
    readstat_set_metadata_handler(parser.get(), onMetadata);
    readstat_set_handler_character_encoding(parser.get(), nullptr);
    input.attachTo(parser.get());
    const readstat_error_t code = parse(parser.get(), path.c_str());
    resolveWaitingTexts();
    // The variable handler stops a metadata-only parse itself: the library would walk all the data.
    const bool stoppedEarly =
        code == READSTAT_ERROR_USER_ABORT && m_variablesAreDone && m_refusal.empty();
    return stoppedEarly || isSuccess(code) ? READSTAT_OK : code;
}

int ReadStatDoc::finish(const QString& path, readstat_error_t code)
{
    m_recentTexts = {};
    m_converted = {};
    m_skippedRows = {};
    if (code != READSTAT_OK) {
        const std::string why = m_refusal.empty() ? readstat_error_message(code) : m_refusal;
        m_loadError = fmt::format("{}: {}", filepath::displayName(path), why);
        std::printf("Error processing %s: %d\n", filepath::toBytes(path).c_str(),
                    static_cast<int>(code));
        return code;
    }
    resizeBits();
    return 0;
}

/// Cells that got no value read as empty or missing.
void ReadStatDoc::settleCells()
{
    if (m_rowsAreCounted) {
        m_observationCount = m_rowsSeen;
        m_cells.resize(m_valuesWanted ? cellIndex(m_observationCount, 0) : 0);
    }
    if (m_valuesInOrder >= m_cells.size()) {
        return;
    }
    for (int row = 0; row < m_observationCount; ++row) {
        for (int column = 0; column < m_variableCount; ++column) {
            const CellValue& value = cell(row, column);
            const bool isText = value.index() == 0;
            if (isCharacter(column) && (!isText || std::get<0>(value) == nullptr)) {
                setText(row, column, "");
            } else if (isNumeric(column) && isText) {
                setCell(row, column, missingNumber);
            }
        }
    }
}

int ReadStatDoc::refuse(std::string reason)
{
    m_refusal = std::move(reason);
    return READSTAT_HANDLER_ABORT;
}

int ReadStatDoc::resizeDataset(std::int64_t rows, std::int64_t variables, std::int64_t mostRows)
{
    if (variables < 0 || variables > mostObservations || rows < 0) {
        return refuse("The counts in its header are damaged");
    }
    if (rows > mostRows) {
        return refuse(fmt::format(
            "Its header promises {} observations, but it is too short to hold them", rows));
    }
    if (rows > mostObservations) {
        return refuse(
            fmt::format("It has {} observations; at most {} can be shown", rows, mostObservations));
    }
    resizeVariables(static_cast<int>(variables));
    if (m_valuesWanted) {
        reserveRows(static_cast<int>(rows));
    }
    m_observationCount = static_cast<int>(rows);
    m_rowsAreCounted = false;
    return READSTAT_HANDLER_OK;
}

void ReadStatDoc::reserveRows(int rows)
{
    m_rowsAreCounted = true;
    m_recentTexts.assign(static_cast<std::size_t>(m_variableCount) * recentTextsPerColumn, nullptr);
    m_cells = CellVector(cellIndex(rows, 0));
}

void ReadStatDoc::copyCommonMetadata(const readstat_metadata_t& metadata)
{
    m_header.creationTime = metadata.creation_time;
    m_header.modificationTime = metadata.modified_time;
    m_header.formatVersion = metadata.file_format_version;
    m_compression = metadata.compression;
    m_byteOrder = metadata.endianness;
}

std::string ReadStatDoc::decoded(const char* text) const
{
    return text == nullptr ? std::string() : m_decoder.decode(text);
}

int ReadStatDoc::onMetadata(readstat_metadata_t* metadata, void* context) noexcept
{
    auto* self = static_cast<ReadStatDoc*>(context);
    try {
        return self->acceptMetadata(*metadata);
    } catch (const std::exception& error) {
        return self->refuse(error.what());  // an exception must not unwind through C frames
    }
}

int ReadStatDoc::onVariable(int index, readstat_variable_t* variable, const char*,
                            void* context) noexcept
{
    auto* self = static_cast<ReadStatDoc*>(context);
    try {
        if (index < 0 || index >= self->m_variableCount) {
            return self->refuse("It describes more variables than its header counts");
        }
        self->acceptVariable(index, *variable);
        self->m_variablesAreDone = index == self->m_variableCount - 1;
        const bool stop =
            self->m_variablesAreDone && !self->m_valuesWanted && !self->m_rowCountIsUnknown;
        return stop ? READSTAT_HANDLER_ABORT : READSTAT_HANDLER_OK;
    } catch (const std::exception& error) {
        return self->refuse(error.what());
    }
}

int ReadStatDoc::onValue(int row, readstat_variable_t* variable, readstat_value_t value,
                         void* context) noexcept
{
    auto* self = static_cast<ReadStatDoc*>(context);
    try {
        return self->acceptValue(row, *variable, value);
    } catch (const std::bad_alloc&) {
        return self->refuse("There is not enough memory to hold it");
    } catch (const std::exception& error) {
        return self->refuse(error.what());
    }
}

void ReadStatDoc::acceptVariable(int index, const readstat_variable_t& variable)
{
    const auto at = static_cast<std::size_t>(index);
    m_names[at] = decoded(readstat_variable_get_name(&variable));
    m_labels[at] = decoded(readstat_variable_get_label(&variable));
    m_formats[at] = decoded(readstat_variable_get_format(&variable));
    m_typeCodes[at] = typeCodeOf(readstat_variable_get_type(&variable));
    m_lengths[at] = static_cast<std::int32_t>(readstat_variable_get_storage_width(&variable));
    m_formatWidths[at] = readstat_variable_get_display_width(&variable);
    m_formatDecimals[at] = variable.decimals;
    completeVariable(index);
}

int ReadStatDoc::acceptValue(int row, const readstat_variable_t& variable,
                             const readstat_value_t& value)
{
    if (!m_skippedRows.empty() && isSkipped(row)) {
        return READSTAT_HANDLER_OK;
    }
    const auto column = static_cast<std::size_t>(variable.index);
    if (row < 0 || column >= m_typeCodes.size()) {
        return refuse("It holds a value that belongs to no cell");
    }
    m_rowsSeen = row + 1;
    if (!m_valuesWanted) {
        return READSTAT_HANDLER_OK;
    }
    const std::size_t at = cellIndex(row, variable.index);
    if (at >= m_cells.size()) {
        if (!m_rowsAreCounted) {
            return refuse("It holds more observations than its header counts");
        }
        growTo(at + 1);
    }
    m_valuesInOrder += at == m_valuesInOrder ? 1 : 0;
    const bool isText =
        value.type == READSTAT_TYPE_STRING || value.type == READSTAT_TYPE_STRING_REF;
    if (m_typeCodes[column] == TypeCode::Character) {
        acceptText(at, column, isText ? value.v.string_value : nullptr);
    } else {
        m_cells[at] = isText ? missingNumber : numberOf(value);
    }
    if (variable.index == m_variableCount - 1) {
        resolveWaitingTexts();
    }
    return READSTAT_HANDLER_OK;
}

/// Rows come in ascending order, so that one position in the list of skipped rows is enough.
bool ReadStatDoc::isSkipped(int& row)
{
    while (m_skipped < m_skippedRows.size() && m_skippedRows[m_skipped] < row) {
        ++m_skipped;
    }
    const bool skipped = m_skipped < m_skippedRows.size() && m_skippedRows[m_skipped] == row;
    row -= static_cast<int>(m_skipped);
    return skipped;
}

void ReadStatDoc::growTo(std::size_t cells)
{
    const auto variables = static_cast<std::size_t>(m_variableCount);
    const std::size_t wanted = std::max(cells, m_cells.size() + m_cells.size() / 2);
    m_cells.resize((wanted + variables - 1) / variables * variables);
}

/// The place where a text of the column is remembered, together with others that look alike.
PooledText*& ReadStatDoc::recentText(std::size_t column, std::string_view raw)
{
    std::size_t letters = raw.size();
    if (!raw.empty()) {
        const auto at = [&](std::size_t i) {
            return std::size_t{static_cast<unsigned char>(raw[i])};
        };
        letters += at(0) * 3 + at(raw.size() / 2) * 5 + at(raw.size() - 1) * 7;
    }
    return m_recentTexts[column * recentTextsPerColumn + letters % recentTextsPerColumn];
}

/// Texts that the pool must be asked for wait until the end of their row: see TextPool::prefetch().
void ReadStatDoc::acceptText(std::size_t cell, std::size_t column, const char* text)
{
    const std::string_view raw = texts::trimmedView(text == nullptr ? "" : text);
    PooledText*& recent = recentText(column, raw);
    if (recent != nullptr && recent->text() == raw) {
        recent->addReference();
        m_cells[cell] = recent;
        return;
    }
    if (!TextDecoder::isUnchanged(raw)) {
        PooledText* record = convertedText(raw);
        record->addReference();
        m_cells[cell] = record;
        // A converted text is not remembered: other bytes of the file could read like it.
        recent = record->text() == raw ? record : nullptr;
        return;
    }
    const std::uint64_t hash = TextPool::hashOf(raw);
    m_textPool.prefetch(hash);
    m_waitingTexts.push_back({cell, column, m_waitingBytes.size(), raw.size(), hash});
    m_waitingBytes += raw;
}

void ReadStatDoc::resolveWaitingTexts()
{
    for (const WaitingText& waiting : m_waitingTexts) {
        m_textPool.prefetchRecord(waiting.hash);
    }
    for (const WaitingText& waiting : m_waitingTexts) {
        const std::string_view raw(m_waitingBytes.data() + waiting.start, waiting.size);
        PooledText* record = m_textPool.intern(raw, waiting.hash);
        record->addReference();
        m_cells[waiting.cell] = record;
        recentText(waiting.column, raw) = record;
    }
    m_waitingTexts.clear();
    m_waitingBytes.clear();
}

PooledText* ReadStatDoc::pooled(std::string_view raw)
{
    return TextDecoder::isUnchanged(raw) ? m_textPool.intern(raw) : convertedText(raw);
}

PooledText* ReadStatDoc::convertedText(std::string_view raw)
{
    const auto [place, isNew] = m_converted.try_emplace(std::string(raw), nullptr);
    if (isNew) {
        place->second = m_textPool.intern(m_decoder.decode(raw));
    }
    return place->second;
}

void ReadStatDoc::setCell(int row, int column, CellValue value)
{
    m_cells.at(cellIndex(row, column)) = value;
}

void ReadStatDoc::setText(int row, int column, std::string_view raw)
{
    PooledText* record = pooled(raw);
    record->addReference();
    setCell(row, column, record);
}

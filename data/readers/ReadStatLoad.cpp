#include "data/readers/ReadStatLoad.h"

#include "data/FilePath.h"
#include "data/values/MissingTag.h"
#include "data/values/Texts.h"

#include <fmt/format.h>

#include <cstdio>
#include <exception>
#include <limits>
#include <memory>

namespace {

struct ReadStatParserDeleter
{
    void operator()(readstat_parser_t* parser) const noexcept { readstat_parser_free(parser); }
};
using ReadStatParser = std::unique_ptr<readstat_parser_t, ReadStatParserDeleter>;

constexpr std::int64_t mostObservations = std::numeric_limits<std::int32_t>::max();
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
    if (value.is_tagged_missing) {
        return missingtag::number(value.tag);
    }
    if (value.is_system_missing) {
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

/// The library names what it was doing; what that tells of the file is said here.
std::string reasonOf(readstat_error_t code)
{
    switch (code) {
    case READSTAT_ERROR_READ:
    case READSTAT_ERROR_SEEK:
        return "It is cut short, or the sizes in its header are damaged";
    case READSTAT_ERROR_MALLOC:
        return "There is not enough memory for what its header promises";
    default:
        return readstat_error_message(code);
    }
}

}  // namespace

ReadStatLoad::ReadStatLoad(FileDataset& dataset)
    : m_dataset(dataset)
    , m_cells(dataset)
{ }

int ReadStatLoad::run(const QString& path)
{
    m_dataset.beginLoad();
    readstat_error_t code = READSTAT_OK;
    try {
        code = read(path);
    } catch (const std::bad_alloc&) {
        m_refusal = "There is not enough memory to hold it";
        code = READSTAT_ERROR_MALLOC;
    } catch (const std::exception& error) {
        m_refusal = error.what();
        code = READSTAT_ERROR_PARSE;
    }
    return finish(path, code);
}

readstat_error_t ReadStatLoad::read(const QString& path)
{
    const std::string name = filepath::toBytes(path);
    FileReader file;
    if (!file.open(name)) {
        m_refusal = file.error();
        return READSTAT_ERROR_OPEN;
    }
    m_fileSize = file.size();
    if (m_fileSize == 0) {
        m_refusal = "It is empty";
        return READSTAT_ERROR_READ;
    }
    ParserInput input(file);
    input.setProgress(m_dataset.m_progress);
    m_refusal = prepare(file, input);
    if (!m_refusal.empty()) {
        return READSTAT_ERROR_PARSE;
    }
    const readstat_error_t code = runParser(name, input);
    if (code != READSTAT_OK) {
        return code;
    }
    m_refusal = complete(file);
    m_cells.finish();
    return m_refusal.empty() ? READSTAT_OK : READSTAT_ERROR_PARSE;
}

readstat_error_t ReadStatLoad::runParser(const std::string& path, ParserInput& input)
{
    const ReadStatParser parser(readstat_parser_init());
    if (!parser) {
        return READSTAT_ERROR_MALLOC;
    }
    readstat_set_variable_handler(parser.get(), onVariable);
    if (m_dataset.m_valuesWanted || m_rowCountIsUnknown) {
        readstat_set_value_handler(parser.get(), onValue);
    }
    readstat_set_metadata_handler(parser.get(), onMetadata);
    readstat_set_handler_character_encoding(parser.get(), nullptr);
    input.attachTo(parser.get());
    const readstat_error_t code = parse(parser.get(), path.c_str());
    // The variable handler stops a metadata-only parse itself: the library would walk all the data.
    const bool stoppedEarly =
        code == READSTAT_ERROR_USER_ABORT && m_variablesAreDone && m_refusal.empty();
    return stoppedEarly || isSuccess(code) ? READSTAT_OK : code;
}

int ReadStatLoad::finish(const QString& path, readstat_error_t code)
{
    if (code != READSTAT_OK) {
        const std::string why = m_refusal.empty() ? reasonOf(code) : m_refusal;
        std::printf("Error processing %s: %d\n", filepath::toBytes(path).c_str(),
                    static_cast<int>(code));
        return m_dataset.failLoad(path, code, why);
    }
    m_dataset.completeLoad(path);
    return 0;
}

int ReadStatLoad::refuse(std::string reason)
{
    m_refusal = std::move(reason);
    return READSTAT_HANDLER_ABORT;
}

bool ReadStatLoad::resizeVariables(std::int64_t count)
{
    if (count < 0 || count > mostObservations) {
        return false;
    }
    m_dataset.resizeVariables(static_cast<int>(count));
    return true;
}

int ReadStatLoad::beginRows(std::int64_t rows, std::int64_t variables, std::int64_t mostRows)
{
    if (rows > mostRows) {
        return refuse(fmt::format(
            "Its header promises {} observations, but it is too short to hold them", rows));
    }
    if (rows > mostObservations) {
        return refuse(
            fmt::format("It has {} observations; at most {} can be shown", rows, mostObservations));
    }
    if (rows < 0 || !resizeVariables(variables)) {
        return refuse("The counts in its header are damaged");
    }
    m_cells.begin(static_cast<int>(rows));
    return READSTAT_HANDLER_OK;
}

int ReadStatLoad::beginUncountedRows(std::int64_t variables)
{
    if (!resizeVariables(variables)) {
        return refuse("The counts in its header are damaged");
    }
    m_cells.beginUncounted();
    return READSTAT_HANDLER_OK;
}

void ReadStatLoad::copyCommonMetadata(const readstat_metadata_t& metadata)
{
    m_dataset.m_header.creationTime = metadata.creation_time;
    m_dataset.m_header.modificationTime = metadata.modified_time;
    m_dataset.m_header.formatVersion = metadata.file_format_version;
    m_dataset.m_header.compression = static_cast<FileCompression>(metadata.compression);
    m_dataset.m_header.byteOrder = static_cast<ByteOrder>(metadata.endianness);
}

std::string ReadStatLoad::decoded(const char* text) const
{
    return text == nullptr ? std::string() : m_cells.decoder().decode(text);
}

void ReadStatLoad::putText(int row, int column, std::string_view text)
{
    m_cells.putText(row, column, texts::trimmedView(text));
}

int ReadStatLoad::onMetadata(readstat_metadata_t* metadata, void* context) noexcept
{
    auto* self = static_cast<ReadStatLoad*>(context);
    try {
        return self->acceptMetadata(*metadata);
    } catch (const std::exception& error) {
        return self->refuse(error.what());  // an exception must not unwind through C frames
    }
}

int ReadStatLoad::onVariable(int index, readstat_variable_t* variable, const char*,
                             void* context) noexcept
{
    auto* self = static_cast<ReadStatLoad*>(context);
    try {
        const FileDataset& dataset = self->m_dataset;
        if (!dataset.isColumn(index)) {
            return self->refuse("It describes more variables than its header counts");
        }
        self->acceptVariable(index, *variable);
        self->m_variablesAreDone = index == dataset.m_variableCount - 1;
        const bool stop =
            self->m_variablesAreDone && !dataset.m_valuesWanted && !self->m_rowCountIsUnknown;
        return stop ? READSTAT_HANDLER_ABORT : READSTAT_HANDLER_OK;
    } catch (const std::exception& error) {
        return self->refuse(error.what());
    }
}

int ReadStatLoad::onValue(int row, readstat_variable_t* variable, readstat_value_t value,
                          void* context) noexcept
{
    auto* self = static_cast<ReadStatLoad*>(context);
    try {
        self->acceptValue(row, *variable, value);
        return READSTAT_HANDLER_OK;
    } catch (const std::bad_alloc&) {
        return self->refuse("There is not enough memory to hold it");
    } catch (const std::exception& error) {
        return self->refuse(error.what());
    }
}

void ReadStatLoad::acceptVariable(int index, const readstat_variable_t& variable)
{
    const auto at = static_cast<std::size_t>(index);
    m_dataset.m_names[at] = decoded(readstat_variable_get_name(&variable));
    m_dataset.m_labels[at] = decoded(readstat_variable_get_label(&variable));
    m_dataset.m_formats[at] = decoded(readstat_variable_get_format(&variable));
    m_dataset.m_typeCodes[at] = typeCodeOf(readstat_variable_get_type(&variable));
    m_dataset.m_lengths[at] =
        static_cast<std::int32_t>(readstat_variable_get_storage_width(&variable));
    m_dataset.m_formatWidths[at] = readstat_variable_get_display_width(&variable);
    m_dataset.m_formatDecimals[at] = variable.decimals;
    completeVariable(index);
}

void ReadStatLoad::acceptValue(int row, const readstat_variable_t& variable,
                               const readstat_value_t& value)
{
    const std::optional<int> observation = m_skippedRows.observationOf(row);
    if (!observation) {
        return;
    }
    const int column = variable.index;
    const auto& types = m_dataset.m_typeCodes;
    const bool wantsText = static_cast<std::size_t>(column) < types.size()
        && types[static_cast<std::size_t>(column)] == TypeCode::Character;
    const bool isText =
        value.type == READSTAT_TYPE_STRING || value.type == READSTAT_TYPE_STRING_REF;
    if (!wantsText) {
        m_cells.putNumber(*observation, column, isText ? missingNumber : numberOf(value));
    } else if (isText && value.v.string_value != nullptr) {
        putText(*observation, column, value.v.string_value);
    } else {
        m_cells.putMissing(*observation, column);
    }
}

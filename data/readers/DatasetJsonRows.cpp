#include "data/readers/DatasetJsonRows.h"

#include "data/readers/JsonText.h"
#include "data/readers/JsonWindow.h"
#include "data/values/DisplayFormat.h"
#include "data/values/IsoTime.h"
#include "data/values/NumberText.h"
#include "data/values/Texts.h"
#include "data/values/WrittenNumber.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <optional>
#include <stdexcept>

namespace {

using Content = DatasetJsonContent;
using Kind = DatasetJsonOddities::Kind;
using simdjson::ondemand::json_type;

constexpr double infinity = std::numeric_limits<double>::infinity();
/// Beyond it not every whole number is a double.
constexpr double firstInexact = 9007199254740992.0;

}  // namespace

DatasetJsonRows::DatasetJsonRows(std::vector<Column> columns, CellLoader& cells,
                                 DatasetJsonTexts& texts)
    : m_columns(std::move(columns))
    , m_cells(cells)
    , m_texts(texts)
{
    for (std::size_t column = 0; column < m_columns.size(); ++column) {
        for (const std::string& name : m_columns[column].names) {
            m_places.emplace(name, static_cast<int>(column));
        }
    }
}

bool DatasetJsonRows::read(char* text, std::size_t size, const std::vector<const char*>& starts)
{
    // Brackets around the rows make them one document, whose end the parser must meet: it takes
    // the byte behind it for one more token.
    const char before = text[-1];
    const char behind = text[size];
    const char further = text[size + 1];
    text[-1] = '[';
    text[size] = ']';
    text[size + 1] = '\0';
    const std::int64_t firstRow = m_row;
    const std::size_t textsBefore = m_texts.size();
    DatasetJsonOddities oddities = m_oddities;
    m_error = readArray(text - 1, size + 2, starts);
    if (m_error != simdjson::SUCCESS) {
        m_row = firstRow;
        m_texts.shrink(textsBefore);
        m_oddities = std::move(oddities);
    }
    text[-1] = before;
    text[size] = behind;
    text[size + 1] = further;
    return m_error == simdjson::SUCCESS;
}

DatasetJsonRows::Error DatasetJsonRows::readArray(const char* text, std::size_t size,
                                                  const std::vector<const char*>& starts)
{
    simdjson::ondemand::document document;
    simdjson::ondemand::array rows;
    const simdjson::padded_string_view padded(text, size, size + JsonWindow::margin - 1);
    if (const Error error = m_parser.iterate(padded).get(document)) {
        return error;
    }
    if (const Error error = document.get_array().get(rows)) {
        return error;
    }
    std::size_t place = 0;
    for (auto element : rows) {
        if (const Error error = element.error()) {
            return error;
        }
        Value row = element.value_unsafe();
        if (!starts.empty()
            && (place >= starts.size() || row.raw_json_token().data() != starts[place])) {
            return simdjson::TAPE_ERROR;
        }
        ++place;
        if (const Error error = readRow(row)) {
            return error;
        }
        ++m_row;
    }
    const bool isAtEnd = document.current_location().error() == simdjson::OUT_OF_BOUNDS;
    const bool isWhole = isAtEnd && (starts.empty() || place == starts.size());
    return isWhole ? simdjson::SUCCESS : simdjson::TAPE_ERROR;
}

DatasetJsonRows::Error DatasetJsonRows::readRow(Value& row)
{
    if (m_row >= std::numeric_limits<std::int32_t>::max()) {
        throw std::runtime_error(fmt::format("It has {} observations; at most {} can be shown",
                                             m_row + 1, std::numeric_limits<std::int32_t>::max()));
    }
    json_type type{};
    if (const Error error = row.type().get(type)) {
        return error;
    }
    if (type == json_type::array) {
        return readList(row);
    }
    if (type == json_type::object) {
        return readObject(row);
    }
    const std::string_view token = jsontext::withoutBlanksBehind(row.raw_json_token());
    bool truth = false;
    double number = 0;
    const bool isValue = token == "null" || row.get_bool().get(truth) == simdjson::SUCCESS
        || row.get_double().get(number) == simdjson::SUCCESS || token.front() == '"';
    if (!isValue) {
        return simdjson::TAPE_ERROR;
    }
    note(Kind::NoRow, -1, token);
    fillUp(0);
    return simdjson::SUCCESS;
}

void DatasetJsonRows::fillUp(int from)
{
    for (int column = from; column < static_cast<int>(m_columns.size()); ++column) {
        m_cells.putMissing(static_cast<int>(m_row), column);
    }
}

DatasetJsonRows::Error DatasetJsonRows::readList(Value& row)
{
    simdjson::ondemand::array values;
    if (const Error error = row.get_array().get(values)) {
        return error;
    }
    const int columns = static_cast<int>(m_columns.size());
    int column = 0;
    for (auto element : values) {
        if (const Error error = element.error()) {
            return error;
        }
        Value value = element.value_unsafe();
        if (column < columns) {
            if (const Error error = putValue(column, value)) {
                return error;
            }
        }
        ++column;
    }
    if (column < columns) {
        note(Kind::ShortRow, -1);
        fillUp(column);
    } else if (column > columns) {
        note(Kind::LongRow, -1);
    }
    return simdjson::SUCCESS;
}

DatasetJsonRows::Error DatasetJsonRows::readObject(Value& row)
{
    simdjson::ondemand::object members;
    if (const Error error = row.get_object().get(members)) {
        return error;
    }
    fillUp(0);
    for (auto field : members) {
        std::string_view key;
        if (const Error error = field.unescaped_key().get(key)) {
            return error;
        }
        Value value;
        if (const Error error = field.value().get(value)) {
            return error;
        }
        const auto found = m_places.find(std::string(key));
        if (found == m_places.end()) {
            note(Kind::UnknownMember, -1, key);
        } else if (found->second >= 0) {
            if (const Error error = putValue(found->second, value)) {
                return error;
            }
        }
    }
    return simdjson::SUCCESS;
}

DatasetJsonRows::Error DatasetJsonRows::putValue(int column, Value& value)
{
    const std::string_view token = jsontext::withoutBlanksBehind(value.raw_json_token());
    switch (token.empty() ? '\0' : token.front()) {
    case '"':
        return putString(column, value, token);
    case '[':
    case '{':
        return putNested(column, value);
    case '-':
    case '0':
    case '1':
    case '2':
    case '3':
    case '4':
    case '5':
    case '6':
    case '7':
    case '8':
    case '9':
        return putNumber(column, value, token);
    default:
        return putWord(column, token);
    }
}

DatasetJsonRows::Error DatasetJsonRows::putString(int column, Value& value, std::string_view token)
{
    if (token.size() < 2 || token.back() != '"') {
        return simdjson::TAPE_ERROR;
    }
    std::string_view text = token.substr(1, token.size() - 2);
    if (std::memchr(text.data(), '\\', text.size()) != nullptr) {
        if (const Error error = value.get_string().get(text)) {
            return error;
        }
    }
    switch (m_columns[static_cast<std::size_t>(column)].content) {
    case Content::Text:
        m_cells.putText(static_cast<int>(m_row), column, text);
        break;
    case Content::Date:
    case Content::DateTime:
    case Content::Time:
        putMoment(column, texts::trimmedView(text));
        break;
    default:
        putWrittenNumber(column, texts::trimmedView(text));
    }
    return simdjson::SUCCESS;
}

DatasetJsonRows::Error DatasetJsonRows::putNumber(int column, Value& value, std::string_view token)
{
    const Content content = m_columns[static_cast<std::size_t>(column)].content;
    double number = 0;
    if (value.get_double().get(number) != simdjson::SUCCESS) {
        // Too large for a double; some programs write infinity itself.
        const std::optional<double> large =
            token == "-Infinity" ? std::optional(-infinity) : writtennumber::valueOf(token);
        if (!large || !std::isinf(*large)) {
            return simdjson::NUMBER_ERROR;
        }
        number = *large;
    }
    if (content == Content::Text) {
        note(Kind::PlainAsText, column, token);
        m_cells.putText(static_cast<int>(m_row), column, token);
        return simdjson::SUCCESS;
    }
    if (content == Content::Integer && number != std::trunc(number)) {
        note(Kind::Fraction, column, token);
    }
    m_cells.putNumber(static_cast<int>(m_row), column, number);
    if (content == Content::Decimal || std::abs(number) >= firstInexact) {
        keepDigits(column, number, token);
    }
    return simdjson::SUCCESS;
}

DatasetJsonRows::Error DatasetJsonRows::putWord(int column, std::string_view token)
{
    if (token == "null") {
        m_cells.putMissing(static_cast<int>(m_row), column);
    } else if (token == "true" || token == "false") {
        putBoolean(column, token == "true");
    } else if (token == "NaN") {
        note(Kind::NoFiniteNumber, column);
        m_cells.putMissing(static_cast<int>(m_row), column);
    } else if (token == "Infinity"
               && m_columns[static_cast<std::size_t>(column)].content != Content::Text) {
        m_cells.putNumber(static_cast<int>(m_row), column, infinity);
        keepDigits(column, infinity, token);
    } else {
        return simdjson::TAPE_ERROR;
    }
    return simdjson::SUCCESS;
}

void DatasetJsonRows::putBoolean(int column, bool value)
{
    const std::string_view word = value ? "true" : "false";
    const Content content = m_columns[static_cast<std::size_t>(column)].content;
    if (content == Content::Text) {
        note(Kind::PlainAsText, column, word);
        m_cells.putText(static_cast<int>(m_row), column, word);
        return;
    }
    if (content != Content::Boolean) {
        note(Kind::BooleanAsNumber, column, word);
    }
    m_cells.putNumber(static_cast<int>(m_row), column, value ? 1 : 0);
}

DatasetJsonRows::Error DatasetJsonRows::putNested(int column, Value& value)
{
    std::string_view text;
    json_type type{};
    if (const Error error = value.type().get(type)) {
        return error;
    }
    if (type == json_type::array) {
        simdjson::ondemand::array list;
        if (const Error error = value.get_array().get(list)) {
            return error;
        }
        if (const Error error = list.raw_json().get(text)) {
            return error;
        }
    } else {
        simdjson::ondemand::object object;
        if (const Error error = value.get_object().get(object)) {
            return error;
        }
        if (const Error error = object.raw_json().get(text)) {
            return error;
        }
    }
    text = jsontext::withoutBlanksBehind(text);
    note(Kind::NestedValue, column, text);
    if (m_columns[static_cast<std::size_t>(column)].content == Content::Text) {
        m_cells.putText(static_cast<int>(m_row), column, text);
    } else {
        m_cells.putMissing(static_cast<int>(m_row), column);
    }
    return simdjson::SUCCESS;
}

/// A number that stands there as a text, as decimals do.
void DatasetJsonRows::putWrittenNumber(int column, std::string_view text)
{
    const Content content = m_columns[static_cast<std::size_t>(column)].content;
    const bool isTruth = content == Content::Boolean && (text == "true" || text == "false");
    const std::optional<double> number = isTruth ? std::optional(text == "true" ? 1.0 : 0.0)
        : text.empty()                           ? std::nullopt
                                                 : writtennumber::valueOf(text);
    if (!number) {
        if (!text.empty()) {
            note(Kind::NoNumber, column, text);
        }
        m_cells.putMissing(static_cast<int>(m_row), column);
        return;
    }
    if (content != Content::Decimal) {
        note(Kind::NumberAsText, column, text);
    }
    m_cells.putNumber(static_cast<int>(m_row), column, *number);
    if (content == Content::Decimal || std::abs(*number) >= firstInexact) {
        keepDigits(column, *number, text);
    }
}

void DatasetJsonRows::putMoment(int column, std::string_view text)
{
    const Content content = m_columns[static_cast<std::size_t>(column)].content;
    const std::optional<double> count = content == Content::Date ? isotime::date(text)
        : content == Content::Time                               ? isotime::time(text)
                                                                 : isotime::dateTime(text);
    if (!count) {
        if (!text.empty()) {
            note(Kind::NoDate, column, text);
        }
        m_cells.putMissing(static_cast<int>(m_row), column);
        return;
    }
    if (isotime::hasOffset(text)) {
        note(Kind::PassedOverOffset, column, text);
    }
    m_cells.putNumber(static_cast<int>(m_row), column, *count);
}

/// Keeps what the file has where the number alone would be shown in another way.
void DatasetJsonRows::keepDigits(int column, double number, std::string_view text)
{
    if (text == displayformat::plainNumber(number)) {
        return;
    }
    const bool isWhole = text.find_first_of(".eE") == std::string_view::npos;
    const std::string held = isWhole ? numbertext::fixed(number, 0) : numbertext::shortest(number);
    if (std::isinf(number)) {
        note(Kind::TooLarge, column, text);
    } else if (writtennumber::significantDigits(text) != writtennumber::significantDigits(held)) {
        note(Kind::TooManyDigits, column, text);
    } else if (!isWhole
               && m_columns[static_cast<std::size_t>(column)].content != Content::Decimal) {
        return;  // another way to write the same number
    }
    const std::size_t cell =
        static_cast<std::size_t>(m_row) * m_columns.size() + static_cast<std::size_t>(column);
    m_texts.add(cell, text);
}

void DatasetJsonRows::note(Kind kind, int column, std::string_view example)
{
    m_oddities.add(kind, m_row, column, example);
}

std::string DatasetJsonRows::problem() const
{
    switch (m_error) {
    case simdjson::UNCLOSED_STRING:
        return "a text in it has no end";
    case simdjson::UNESCAPED_CHARS:
        return "a text in it holds a control character";
    case simdjson::STRING_ERROR:
        return "a text in it has an escape that does not exist";
    case simdjson::NUMBER_ERROR:
        return "a number in it is wrong";
    default:
        return "it is no valid JSON";
    }
}

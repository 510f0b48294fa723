#include "samples/JsonWriter.h"

#include "samples/FormatMapping.h"
#include "samples/IsoTexts.h"

#include <cmath>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <zlib.h>

namespace samples {

namespace {

using nlohmann::ordered_json;

/// A file that is compressed on its way where it is to be.
class Output
{
public:
    Output(std::FILE* file, bool isCompressed)
        : m_file(file)
        , m_isCompressed(isCompressed)
    {
        if (isCompressed && deflateInit(&m_stream, Z_BEST_COMPRESSION) != Z_OK) {
            throw std::runtime_error("no memory to compress");
        }
    }
    ~Output() { deflateEnd(&m_stream); }
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    void write(const std::string& text)
    {
        if (m_isCompressed) {
            compress(text, Z_NO_FLUSH);
        } else {
            put(text.data(), text.size());
        }
    }
    void end()
    {
        if (m_isCompressed) {
            compress({}, Z_FINISH);
        }
    }

private:
    void put(const char* bytes, std::size_t count)
    {
        if (std::fwrite(bytes, 1, count, m_file) != count) {
            throw std::runtime_error("the file could not be written");
        }
    }
    void compress(std::string text, int flush)
    {
        m_stream.next_in = reinterpret_cast<Bytef*>(text.data());  // NOLINT: zlib's bytes
        m_stream.avail_in = static_cast<uInt>(text.size());
        do {
            m_part.resize(partBytes);
            m_stream.next_out = reinterpret_cast<Bytef*>(m_part.data());  // NOLINT
            m_stream.avail_out = partBytes;
            deflate(&m_stream, flush);
            put(m_part.data(), partBytes - m_stream.avail_out);
        } while (m_stream.avail_out == 0);
    }

    static constexpr uInt partBytes = 1 << 16;

    std::FILE* m_file;
    bool m_isCompressed;
    z_stream m_stream{};
    std::string m_part;
};

std::string displayFormat(const Column& column)
{
    std::string format = column.format;
    if (column.width > 0) {
        format += std::to_string(column.width);
    }
    if (!format.empty()) {
        format += '.';
    }
    return column.decimals > 0 ? format + std::to_string(column.decimals) : format;
}

const char* dataType(Meaning meaning)
{
    switch (meaning) {
    case Meaning::Date:
        return "date";
    case Meaning::DateTime:
        return "datetime";
    case Meaning::Time:
        return "time";
    case Meaning::Number:
        break;
    }
    return "float";
}

ordered_json described(const TableShape& shape, const Column& column)
{
    const Meaning meaning = meaningOf(column);
    ordered_json json{{"itemOID", "IT." + shape.name + '.' + column.name},
                      {"name", column.name},
                      {"label", column.label},
                      {"dataType", column.character ? "string" : dataType(meaning)}};
    if (column.character) {
        json["length"] = column.length;
    } else if (meaning != Meaning::Number) {
        json["targetDataType"] = "integer";
    }
    if (const std::string format = displayFormat(column); !format.empty()) {
        json["displayFormat"] = format;
    }
    return json;
}

ordered_json attributes(const TableShape& shape, long rowCount)
{
    ordered_json json{{"datasetJSONCreationDateTime", "2025-01-15T12:00:00"},
                      {"datasetJSONVersion", "1.1.0"},
                      {"fileOID", "sample." + shape.name},
                      {"originator", "Quorlane"},
                      {"sourceSystem", {{"name", "quorlane-samples"}, {"version", "1"}}},
                      {"studyOID", "QLN-101"},
                      {"itemGroupOID", "IG." + shape.name},
                      {"records", rowCount},
                      {"name", shape.name},
                      {"label", shape.label},
                      {"columns", ordered_json::array()}};
    for (const Column& column : shape.columns) {
        json["columns"].push_back(described(shape, column));
    }
    return json;
}

class JsonWriter : public RowWriter
{
public:
    JsonWriter(std::FILE* file, const TableShape& shape, FileKind kind, long rowCount)
        : m_columns(shape.columns)
        , m_hasLines(kind != FileKind::DatasetJson)
        , m_output(file, kind == FileKind::Dsjc)
    {
        std::string text = attributes(shape, rowCount).dump();
        if (m_hasLines) {
            text += '\n';
        } else {
            text.back() = ',';
            text += "\"rows\":[";
        }
        m_output.write(text);
    }

    void add(const Row& row) override
    {
        if (row.size() != m_columns.size()) {
            throw std::runtime_error("a row has " + std::to_string(row.size()) + " cells");
        }
        m_line = m_isFirst || m_hasLines ? "[" : ",[";
        m_isFirst = false;
        for (std::size_t i = 0; i < row.size(); ++i) {
            m_line += i == 0 ? "" : ",";
            addCell(m_columns[i], row[i]);
        }
        m_line += m_hasLines ? "]\n" : "]";
        m_output.write(m_line);
    }
    void end() override
    {
        m_output.write(m_hasLines ? "" : "]}");
        m_output.end();
    }

private:
    void addCell(const Column& column, const Cell& cell)
    {
        const auto* const text = std::get_if<std::string>(&cell);
        const std::string written =
            text == nullptr ? isoText(column, std::get<double>(cell)) : *text;
        if (text != nullptr || (meaningOf(column) != Meaning::Number && !written.empty())) {
            m_line += ordered_json(written).dump();
        } else {
            m_line += written.empty() ? "null" : written;
        }
    }

    const std::vector<Column>& m_columns;
    bool m_hasLines;
    bool m_isFirst = true;
    Output m_output;
    std::string m_line;
};

}  // namespace

std::unique_ptr<RowWriter> makeJsonWriter(std::FILE* file, const TableShape& shape, FileKind kind,
                                          long rowCount)
{
    return std::make_unique<JsonWriter>(file, shape, kind, rowCount);
}

}  // namespace samples

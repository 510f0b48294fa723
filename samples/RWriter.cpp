#include "samples/RWriter.h"

#include "samples/FormatMapping.h"

#include <rdata/rdata.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <unordered_set>
#include <zlib.h>

namespace samples {

namespace {

struct Deleter
{
    void operator()(rdata_writer_t* writer) const noexcept { rdata_writer_free(writer); }
    void operator()(gzFile file) const noexcept { gzclose(file); }
};
using Writer = std::unique_ptr<rdata_writer_t, Deleter>;
using Packer = std::unique_ptr<gzFile_s, Deleter>;

/// R's NA, which is one NaN of many.
double missingNumber()
{
    return std::bit_cast<double>(std::uint64_t{0x7FF00000000007A2});
}

class RWriter : public RowWriter
{
public:
    RWriter(std::FILE* file, const TableShape& shape)
        : m_file(file)
        , m_shape(shape)
        , m_columns(shape.columns.size())
    { }

    void add(const Row& row) override
    {
        if (row.size() != m_columns.size()) {
            throw std::runtime_error("a row has " + std::to_string(row.size()) + " cells");
        }
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (const auto* const text = std::get_if<std::string>(&row[i])) {
                m_columns[i].texts.push_back(&*m_texts.insert(*text).first);
            } else {
                m_columns[i].numbers.push_back(std::get<double>(row[i]));
            }
        }
        ++m_rowCount;
    }
    void end() override
    {
        const Packer packer(gzdopen(dup(fileno(m_file)), "wb"));
        const Writer writer(rdata_writer_init(
            [](const void* bytes, std::size_t size, void* stream) {
                return static_cast<ssize_t>(
                    gzwrite(static_cast<gzFile>(stream), bytes, static_cast<unsigned>(size)));
            },
            RDATA_SINGLE_OBJECT));
        std::vector<rdata_column_t*> columns;
        for (const Column& column : m_shape.columns) {
            columns.push_back(rdata_add_column(writer.get(), column.name.c_str(), typeOf(column)));
            rdata_column_set_label(columns.back(), column.label.c_str());
        }
        check(rdata_begin_file(writer.get(), packer.get()));
        check(rdata_begin_table(writer.get(), m_shape.name.c_str()));
        for (std::size_t i = 0; i < columns.size(); ++i) {
            writeColumn(writer.get(), columns[i], i);
        }
        check(rdata_end_table(writer.get(), m_rowCount, m_shape.label.c_str()));
        check(rdata_end_file(writer.get()));
    }

private:
    using Texts = std::unordered_set<std::string>;
    struct Values
    {
        std::vector<const std::string*> texts;
        std::vector<double> numbers;
    };

    static void check(rdata_error_t result)
    {
        if (result != RDATA_OK) {
            throw std::runtime_error(rdata_error_message(result));
        }
    }
    static rdata_type_t typeOf(const Column& column)
    {
        if (column.character) {
            return RDATA_TYPE_STRING;
        }
        switch (meaningOf(column)) {
        case Meaning::Date:
            return RDATA_TYPE_DATE;
        case Meaning::DateTime:
            return RDATA_TYPE_TIMESTAMP;
        default:
            return RDATA_TYPE_REAL;
        }
    }

    void writeColumn(rdata_writer_t* writer, rdata_column_t* column, std::size_t index)
    {
        check(rdata_begin_column(writer, column, m_rowCount));
        for (const auto* const text : m_columns[index].texts) {
            check(rdata_append_string_value(writer, text->c_str()));
        }
        const NumberMapping toR = numberMapping(m_shape.columns[index], FileKind::R);
        for (const double number : m_columns[index].numbers) {
            // Dates and date-times are reals in the file; the library's own functions for them
            // know no missing ones.
            const double value = std::isnan(number) ? missingNumber() : toR(number);
            check(rdata_append_real_value(writer, value));
        }
        check(rdata_end_column(writer, column));
    }

    std::FILE* m_file;
    const TableShape& m_shape;
    std::vector<Values> m_columns;
    Texts m_texts;
    std::int32_t m_rowCount = 0;
};

}  // namespace

std::unique_ptr<RowWriter> makeRWriter(std::FILE* file, const TableShape& shape)
{
    return std::make_unique<RWriter>(file, shape);
}

}  // namespace samples

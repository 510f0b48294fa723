#include "samples/CsvWriter.h"

#include "samples/IsoTexts.h"

#include <csv.h>

#include <stdexcept>

namespace samples {

namespace {

class CsvWriter : public RowWriter
{
public:
    CsvWriter(std::FILE* file, const TableShape& shape)
        : m_file(file)
        , m_columns(shape.columns)
    {
        for (const Column& column : m_columns) {
            write(column.name);
        }
        endLine();
    }

    void add(const Row& row) override
    {
        if (row.size() != m_columns.size()) {
            throw std::runtime_error("a row has " + std::to_string(row.size()) + " cells");
        }
        for (std::size_t i = 0; i < row.size(); ++i) {
            const auto* const text = std::get_if<std::string>(&row[i]);
            write(text != nullptr ? *text : isoText(m_columns[i], std::get<double>(row[i])));
        }
        endLine();
    }
    void end() override { }

private:
    void write(const std::string& text)
    {
        if (m_isInLine) {
            std::fputc(',', m_file);
        }
        m_isInLine = true;
        const bool needsQuotes = text.find_first_of(",\"\r\n") != std::string::npos;
        const bool isWritten = needsQuotes
            ? csv_fwrite(m_file, text.data(), text.size()) == 0
            : std::fwrite(text.data(), 1, text.size(), m_file) == text.size();
        if (!isWritten) {
            throw std::runtime_error("the file could not be written");
        }
    }
    void endLine()
    {
        std::fputc('\n', m_file);
        m_isInLine = false;
    }

    std::FILE* m_file;
    const std::vector<Column>& m_columns;
    bool m_isInLine = false;
};

}  // namespace

std::unique_ptr<RowWriter> makeCsvWriter(std::FILE* file, const TableShape& shape)
{
    return std::make_unique<CsvWriter>(file, shape);
}

}  // namespace samples

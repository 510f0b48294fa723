#pragma once

#include "data/cells/CellLoader.h"
#include "data/readers/DatasetJsonOddities.h"
#include "data/readers/DatasetJsonTexts.h"

#include <cstdint>
#include <simdjson.h>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// What the values of a Dataset-JSON variable are.
enum class DatasetJsonContent
{
    Text,
    Number,
    Integer,
    Decimal,
    Boolean,
    Date,
    DateTime,
    Time,
};

/// Puts the rows of a Dataset-JSON file into the cells, some rows at a time.
class DatasetJsonRows
{
public:
    struct Column
    {
        DatasetJsonContent content = DatasetJsonContent::Text;
        std::vector<std::string> names;  ///< under which objects may hold its values
    };

    /// The loader and the texts outlive this.
    DatasetJsonRows(std::vector<Column> columns, CellLoader& cells, DatasetJsonTexts& texts);

    /// Reads rows that stand there with commas between them. The byte before them and two behind
    /// are written and put back, and there are JsonWindow::margin readable ones behind.
    /// @param starts  where each row is to start; empty where that is not known
    /// @return  false where that is no JSON; nothing then counts as read
    [[nodiscard]] bool read(char* text, std::size_t size, const std::vector<const char*>& starts);

    /// Why the last read() failed.
    [[nodiscard]] std::string problem() const;

    [[nodiscard]] std::int64_t rowCount() const { return m_row; }
    [[nodiscard]] DatasetJsonOddities& oddities() { return m_oddities; }

private:
    using Value = simdjson::ondemand::value;
    using Error = simdjson::error_code;

    Error readArray(const char* text, std::size_t size, const std::vector<const char*>& starts);
    Error readRow(Value& row);
    Error readList(Value& row);
    Error readObject(Value& row);
    void fillUp(int from);
    Error putValue(int column, Value& value);
    Error putString(int column, Value& value, std::string_view token);
    Error putNumber(int column, Value& value, std::string_view token);
    Error putWord(int column, std::string_view token);
    Error putNested(int column, Value& value);
    void putWrittenNumber(int column, std::string_view text);
    void putMoment(int column, std::string_view text);
    void putBoolean(int column, bool value);
    void keepDigits(int column, double number, std::string_view text);
    void note(DatasetJsonOddities::Kind kind, int column, std::string_view example = {});

    std::vector<Column> m_columns;
    std::unordered_map<std::string, int> m_places;  ///< of the names in objects
    CellLoader& m_cells;
    DatasetJsonTexts& m_texts;
    DatasetJsonOddities m_oddities;
    simdjson::ondemand::parser m_parser;
    std::int64_t m_row = 0;
    Error m_error = simdjson::SUCCESS;
};

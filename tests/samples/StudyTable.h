#pragma once

#include "samples/Study.h"

#include <cmath>
#include <map>
#include <string>

/// One study for all tests: making it is quick, but not free.
inline const samples::Study& study()
{
    static const samples::Study made;
    return made;
}

/// Reads cells of a table by column name.
class StudyTable
{
public:
    explicit StudyTable(const std::string& name)
        : m_table(study().table(name))
    { }

    [[nodiscard]] std::size_t rowCount() const { return m_table.rows.size(); }
    [[nodiscard]] const std::string& text(std::size_t row, const std::string& column) const
    {
        return std::get<std::string>(cell(row, column));
    }
    [[nodiscard]] double number(std::size_t row, const std::string& column) const
    {
        return std::get<double>(cell(row, column));
    }

    /// A cell as a text; a whole number without decimals, a missing one empty.
    [[nodiscard]] std::string shown(std::size_t row, const std::string& column) const
    {
        const auto& value = cell(row, column);
        if (const auto* const told = std::get_if<std::string>(&value)) {
            return *told;
        }
        const double numeric = std::get<double>(value);
        return std::isnan(numeric) ? "" : std::to_string(static_cast<long>(numeric));
    }

    /// The values of several columns of a row, joined.
    template <typename Names>
    [[nodiscard]] std::string key(std::size_t row, const Names& columns) const
    {
        std::string joined;
        for (const auto& column : columns) {
            joined += shown(row, column) + "|";
        }
        return joined;
    }

    /// The row of each key.
    template <typename Names>
    [[nodiscard]] std::map<std::string, std::size_t> rowsBy(const Names& columns) const
    {
        std::map<std::string, std::size_t> rows;
        for (std::size_t row = 0; row < rowCount(); ++row) {
            rows.emplace(key(row, columns), row);
        }
        return rows;
    }

private:
    [[nodiscard]] const samples::Cell& cell(std::size_t row, const std::string& column) const
    {
        return m_table.rows.at(row).at(columnIndex(m_table, column));
    }

    const samples::Table& m_table;
};

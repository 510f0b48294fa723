#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

/// Rows of a file that are no observations, such as deleted ones, and the numbers that this leaves
/// to the others.
class SkippedRows
{
public:
    SkippedRows() = default;
    /// @param rows  numbers of rows of the file, ascending
    explicit SkippedRows(std::vector<std::int64_t> rows)
        : m_rows(std::move(rows))
    { }

    /// The observation that a row of the file is; nothing when it is skipped. Rows are asked for in
    /// ascending order, each as often as it has cells: one position in the list is enough.
    [[nodiscard]] std::optional<int> observationOf(int row)
    {
        while (m_passed < m_rows.size() && m_rows[m_passed] < row) {
            ++m_passed;
        }
        if (m_passed < m_rows.size() && m_rows[m_passed] == row) {
            return std::nullopt;
        }
        return row - static_cast<int>(m_passed);
    }

private:
    std::vector<std::int64_t> m_rows;
    std::size_t m_passed = 0;
};

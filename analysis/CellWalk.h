#pragma once

#include <cstdint>
#include <functional>
#include <optional>

/// A cell of a table, row and column from 0.
struct TableCell
{
    int row = 0;
    int column = 0;

    bool operator==(const TableCell&) const = default;
};

/// Walks from cell to cell of a table and round its ends, and stops at those that are wanted.
class CellWalk
{
public:
    enum class Order
    {
        ByRow,
        ByColumn,
    };
    enum class Direction
    {
        Forward,
        Backward,
    };
    /// Bit i tells whether the cell in that column is wanted, of row i of up to 64 rows.
    using Word = std::function<std::uint64_t(int column, int firstRow, int rowCount)>;

    /// @param word  asked for one block of cells after another, on the way only
    CellWalk(int rows, int columns, Order order, Word word);

    /// The next wanted cell; the cell it starts from is the last that is looked at.
    /// @param from  nothing to start before the first cell
    [[nodiscard]] std::optional<TableCell> next(std::optional<TableCell> from,
                                                Direction direction) const;

private:
    using Place = std::int64_t;  ///< of a cell among all in the order of the walk
    struct Block
    {
        int firstRow;
        int rowCount;
        int firstColumn;
        int columnCount;
    };

    [[nodiscard]] Place placeOf(TableCell cell) const;
    [[nodiscard]] TableCell cellAt(Place place) const;
    [[nodiscard]] Block blockAt(Place number) const;
    [[nodiscard]] Place blockOf(Place place) const;
    [[nodiscard]] std::optional<TableCell> search(Place begin, Place end,
                                                  Direction direction) const;
    [[nodiscard]] std::optional<TableCell> searchBlock(const Block& block, Place begin, Place end,
                                                       Direction direction) const;

    int m_rows;
    int m_columns;
    Order m_order;
    Word m_word;
};

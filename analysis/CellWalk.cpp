#include "analysis/CellWalk.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr int blockRows = 64;

}  // namespace

CellWalk::CellWalk(int rows, int columns, Order order, Word word)
    : m_rows(rows)
    , m_columns(columns)
    , m_order(order)
    , m_word(std::move(word))
{ }

std::optional<TableCell> CellWalk::next(std::optional<TableCell> from, Direction direction) const
{
    const Place count = Place{m_rows} * m_columns;
    const bool isForward = direction == Direction::Forward;
    if (!from) {
        return search(0, count, direction);
    }
    const Place place = std::clamp<Place>(placeOf(*from), 0, std::max<Place>(count - 1, 0));
    const auto ahead =
        isForward ? search(place + 1, count, direction) : search(0, place, direction);
    return ahead    ? ahead
        : isForward ? search(0, std::min(place + 1, count), direction)
                    : search(place, count, direction);
}

CellWalk::Place CellWalk::placeOf(TableCell cell) const
{
    return m_order == Order::ByRow ? Place{cell.row} * m_columns + cell.column
                                   : Place{cell.column} * m_rows + cell.row;
}

TableCell CellWalk::cellAt(Place place) const
{
    return m_order == Order::ByRow
        ? TableCell{static_cast<int>(place / m_columns), static_cast<int>(place % m_columns)}
        : TableCell{static_cast<int>(place % m_rows), static_cast<int>(place / m_rows)};
}

/// By row a block is some rows of all columns, by column some rows of one.
CellWalk::Block CellWalk::blockAt(Place number) const
{
    const Place blocksInColumn = (m_rows + blockRows - 1) / blockRows;
    const bool isByRow = m_order == Order::ByRow;
    const auto firstRow =
        static_cast<int>((isByRow ? number : number % blocksInColumn) * blockRows);
    return {firstRow, std::min(blockRows, m_rows - firstRow),
            isByRow ? 0 : static_cast<int>(number / blocksInColumn), isByRow ? m_columns : 1};
}

CellWalk::Place CellWalk::blockOf(Place place) const
{
    const TableCell cell = cellAt(place);
    const Place blocksInColumn = (m_rows + blockRows - 1) / blockRows;
    const Place before = m_order == Order::ByRow ? 0 : cell.column * blocksInColumn;
    return before + cell.row / blockRows;
}

/// The first or last wanted cell of a stretch, `end` not included.
std::optional<TableCell> CellWalk::search(Place begin, Place end, Direction direction) const
{
    if (begin >= end) {
        return std::nullopt;
    }
    const Place first = blockOf(begin);
    const Place last = blockOf(end - 1);
    for (Place i = 0; i <= last - first; ++i) {
        const Place number = direction == Direction::Forward ? first + i : last - i;
        if (const auto found = searchBlock(blockAt(number), begin, end, direction)) {
            return found;
        }
    }
    return std::nullopt;
}

std::optional<TableCell> CellWalk::searchBlock(const Block& block, Place begin, Place end,
                                               Direction direction) const
{
    std::vector<std::uint64_t> words(static_cast<std::size_t>(block.columnCount));
    std::uint64_t any = 0;
    for (std::size_t i = 0; i < words.size(); ++i) {
        words[i] = m_word(block.firstColumn + static_cast<int>(i), block.firstRow, block.rowCount);
        any |= words[i];
    }
    const int cells = any == 0 ? 0 : block.rowCount * block.columnCount;
    for (int i = 0; i < cells; ++i) {
        const int at = direction == Direction::Forward ? i : cells - 1 - i;
        const int row = at / block.columnCount;
        const int column = at % block.columnCount;
        const TableCell cell{block.firstRow + row, block.firstColumn + column};
        const Place place = placeOf(cell);
        if ((words[static_cast<std::size_t>(column)] >> row & 1) != 0 && place >= begin
            && place < end) {
            return cell;
        }
    }
    return std::nullopt;
}

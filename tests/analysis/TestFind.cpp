#include "analysis/CellSearch.h"
#include "analysis/CellWalk.h"
#include "tests/support/ScriptedDataset.h"

#include <gtest/gtest.h>

#include <numeric>
#include <random>

namespace {

using Order = CellWalk::Order;
using Direction = CellWalk::Direction;

/// The definition: one cell after another, the one it starts from at last.
std::optional<TableCell> plainNext(int rows, int columns, Order order, Direction direction,
                                   std::optional<TableCell> from,
                                   const std::vector<std::vector<bool>>& wanted)
{
    const int count = rows * columns;
    const bool isByRow = order == Order::ByRow;
    int place = !from ? (direction == Direction::Forward ? -1 : 0)
        : isByRow     ? from->row * columns + from->column
                      : from->column * rows + from->row;
    for (int i = 0; i < count; ++i) {
        place = (place + (direction == Direction::Forward ? 1 : count - 1)) % count;
        const TableCell cell = isByRow ? TableCell{place / columns, place % columns}
                                       : TableCell{place % rows, place / rows};
        if (wanted[std::size_t(cell.row)][std::size_t(cell.column)]) {
            return cell;
        }
    }
    return std::nullopt;
}

TEST(CellWalk, visitsTheCellsThatAPlainWalkVisits)
{
    std::mt19937 random(7);
    for (int round = 0; round < 3000; ++round) {
        const std::vector<int> sizes{1, 2, 5, 63, 64, 65, 130};
        const int rows = sizes[random() % sizes.size()];
        const int columns = int(random() % 4) + 1;
        const std::vector<bool> none(std::size_t{unsigned(columns)});
        std::vector<std::vector<bool>> wanted(std::size_t{unsigned(rows)}, none);
        for (auto n = random() % 4; n > 0; --n) {
            wanted[random() % std::size_t(rows)][random() % std::size_t(columns)] = true;
        }
        const Order order = random() % 2 == 0 ? Order::ByRow : Order::ByColumn;
        const CellWalk walk(rows, columns, order, [&](int column, int first, int count) {
            std::uint64_t word = 0;
            for (int i = 0; i < count; ++i) {
                word |= std::uint64_t{wanted[std::size_t(first + i)][std::size_t(column)]} << i;
            }
            return word;
        });
        const auto direction = random() % 2 == 0 ? Direction::Forward : Direction::Backward;
        std::optional<TableCell> cell;
        for (int step = 0; step < 5; ++step) {
            const auto next = walk.next(cell, direction);
            ASSERT_EQ(next, plainNext(rows, columns, order, direction, cell, wanted)) << round;
            cell = next ? next : cell;
            if (random() % 3 == 0) {
                cell = TableCell{int(random() % unsigned(rows)), int(random() % unsigned(columns))};
            }
        }
    }
}

TEST(CellSearch, findsWhatCellsShowInAnyLetterCase)
{
    // As many distinct texts and numbers as are no longer remembered.
    constexpr int rows = 140'000;
    ScriptedDataset dataset;
    dataset.variable("T", TypeCode::Character).variable("N", TypeCode::Double);
    dataset.rows(rows, [](int row, int column) -> ScriptedDataset::Value {
        return column == 1 ? ScriptedDataset::Value(row % 100'000 / 4.0)
                           : (row % 2 == 0 ? " \u00C4rm-" : " AZrm-") + std::to_string(row);
    });
    for (const char* text : {"\u00E4RM-13", "azRM-13", "13", ".5", "4.25", "none"}) {
        CellSearch search(dataset, QString::fromUtf8(text));
        for (int pass = 0; pass < 2; ++pass) {
            for (std::uint32_t first = 0; first < rows; first += 50) {
                std::vector<std::uint32_t> observations(50);
                std::iota(observations.rbegin(), observations.rend(), first);
                for (const int variable : {0, 1}) {
                    const std::uint64_t word = search.word(variable, observations);
                    for (std::size_t i = 0; i < observations.size(); ++i) {
                        const auto shown = QString::fromStdString(
                            dataset.cellText(int(observations[i]), variable));
                        ASSERT_EQ((word >> i & 1) != 0,
                                  shown.contains(QString::fromUtf8(text), Qt::CaseInsensitive))
                            << shown.toStdString();
                    }
                }
            }
        }
    }
}

}  // namespace

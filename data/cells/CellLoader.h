#pragma once

#include "data/cells/TextDecoder.h"
#include "data/StatDataset.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// Fills the cells of a dataset while its file is read, and is gone once the dataset is open.
///
/// The reader describes the variables, begins with the number of rows or without it, puts each cell
/// at its row and column, and finishes. Any order will do; the order in which the cells lie in
/// memory is the fastest. A cell that got nothing is missing, one that got two values holds the
/// second. A dataset whose values are not wanted gets no cells: its rows are counted only.
class CellLoader
{
public:
    /// The dataset outlives the loader.
    explicit CellLoader(StatDataset& dataset);

    /// The character set of the texts that come, unless they are ASCII or, which is taken for
    /// granted without this, UTF-8. Each distinct one is converted once.
    void setDecoder(TextDecoder decoder) { m_decoder = std::move(decoder); }
    [[nodiscard]] const TextDecoder& decoder() const { return m_decoder; }

    /// How the cells lie in memory.
    enum class Order
    {
        ByRow,
        ByColumn,
    };

    /// Texts are taken as they stand: whoever calls has seen to it that they are UTF-8.
    void setTextsAreUtf8() { m_textsAreUtf8 = true; }

    /// Makes room for that many rows, which are the observations, and more may not come. Throws
    /// std::bad_alloc.
    void begin(int rows, Order order = Order::ByRow);
    /// Counts the rows that come, up to the last one that got a cell. Room for as many as are
    /// expected costs nothing until they come, and saves moving them.
    void beginUncounted(int expectedRows = 0);

    // Putting a cell throws std::out_of_range where there is none, and std::bad_alloc. The column
    // is of that kind: whether it is, the reader knows, or asks the dataset before.

    /// Puts a text as it stands in the file, into a character column.
    void putText(int row, int column, std::string_view text);
    /// Puts a number, into a numeric column.
    void putNumber(int row, int column, double number);
    /// Puts the empty text or NaN.
    void putMissing(int row, int column);

    /// Settles the number of observations and all cells. Without it the dataset is good for nothing
    /// but to be closed.
    void finish();

private:
    /// A text that waits for its look-up: see TextPool::prefetch().
    struct WaitingText
    {
        std::size_t cell;
        std::size_t column;
        std::size_t start;  ///< of its bytes in m_waitingBytes
        std::size_t size;
        std::uint64_t hash;
    };

    void prepareColumns();
    [[nodiscard]] std::size_t placeOf(int row, int column) const
    {
        return static_cast<std::size_t>(row) * m_rowStep
            + static_cast<std::size_t>(column) * m_columnStep;
    }
    CellValue* cellFor(int row, int column);
    bool makeRoom(int row, int column);
    [[nodiscard]] std::uint32_t addRecentPlace();
    [[nodiscard]] PooledText*& recentText(std::size_t column, std::string_view text);
    void poolText(CellValue& cell, int column, std::string_view text, PooledText*& recent);
    void poolWaitingTexts();
    PooledText* convertedText(std::string_view text);
    void settleRest();

    static constexpr std::size_t recentTextsPerColumn = 128;
    /// Further columns share their places, so that a wide file needs no more than 2 MiB for them.
    static constexpr std::size_t mostRecentColumns = 2048;
    static constexpr std::uint32_t noPlace = 0xFFFFFFFF;

    StatDataset& m_dataset;
    TextDecoder m_decoder;
    std::size_t m_columns = 0;
    std::size_t m_rowStep = 0;  ///< cells from a row to the next
    std::size_t m_columnStep = 1;
    std::size_t m_room = 0;  ///< rows that there are cells for
    bool m_rowsAreCounted = false;
    bool m_textsAreUtf8 = false;
    int m_rowsSeen = 0;
    std::size_t m_cellsInOrder = 0;  ///< cells filled before the first gap
    /// Of each column with texts those seen lately, by a few of their letters: most columns hold
    /// few.
    std::vector<PooledText*> m_recentTexts;
    std::vector<std::uint32_t>
        m_recentPlaces;  ///< where each column's start, from its first text on
    std::size_t m_recentColumns = 0;
    std::vector<WaitingText> m_waitingTexts;
    std::string m_waitingBytes;
    std::unordered_map<std::string, PooledText*> m_converted;  ///< by the bytes of the file
};

// Called for every cell of a file, and so inline.

/// The cell, or null where none is wanted.
inline CellValue* CellLoader::cellFor(int row, int column)
{
    // What is below zero lies beyond everything without its sign.
    const bool isThere =
        static_cast<std::size_t>(row) < m_room && static_cast<std::size_t>(column) < m_columns;
    if (!isThere && !makeRoom(row, column)) {
        return nullptr;
    }
    m_rowsSeen = row < m_rowsSeen ? m_rowsSeen : row + 1;
    const std::size_t at = placeOf(row, column);
    if (at == m_cellsInOrder) {
        ++m_cellsInOrder;
    } else if (!m_waitingTexts.empty()) {
        poolWaitingTexts();  // the cell itself may wait for its first text
    }
    return &m_dataset.m_cells[at];
}

/// The place where a text of the column is remembered, together with others that look alike.
inline PooledText*& CellLoader::recentText(std::size_t column, std::string_view text)
{
    std::size_t letters = text.size();
    if (!text.empty()) {
        const auto at = [&](std::size_t i) {
            return std::size_t{static_cast<unsigned char>(text[i])};
        };
        letters += at(0) * 3 + at(text.size() / 2) * 5 + at(text.size() - 1) * 7;
    }
    std::uint32_t& place = m_recentPlaces[column];
    if (place == noPlace) {
        place = addRecentPlace();
    }
    return m_recentTexts[place + letters % recentTextsPerColumn];
}

inline void CellLoader::putText(int row, int column, std::string_view text)
{
    CellValue* cell = cellFor(row, column);
    if (cell == nullptr) {
        return;
    }
    PooledText*& recent = recentText(static_cast<std::size_t>(column), text);
    if (recent != nullptr && recent->text() == text) {
        recent->addReference();
        *cell = recent;
    } else {
        poolText(*cell, column, text, recent);
    }
}

inline void CellLoader::putNumber(int row, int column, double number)
{
    if (CellValue* cell = cellFor(row, column)) {
        *cell = number;
    }
}

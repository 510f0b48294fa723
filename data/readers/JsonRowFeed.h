#pragma once

#include "data/readers/DatasetJsonRows.h"
#include "data/readers/JsonWindow.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// Cuts the rows of a JSON text into batches for the parser, which takes documents of a certain
/// size only and needs several times their memory. All functions throw std::runtime_error, with the
/// row where they can, for what is cut short or damaged.
class JsonRowFeed
{
public:
    /// Both outlive the feed.
    JsonRowFeed(JsonWindow& window, DatasetJsonRows& rows)
        : m_window(window)
        , m_rows(rows)
    { }

    /// Reads the list that starts at the window's place.
    void readList();
    /// Reads the rest of the text, a row in each line that is not blank.
    /// @param line  the number of the line that the window is in, from 1
    void readLines(std::int64_t line);

    // The same without reading: how many rows there are.
    static std::int64_t countList(JsonWindow& window);
    static std::int64_t countLines(JsonWindow& window);

private:
    /// A row within the text at hand.
    struct Piece
    {
        char* start;
        std::size_t size;
        std::int64_t line;  ///< of the file, from 1; 0 where lines do not count
    };

    bool readApparentRows();
    void readExactRows();
    [[nodiscard]] std::vector<Piece> piecesOfList();
    static void passComma(JsonWindow& window);
    [[nodiscard]] std::vector<Piece> piecesOfLines(std::size_t size, std::int64_t& line);
    void read(const std::vector<Piece>& pieces);
    void readAlone(const Piece& piece);
    [[noreturn]] void refuse(const Piece& piece) const;

    JsonWindow& m_window;
    DatasetJsonRows& m_rows;
    std::string m_alone;  ///< one row on its own
};

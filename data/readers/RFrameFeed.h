#pragma once

#include "data/readers/RVector.h"

#include <rdata/rdata.h>

#include <functional>

/// A column of a data frame as far as it has been read.
struct RColumn
{
    /// None for what cannot be shown in cells: a list, a matrix, a data frame.
    RVector::Kind kind = RVector::Kind::None;
    const char* description = "";  ///< what it is in words: "a list"
    std::int64_t length = -1;  ///< elements; -1 for what is no vector
    RAttributes attributes;  ///< complete once its elements have been handed on
    std::size_t longestText = 0;  ///< bytes
    bool fitsDoubles = true;  ///< if its reals are 64-bit integers, whether doubles can hold them
};

/// What librdata reads in place of a file: one data frame, in the only form that it takes whole.
///
/// librdata 0~20210223 knows neither packed files nor the forms of R 3.5 and later, and gives up
/// where a column is a list. It is fed a serialisation of version 2 with plain vectors instead,
/// made while it reads; a column that it cannot take comes as an empty vector. Attributes are read
/// here, since it keeps no labels and no units.
class RFrameFeed
{
public:
    /// The stream, which outlives the feed, stands before the first column.
    /// @param rows  of every column; -1 to take those of the first one that has any
    RFrameFeed(RStream& stream, std::int64_t columns, std::int64_t rows);

    /// All columns whose reading has begun.
    [[nodiscard]] const std::vector<RColumn>& columns() const { return m_columns; }
    [[nodiscard]] std::int64_t rows() const { return m_rows; }
    /// Asked before the first element is read whether so many rows have room.
    void setRowCheck(std::function<void(std::int64_t)> check) { m_checkRows = std::move(check); }

    /// Makes the parser read from here.
    void attachTo(rdata_parser_t* parser);
    /// Why the parser got no more, empty where it did.
    [[nodiscard]] const std::string& failure() const { return m_failure; }
    /// Reads all columns, for nobody but their descriptions.
    void drain();

private:
    static rdata_off_t onSeek(rdata_off_t offset, rdata_io_flags_t whence, void* context) noexcept;
    static ssize_t onRead(void* target, size_t count, void* context) noexcept;

    [[nodiscard]] std::size_t read(char* target, std::size_t count);
    [[nodiscard]] bool fill();
    void startColumn();
    void addElements();
    void addText();
    void addNumbers();
    void endColumn();
    void putInteger(std::uint32_t number);
    [[nodiscard]] bool hasRowsOf(const RVector& vector);

    RStream& m_stream;
    std::size_t m_columnCount;
    std::int64_t m_rows;
    std::function<void(std::int64_t)> m_checkRows;
    std::vector<RColumn> m_columns;
    std::optional<RVector> m_vector;  ///< of the last column, while it is read
    std::string m_out;
    std::size_t m_taken = 0;  ///< of m_out
    bool m_isAtStart = true;
    bool m_hasEnded = false;
    std::string m_failure;
};

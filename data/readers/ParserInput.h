#pragma once

#include "data/readers/FileReader.h"

#include <readstat.h>

#include <cstdint>
#include <functional>
#include <string_view>
#include <utility>
#include <vector>

/// What the format library reads in place of the bare file: chosen pieces of it one after the
/// other, with single bytes replaced that the library would stumble over, and through a buffer
/// where it would make a system call for every row.
class ParserInput
{
public:
    /// The file outlives the input. Until pieces are chosen, the input is the whole file.
    explicit ParserInput(const FileReader& file);

    /// Reads only these pieces, in this order.
    struct Piece
    {
        std::int64_t fileOffset;
        std::int64_t length;
    };
    void setPieces(const std::vector<Piece>& pieces);

    /// Replaces the byte at that offset of the input. Offsets may come in any order.
    void replaceByte(std::int64_t offset, char byte);
    /// Replaces the bytes from that offset on.
    void replaceBytes(std::int64_t offset, std::string_view bytes);

    /// Reads ahead that many bytes at a time. Off by default: a parser that walks backwards through
    /// the pages of a file is slower with it.
    void setReadAhead(std::size_t bytes);

    /// What is told, in percent, how far the parser has come each time that this changes.
    void setProgress(std::function<void(int)> progress) { m_progress = std::move(progress); }

    [[nodiscard]] std::int64_t size() const { return m_size; }
    /// Where the parser reads next.
    [[nodiscard]] std::int64_t position() const { return m_position; }

    /// Makes the parser read from here.
    void attachTo(readstat_parser_t* parser);

    /// Moves the position; returns it, or -1 when it would lie before the start.
    std::int64_t seek(std::int64_t offset, readstat_io_flags_t whence);
    /// Reads up to `count` bytes; returns how many there were, or -1.
    std::int64_t read(char* target, std::size_t count);

private:
    struct PlacedPiece
    {
        std::int64_t start;
        std::int64_t fileOffset;
        std::int64_t length;
    };
    struct Replacement
    {
        std::int64_t offset;
        char byte;
    };

    void tellProgress();
    std::int64_t readPieces(std::int64_t offset, char* target, std::size_t count) const;
    void applyReplacements(std::int64_t offset, char* target, std::size_t count) const;

    const FileReader& m_file;
    std::vector<PlacedPiece> m_pieces;
    std::vector<Replacement> m_replacements;
    std::int64_t m_size = 0;
    std::int64_t m_position = 0;
    std::vector<char> m_buffer;
    std::int64_t m_bufferStart = 0;
    std::int64_t m_bufferBytes = 0;
    std::function<void(int)> m_progress;
    int m_percent = 0;  ///< told last
};

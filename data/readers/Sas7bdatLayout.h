#pragma once

#include "data/readers/ByteView.h"
#include "data/readers/FileReader.h"
#include "data/StatDataset.h"

#include <cstdint>
#include <string>
#include <vector>

/// A format or informat as a file records it: all parts as they stand, names in the file's
/// encoding.
struct FormatRecord
{
    std::string name;
    int width = 0;
    int decimals = 0;
};

/// What a SAS7BDAT file says of itself beyond what the format library (ReadStat 1.1.8) passes on:
/// header texts and numbers, format records, deleted observations, and the places where the library
/// must be shown something else than the file's own bytes.
struct Sas7bdatLayout
{
    struct Column
    {
        FormatRecord format;
        FormatRecord informat;
    };
    struct Byte
    {
        std::int64_t offset;
        char value;
    };

    DatasetHeader header;  ///< texts in the file's encoding
    int encodingCode = 0;
    bool compressed = false;
    std::int64_t rowLength = 0;  ///< bytes
    std::int64_t rowCount = 0;  ///< deleted ones included
    /// The most rows that the pages of the file can hold.
    std::int64_t mostRows = 0;
    std::vector<Column> columns;
    /// Zero-based numbers of the deleted rows, ascending.
    std::vector<std::int64_t> deletedRows;
    /// Columns of width zero, which the library refuses; it reads them as one byte instead.
    std::vector<int> emptyColumns;
    std::vector<Byte> replacements;
    std::string damage;  ///< what is certainly wrong with it, if anything
    std::vector<std::string> notes;  ///< what may be wrong with it
};

/// Reads the layout. What a damaged file does not tell stays empty, and not all damage is found:
/// the rest is left to the library's parse.
[[nodiscard]] Sas7bdatLayout readSas7bdatLayout(const FileReader& file);

/// The iconv name of a SAS encoding code, or an empty text for "any" and for unknown codes; those
/// decode as UTF-8 where they are, else as Windows-1252.
[[nodiscard]] std::string sasEncodingName(int code);

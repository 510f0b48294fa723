#pragma once

#include "data/readers/FileReader.h"

#include <QStringDecoder>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// The text of a CSV file, in parts: without its byte order mark, from UTF-16 turned into UTF-8,
/// and without NUL bytes. What is neither stays as it is.
class CsvText
{
public:
    /// The file outlives the text. Its first bytes tell the character set: UTF-16 by its mark, or
    /// by the zero bytes of its ASCII letters.
    explicit CsvText(const FileReader& file);

    /// The next part, good until the next call; empty at the end of the file. Throws
    /// std::runtime_error where the file cannot be read.
    [[nodiscard]] std::string_view next();
    /// Goes back to the beginning.
    void rewind();

    /// Bytes of the file that have been read.
    [[nodiscard]] std::int64_t position() const { return m_position; }

    // What holds of all parts since the beginning:
    [[nodiscard]] bool isUtf16() const { return m_isUtf16; }
    [[nodiscard]] bool isUtf8() const { return m_isUtf8; }
    [[nodiscard]] bool hadNulBytes() const { return m_hadNulBytes; }

private:
    void recognise(std::string_view head);
    void decode(std::string_view bytes);
    void noteEncoding(bool isLast);

    const FileReader& m_file;
    std::vector<char> m_buffer;
    std::string m_part;
    std::string m_cutCharacter;  ///< the start of one at the end of the part before
    std::int64_t m_start = 0;  ///< behind the byte order mark
    std::int64_t m_position = 0;
    bool m_isUtf16 = false;
    QStringDecoder::Encoding m_encoding = QStringDecoder::Utf8;
    std::unique_ptr<QStringDecoder> m_decoder;  ///< of UTF-16
    bool m_isUtf8 = true;
    bool m_hadNulBytes = false;
};

#pragma once

#include "data/readers/FileReader.h"

#include <QStringDecoder>

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>
#include <zlib.h>

/// The text of a JSON file from its start, in UTF-8: unpacked where the file is compressed, and
/// converted where it is UTF-16. A byte order mark is left out. Memory does not depend on the size
/// of the file, packed or unpacked.
class JsonInput
{
public:
    /// The file outlives the input.
    /// @param progress  is told how many bytes of the file have been read, and of how many
    JsonInput(const FileReader& file, std::function<void(std::int64_t, std::int64_t)> progress);
    ~JsonInput();
    JsonInput(const JsonInput&) = delete;
    JsonInput& operator=(const JsonInput&) = delete;

    /// Looks what the file holds, by its first bytes. Throws std::runtime_error.
    void open();
    /// Starts anew.
    void rewind();

    /// Fills the buffer as far as there is text; 0 at the end. Throws std::runtime_error where the
    /// file is cut or damaged.
    std::size_t read(std::span<char> buffer);

    [[nodiscard]] bool isCompressed() const { return m_packing != Packing::None; }
    /// "UTF-8" or "UTF-16".
    [[nodiscard]] std::string encoding() const { return m_isUtf16 ? "UTF-16" : "UTF-8"; }
    /// Bytes of the file.
    [[nodiscard]] std::int64_t size() const { return m_file.size(); }

private:
    enum class Packing
    {
        None,
        ZlibOrGzip,
        ZlibBehindGzipHeader,  ///< eight bytes of a gzip header, and then a zlib stream
    };

    void findPacking();
    void startUnpacking();
    void stopUnpacking();
    std::size_t readFile(std::span<char> buffer);
    std::size_t readUnpacked(std::span<char> buffer);
    bool continueUnpacking(int result);
    std::size_t readConverted(std::span<char> buffer);
    void refill();

    const FileReader& m_file;
    std::int64_t m_position = 0;  ///< in the file
    Packing m_packing = Packing::None;
    z_stream m_stream{};
    bool m_isUnpacking = false;
    bool m_isUnpacked = false;  ///< up to its end
    std::vector<char> m_packed;
    std::vector<char> m_ahead;  ///< unpacked bytes that were looked at already
    bool m_isUtf16 = false;
    bool m_isBigEndian = false;
    std::optional<QStringDecoder> m_decoder;
    std::string m_converted;
    std::size_t m_convertedTaken = 0;
    std::function<void(std::int64_t, std::int64_t)> m_progress;
};

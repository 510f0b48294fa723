#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

/// A file opened for reading, at any position; closed by the destructor.
class FileReader
{
public:
    FileReader() = default;
    ~FileReader();
    FileReader(const FileReader&) = delete;
    FileReader& operator=(const FileReader&) = delete;

    /// Opens a regular file. False, with the reason in error(), when that is not possible.
    [[nodiscard]] bool open(const std::string& path);
    [[nodiscard]] const std::string& error() const { return m_error; }

    /// Size in bytes at the time of opening.
    [[nodiscard]] std::int64_t size() const { return m_size; }

    /// Fills the buffer from that offset on; returns how many bytes there were, or -1.
    [[nodiscard]] std::int64_t readAt(std::int64_t offset, std::span<char> buffer) const;
    /// The bytes from that offset on; shorter than asked for at the end of the file.
    [[nodiscard]] std::vector<char> bytesAt(std::int64_t offset, std::int64_t count) const;

private:
    int m_handle = -1;
    std::int64_t m_size = 0;
    std::string m_error;
};

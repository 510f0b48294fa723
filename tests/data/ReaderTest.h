#pragma once

#include "data/readers/DatasetFile.h"
#include "samples/TableWriter.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <stdexcept>
#include <string>

/// Writes tables into a folder of its own, lets the test change their bytes, and opens the files.
class ReaderTest : public testing::Test
{
protected:
    [[nodiscard]] QString path(const std::string& name) const
    {
        return QString::fromStdString(m_folder.file(name).string());
    }
    [[nodiscard]] std::string written(const std::string& name, const samples::Table& table,
                                      const samples::WriteOptions& options = {}) const
    {
        samples::writeTable(m_folder.file(name), table, options);
        return bytesOf(m_folder.file(name));
    }
    [[nodiscard]] QString write(const std::string& name, const std::string& bytes) const
    {
        std::ofstream(m_folder.file(name), std::ios::binary) << bytes;
        return path(name);
    }
    /// The dataset of a file with these bytes; throws when it cannot be opened.
    [[nodiscard]] std::unique_ptr<StatDataset>
    read(const std::string& name, const std::string& bytes, const OpenOptions& options = {}) const
    {
        auto opened = openDataset(write(name, bytes), options);
        if (!opened) {
            throw std::runtime_error(opened.error());
        }
        return std::move(opened.value().dataset);
    }
    TemporaryFolder m_folder;
};

/// Puts a number of that many bytes into a file, little-endian.
inline void put(std::string& bytes, std::size_t offset, std::uint64_t value, std::size_t width)
{
    for (std::size_t i = 0; i < width; ++i) {
        bytes.at(offset + i) = static_cast<char>(value >> 8 * i);
    }
}

inline std::uint64_t numberAt(const std::string& bytes, std::size_t offset, std::size_t width)
{
    std::uint64_t number = 0;
    for (std::size_t i = width; i > 0; --i) {
        number = number << 8 | static_cast<unsigned char>(bytes.at(offset + i - 1));
    }
    return number;
}

inline std::size_t behind(const std::string& bytes, std::string_view mark)
{
    const std::size_t at = bytes.find(mark);
    if (at == std::string::npos) {
        throw std::runtime_error("no " + std::string(mark));
    }
    return at + mark.size();
}

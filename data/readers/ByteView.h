#pragma once

#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

/// Numbers and texts at fixed places of a binary record, in the record's byte order. Whatever lies
/// outside reads as zero or empty, so a damaged offset cannot lead out of the record.
class ByteView
{
public:
    ByteView(std::string_view bytes, bool littleEndian)
        : m_bytes(bytes)
        , m_littleEndian(littleEndian)
    { }

    [[nodiscard]] std::size_t size() const { return m_bytes.size(); }
    [[nodiscard]] bool littleEndian() const { return m_littleEndian; }

    template <std::unsigned_integral Number>
    [[nodiscard]] Number number(std::size_t offset) const
    {
        if (offset > m_bytes.size() || m_bytes.size() - offset < sizeof(Number)) {
            return 0;
        }
        Number value = 0;
        for (std::size_t i = 0; i < sizeof(Number); ++i) {
            const std::size_t at = m_littleEndian ? sizeof(Number) - 1 - i : i;
            value = static_cast<Number>((std::uint64_t{value} << 8)
                                        | static_cast<unsigned char>(m_bytes[offset + at]));
        }
        return value;
    }
    [[nodiscard]] std::uint8_t u8(std::size_t offset) const { return number<std::uint8_t>(offset); }
    [[nodiscard]] std::uint16_t u16(std::size_t offset) const
    {
        return number<std::uint16_t>(offset);
    }
    [[nodiscard]] std::uint32_t u32(std::size_t offset) const
    {
        return number<std::uint32_t>(offset);
    }
    [[nodiscard]] std::uint64_t u64(std::size_t offset) const
    {
        return number<std::uint64_t>(offset);
    }
    [[nodiscard]] std::int32_t i32(std::size_t offset) const
    {
        return static_cast<std::int32_t>(u32(offset));
    }
    [[nodiscard]] double real(std::size_t offset) const
    {
        return std::bit_cast<double>(u64(offset));
    }

    /// The bytes from there on, as many of them as exist.
    [[nodiscard]] std::string_view text(std::size_t offset, std::size_t size) const
    {
        return offset >= m_bytes.size() ? std::string_view() : m_bytes.substr(offset, size);
    }
    [[nodiscard]] ByteView view(std::size_t offset, std::size_t size) const
    {
        return {text(offset, size), m_littleEndian};
    }

private:
    std::string_view m_bytes;
    bool m_littleEndian;
};

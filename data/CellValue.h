#pragma once

#include <atomic>
#include <cstdint>
#include <string_view>
#include <variant>

/// A text that a dataset holds once, however many of its cells show it. The bytes, and a NUL after
/// them, follow the record in the same block of the TextPool that made it and lives as long.
class PooledText
{
public:
    explicit PooledText(std::uint32_t size)
        : m_size(size)
    { }
    PooledText(const PooledText&) = delete;
    PooledText& operator=(const PooledText&) = delete;

    [[nodiscard]] std::string_view text() const { return {bytes(), m_size}; }
    [[nodiscard]] std::uint32_t references() const { return m_references.load(); }

    /// Counts one more cell that shows this text.
    void addReference() { m_references.fetch_add(1, std::memory_order_relaxed); }

    [[nodiscard]] char* bytes() { return static_cast<char*>(static_cast<void*>(this + 1)); }
    [[nodiscard]] const char* bytes() const
    {
        return static_cast<const char*>(static_cast<const void*>(this + 1));
    }

private:
    std::atomic<std::uint32_t> m_references{0};
    std::uint32_t m_size;
};

/// One cell: alternative 0 for a character variable (null reads as empty text, which only an
/// InMemoryDataset may hold), alternative 1 for a numeric variable of any type code.
using CellValue = std::variant<PooledText*, double>;

static_assert(sizeof(CellValue) == 16, "the memory goals count on 16 bytes a cell");

#pragma once

#include "data/cells/CellStore.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

/// The distinct texts of one dataset: from a text to its record, which holds the text once.
/// An open-addressing table over records that lie, each with its bytes, in blocks of an arena, so
/// that a look-up of a known text allocates nothing and closing a dataset frees a few blocks.
class TextPool
{
public:
    TextPool() = default;
    TextPool(const TextPool&) = delete;
    TextPool& operator=(const TextPool&) = delete;

    /// The record of the text, made at its first use; its reference count is left as it is.
    /// Throws std::bad_alloc, and std::length_error for a text of 4 GiB and more.
    PooledText* intern(std::string_view text);

    // The same in two steps, for whoever has several texts at hand: a large table is no longer in
    // the processor's cache, and the look-ups then wait for memory together instead of one after
    // another.
    [[nodiscard]] static std::uint64_t hashOf(std::string_view text);
    /// Asks for the place where a text of that hash would be found.
    void prefetch(std::uint64_t hash) const;
    /// Asks for the record that is found there.
    void prefetchRecord(std::uint64_t hash) const;
    PooledText* intern(std::string_view text, std::uint64_t hash);

    /// The record of the text, or nullptr when no cell of the dataset ever held it.
    [[nodiscard]] const PooledText* find(std::string_view text) const;

    /// Drops all records; whoever points to one is left with nothing.
    void clear();

    /// Exchanges the texts of two pools; records stay where they are.
    void swap(TextPool& other) noexcept;

    /// How many distinct texts there are.
    [[nodiscard]] std::size_t size() const { return m_size; }

    /// Whether any text ends in a blank. Without any, texts that are equal up to trailing blanks
    /// have one record.
    [[nodiscard]] bool hasTrailingBlanks() const { return m_hasTrailingBlanks; }

    /// Bytes that the records, their texts and the table take.
    [[nodiscard]] std::size_t bytesInUse() const;

private:
    struct Slot
    {
        std::uint64_t hash = 0;
        PooledText* record = nullptr;
    };

    [[nodiscard]] std::size_t slotOf(std::string_view text, std::uint64_t hash) const;
    void grow();
    PooledText* makeRecord(std::string_view text);
    std::byte* allocate(std::size_t bytes);

    using Slots = std::vector<Slot, ZeroedAllocator<Slot>>;

    Slots m_slots;
    std::size_t m_size = 0;
    bool m_hasTrailingBlanks = false;
    std::vector<std::unique_ptr<std::byte[]>> m_blocks;
    std::byte* m_free = nullptr;
    std::size_t m_freeBytes = 0;
    std::size_t m_blockBytes = 0;
};

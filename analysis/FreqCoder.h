#pragma once

#include "data/cells/CellStore.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

/// Numbers distinct 64-bit keys in the order in which they first come: 0, 1, 2 and so on. An
/// open-addressing table, as a map with a node for each key is several times slower.
class FreqCoder
{
public:
    /// Keys are looked up so many at a time, so that the look-ups in a table too large for the
    /// processor's cache wait for memory together.
    static constexpr std::size_t blockSize = 128;

    /// Writes the code of every key.
    void encode(std::span<const std::uint64_t> keys, std::uint32_t* codes);

    /// The distinct keys so far; the code of a key is its place.
    [[nodiscard]] const std::vector<std::uint64_t>& keys() const& { return m_keys; }
    [[nodiscard]] std::vector<std::uint64_t> keys() && { return std::move(m_keys); }

private:
    struct Slot
    {
        std::uint64_t key = 0;
        std::uint64_t number = 0;  ///< code + 1; 0 where the slot is free
    };

    void encodeBlock(std::span<const std::uint64_t> keys, std::uint32_t* codes);
    [[nodiscard]] std::size_t firstSlotOf(std::uint64_t key) const;
    [[nodiscard]] std::uint32_t codeOf(std::uint64_t key, std::size_t slot);
    void makeRoom();

    std::vector<Slot, ZeroedAllocator<Slot>> m_slots;
    std::vector<std::uint64_t> m_keys;
    int m_shift = 0;
};

#pragma once

#include "data/cells/CellStore.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <utility>
#include <vector>

/// Numbers distinct 64-bit keys in the order in which they first come: 0, 1, 2 and so on. An
/// open-addressing table, as a map with a node for each key is several times slower.
class KeyCoder
{
public:
    /// Keys are looked up so many at a time, so that the look-ups in a table too large for the
    /// processor's cache wait for memory together.
    static constexpr std::size_t blockSize = 128;

    /// What a key without a code has in the place of one.
    static constexpr std::uint32_t unknown = std::numeric_limits<std::uint32_t>::max();

    /// Writes the code of every key; keys that have none yet are given the next ones.
    void encode(std::span<const std::uint64_t> keys, std::uint32_t* codes);
    /// Writes the code of every key that has one, and `unknown` for the others.
    void lookUp(std::span<const std::uint64_t> keys, std::uint32_t* codes) const;

    /// The distinct keys so far; the code of a key is its place.
    [[nodiscard]] const std::vector<std::uint64_t>& keys() const& { return m_keys; }
    [[nodiscard]] std::vector<std::uint64_t> keys() && { return std::move(m_keys); }

private:
    /// Half as large as the key and its code would be: large tables stay in the cache for longer.
    struct Slot
    {
        std::uint32_t tag = 0;  ///< lower half of the key's hash
        std::uint32_t number = 0;  ///< code + 1; 0 where the slot is free
    };
    using Hashes = std::array<std::uint64_t, blockSize>;

    void encodeBlock(std::span<const std::uint64_t> keys, std::uint32_t* codes);
    void lookUpBlock(std::span<const std::uint64_t> keys, std::uint32_t* codes) const;
    void prefetch(std::span<const std::uint64_t> keys, Hashes& hashes) const;
    [[nodiscard]] std::size_t slotOf(std::uint64_t key, std::uint64_t hash) const;
    void makeRoom();
    void fillSlots();

    std::vector<Slot, ZeroedAllocator<Slot>> m_slots;
    std::vector<std::uint64_t> m_keys;
    int m_shift = 0;
};

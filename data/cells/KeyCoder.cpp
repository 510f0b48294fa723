#include "data/cells/KeyCoder.h"

#include <algorithm>
#include <bit>

void KeyCoder::encode(std::span<const std::uint64_t> keys, std::uint32_t* codes)
{
    for (std::size_t begin = 0; begin < keys.size(); begin += blockSize) {
        makeRoom();
        encodeBlock(keys.subspan(begin, std::min(blockSize, keys.size() - begin)), codes + begin);
    }
}

void KeyCoder::lookUp(std::span<const std::uint64_t> keys, std::uint32_t* codes) const
{
    if (m_slots.empty()) {
        std::fill_n(codes, keys.size(), unknown);
        return;
    }
    for (std::size_t begin = 0; begin < keys.size(); begin += blockSize) {
        lookUpBlock(keys.subspan(begin, std::min(blockSize, keys.size() - begin)), codes + begin);
    }
}

void KeyCoder::encodeBlock(std::span<const std::uint64_t> keys, std::uint32_t* codes)
{
    Hashes hashes;
    prefetch(keys, hashes);
    for (std::size_t i = 0; i < keys.size(); ++i) {
        Slot& slot = m_slots[slotOf(keys[i], hashes[i])];
        if (slot.number == 0) {
            m_keys.push_back(keys[i]);
            slot = {static_cast<std::uint32_t>(hashes[i]),
                    static_cast<std::uint32_t>(m_keys.size())};
        }
        codes[i] = slot.number - 1;
    }
}

void KeyCoder::lookUpBlock(std::span<const std::uint64_t> keys, std::uint32_t* codes) const
{
    Hashes hashes;
    prefetch(keys, hashes);
    for (std::size_t i = 0; i < keys.size(); ++i) {
        // A free slot's 0 less 1 is what stands for an unknown key.
        codes[i] = m_slots[slotOf(keys[i], hashes[i])].number - 1;
    }
}

void KeyCoder::prefetch(std::span<const std::uint64_t> keys, Hashes& hashes) const
{
    for (std::size_t i = 0; i < keys.size(); ++i) {
        // Numbers differ in their upper bits and addresses in their lower ones: each must reach the
        // upper bits of the product, which choose the slot.
        hashes[i] = (keys[i] ^ (keys[i] >> 32)) * 0x9E3779B97F4A7C15U;
        __builtin_prefetch(&m_slots[hashes[i] >> m_shift]);
    }
}

/// The slot that holds the key, or the free one where it belongs.
std::size_t KeyCoder::slotOf(std::uint64_t key, std::uint64_t hash) const
{
    const std::size_t mask = m_slots.size() - 1;
    const auto tag = static_cast<std::uint32_t>(hash);
    for (std::size_t at = hash >> m_shift;; at = (at + 1) & mask) {
        const Slot& slot = m_slots[at];
        if (slot.number == 0 || (slot.tag == tag && m_keys[slot.number - 1] == key)) {
            return at;
        }
    }
}

/// Sees to it that a block of new keys leaves half of the slots free.
void KeyCoder::makeRoom()
{
    if (2 * (m_keys.size() + blockSize) <= m_slots.size()) {
        return;
    }
    constexpr std::size_t firstSize = 1024;
    constexpr std::size_t large = std::size_t{1} << 20;
    const std::size_t size = m_slots.size() < large ? 4 * m_slots.size() : 2 * m_slots.size();
    m_slots = std::vector<Slot, ZeroedAllocator<Slot>>(std::max(firstSize, size));
    m_shift = 64 - std::countr_zero(m_slots.size());
    fillSlots();
}

void KeyCoder::fillSlots()
{
    std::uint32_t number = 0;
    Hashes hashes;
    for (std::size_t begin = 0; begin < m_keys.size(); begin += blockSize) {
        const std::size_t count = std::min(blockSize, m_keys.size() - begin);
        prefetch({m_keys.data() + begin, count}, hashes);
        for (std::size_t i = 0; i < count; ++i) {
            m_slots[slotOf(m_keys[begin + i], hashes[i])] = {static_cast<std::uint32_t>(hashes[i]),
                                                             ++number};
        }
    }
}

#include "analysis/FreqCoder.h"

#include <algorithm>
#include <bit>

void FreqCoder::encode(std::span<const std::uint64_t> keys, std::uint32_t* codes)
{
    for (std::size_t begin = 0; begin < keys.size(); begin += blockSize) {
        encodeBlock(keys.subspan(begin, std::min(blockSize, keys.size() - begin)), codes + begin);
    }
}

void FreqCoder::encodeBlock(std::span<const std::uint64_t> keys, std::uint32_t* codes)
{
    makeRoom();
    std::array<std::size_t, blockSize> slots;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        slots[i] = firstSlotOf(keys[i]);
        __builtin_prefetch(&m_slots[slots[i]]);
    }
    for (std::size_t i = 0; i < keys.size(); ++i) {
        codes[i] = codeOf(keys[i], slots[i]);
    }
}

std::size_t FreqCoder::firstSlotOf(std::uint64_t key) const
{
    // Numbers differ in their upper bits and addresses in their lower ones: each must reach the
    // upper bits of the product, which choose the slot.
    return static_cast<std::size_t>(((key ^ (key >> 32)) * 0x9E3779B97F4A7C15U) >> m_shift);
}

std::uint32_t FreqCoder::codeOf(std::uint64_t key, std::size_t slot)
{
    const std::size_t mask = m_slots.size() - 1;
    for (;; slot = (slot + 1) & mask) {
        Slot& candidate = m_slots[slot];
        if (candidate.number == 0) {
            m_keys.push_back(key);
            candidate = {key, m_keys.size()};
            return static_cast<std::uint32_t>(m_keys.size() - 1);
        }
        if (candidate.key == key) {
            return static_cast<std::uint32_t>(candidate.number - 1);
        }
    }
}

/// Sees to it that a block of new keys leaves more than a third of the slots free.
void FreqCoder::makeRoom()
{
    if (3 * (m_keys.size() + blockSize) <= 2 * m_slots.size()) {
        return;
    }
    const std::size_t size = std::max<std::size_t>(1024, 4 * m_slots.size());
    m_slots = std::vector<Slot, ZeroedAllocator<Slot>>(size);
    m_shift = 64 - std::countr_zero(size);
    const std::size_t mask = size - 1;
    for (std::size_t code = 0; code < m_keys.size(); ++code) {
        std::size_t slot = firstSlotOf(m_keys[code]);
        while (m_slots[slot].number != 0) {
            slot = (slot + 1) & mask;
        }
        m_slots[slot] = {m_keys[code], code + 1};
    }
}

#include "data/cells/TextPool.h"

#define XXH_INLINE_ALL
#include <algorithm>
#include <cstring>
#include <limits>
#include <new>
#include <stdexcept>
#include <xxhash.h>

namespace {

constexpr std::size_t firstSlots = 256;
constexpr std::size_t firstBlock = std::size_t{16} << 10;
constexpr std::size_t largestBlock = std::size_t{1} << 20;

}  // namespace

std::uint64_t TextPool::hashOf(std::string_view text)
{
    return XXH3_64bits(text.data(), text.size());
}

void TextPool::prefetch(std::uint64_t hash) const
{
    if (!m_slots.empty()) {
        __builtin_prefetch(&m_slots[hash & (m_slots.size() - 1)]);
    }
}

void TextPool::prefetchRecord(std::uint64_t hash) const
{
    if (!m_slots.empty()) {
        __builtin_prefetch(m_slots[hash & (m_slots.size() - 1)].record);
    }
}

PooledText* TextPool::intern(std::string_view text)
{
    return intern(text, hashOf(text));
}

PooledText* TextPool::intern(std::string_view text, std::uint64_t hash)
{
    if (m_slots.empty() || m_size * 4 >= m_slots.size() * 3) {
        grow();
    }
    Slot& slot = m_slots[slotOf(text, hash)];
    if (slot.record == nullptr) {
        slot.record = makeRecord(text);
        slot.hash = hash;
        ++m_size;
    }
    return slot.record;
}

void TextPool::swap(TextPool& other) noexcept
{
    std::swap(m_slots, other.m_slots);
    std::swap(m_size, other.m_size);
    std::swap(m_hasTrailingBlanks, other.m_hasTrailingBlanks);
    std::swap(m_blocks, other.m_blocks);
    std::swap(m_free, other.m_free);
    std::swap(m_freeBytes, other.m_freeBytes);
    std::swap(m_blockBytes, other.m_blockBytes);
}

const PooledText* TextPool::find(std::string_view text) const
{
    return m_slots.empty() ? nullptr : m_slots[slotOf(text, hashOf(text))].record;
}

void TextPool::clear()
{
    m_slots = Slots();
    m_size = 0;
    m_hasTrailingBlanks = false;
    m_blocks.clear();
    m_free = nullptr;
    m_freeBytes = 0;
    m_blockBytes = 0;
}

std::size_t TextPool::bytesInUse() const
{
    return m_slots.capacity() * sizeof(Slot) + m_blockBytes;
}

/// The slot that holds the text, or the free one where it belongs.
std::size_t TextPool::slotOf(std::string_view text, std::uint64_t hash) const
{
    const std::size_t mask = m_slots.size() - 1;
    for (std::size_t at = hash & mask;; at = (at + 1) & mask) {
        const Slot& slot = m_slots[at];
        if (slot.record == nullptr || (slot.hash == hash && slot.record->text() == text)) {
            return at;
        }
    }
}

void TextPool::grow()
{
    Slots slots(m_slots.empty() ? firstSlots : m_slots.size() * 2);
    const std::size_t mask = slots.size() - 1;
    for (const Slot& slot : m_slots) {
        if (slot.record != nullptr) {
            std::size_t at = slot.hash & mask;
            while (slots[at].record != nullptr) {
                at = (at + 1) & mask;
            }
            slots[at] = slot;
        }
    }
    m_slots = std::move(slots);
}

PooledText* TextPool::makeRecord(std::string_view text)
{
    if (text.size() >= std::numeric_limits<std::uint32_t>::max()) {
        throw std::length_error("a text of 4 GiB or more cannot be held");
    }
    std::byte* place = allocate(sizeof(PooledText) + text.size() + 1);
    auto* record = new (place) PooledText(static_cast<std::uint32_t>(text.size()));
    std::copy(text.begin(), text.end(), record->bytes());
    record->bytes()[text.size()] = '\0';
    m_hasTrailingBlanks = m_hasTrailingBlanks || text.ends_with(' ');
    return record;
}

std::byte* TextPool::allocate(std::size_t bytes)
{
    constexpr std::size_t alignment = alignof(PooledText);
    bytes = (bytes + alignment - 1) / alignment * alignment;
    if (bytes > m_freeBytes) {
        // Blocks grow with the pool, so that a small dataset stays small.
        const std::size_t wanted = std::clamp(m_blockBytes, firstBlock, largestBlock);
        const std::size_t size = std::max(bytes, wanted);
        m_blocks.push_back(std::make_unique_for_overwrite<std::byte[]>(size));
        m_free = m_blocks.back().get();
        m_freeBytes = size;
        m_blockBytes += size;
    }
    std::byte* place = m_free;
    m_free += bytes;
    m_freeBytes -= bytes;
    return place;
}

#pragma once

#include "data/CellValue.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

/// A truth value for each of some records of a TextPool, by their addresses: an open-addressing
/// table that keeps the value in the lowest bit of the address, as records are aligned.
class RecordTable
{
public:
    /// The value of a record; nothing when none was set.
    [[nodiscard]] std::optional<bool> find(const PooledText* record) const
    {
        if (m_size == 0) {
            return std::nullopt;
        }
        const std::uintptr_t entry = m_entries[slotOf(addressOf(record))];
        return entry == free ? std::nullopt : std::optional((entry & truth) != 0);
    }

    /// Sets the value of a record that has none yet.
    /// @param record  not null
    void insert(const PooledText* record, bool value)
    {
        if (2 * (m_size + 1) > m_entries.size()) {
            grow();
        }
        const std::uintptr_t address = addressOf(record);
        m_entries[slotOf(address)] = address | (value ? truth : 0U);
        ++m_size;
    }

    [[nodiscard]] std::size_t size() const { return m_size; }

private:
    static constexpr std::uintptr_t free = 0;
    static constexpr std::uintptr_t truth = 1;
    static_assert(alignof(PooledText) > truth, "the lowest bit of an address is taken");

    [[nodiscard]] static std::uintptr_t addressOf(const PooledText* record)
    {
        return reinterpret_cast<std::uintptr_t>(record);
    }

    /// The slot that holds the record of that address, or the free one where it belongs.
    [[nodiscard]] std::size_t slotOf(std::uintptr_t address) const
    {
        std::size_t slot = (address * 0x9E3779B97F4A7C15U) >> m_shift;
        while (m_entries[slot] != free && (m_entries[slot] & ~truth) != address) {
            slot = (slot + 1) & (m_entries.size() - 1);
        }
        return slot;
    }

    void grow()
    {
        constexpr std::size_t firstSize = 64;
        const std::vector<std::uintptr_t> old = std::move(m_entries);
        const std::size_t size = old.empty() ? firstSize : 4 * old.size();
        m_entries.assign(size, free);
        m_shift = 64 - std::countr_zero(size);
        for (const std::uintptr_t entry : old) {
            if (entry != free) {
                m_entries[slotOf(entry & ~truth)] = entry;
            }
        }
    }

    std::vector<std::uintptr_t> m_entries;
    std::size_t m_size = 0;
    int m_shift = 0;
};

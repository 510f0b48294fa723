#pragma once

#include "data/cells/TextPool.h"

#include <cstddef>
#include <deque>
#include <string_view>

/// The digits of numbers as the file has them, for the few cells where the stored number would not
/// give them back: "1.10", "9007199254740993".
class DatasetJsonTexts
{
public:
    /// The pool outlives this.
    explicit DatasetJsonTexts(TextPool& pool)
        : m_pool(pool)
    { }

    /// Cells are numbered row by row. Of two texts for one cell the later holds.
    void add(std::size_t cell, std::string_view text);
    /// Orders the texts, after which they can be found.
    void finish();
    /// Empty for a cell without one.
    [[nodiscard]] std::string_view find(std::size_t cell) const;

    [[nodiscard]] std::size_t size() const { return m_texts.size(); }
    /// Drops all texts beyond that many.
    void shrink(std::size_t size) { m_texts.resize(size); }
    void clear();

private:
    struct Kept
    {
        std::size_t cell = 0;
        const PooledText* text = nullptr;
    };

    TextPool& m_pool;
    std::deque<Kept> m_texts;  // not a vector: growing one would hold all texts twice
    bool m_isOrdered = true;
};

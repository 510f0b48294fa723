#include "data/readers/DatasetJsonTexts.h"

#include <algorithm>

void DatasetJsonTexts::add(std::size_t cell, std::string_view text)
{
    m_isOrdered = m_isOrdered && (m_texts.empty() || m_texts.back().cell < cell);
    m_texts.push_back({cell, m_pool.intern(text)});
}

void DatasetJsonTexts::finish()
{
    if (!m_isOrdered) {
        std::stable_sort(m_texts.begin(), m_texts.end(),
                         [](const Kept& one, const Kept& other) { return one.cell < other.cell; });
        m_isOrdered = true;
    }
}

std::string_view DatasetJsonTexts::find(std::size_t cell) const
{
    const auto behind =
        std::upper_bound(m_texts.begin(), m_texts.end(), cell,
                         [](std::size_t wanted, const Kept& kept) { return wanted < kept.cell; });
    if (behind == m_texts.begin() || std::prev(behind)->cell != cell) {
        return {};
    }
    return std::prev(behind)->text->text();
}

void DatasetJsonTexts::clear()
{
    m_texts.clear();
    m_isOrdered = true;
}

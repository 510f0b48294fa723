#include "analysis/TextSort.h"

#include "analysis/RadixSort.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

namespace {

/// Bytes of a text that go into one chunk; the eighth byte of a chunk tells how much text there
/// was.
constexpr std::size_t chunkBytes = 7;
constexpr std::uint64_t moreFollows = chunkBytes + 1;

/// The next seven bytes of the text, filled up with zeros, and below them how many bytes are left,
/// eight standing for any more. Chunks compare as the texts do: where the bytes are equal, the text
/// that ends first is the beginning of the other.
std::uint64_t chunkAt(std::string_view text, std::size_t depth)
{
    const std::string_view rest = text.substr(std::min(depth, text.size()));
    std::uint64_t chunk = 0;
    for (std::size_t i = 0; i < chunkBytes; ++i) {
        chunk = (chunk << 8) | (i < rest.size() ? static_cast<unsigned char>(rest[i]) : 0U);
    }
    return (chunk << 8) | std::min<std::uint64_t>(rest.size(), moreFollows);
}

/// A stretch of the order whose texts agree in their first `depth` bytes.
struct Run
{
    std::size_t begin;
    std::size_t end;
    std::size_t depth;
};

/// Sorts texts chunk by chunk: first all by their first chunk, then each run that this leaves tied
/// by the next. An explicit stack, as texts may share thousands of bytes.
class TextSorter
{
public:
    explicit TextSorter(std::span<const std::string_view> texts)
        : m_texts(texts)
        , m_order(texts.size())
    {
        std::iota(m_order.begin(), m_order.end(), 0U);
        m_open.push_back({0, texts.size(), 0});
        while (!m_open.empty()) {
            const Run run = m_open.back();
            m_open.pop_back();
            sortRun(run);
        }
    }

    [[nodiscard]] std::vector<std::uint32_t> takeOrder() { return std::move(m_order); }

private:
    void sortRun(const Run& run)
    {
        m_entries.clear();
        for (std::size_t place = run.begin; place < run.end; ++place) {
            const std::uint32_t text = m_order[place];
            m_entries.push_back({chunkAt(m_texts[text], run.depth), text});
        }
        radixSort(m_entries);
        std::size_t tieBegin = 0;
        for (std::size_t i = 0; i < m_entries.size(); ++i) {
            m_order[run.begin + i] = m_entries[i].row;
            if (m_entries[i].rank != m_entries[tieBegin].rank) {
                leaveTie(run, tieBegin, i);
                tieBegin = i;
            }
        }
        leaveTie(run, tieBegin, m_entries.size());
    }

    /// Leaves the entries from `begin` to `end`, whose chunks are equal, to be sorted by the next.
    void leaveTie(const Run& run, std::size_t begin, std::size_t end)
    {
        if (end - begin > 1 && (m_entries[begin].rank & 0xFF) == moreFollows) {
            m_open.push_back({run.begin + begin, run.begin + end, run.depth + chunkBytes});
        }
    }

    std::span<const std::string_view> m_texts;
    std::vector<std::uint32_t> m_order;
    std::vector<RankedRow> m_entries;
    std::vector<Run> m_open;
};

}  // namespace

std::vector<std::uint32_t> orderOf(std::span<const std::string_view> texts)
{
    return TextSorter(texts).takeOrder();
}

#include "data/readers/SavCases.h"

#include "data/readers/ByteView.h"

#include <cstdlib>
#include <string_view>
#include <vector>

namespace {

constexpr std::int64_t headerSize = 176;
constexpr std::int64_t slotSize = 8;

/// A case has a slot of eight bytes for each variable record; long texts have several.
std::int64_t slotsOfCase(const FileReader& file, bool littleEndian)
{
    constexpr std::int64_t recordSize = 32;
    std::int64_t slots = 0;
    for (std::int64_t at = headerSize;; ++slots) {
        const std::vector<char> bytes = file.bytesAt(at, recordSize + 4);
        const ByteView record({bytes.data(), bytes.size()}, littleEndian);
        if (record.u32(0) != 2) {
            return slots;
        }
        const bool hasLabel = record.u32(8) == 1;
        const std::int64_t labelSize = (std::int64_t{record.u32(recordSize)} + 3) / 4 * 4;
        at += recordSize + (hasLabel ? 4 + labelSize : 0)
            + std::abs(std::int64_t{record.i32(12)}) * slotSize;
    }
}

/// Goes through the codes of row-compressed values, of which eight stand before the values that do
/// not fit into their code.
class CodeCounter
{
public:
    /// Takes the next eight bytes; false once nothing can follow on the end that a code marks.
    bool take(std::string_view bytes)
    {
        constexpr unsigned padding = 0;
        constexpr unsigned end = 252;
        constexpr unsigned valueFollows = 253;
        if (m_following > 0) {
            --m_following;
            return !m_hasEnded || m_following > 0;
        }
        for (const char byte : bytes) {
            const unsigned code = static_cast<unsigned char>(byte);
            if (code == end) {
                m_hasEnded = true;
                return m_following > 0;
            }
            m_slots += code == padding ? 0 : 1;
            m_following += code == valueFollows ? 1 : 0;
        }
        return true;
    }
    [[nodiscard]] bool isWithin(std::int64_t slotsOfCase) const
    {
        return m_following > 0 || m_slots % slotsOfCase != 0;
    }

private:
    std::int64_t m_slots = 0;
    std::int64_t m_following = 0;
    bool m_hasEnded = false;
};

}  // namespace

bool endsWithinCase(const FileReader& file, const SavCases& cases)
{
    const std::int64_t slots = slotsOfCase(file, cases.littleEndian);
    const std::int64_t size = file.size() - cases.start;
    if (slots == 0 || size <= 0) {
        return false;
    }
    if (!cases.isRowCompressed) {
        return size % (slots * slotSize) != 0;
    }
    CodeCounter counter;
    std::vector<char> buffer(std::size_t{64} << 10);
    for (std::int64_t at = cases.start; at < file.size(); at += std::ssize(buffer)) {
        const std::int64_t got = file.readAt(at, buffer);
        for (std::int64_t i = 0; i + slotSize <= got; i += slotSize) {
            if (!counter.take({buffer.data() + i, static_cast<std::size_t>(slotSize)})) {
                return counter.isWithin(slots);
            }
        }
    }
    return size % slotSize != 0 || counter.isWithin(slots);
}

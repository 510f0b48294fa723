#include "analysis/FreqColumn.h"

#include "analysis/FreqCoder.h"
#include "analysis/FreqNumbers.h"
#include "data/StatDataset.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <utility>

namespace {

/// Writes the codes of the rows' cells, and returns the keys in the order of the codes.
template <typename KeyOf>
std::vector<std::uint64_t> encode(const StatDataset& dataset, int variable,
                                  std::span<const std::uint32_t> rows,
                                  std::vector<std::uint32_t>& codes, KeyOf keyOf)
{
    FreqCoder coder;
    std::array<std::uint64_t, FreqCoder::blockSize> keys;
    for (std::size_t begin = 0; begin < rows.size(); begin += keys.size()) {
        const std::size_t count = std::min(keys.size(), rows.size() - begin);
        for (std::size_t i = 0; i < count; ++i) {
            keys[i] = keyOf(dataset.cell(static_cast<int>(rows[begin + i]), variable));
        }
        coder.encode({keys.data(), count}, codes.data() + begin);
    }
    return std::move(coder).keys();
}

}  // namespace

FreqColumn::FreqColumn(const StatDataset& dataset, int variable,
                       std::span<const std::uint32_t> rows)
    : m_isNumeric(dataset.isNumeric(variable))
    , m_codes(rows.size())
{
    if (m_isNumeric) {
        encodeNumbers(dataset, variable, rows);
    } else {
        encodeTexts(dataset, variable, rows);
    }
}

void FreqColumn::encodeTexts(const StatDataset& dataset, int variable,
                             std::span<const std::uint32_t> rows)
{
    // A null text is an empty one, and there may be a record of the empty text as well.
    const PooledText* empty = dataset.textPool().find({});
    m_keys = encode(dataset, variable, rows, m_codes, [empty](const CellValue& cell) {
        const PooledText* record = std::get<0>(cell);
        return std::bit_cast<std::uint64_t>(record == nullptr ? empty : record);
    });
}

void FreqColumn::encodeNumbers(const StatDataset& dataset, int variable,
                               std::span<const std::uint32_t> rows)
{
    const std::uint64_t zero = freqnumbers::orderedBits(0.0);
    const MissingMark mark = dataset.missingMark(variable);
    bool hasPositiveZero = false;
    m_keys = encode(dataset, variable, rows, m_codes, [&](const CellValue& cell) {
        const double number = mark.unified(std::get<1>(cell));
        if (number == 0.0) {
            hasPositiveZero = hasPositiveZero || !std::signbit(number);
            return zero;
        }
        return freqnumbers::orderedBits(number);
    });
    if (!hasPositiveZero) {
        std::replace(m_keys.begin(), m_keys.end(), zero, freqnumbers::orderedBits(-0.0));
    }
}

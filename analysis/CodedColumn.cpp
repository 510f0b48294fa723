#include "analysis/CodedColumn.h"

#include "data/cells/KeyCoder.h"
#include "data/cells/ValueKey.h"
#include "data/StatDataset.h"
#include "grid/filter/CellColumn.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>

namespace {

struct Coding
{
    std::vector<std::uint32_t> codes;  ///< one for each row
    std::vector<std::uint64_t> keys;  ///< one for each code
};

template <typename KeyOf>
Coding encode(const StatDataset& dataset, int variable, std::span<const std::uint32_t> rows,
              KeyOf keyOf)
{
    Coding coding{std::vector<std::uint32_t>(rows.size()), {}};
    if (rows.empty()) {
        return coding;  // a dataset opened without its values has no cell to start from
    }
    const CellColumn cells(dataset, variable);
    KeyCoder coder;
    std::array<std::uint64_t, KeyCoder::blockSize> keys;
    for (std::size_t begin = 0; begin < rows.size(); begin += keys.size()) {
        const std::size_t count = std::min(keys.size(), rows.size() - begin);
        for (std::size_t i = 0; i < count; ++i) {
            keys[i] = keyOf(*cells.at(rows[begin + i]));
        }
        coder.encode({keys.data(), count}, coding.codes.data() + begin);
    }
    coding.keys = std::move(coder).keys();
    return coding;
}

}  // namespace

CodedColumn::CodedColumn(const StatDataset& dataset, int variable,
                         std::span<const std::uint32_t> rows)
    : m_isNumeric(dataset.isNumeric(variable))
{
    if (m_isNumeric) {
        encodeNumbers(dataset, variable, rows);
    } else {
        encodeTexts(dataset, variable, rows);
    }
}

CodedColumn CodedColumn::ofShownTexts(const StatDataset& dataset, int variable,
                                      std::span<const std::uint32_t> rows)
{
    // Cells that hold the same bits show the same text, so only distinct numbers are rendered.
    Coding numbers = encode(dataset, variable, rows, [](const CellValue& cell) {
        return std::bit_cast<std::uint64_t>(std::get<1>(cell));
    });
    CodedColumn column;
    column.m_shown = std::make_unique<TextPool>();
    std::vector<std::uint64_t> shown;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (numbers.codes[i] == shown.size()) {
            const std::string text = dataset.cellText(static_cast<int>(rows[i]), variable);
            shown.push_back(valuekey::of(column.m_shown->intern(text)));
        }
    }
    std::vector<std::uint32_t> codeOfNumber(shown.size());
    KeyCoder coder;
    coder.encode(shown, codeOfNumber.data());
    for (std::uint32_t& code : numbers.codes) {
        code = codeOfNumber[code];
    }
    column.m_codes = std::move(numbers.codes);
    column.m_keys = std::move(coder).keys();
    return column;
}

void CodedColumn::encodeTexts(const StatDataset& dataset, int variable,
                              std::span<const std::uint32_t> rows)
{
    // A null text is an empty one, and there may be a record of the empty text as well.
    const PooledText* empty = dataset.textPool().find({});
    Coding coding = encode(dataset, variable, rows, [empty](const CellValue& cell) {
        const PooledText* record = std::get<0>(cell);
        return valuekey::of(record == nullptr ? empty : record);
    });
    m_codes = std::move(coding.codes);
    m_keys = std::move(coding.keys);
}

void CodedColumn::encodeNumbers(const StatDataset& dataset, int variable,
                                std::span<const std::uint32_t> rows)
{
    const std::uint64_t zero = valuekey::of(0.0);
    const MissingMark mark = dataset.missingMark(variable);
    bool hasPositiveZero = false;
    Coding coding = encode(dataset, variable, rows, [&](const CellValue& cell) {
        const double number = mark.unified(std::get<1>(cell));
        if (number == 0.0) {
            hasPositiveZero = hasPositiveZero || !std::signbit(number);
            return zero;
        }
        return valuekey::of(number);
    });
    if (!hasPositiveZero) {
        std::replace(coding.keys.begin(), coding.keys.end(), zero, valuekey::of(-0.0));
    }
    m_codes = std::move(coding.codes);
    m_keys = std::move(coding.keys);
}

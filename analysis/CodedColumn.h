#pragma once

#include "data/cells/TextPool.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

class StatDataset;

/// The values of one variable in chosen rows, equal ones under one code. Codes run from 0 to size()
/// in the order in which the values first come.
class CodedColumn
{
public:
    /// The values as they are stored. All missing numbers are one value, NaN, and so are the two
    /// zeros: the negative one stands for it only where no row holds the positive one.
    /// Throws std::bad_variant_access when a cell does not hold what the variable's type promises.
    CodedColumn(const StatDataset& dataset, int variable, std::span<const std::uint32_t> rows);

    /// The texts that the cells of a numeric variable show. They live as long as the column.
    [[nodiscard]] static CodedColumn ofShownTexts(const StatDataset& dataset, int variable,
                                                  std::span<const std::uint32_t> rows);

    /// Whether the values are numbers.
    [[nodiscard]] bool isNumeric() const { return m_isNumeric; }
    /// How many distinct values there are.
    [[nodiscard]] std::size_t size() const { return m_keys.size(); }
    /// One code for each of the rows.
    [[nodiscard]] const std::vector<std::uint32_t>& codes() const { return m_codes; }
    /// The value of each code, as data/cells/ValueKey.h has it.
    [[nodiscard]] const std::vector<std::uint64_t>& keys() const { return m_keys; }

private:
    CodedColumn() = default;
    void encodeTexts(const StatDataset& dataset, int variable, std::span<const std::uint32_t> rows);
    void encodeNumbers(const StatDataset& dataset, int variable,
                       std::span<const std::uint32_t> rows);

    bool m_isNumeric = false;
    std::vector<std::uint32_t> m_codes;
    std::vector<std::uint64_t> m_keys;
    std::unique_ptr<TextPool> m_shown;  ///< the texts that are no dataset's
};

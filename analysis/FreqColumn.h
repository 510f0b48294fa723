#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

class StatDataset;

/// The values of one variable in chosen rows, equal ones under one code. Codes run from 0 to size()
/// in the order in which the values first come. All NaN are one value, and so are the two zeros:
/// the negative one stands for it only where no row holds the positive one.
class FreqColumn
{
public:
    /// Throws std::bad_variant_access when a cell does not hold what the variable's type promises.
    FreqColumn(const StatDataset& dataset, int variable, std::span<const std::uint32_t> rows);

    [[nodiscard]] bool isNumeric() const { return m_isNumeric; }
    /// How many distinct values there are.
    [[nodiscard]] std::size_t size() const { return m_keys.size(); }
    /// One code for each of the rows.
    [[nodiscard]] const std::vector<std::uint32_t>& codes() const { return m_codes; }
    /// The value of each code: the address of its pooled text, or the ordered bits of its number.
    [[nodiscard]] const std::vector<std::uint64_t>& keys() const { return m_keys; }

private:
    void encodeTexts(const StatDataset& dataset, int variable, std::span<const std::uint32_t> rows);
    void encodeNumbers(const StatDataset& dataset, int variable,
                       std::span<const std::uint32_t> rows);

    bool m_isNumeric;
    std::vector<std::uint32_t> m_codes;
    std::vector<std::uint64_t> m_keys;
};

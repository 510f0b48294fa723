#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

class CodedColumn;

/// The distinct values of a column in ascending order: texts bytewise, numbers numerically, NaN
/// below every number. Ranks run from 0 to size(). Texts are views into the dataset that the column
/// was read from, or into the column where they are shown ones; those must live as long.
class RankedValues
{
public:
    explicit RankedValues(const CodedColumn& column);

    [[nodiscard]] bool isNumeric() const { return m_isNumeric; }
    [[nodiscard]] std::size_t size() const { return m_keys.size(); }
    /// The rank of a value from its code in the column.
    [[nodiscard]] std::uint32_t rankOf(std::uint32_t code) const { return m_ranks[code]; }

    /// A value where they are texts.
    [[nodiscard]] std::string_view text(std::uint32_t rank) const;
    /// A value where they are numbers.
    [[nodiscard]] double number(std::uint32_t rank) const;

private:
    bool m_isNumeric;
    std::vector<std::uint32_t> m_ranks;  ///< one for each code
    std::vector<std::uint64_t> m_keys;  ///< of the column, one for each rank
};

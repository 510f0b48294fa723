#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

/// Something that holds or does not hold for each observation, asked for 64 observations at once:
/// so the cells of a row that several tests look at are visited close together, and a test need
/// not look where another one has decided.
class RowTest
{
public:
    RowTest() = default;
    RowTest(const RowTest&) = delete;
    RowTest& operator=(const RowTest&) = delete;
    virtual ~RowTest() = default;

    /// Bit i is set when the test holds for observation `first` + i; the bits from `count` on are
    /// clear.
    /// @param count  1 to 64
    [[nodiscard]] virtual std::uint64_t word(std::size_t first, unsigned count) const = 0;
};

using RowTestPointer = std::unique_ptr<const RowTest>;

/// The tests that are made of other tests.
namespace rowtests {

/// The bits of `count` observations.
[[nodiscard]] constexpr std::uint64_t allOf(unsigned count)
{
    return ~std::uint64_t{0} >> (64 - count);
}

[[nodiscard]] RowTestPointer constant(bool holds);
[[nodiscard]] RowTestPointer negation(RowTestPointer test);
[[nodiscard]] RowTestPointer conjunction(std::vector<RowTestPointer> tests);
[[nodiscard]] RowTestPointer disjunction(std::vector<RowTestPointer> tests);

}  // namespace rowtests

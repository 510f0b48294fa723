#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

/// Something that holds or does not hold for each observation, asked for 64 observations at once:
/// so the cells of a row that several predicates look at are visited close together, and a
/// predicate need not look where another one has decided.
class RowPredicate
{
public:
    RowPredicate() = default;
    RowPredicate(const RowPredicate&) = delete;
    RowPredicate& operator=(const RowPredicate&) = delete;
    virtual ~RowPredicate() = default;

    /// Bit i is set when the predicate holds for observation `first` + i; the bits from `count` on
    /// are clear.
    /// @param count  1 to 64
    [[nodiscard]] virtual std::uint64_t word(std::size_t first, unsigned count) const = 0;
};

using RowPredicatePointer = std::unique_ptr<const RowPredicate>;

/// The predicates that are made of other predicates.
namespace rowpredicates {

/// The bits of `count` observations.
[[nodiscard]] constexpr std::uint64_t allOf(unsigned count)
{
    return ~std::uint64_t{0} >> (64 - count);
}

[[nodiscard]] RowPredicatePointer constant(bool holds);
[[nodiscard]] RowPredicatePointer negation(RowPredicatePointer predicate);
[[nodiscard]] RowPredicatePointer conjunction(std::vector<RowPredicatePointer> predicates);
[[nodiscard]] RowPredicatePointer disjunction(std::vector<RowPredicatePointer> predicates);

}  // namespace rowpredicates

#include "grid/filter/RowPredicate.h"

namespace rowpredicates {

namespace {

class Constant : public RowPredicate
{
public:
    explicit Constant(bool holds)
        : m_holds(holds)
    { }
    [[nodiscard]] std::uint64_t word(std::size_t, unsigned count) const override
    {
        return m_holds ? allOf(count) : 0;
    }

private:
    bool m_holds;
};

class Negation : public RowPredicate
{
public:
    explicit Negation(RowPredicatePointer predicate)
        : m_predicate(std::move(predicate))
    { }
    [[nodiscard]] std::uint64_t word(std::size_t first, unsigned count) const override
    {
        return ~m_predicate->word(first, count) & allOf(count);
    }

private:
    RowPredicatePointer m_predicate;
};

class Conjunction : public RowPredicate
{
public:
    explicit Conjunction(std::vector<RowPredicatePointer> predicates)
        : m_predicates(std::move(predicates))
    { }
    [[nodiscard]] std::uint64_t word(std::size_t first, unsigned count) const override
    {
        std::uint64_t bits = allOf(count);
        for (const RowPredicatePointer& predicate : m_predicates) {
            bits &= predicate->word(first, count);
            if (bits == 0) {
                break;
            }
        }
        return bits;
    }

private:
    std::vector<RowPredicatePointer> m_predicates;
};

class Disjunction : public RowPredicate
{
public:
    explicit Disjunction(std::vector<RowPredicatePointer> predicates)
        : m_predicates(std::move(predicates))
    { }
    [[nodiscard]] std::uint64_t word(std::size_t first, unsigned count) const override
    {
        std::uint64_t bits = 0;
        for (const RowPredicatePointer& predicate : m_predicates) {
            bits |= predicate->word(first, count);
            if (bits == allOf(count)) {
                break;
            }
        }
        return bits;
    }

private:
    std::vector<RowPredicatePointer> m_predicates;
};

}  // namespace

RowPredicatePointer constant(bool holds)
{
    return std::make_unique<Constant>(holds);
}

RowPredicatePointer negation(RowPredicatePointer predicate)
{
    return std::make_unique<Negation>(std::move(predicate));
}

RowPredicatePointer conjunction(std::vector<RowPredicatePointer> predicates)
{
    return std::make_unique<Conjunction>(std::move(predicates));
}

RowPredicatePointer disjunction(std::vector<RowPredicatePointer> predicates)
{
    return std::make_unique<Disjunction>(std::move(predicates));
}

}  // namespace rowpredicates

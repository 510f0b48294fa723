#include "grid/filter/RowTest.h"

namespace rowtests {

namespace {

class Constant : public RowTest
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

class Negation : public RowTest
{
public:
    explicit Negation(RowTestPointer test)
        : m_test(std::move(test))
    { }
    [[nodiscard]] std::uint64_t word(std::size_t first, unsigned count) const override
    {
        return ~m_test->word(first, count) & allOf(count);
    }

private:
    RowTestPointer m_test;
};

class Conjunction : public RowTest
{
public:
    explicit Conjunction(std::vector<RowTestPointer> tests)
        : m_tests(std::move(tests))
    { }
    [[nodiscard]] std::uint64_t word(std::size_t first, unsigned count) const override
    {
        std::uint64_t bits = allOf(count);
        for (const RowTestPointer& test : m_tests) {
            bits &= test->word(first, count);
            if (bits == 0) {
                break;
            }
        }
        return bits;
    }

private:
    std::vector<RowTestPointer> m_tests;
};

class Disjunction : public RowTest
{
public:
    explicit Disjunction(std::vector<RowTestPointer> tests)
        : m_tests(std::move(tests))
    { }
    [[nodiscard]] std::uint64_t word(std::size_t first, unsigned count) const override
    {
        std::uint64_t bits = 0;
        for (const RowTestPointer& test : m_tests) {
            bits |= test->word(first, count);
            if (bits == allOf(count)) {
                break;
            }
        }
        return bits;
    }

private:
    std::vector<RowTestPointer> m_tests;
};

}  // namespace

RowTestPointer constant(bool holds)
{
    return std::make_unique<Constant>(holds);
}

RowTestPointer negation(RowTestPointer test)
{
    return std::make_unique<Negation>(std::move(test));
}

RowTestPointer conjunction(std::vector<RowTestPointer> tests)
{
    return std::make_unique<Conjunction>(std::move(tests));
}

RowTestPointer disjunction(std::vector<RowTestPointer> tests)
{
    return std::make_unique<Disjunction>(std::move(tests));
}

}  // namespace rowtests

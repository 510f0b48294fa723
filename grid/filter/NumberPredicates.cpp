#include "grid/filter/NumberPredicates.h"

#include <algorithm>
#include <cmath>

namespace numberpredicates {

namespace {

/// @tparam Holds  asked with each number, NaN for all missing ones
template <typename Holds>
class NumberPredicate : public RowPredicate
{
public:
    NumberPredicate(const NumberColumn& column, Holds holds)
        : m_column(column)
        , m_holds(std::move(holds))
    { }

    [[nodiscard]] std::uint64_t word(std::size_t first, unsigned count) const override
    {
        return m_column.cells.word(first, count, [this](const CellValue& cell) {
            return m_holds(m_column.mark.unified(cells::number(cell)));
        });
    }

private:
    NumberColumn m_column;
    Holds m_holds;
};

template <typename Holds>
RowPredicatePointer make(const NumberColumn& column, Holds holds)
{
    return std::make_unique<NumberPredicate<Holds>>(column, std::move(holds));
}

}  // namespace

RowPredicatePointer isMissing(const NumberColumn& column)
{
    return make(column, [](double number) { return std::isnan(number); });
}

RowPredicatePointer compare(const NumberColumn& column, CompareOp op, double number)
{
    // NaN is less than the number here: "less" is the opposite of "greater or equal", which NaN
    // never is.
    switch (op) {
    case CompareOp::Equal:
        return make(column, [number](double value) { return value == number; });
    case CompareOp::NotEqual:
        return make(column, [number](double value) { return value != number; });
    case CompareOp::Less:
        return make(column, [number](double value) { return !(value >= number); });
    case CompareOp::LessOrEqual:
        return make(column, [number](double value) { return !(value > number); });
    case CompareOp::Greater:
        return make(column, [number](double value) { return value > number; });
    case CompareOp::GreaterOrEqual:
        return make(column, [number](double value) { return value >= number; });
    case CompareOp::Contains:
        break;
    }
    return rowpredicates::constant(false);
}

RowPredicatePointer isOneOf(const NumberColumn& column, std::vector<double> numbers)
{
    std::sort(numbers.begin(), numbers.end());
    return make(column, [numbers = std::move(numbers)](double value) {
        // NaN would be found everywhere, as it is not less than anything.
        return !std::isnan(value) && std::binary_search(numbers.begin(), numbers.end(), value);
    });
}

}  // namespace numberpredicates

#include "analysis/comparison/ValueComparer.h"

#include "analysis/comparison/ValueReader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

namespace comparison {

namespace {

/// So many rows of all variables stay in the processor's cache while one variable after the other
/// is compared in them.
constexpr std::size_t blockSize = 64;

/// Pairs of records that hold equal texts, so that texts are read once for each pair of records
/// that comes again soon.
class EqualRecords
{
public:
    [[nodiscard]] bool holds(const PooledText* base, const PooledText* compare) const
    {
        const Entry& entry = m_entries[placeOf(base)];
        return entry.base == base && entry.compare == compare;
    }
    void add(const PooledText* base, const PooledText* compare)
    {
        m_entries[placeOf(base)] = {base, compare};
    }

private:
    struct Entry
    {
        const PooledText* base = nullptr;
        const PooledText* compare = nullptr;
    };
    static constexpr unsigned bits = 8;

    static std::size_t placeOf(const PooledText* record)
    {
        // Fibonacci hashing: the upper bits of the product depend on all bits of the address.
        return std::hash<const PooledText*>{}(record)*0x9E3779B97F4A7C15U >> (64 - bits);
    }

    std::array<Entry, std::size_t{1} << bits> m_entries;
};

class VariableComparer
{
public:
    VariableComparer(const StatDataset& base, const StatDataset& compare, const Request& request,
                     ComparedVariable& result)
        : m_base(base, result.variables.base, result.countsAsSas)
        , m_compare(compare, result.variables.compare, result.countsAsSas)
        , m_missingBaseEqualsAll(request.missingBaseEqualsAll)
        , m_missingCompareEqualsAll(request.missingCompareEqualsAll)
        , m_result(result)
    { }

    void add(std::span<const ObservationPair> pairs, std::size_t first)
    {
        for (std::size_t i = 0; i < pairs.size(); ++i) {
            const ObservationPair pair = pairs[i];
            if (!pair.isMatched()) {
                continue;
            }
            const CellValue& base = m_base.cell(pair.base);
            const CellValue& compare = m_compare.cell(pair.compare);
            const bool isEqual =
                m_result.isNumeric ? numbersAreEqual(base, compare) : textsAreEqual(base, compare);
            if (!isEqual) {
                m_result.unequal.push_back(static_cast<std::uint32_t>(first + i));
            }
        }
    }

private:
    [[nodiscard]] bool missingEqualsAll(bool baseIsMissing, bool compareIsMissing) const
    {
        return (baseIsMissing && m_missingBaseEqualsAll)
            || (compareIsMissing && m_missingCompareEqualsAll);
    }

    bool numbersAreEqual(const CellValue& baseCell, const CellValue& compareCell)
    {
        const double base = m_base.number(baseCell);
        const double compare = m_compare.number(compareCell);
        if (std::isnan(base) || std::isnan(compare)) {
            return missingsAreEqual(base, compare);
        }
        if (base == compare) {
            return true;
        }
        ++m_result.inexact;
        m_result.maximum = std::max(m_result.maximum, m_result.rule.measure(base, compare));
        return !m_result.rule.isUnequal(base, compare);
    }

    bool missingsAreEqual(double base, double compare)
    {
        const bool bothMiss = std::isnan(base) && std::isnan(compare);
        if (bothMiss && missingLetter(base) == missingLetter(compare)) {
            return true;
        }
        ++m_result.inexact;
        if (missingEqualsAll(std::isnan(base), std::isnan(compare))) {
            return true;
        }
        ++m_result.missingDifferences;
        return false;
    }

    bool textsAreEqual(const CellValue& baseCell, const CellValue& compareCell)
    {
        const PooledText* baseRecord = cells::record(baseCell);
        const PooledText* compareRecord = cells::record(compareCell);
        if (m_equal.holds(baseRecord, compareRecord)) {
            return true;
        }
        const std::string_view base = m_base.text(baseRecord);
        const std::string_view compare = m_compare.text(compareRecord);
        if (base == compare) {
            m_equal.add(baseRecord, compareRecord);
            return true;
        }
        ++m_result.inexact;
        if (missingEqualsAll(base.empty(), compare.empty())) {
            return true;
        }
        m_result.missingDifferences += base.empty() || compare.empty() ? 1U : 0U;
        return false;
    }

    ValueReader m_base;
    ValueReader m_compare;
    bool m_missingBaseEqualsAll;
    bool m_missingCompareEqualsAll;
    EqualRecords m_equal;
    ComparedVariable& m_result;
};

}  // namespace

void compareValues(const StatDataset& base, const StatDataset& compare, const Request& request,
                   std::span<const ObservationPair> pairs, std::vector<ComparedVariable>& variables)
{
    std::vector<VariableComparer> comparers;
    comparers.reserve(variables.size());
    for (ComparedVariable& variable : variables) {
        comparers.emplace_back(base, compare, request, variable);
    }
    for (std::size_t first = 0; first < pairs.size(); first += blockSize) {
        const auto block = pairs.subspan(first, std::min(blockSize, pairs.size() - first));
        for (VariableComparer& comparer : comparers) {
            comparer.add(block, first);
        }
    }
}

}  // namespace comparison

#include "grid/filter/TextTests.h"

#include "grid/filter/RecordTable.h"

#include <algorithm>
#include <array>
#include <unordered_set>

namespace texttests {

namespace {

using Records = std::vector<const PooledText*>;
using Property = std::function<bool(std::string_view)>;

/// The bits of observations for whose records a look-up holds.
template <typename Holds>
std::uint64_t wordOfRecords(const CellColumn& cells, std::size_t first, unsigned count, Holds holds)
{
    // All cells first: a look-up that waits for its cell would hold up the next cell, too.
    std::array<const PooledText*, BitVector::bits_per_block> records;
    const CellValue* cell = cells.at(first);
    for (unsigned i = 0; i < count; ++i, cell += cells.stride()) {
        records[i] = cells::record(*cell);
    }
    std::uint64_t bits = 0;
    for (unsigned i = 0; i < count; ++i) {
        bits |= static_cast<std::uint64_t>(holds(records[i])) << i;
    }
    return bits;
}

/// Whether a cell holds one of up to so many records is found by comparing with each.
template <std::size_t size>
class FewRecordsTest : public RowTest
{
public:
    FewRecordsTest(const CellColumn& cells, const Records& records)
        : m_cells(cells)
    {
        m_records.fill(records.front());
        std::copy(records.begin(), records.end(), m_records.begin());
    }

    [[nodiscard]] std::uint64_t word(std::size_t first, unsigned count) const override
    {
        return m_cells.word(first, count, [this](const CellValue& cell) {
            const PooledText* const record = cells::record(cell);
            bool found = false;
            for (const PooledText* const wanted : m_records) {
                found = found || record == wanted;
            }
            return found;
        });
    }

private:
    CellColumn m_cells;
    std::array<const PooledText*, size> m_records{};
};

class ManyRecordsTest : public RowTest
{
public:
    ManyRecordsTest(const CellColumn& cells, const Records& records)
        : m_cells(cells)
    {
        for (const PooledText* const record : records) {
            if (record == nullptr) {
                m_holdsForNull = true;
            } else if (!m_records.find(record)) {
                m_records.insert(record, true);
            }
        }
    }

    [[nodiscard]] std::uint64_t word(std::size_t first, unsigned count) const override
    {
        return wordOfRecords(m_cells, first, count, [this](const PooledText* record) {
            return record == nullptr ? m_holdsForNull : m_records.find(record).has_value();
        });
    }

private:
    CellColumn m_cells;
    RecordTable m_records;
    bool m_holdsForNull = false;
};

/// Asks for a property of the text, and remembers the answers for as long as that pays.
class PropertyTest : public RowTest
{
public:
    PropertyTest(const CellColumn& cells, Property holds)
        : m_cells(cells)
        , m_holds(std::move(holds))
        , m_holdsForNull(m_holds({}))
    { }

    [[nodiscard]] std::uint64_t word(std::size_t first, unsigned count) const override
    {
        return wordOfRecords(m_cells, first, count,
                             [this](const PooledText* record) { return answer(record); });
    }

private:
    [[nodiscard]] bool answer(const PooledText* record) const
    {
        if (record == nullptr) {
            return m_holdsForNull;
        }
        ++m_asked;
        const std::optional<bool> known = m_answers.find(record);
        return known ? *known : newAnswer(record);
    }

    [[nodiscard]] bool newAnswer(const PooledText* record) const
    {
        const bool holds = m_holds(withoutTrailingBlanks(record->text()));
        // Where hardly any text occurs twice, looking it up costs more than asking again.
        constexpr std::size_t alwaysKept = 65536;
        if (m_answers.size() < alwaysKept || m_answers.size() < m_asked / 2) {
            m_answers.insert(record, holds);
        }
        return holds;
    }

    CellColumn m_cells;
    Property m_holds;
    bool m_holdsForNull;
    // What was found out once; texts never change.
    mutable RecordTable m_answers;
    mutable std::size_t m_asked = 0;
};

template <typename Number>
bool holdsFor(CompareOp op, Number order)
{
    switch (op) {
    case CompareOp::Equal:
        return order == 0;
    case CompareOp::NotEqual:
        return order != 0;
    case CompareOp::Less:
        return order < 0;
    case CompareOp::LessOrEqual:
        return order <= 0;
    case CompareOp::Greater:
        return order > 0;
    case CompareOp::GreaterOrEqual:
        return order >= 0;
    case CompareOp::Contains:
        break;
    }
    return false;
}

std::size_t characterCount(std::string_view text)
{
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
    }));
}

std::size_t indexOf(std::string_view text, std::string_view needle)
{
    const std::size_t place = text.find(needle);
    return place == std::string_view::npos ? 0 : characterCount(text.substr(0, place)) + 1;
}

/// The records of the pool that hold one of these texts, which have no trailing blanks.
Records recordsOf(const TextPool& pool, const std::vector<std::string>& texts)
{
    Records records;
    for (const std::string& text : texts) {
        const PooledText* const record = pool.find(text);
        if (record != nullptr || text.empty()) {
            records.push_back(record);
        }
        if (record != nullptr && text.empty()) {
            records.push_back(nullptr);
        }
    }
    return records;
}

}  // namespace

std::string_view withoutTrailingBlanks(std::string_view text)
{
    while (text.ends_with(' ')) {
        text.remove_suffix(1);
    }
    return text;
}

RowTestPointer isOneOf(const TextColumn& column, std::vector<std::string> texts)
{
    for (std::string& text : texts) {
        text.resize(withoutTrailingBlanks(text).size());
    }
    if (column.pool->hasTrailingBlanks()) {
        // One text may have several records then.
        return test(column,
                    [wanted = std::unordered_set<std::string>(texts.begin(), texts.end())](
                        std::string_view text) { return wanted.contains(std::string(text)); });
    }
    const Records records = recordsOf(*column.pool, texts);
    if (records.empty()) {
        return rowtests::constant(false);
    }
    if (records.size() == 1) {
        return std::make_unique<FewRecordsTest<1>>(column.cells, records);
    }
    constexpr std::size_t few = 4;
    if (records.size() <= few) {
        return std::make_unique<FewRecordsTest<few>>(column.cells, records);
    }
    return std::make_unique<ManyRecordsTest>(column.cells, records);
}

RowTestPointer compare(const TextColumn& column, CompareOp op, std::string text)
{
    switch (op) {
    case CompareOp::Equal:
        return isOneOf(column, {std::move(text)});
    case CompareOp::NotEqual:
        return rowtests::negation(isOneOf(column, {std::move(text)}));
    case CompareOp::Contains:
        return test(column, [needle = std::move(text)](std::string_view value) {
            return value.find(needle) != std::string_view::npos;
        });
    default:
        break;
    }
    text.resize(withoutTrailingBlanks(text).size());
    return test(column, [op, text = std::move(text)](std::string_view value) {
        return holdsFor(op, value.compare(text));
    });
}

RowTestPointer compareIndex(const TextColumn& column, std::string needle, CompareOp op,
                            double place)
{
    return test(column, [needle = std::move(needle), op, place](std::string_view value) {
        return holdsFor(op, static_cast<double>(indexOf(value, needle)) - place);
    });
}

RowTestPointer test(const TextColumn& column, std::function<bool(std::string_view)> holds)
{
    return std::make_unique<PropertyTest>(column.cells, std::move(holds));
}

}  // namespace texttests

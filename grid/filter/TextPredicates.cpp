#include "grid/filter/TextPredicates.h"

#include "data/cells/KeyCoder.h"
#include "data/cells/ValueKey.h"
#include "grid/filter/TextAnswers.h"

#include <algorithm>
#include <array>
#include <functional>
#include <span>
#include <unordered_set>

namespace textpredicates {

namespace {

using Records = std::vector<const PooledText*>;
using Property = std::function<bool(std::string_view)>;

/// The keys of up to 64 texts.
class KeysOfWord
{
public:
    KeysOfWord(const CellColumn& cells, std::size_t first, unsigned count)
        : m_count(count)
    {
        const CellValue* cell = cells.at(first);
        for (unsigned i = 0; i < count; ++i, cell += cells.stride()) {
            m_keys[i] = valuekey::of(cells::record(*cell));
        }
    }

    [[nodiscard]] std::span<const std::uint64_t> keys() const { return {m_keys.data(), m_count}; }

private:
    std::array<std::uint64_t, BitVector::bits_per_block> m_keys;
    unsigned m_count;
};

/// Whether a cell holds one of up to so many records is found by comparing with each.
template <std::size_t size>
class FewRecordsPredicate : public RowPredicate
{
public:
    FewRecordsPredicate(const CellColumn& cells, const Records& records)
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

class ManyRecordsPredicate : public RowPredicate
{
public:
    ManyRecordsPredicate(const CellColumn& cells, const Records& records)
        : m_cells(cells)
    {
        for (const PooledText* const record : records) {
            const std::array key{valuekey::of(record)};
            std::uint32_t code = 0;
            m_wanted.encode(key, &code);
        }
    }

    [[nodiscard]] std::uint64_t word(std::size_t first, unsigned count) const override
    {
        const KeysOfWord word(m_cells, first, count);
        std::array<std::uint32_t, BitVector::bits_per_block> codes;
        m_wanted.lookUp(word.keys(), codes.data());
        std::uint64_t bits = 0;
        for (unsigned i = 0; i < count; ++i) {
            bits |= static_cast<std::uint64_t>(codes[i] != KeyCoder::unknown) << i;
        }
        return bits;
    }

private:
    CellColumn m_cells;
    KeyCoder m_wanted;
};

/// Asks for a property of the text without its trailing blanks.
class PropertyPredicate : public RowPredicate
{
public:
    PropertyPredicate(const CellColumn& cells, Property holds)
        : m_cells(cells)
        , m_answers([holds = std::move(holds)](std::string_view text) {
            return holds(withoutTrailingBlanks(text));
        })
    { }

    [[nodiscard]] std::uint64_t word(std::size_t first, unsigned count) const override
    {
        return m_answers.word(KeysOfWord(m_cells, first, count).keys());
    }

private:
    CellColumn m_cells;
    mutable TextAnswers m_answers;  // what was found out once; texts never change
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

RowPredicatePointer hasProperty(const TextColumn& column, Property holds)
{
    return std::make_unique<PropertyPredicate>(column.cells, std::move(holds));
}

}  // namespace

std::string_view withoutTrailingBlanks(std::string_view text)
{
    while (text.ends_with(' ')) {
        text.remove_suffix(1);
    }
    return text;
}

RowPredicatePointer isOneOf(const TextColumn& column, std::vector<std::string> texts)
{
    for (std::string& text : texts) {
        text.resize(withoutTrailingBlanks(text).size());
    }
    if (column.pool->hasTrailingBlanks()) {
        // One text may have several records then.
        return hasProperty(
            column,
            [wanted = std::unordered_set<std::string>(texts.begin(), texts.end())](
                std::string_view text) { return wanted.contains(std::string(text)); });
    }
    const Records records = recordsOf(*column.pool, texts);
    if (records.empty()) {
        return rowpredicates::constant(false);
    }
    if (records.size() == 1) {
        return std::make_unique<FewRecordsPredicate<1>>(column.cells, records);
    }
    constexpr std::size_t few = 4;
    if (records.size() <= few) {
        return std::make_unique<FewRecordsPredicate<few>>(column.cells, records);
    }
    return std::make_unique<ManyRecordsPredicate>(column.cells, records);
}

RowPredicatePointer compare(const TextColumn& column, CompareOp op, std::string text)
{
    switch (op) {
    case CompareOp::Equal:
        return isOneOf(column, {std::move(text)});
    case CompareOp::NotEqual:
        return rowpredicates::negation(isOneOf(column, {std::move(text)}));
    case CompareOp::Contains:
        return hasProperty(column, [needle = std::move(text)](std::string_view value) {
            return value.find(needle) != std::string_view::npos;
        });
    default:
        break;
    }
    text.resize(withoutTrailingBlanks(text).size());
    return hasProperty(column, [op, text = std::move(text)](std::string_view value) {
        return holdsFor(op, value.compare(text));
    });
}

RowPredicatePointer compareIndex(const TextColumn& column, std::string needle, CompareOp op,
                                 double place)
{
    return hasProperty(column, [needle = std::move(needle), op, place](std::string_view value) {
        return holdsFor(op, static_cast<double>(indexOf(value, needle)) - place);
    });
}

}  // namespace textpredicates

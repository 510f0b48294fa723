#include "data/cells/CellLoader.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace {

/// Look-ups that wait for memory together.
constexpr std::size_t mostWaitingTexts = 16;
constexpr double missingNumber = std::numeric_limits<double>::quiet_NaN();

}  // namespace

CellLoader::CellLoader(StatDataset& dataset)
    : m_dataset(dataset)
{ }

void CellLoader::begin(int rows, Order order)
{
    prepareColumns();
    m_dataset.m_observationCount = rows;
    if (order == Order::ByColumn) {
        m_rowStep = 1;
        m_columnStep = static_cast<std::size_t>(rows);
    }
    if (m_dataset.m_valuesWanted) {
        m_dataset.m_cells = CellVector(static_cast<std::size_t>(rows) * m_columns);
        m_room = static_cast<std::size_t>(rows);
    }
}

void CellLoader::beginUncounted(int expectedRows)
{
    prepareColumns();
    m_dataset.m_observationCount = 0;
    m_room = m_dataset.m_valuesWanted ? static_cast<std::size_t>(expectedRows) : 0;
    m_dataset.m_cells = CellVector(m_room * m_columns);
    m_rowsAreCounted = true;
}

void CellLoader::prepareColumns()
{
    m_columns = static_cast<std::size_t>(m_dataset.m_variableCount);
    m_rowStep = m_columns;
    m_columnStep = 1;
    if (m_dataset.m_valuesWanted) {
        m_recentPlaces.assign(m_columns, noPlace);
    }
}

/// Finds room for the texts of a column that had none yet.
std::uint32_t CellLoader::addRecentPlace()
{
    const std::size_t place = m_recentColumns++ % mostRecentColumns * recentTextsPerColumn;
    m_recentTexts.resize(std::max(m_recentTexts.size(), place + recentTextsPerColumn), nullptr);
    return static_cast<std::uint32_t>(place);
}

/// Sees to it that there is a cell; false where none is wanted.
bool CellLoader::makeRoom(int row, int column)
{
    if (row < 0 || column < 0 || static_cast<std::size_t>(column) >= m_columns) {
        throw std::out_of_range("It holds a value that belongs to no cell");
    }
    if (!m_rowsAreCounted && row >= m_dataset.m_observationCount) {
        throw std::out_of_range("It holds more observations than its header counts");
    }
    if (!m_dataset.m_valuesWanted) {
        m_rowsSeen = std::max(m_rowsSeen, row + 1);
        return false;
    }
    m_room = std::max(static_cast<std::size_t>(row) + 1, m_room + m_room / 2);
    m_dataset.m_cells.resize(m_room * m_columns);
    return true;
}

void CellLoader::putMissing(int row, int column)
{
    if (m_dataset.m_typeCodes.at(static_cast<std::size_t>(column)) == TypeCode::Character) {
        putText(row, column, {});
    } else {
        putNumber(row, column, missingNumber);
    }
}

void CellLoader::poolText(CellValue& cell, int column, std::string_view text, PooledText*& recent)
{
    if (!m_textsAreUtf8 && !TextDecoder::isUnchanged(text)) {
        PooledText* record = convertedText(text);
        record->addReference();
        cell = record;
        // A converted text is not remembered: other bytes of the file could read like it.
        recent = record->text() == text ? record : nullptr;
        return;
    }
    const std::uint64_t hash = TextPool::hashOf(text);
    m_dataset.m_textPool.prefetch(hash);
    const auto place = static_cast<std::size_t>(&cell - m_dataset.m_cells.data());
    m_waitingTexts.push_back(
        {place, static_cast<std::size_t>(column), m_waitingBytes.size(), text.size(), hash});
    m_waitingBytes += text;
    if (m_waitingTexts.size() == mostWaitingTexts) {
        poolWaitingTexts();
    }
}

void CellLoader::poolWaitingTexts()
{
    TextPool& pool = m_dataset.m_textPool;
    for (const WaitingText& waiting : m_waitingTexts) {
        pool.prefetchRecord(waiting.hash);
    }
    for (const WaitingText& waiting : m_waitingTexts) {
        const std::string_view text(m_waitingBytes.data() + waiting.start, waiting.size);
        PooledText* record = pool.intern(text, waiting.hash);
        record->addReference();
        m_dataset.m_cells[waiting.cell] = record;
        recentText(waiting.column, text) = record;
    }
    m_waitingTexts.clear();
    m_waitingBytes.clear();
}

PooledText* CellLoader::convertedText(std::string_view text)
{
    const auto [place, isNew] = m_converted.try_emplace(std::string(text), nullptr);
    if (isNew) {
        place->second = m_dataset.m_textPool.intern(m_decoder.decode(text));
    }
    return place->second;
}

void CellLoader::finish()
{
    poolWaitingTexts();
    if (m_rowsAreCounted) {
        m_dataset.m_observationCount = m_rowsSeen;
        if (m_dataset.m_valuesWanted) {
            m_dataset.m_cells.resize(placeOf(m_rowsSeen, 0));
        }
    }
    if (m_cellsInOrder < m_dataset.m_cells.size()) {
        settleRest();
    }
}

/// Cells that got no value read as empty or missing.
void CellLoader::settleRest()
{
    for (int row = 0; row < m_dataset.m_observationCount; ++row) {
        for (int column = 0; column < m_dataset.m_variableCount; ++column) {
            const auto* text = std::get_if<PooledText*>(&m_dataset.m_cells[placeOf(row, column)]);
            if (text != nullptr && *text == nullptr) {
                putMissing(row, column);
            }
        }
    }
    poolWaitingTexts();
}

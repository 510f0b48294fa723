#include "grid/MainTableModel.h"

#include "data/StatDataset.h"

#include <spdlog/spdlog.h>

#include <algorithm>
#include <new>
#include <numeric>

namespace {

constexpr Qt::Alignment textAlignment = Qt::AlignLeft | Qt::AlignVCenter;
constexpr Qt::Alignment numberAlignment = Qt::AlignRight | Qt::AlignVCenter;

}  // namespace

MainTableModel::MainTableModel(const StatDataset* dataset, QObject* parent)
    : QAbstractTableModel(parent)
    , m_dataset(dataset)
    , m_rowMap(static_cast<std::size_t>(dataset->observationCount()))
{
    std::iota(m_rowMap.begin(), m_rowMap.end(), 0U);
}

int MainTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_dataset->observationCount();
}

int MainTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_dataset->variableCount();
}

QVariant MainTableModel::data(const QModelIndex& index, int role) const
{
    // A view asks seven other roles for each text that it asks.
    if (role != Qt::DisplayRole && role != Qt::TextAlignmentRole) {
        return {};
    }
    if (!index.isValid()) {
        return {};
    }
    const int variable = index.column();
    if (role == Qt::TextAlignmentRole) {
        const bool isText = m_dataset->isCharacter(variable);
        return QVariant::fromValue((isText ? textAlignment : numberAlignment).toInt());
    }
    return QString::fromStdString(m_dataset->cellText(observationAt(index.row()), variable));
}

QVariant MainTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (section < 0 || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
        return {};
    }
    const auto entry = static_cast<std::size_t>(section);
    if (orientation == Qt::Vertical) {
        const bool shown = role == Qt::DisplayRole && entry < m_rowMap.size();
        return shown ? QVariant(QString::number(std::int64_t{m_rowMap[entry]} + 1)) : QVariant();
    }
    if (section >= m_dataset->variableCount()) {
        return {};
    }
    const bool namesAreShown = m_headerMode == HeaderMode::VariableNames;
    const bool wantsName = namesAreShown == (role == Qt::DisplayRole);
    return QString::fromStdString(wantsName ? m_dataset->names()[entry]
                                            : m_dataset->labels()[entry]);
}

void MainTableModel::setHeaderMode(HeaderMode mode)
{
    if (mode == m_headerMode) {
        return;
    }
    beginResetModel();
    m_headerMode = mode;
    endResetModel();
}

int MainTableModel::observationAt(int row) const
{
    return static_cast<int>(m_rowMap[static_cast<std::size_t>(row)]);
}

int MainTableModel::rowOf(int observation) const
{
    const auto found =
        std::find(m_rowMap.begin(), m_rowMap.end(), static_cast<std::uint32_t>(observation));
    return found == m_rowMap.end() ? -1 : static_cast<int>(found - m_rowMap.begin());
}

void MainTableModel::sortRows(const SortKeys& keys)
{
    // Called by a signal, which no exception may leave; the old order stays.
    try {
        std::vector<std::uint32_t> rowMap;
        rowsorter::sortObservations(*m_dataset, keys, rowMap);
        setRowMap(std::move(rowMap));
    } catch (const std::bad_alloc&) {
        spdlog::error("Error: not enough memory to sort {} rows", m_rowMap.size());
    }
}

void MainTableModel::resetSort()
{
    std::vector<std::uint32_t> rowMap(m_rowMap.size());
    std::iota(rowMap.begin(), rowMap.end(), 0U);
    setRowMap(std::move(rowMap));
}

void MainTableModel::setRowMap(std::vector<std::uint32_t> rowMap)
{
    if (rowMap == m_rowMap) {
        return;
    }
    beginResetModel();
    m_rowMap.swap(rowMap);
    endResetModel();
}

#include "analysis/panels/FreqSortProxyModel.h"

#include "analysis/panels/FreqTableModel.h"
#include "analysis/RadixSort.h"

#include <algorithm>

FreqSortProxyModel::FreqSortProxyModel(FreqTableModel& source, QObject* parent)
    : QAbstractProxyModel(parent)
    , m_source(source)
{
    setSourceModel(&source);
    connect(&source, &QAbstractItemModel::modelAboutToBeReset, this, [this] { beginResetModel(); });
    connect(&source, &QAbstractItemModel::modelReset, this, [this] {
        m_keys.clear();
        m_sourceRows.clear();
        m_rows.clear();
        endResetModel();
    });
}

QModelIndex FreqSortProxyModel::index(int row, int column, const QModelIndex& parent) const
{
    return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
}

QModelIndex FreqSortProxyModel::parent(const QModelIndex& /*child*/) const
{
    return {};
}

int FreqSortProxyModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_source.rowCount();
}

int FreqSortProxyModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_source.columnCount();
}

int FreqSortProxyModel::sourceRow(int row) const
{
    return m_sourceRows.empty() ? row
                                : static_cast<int>(m_sourceRows[static_cast<std::size_t>(row)]);
}

QModelIndex FreqSortProxyModel::mapToSource(const QModelIndex& proxyIndex) const
{
    return proxyIndex.isValid() ? m_source.index(sourceRow(proxyIndex.row()), proxyIndex.column())
                                : QModelIndex();
}

QModelIndex FreqSortProxyModel::mapFromSource(const QModelIndex& sourceIndex) const
{
    if (!sourceIndex.isValid()) {
        return {};
    }
    const auto row = static_cast<std::size_t>(sourceIndex.row());
    return index(m_rows.empty() ? sourceIndex.row() : static_cast<int>(m_rows[row]),
                 sourceIndex.column());
}

/// A column has a name also where there is no row; a row keeps its number.
QVariant FreqSortProxyModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isRow = orientation == Qt::Vertical && section >= 0 && section < rowCount();
    return m_source.headerData(isRow ? sourceRow(section) : section, orientation, role);
}

const std::vector<std::uint64_t>& FreqSortProxyModel::keysOf(int column)
{
    m_keys.resize(static_cast<std::size_t>(columnCount()));
    std::vector<std::uint64_t>& keys = m_keys.at(static_cast<std::size_t>(column));
    if (keys.empty()) {
        keys = m_source.sortKeys(column);
    }
    return keys;
}

FreqSortProxyModel::Rows FreqSortProxyModel::sorted(int column, Qt::SortOrder order)
{
    const std::vector<std::uint64_t>& keys = keysOf(column);
    std::vector<RankedRow> entries(keys.size());
    for (std::size_t row = 0; row < keys.size(); ++row) {
        const std::uint64_t key = order == Qt::AscendingOrder ? keys[row] : ~keys[row];
        entries[row] = {key, static_cast<std::uint32_t>(row)};
    }
    radixSort(entries);
    Rows rows(entries.size());
    std::transform(entries.begin(), entries.end(), rows.begin(),
                   [](const RankedRow& entry) { return entry.row; });
    return rows;
}

void FreqSortProxyModel::sort(int column, Qt::SortOrder order)
{
    Rows sourceRows = column < 0 || column >= columnCount() ? Rows() : sorted(column, order);
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList sources;
    for (const QModelIndex& index : before) {
        sources << mapToSource(index);
    }
    m_sourceRows = std::move(sourceRows);
    m_rows.resize(m_sourceRows.size());
    for (std::size_t row = 0; row < m_sourceRows.size(); ++row) {
        m_rows[m_sourceRows[row]] = static_cast<std::uint32_t>(row);
    }
    QModelIndexList after;
    for (const QModelIndex& source : sources) {
        after << mapFromSource(source);
    }
    changePersistentIndexList(before, after);
    emit layoutChanged({}, VerticalSortHint);
}

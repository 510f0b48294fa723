#pragma once

#include <QAbstractProxyModel>

#include <cstdint>
#include <vector>

class FreqTableModel;

/// The rows of a list of frequencies in the order of one of its columns. The keys of a column are
/// made once for a list, and sorting moves row numbers, so that a million rows take no time to
/// speak of.
class FreqSortProxyModel : public QAbstractProxyModel
{
    Q_OBJECT

public:
    /// @param source  outlives the proxy
    explicit FreqSortProxyModel(FreqTableModel& source, QObject* parent = nullptr);

    [[nodiscard]] QModelIndex index(int row, int column,
                                    const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& child) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex mapToSource(const QModelIndex& proxyIndex) const override;
    [[nodiscard]] QModelIndex mapFromSource(const QModelIndex& sourceIndex) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    /// Sorts by a column, -1 for the order of the values.
    void sort(int column, Qt::SortOrder order) override;

    [[nodiscard]] int sourceRow(int row) const;

private:
    using Rows = std::vector<std::uint32_t>;

    [[nodiscard]] const std::vector<std::uint64_t>& keysOf(int column);
    [[nodiscard]] Rows sorted(int column, Qt::SortOrder order);

    FreqTableModel& m_source;
    std::vector<std::vector<std::uint64_t>> m_keys;  ///< of each column, empty until asked for
    Rows m_sourceRows;  ///< of each row; empty in the order of the source
    Rows m_rows;  ///< of each row of the source
};

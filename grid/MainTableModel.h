#pragma once

#include "analysis/RowSorter.h"

#include <QAbstractTableModel>

#include <cstdint>
#include <span>

class OpenDataset;
class StatDataset;

/// What the horizontal header shows; its tool tips show the other.
enum class HeaderMode : std::uint32_t
{
    VariableNames = 0,
    VariableLabels = 1,
};

/// The cells of one dataset: a row for each observation, in the order of the row map, and a column
/// for each variable, in the dataset's own order. Hiding and moving is left to the view. Every
/// change is published as a full reset, and only when something has changed.
class MainTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// @param opened  outlives the model
    explicit MainTableModel(OpenDataset* opened, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index,
                                int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

    [[nodiscard]] OpenDataset* opened() const { return m_opened; }
    [[nodiscard]] HeaderMode headerMode() const { return m_headerMode; }
    void setHeaderMode(HeaderMode mode);

    /// The observation that the row shows.
    [[nodiscard]] int observationAt(int row) const;
    /// The row that shows the observation, -1 for one that does not exist. Linear in the rows.
    [[nodiscard]] int rowOf(int observation) const;
    /// The observation of each row; holds every observation exactly once.
    [[nodiscard]] std::span<const std::uint32_t> rowMap() const;

public slots:  // NOLINT(readability-redundant-access-specifiers): moc reads it
    /// Sorts all rows by the keys; see rowsorter for their order.
    void sortRows(const SortKeys& keys);
    /// Returns to the dataset's order.
    void resetSort();

private:
    OpenDataset* m_opened;
    const StatDataset* m_dataset;
    HeaderMode m_headerMode = HeaderMode::VariableNames;
};

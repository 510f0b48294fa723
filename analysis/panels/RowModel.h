#pragma once

#include <QAbstractTableModel>

#include <vector>

class OpenDataset;

/// One observation: a row for each variable that is shown, in the order of the columns, with its
/// name, label and value.
class RowModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// @param opened       outlives the model or its next call; null for none
    /// @param observation  -1 for none
    void showObservation(const OpenDataset* opened, int observation);
    /// The row of a variable, -1 for one that is not shown.
    [[nodiscard]] int rowOf(int variable) const;
    /// The variable of a row, -1 for none.
    [[nodiscard]] int variableAt(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index,
                                int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

private:
    const OpenDataset* m_opened = nullptr;
    int m_observation = -1;
    std::vector<int> m_variables;
};

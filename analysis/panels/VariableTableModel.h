#pragma once

#include <QAbstractTableModel>

class OpenDataset;

/// The variables of one dataset, a row each, in the dataset's order. Whether a variable is shown is
/// the dataset's to say; a check box in the first column tells and changes it.
class VariableTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// The columns behind the check box have the numbers of VariableAttribute.
    static constexpr int shownColumn = 0;
    static constexpr int lengthColumn = 3;

    using QAbstractTableModel::QAbstractTableModel;

    /// @param opened  outlives the model or its next one; null for no rows and columns
    void setOpened(OpenDataset* opened);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

signals:
    /// A check box of this model has hidden or shown a variable.
    void signalVarHideUnhide(int row);

private:
    OpenDataset* m_opened = nullptr;
};

#pragma once

#include "analysis/Frequencies.h"
#include "grid/filter/QuickFilter.h"

#include <QAbstractTableModel>

#include <cstdint>
#include <optional>
#include <vector>

/// A list of frequencies in the order of its values: a column for each variable and one for the
/// counts. What it shows belongs to others, who give it another list or none before it goes.
class FreqTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// The name of the variable that identifies a subject, for the next list.
    void setUniqueVarName(const QString& name) { m_nextUniqueVarName = name; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

    [[nodiscard]] bool hasList() const { return m_frequencies != nullptr; }
    /// The variable of a column, -1 for the counts.
    [[nodiscard]] int variableOf(int column) const;
    [[nodiscard]] int countColumn() const { return columnCount() - 1; }
    [[nodiscard]] QString getCellTextQstr(int row, int column) const;
    /// The number that the cell is sorted by; nothing where its text is what counts.
    [[nodiscard]] std::optional<double> numericSortKey(int row, int column) const;
    /// @see frequencies::sortKeys
    [[nodiscard]] std::vector<std::uint64_t> sortKeys(int column) const;
    /// The value of a variable's column as filters take it.
    [[nodiscard]] QuickFilter::Value filterValue(int row, int column) const;
    [[nodiscard]] int countOf(int row) const;
    [[nodiscard]] int largestCount() const { return m_largestCount; }
    /// All counts together.
    [[nodiscard]] std::int64_t sum() const { return m_sum; }

public slots:  // NOLINT(readability-redundant-access-specifiers): moc reads it
    /// @param vectorFrequency  null, with no dataset, for an empty list
    /// @param m_bFrequencyN    whether distinct subjects are counted
    void updateSetFrequency(std::vector<WordsAndCounts>* vectorFrequency,
                            std::vector<int> variableNo, StatDataset* dataset, bool m_bFrequencyN);

private:
    [[nodiscard]] const FreqValue& valueAt(int row, int column) const;
    [[nodiscard]] QString headerText(int column) const;
    [[nodiscard]] QString toolTip(int column) const;

    const std::vector<WordsAndCounts>* m_frequencies = nullptr;
    std::vector<int> m_variables;
    const StatDataset* m_dataset = nullptr;
    bool m_frequencyN = false;
    QString m_uniqueVarName;
    QString m_nextUniqueVarName = QStringLiteral("USUBJID");
    int m_largestCount = 0;
    std::int64_t m_sum = 0;
};

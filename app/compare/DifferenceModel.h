#pragma once

#include "analysis/comparison/ComparedTexts.h"
#include "analysis/comparison/DifferenceRows.h"

#include <QAbstractTableModel>

#include <memory>

/// The differences of a comparison as a table: what each row is, its observation's number and ID
/// values, and a column for each variable that is shown. Rows cost nothing until they are painted.
/// Every change is published as a full reset, and only when something has changed.
class DifferenceModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using Line = comparison::DifferenceRows::Line;
    using Place = comparison::DifferenceRows::Place;

    enum LeadingColumn
    {
        LineColumn,
        ObservationColumn,
        FirstId,
    };

    /// What painting needs to know of a cell.
    struct Cell
    {
        Line line;
        bool isLeading;  ///< before the columns of the variables
        bool isUnequal;
        bool isText;
        bool isOddGroup;
        bool endsGroup;
    };

    explicit DifferenceModel(std::shared_ptr<const comparison::Comparison> comparison,
                             QObject* parent = nullptr);

    [[nodiscard]] const comparison::Comparison& comparison() const { return *m_comparison; }
    [[nodiscard]] const comparison::DifferenceRows& rows() const { return m_rows; }
    [[nodiscard]] const comparison::DifferenceFilter& filter() const { return m_filter; }
    void setFilter(const comparison::DifferenceFilter& filter);

    [[nodiscard]] int leadingColumns() const;
    [[nodiscard]] Cell cell(const QModelIndex& index) const;
    /// Both texts of the values that a cell of the lines for base and compare belongs to.
    [[nodiscard]] comparison::ValueTexts texts(const QModelIndex& index) const;
    /// Where the index stands among the differences.
    [[nodiscard]] Place placeOf(const QModelIndex& index) const;
    /// The cell of a place in a line; in the first one where the group has no such line.
    [[nodiscard]] QModelIndex indexOf(const Place& place, Line line) const;
    /// The observations of a row, from 0; -1 on a side that has none.
    [[nodiscard]] std::pair<int, int> observationsOf(int row) const;
    /// The variables of a column, -1 where it has none.
    [[nodiscard]] std::pair<int, int> variablesOf(int column) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    [[nodiscard]] static QString lineText(Line line);
    [[nodiscard]] QString text(const QModelIndex& index) const;
    [[nodiscard]] QString leadingText(const QModelIndex& index, Line line,
                                      const comparison::ObservationPair& pair) const;
    [[nodiscard]] QString valueText(std::size_t group, Line line, int column) const;
    [[nodiscard]] QString differenceText(std::size_t group, Line line, int column) const;
    [[nodiscard]] QString tip(const QModelIndex& index) const;
    [[nodiscard]] QString accessibleText(const QModelIndex& index) const;
    [[nodiscard]] QString title(int column) const;
    [[nodiscard]] QString titleTip(int column) const;
    [[nodiscard]] int alignmentOf(int column) const;
    [[nodiscard]] const comparison::VariablePair& id(int column) const
    {
        return m_comparison->variables().id[static_cast<std::size_t>(column - FirstId)];
    }
    [[nodiscard]] const comparison::ComparedVariable& variable(int column) const
    {
        return m_rows.variable(column - leadingColumns());
    }

    std::shared_ptr<const comparison::Comparison> m_comparison;
    comparison::DifferenceFilter m_filter;
    comparison::DifferenceRows m_rows;
};

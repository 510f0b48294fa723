#include "analysis/panels/RowModel.h"

#include "data/StatDataset.h"
#include "grid/opened/OpenDataset.h"

#include <algorithm>

namespace {

enum Column
{
    Variable,
    Label,
    Value,
    ColumnCount
};

std::vector<int> shownVariables(const OpenDataset& opened)
{
    std::vector<int> variables = opened.variables().order();
    std::erase_if(variables, [&](int variable) { return !opened.variables().isShown(variable); });
    return variables;
}

}  // namespace

void RowModel::showObservation(const OpenDataset* opened, int observation)
{
    const bool isAny = opened != nullptr && observation >= 0;
    std::vector<int> variables = isAny ? shownVariables(*opened) : std::vector<int>();
    if (opened != m_opened || variables != m_variables) {
        beginResetModel();
        m_opened = opened;
        m_observation = observation;
        m_variables.swap(variables);
        endResetModel();
    } else if (observation != m_observation) {
        m_observation = observation;
        emit headerDataChanged(Qt::Horizontal, Value, Value);
        if (!m_variables.empty()) {
            emit dataChanged(index(0, Value), index(rowCount() - 1, Value));
        }
    }
}

int RowModel::rowOf(int variable) const
{
    const auto found = std::find(m_variables.begin(), m_variables.end(), variable);
    return found == m_variables.end() ? -1 : static_cast<int>(found - m_variables.begin());
}

int RowModel::variableAt(int row) const
{
    return row < 0 || row >= rowCount() ? -1 : m_variables[static_cast<std::size_t>(row)];
}

int RowModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_variables.size());
}

int RowModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant RowModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
        return {};
    }
    const int variable = variableAt(index.row());
    const StatDataset& dataset = m_opened->dataset();
    switch (index.column()) {
    case Variable:
        return m_opened->nameOf(variable);
    case Label:
        return QString::fromStdString(dataset.labels()[static_cast<std::size_t>(variable)]);
    default:
        return QString::fromStdString(dataset.cellText(m_observation, variable));
    }
}

QVariant RowModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case Variable:
        return tr("Variable");
    case Label:
        return tr("Label");
    case Value:
        return m_observation < 0 ? tr("Value")
                                 : tr("Value in observation %1").arg(m_observation + 1);
    default:
        return {};
    }
}

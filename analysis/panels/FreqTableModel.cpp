#include "analysis/panels/FreqTableModel.h"

#include <algorithm>
#include <limits>

void FreqTableModel::updateSetFrequency(std::vector<WordsAndCounts>* vectorFrequency,
                                        std::vector<int> variableNo, StatDataset* dataset,
                                        bool m_bFrequencyN)
{
    beginResetModel();
    m_frequencies = vectorFrequency;
    m_variables = std::move(variableNo);
    m_dataset = dataset;
    m_frequencyN = m_bFrequencyN;
    m_uniqueVarName = m_nextUniqueVarName;
    m_largestCount = 0;
    m_sum = 0;
    for (int row = 0; row < rowCount(); ++row) {
        m_largestCount = std::max(m_largestCount, countOf(row));
        m_sum += countOf(row);
    }
    endResetModel();
}

int FreqTableModel::rowCount(const QModelIndex& parent) const
{
    return !hasList() || parent.isValid() ? 0 : static_cast<int>(m_frequencies->size());
}

int FreqTableModel::columnCount(const QModelIndex& parent) const
{
    return !hasList() || parent.isValid() ? 0 : static_cast<int>(m_variables.size()) + 1;
}

int FreqTableModel::variableOf(int column) const
{
    return column < 0 || column >= countColumn() ? -1
                                                 : m_variables[static_cast<std::size_t>(column)];
}

int FreqTableModel::countOf(int row) const
{
    return (*m_frequencies)[static_cast<std::size_t>(row)].count;
}

const FreqValue& FreqTableModel::valueAt(int row, int column) const
{
    const WordsAndCounts& entry = (*m_frequencies)[static_cast<std::size_t>(row)];
    return entry.values.at(static_cast<std::size_t>(column));
}

QVariant FreqTableModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const int variable = variableOf(index.column());
    if (role == Qt::DisplayRole) {
        return variable < 0 ? QVariant(countOf(index.row()))
                            : QVariant(getCellTextQstr(index.row(), index.column()));
    }
    if (role == Qt::TextAlignmentRole) {
        const bool isRight = variable < 0
            || m_dataset->typeCodes()[static_cast<std::size_t>(variable)] != TypeCode::Character;
        return QVariant::fromValue((isRight ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    return {};
}

QString FreqTableModel::getCellTextQstr(int row, int column) const
{
    const int variable = variableOf(column);
    return variable < 0 ? QString::number(countOf(row))
                        : QString::fromStdString(
                            frequencies::displayText(*m_dataset, variable, valueAt(row, column)));
}

QVariant FreqTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) {
        return role == Qt::DisplayRole ? QVariant(QStringLiteral("%1").arg(section + 1))
                                       : QVariant();
    }
    if (section < 0 || section >= columnCount()) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return headerText(section);
    case Qt::ToolTipRole:
        return toolTip(section);
    default:
        return {};
    }
}

QString FreqTableModel::headerText(int column) const
{
    const int variable = variableOf(column);
    if (variable >= 0) {
        return QString::fromStdString(m_dataset->names()[static_cast<std::size_t>(variable)]);
    }
    return m_frequencyN ? tr("Freq (%1)").arg(m_uniqueVarName) : tr("Frequency");
}

QString FreqTableModel::toolTip(int column) const
{
    const int variable = variableOf(column);
    if (variable >= 0) {
        return QString::fromStdString(m_dataset->labels()[static_cast<std::size_t>(variable)]);
    }
    // The usual name, whatever the name in use is.
    return m_frequencyN ? QStringLiteral("Freq (USUBJID)") : tr("Frequency");
}

std::optional<double> FreqTableModel::numericSortKey(int row, int column) const
{
    const int variable = variableOf(column);
    if (variable < 0 || !m_dataset->isNumeric(variable)) {
        return std::nullopt;
    }
    const auto* number = std::get_if<double>(&valueAt(row, column));
    return number == nullptr ? std::nullopt : std::optional(*number);
}

std::vector<std::uint64_t> FreqTableModel::sortKeys(int column) const
{
    return hasList() ? frequencies::sortKeys(*m_dataset, *m_frequencies, m_variables,
                                             static_cast<std::size_t>(column))
                     : std::vector<std::uint64_t>();
}

QuickFilter::Value FreqTableModel::filterValue(int row, int column) const
{
    const FreqValue& value = valueAt(row, column);
    if (const auto* text = std::get_if<std::string_view>(&value)) {
        return std::string(*text);
    }
    const auto* number = std::get_if<double>(&value);
    return number == nullptr ? std::numeric_limits<double>::quiet_NaN() : *number;
}

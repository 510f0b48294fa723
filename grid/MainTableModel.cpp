#include "grid/MainTableModel.h"

#include "data/StatDataset.h"
#include "grid/opened/OpenDataset.h"

#include <algorithm>

namespace {

constexpr Qt::Alignment textAlignment = Qt::AlignLeft | Qt::AlignVCenter;
constexpr Qt::Alignment numberAlignment = Qt::AlignRight | Qt::AlignVCenter;

}  // namespace

MainTableModel::MainTableModel(OpenDataset* opened, QObject* parent)
    : QAbstractTableModel(parent)
    , m_opened(opened)
    , m_dataset(&opened->dataset())
{
    connect(opened, &OpenDataset::signalRowsAboutToChange, this, &MainTableModel::beginResetModel);
    connect(opened, &OpenDataset::signalRowsChanged, this, &MainTableModel::endResetModel);
}

std::span<const std::uint32_t> MainTableModel::rowMap() const
{
    return m_opened->rowMap();
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
        const bool shown = role == Qt::DisplayRole && entry < rowMap().size();
        return shown ? QVariant(QString::number(std::int64_t{rowMap()[entry]} + 1)) : QVariant();
    }
    if (section >= m_dataset->variableCount()) {
        return {};
    }
    const bool namesAreShown = m_headerMode == HeaderMode::VariableNames;
    const bool wantsName = namesAreShown == (role == Qt::DisplayRole);
    const QString text =
        QString::fromStdString(wantsName ? m_dataset->names()[entry] : m_dataset->labels()[entry]);
    const QString origin = role == Qt::ToolTipRole
        ? QString::fromStdString(m_dataset->variableOrigin(section))
        : QString();
    return origin.isEmpty() || text.isEmpty() ? text + origin : text + u'\n' + origin;
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
    return static_cast<int>(rowMap()[static_cast<std::size_t>(row)]);
}

int MainTableModel::rowOf(int observation) const
{
    const auto rows = rowMap();
    const auto found = std::find(rows.begin(), rows.end(), static_cast<std::uint32_t>(observation));
    return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

void MainTableModel::sortRows(const SortKeys& keys)
{
    m_opened->sortBy(keys);
}

void MainTableModel::resetSort()
{
    m_opened->sortBy({});
}

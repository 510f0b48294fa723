#include "analysis/panels/VariableTableModel.h"

#include "grid/opened/OpenDataset.h"

namespace {

constexpr int columns = static_cast<int>(VariableAttribute::Label) + 1;

}  // namespace

void VariableTableModel::setOpened(OpenDataset* opened)
{
    beginResetModel();
    if (m_opened != nullptr) {
        disconnect(m_opened, nullptr, this, nullptr);
    }
    m_opened = opened;
    if (m_opened != nullptr) {
        connect(m_opened, &OpenDataset::signalVariablesChanged, this, [this] {
            emit dataChanged(index(0, shownColumn), index(rowCount() - 1, shownColumn),
                             {Qt::CheckStateRole});
        });
    }
    endResetModel();
}

int VariableTableModel::rowCount(const QModelIndex& parent) const
{
    return m_opened == nullptr || parent.isValid() ? 0 : m_opened->dataset().variableCount();
}

int VariableTableModel::columnCount(const QModelIndex& parent) const
{
    return m_opened == nullptr || parent.isValid() ? 0 : columns;
}

QVariant VariableTableModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    switch (role) {
    case Qt::CheckStateRole:
        return index.column() == shownColumn
            ? QVariant(m_opened->variables().isShown(index.row()) ? Qt::Checked : Qt::Unchecked)
            : QVariant();
    case Qt::DisplayRole:
        return QString::fromStdString(m_opened->dataset().variableAttribute(
            index.row(), static_cast<VariableAttribute>(index.column())));
    case Qt::TextAlignmentRole:
        return QVariant::fromValue((index.column() == lengthColumn ? Qt::AlignRight : Qt::AlignLeft)
                                   | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant VariableTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || section < 0) {
        return {};
    }
    if (orientation == Qt::Vertical) {
        return QStringLiteral("%1").arg(section + 1);
    }
    const QStringList names{QString(),    tr("Variable"), tr("Type"), tr("Length"),
                            tr("Format"), tr("Informat"), tr("Label")};
    return names.value(section);
}

bool VariableTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (index.column() != shownColumn || role != Qt::CheckStateRole
        || !checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return QAbstractTableModel::setData(index, value, role);
    }
    m_opened->setShown({{index.row()}}, value.toInt() != Qt::Unchecked);
    emit signalVarHideUnhide(index.row());
    return true;
}

Qt::ItemFlags VariableTableModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags usual = QAbstractTableModel::flags(index);
    return index.isValid() && index.column() == shownColumn ? usual | Qt::ItemIsUserCheckable
                                                            : usual;
}

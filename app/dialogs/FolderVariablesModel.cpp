#include "app/dialogs/FolderVariablesModel.h"

#include <QFont>

#include <array>
#include <optional>
#include <utility>

using foldervariables::Attribute;
using foldervariables::Variable;

namespace {

/// The attribute that a column shows; nothing for the others.
std::optional<Attribute> attributeOf(int column)
{
    switch (column) {
    case FolderVariablesModel::Type:
        return Attribute::Type;
    case FolderVariablesModel::Length:
        return Attribute::Length;
    case FolderVariablesModel::Format:
        return Attribute::Format;
    case FolderVariablesModel::Label:
        return Attribute::Label;
    default:
        return std::nullopt;
    }
}

}  // namespace

void FolderVariablesModel::setContents(foldervariables::Contents contents)
{
    beginResetModel();
    m_contents = std::move(contents);
    endResetModel();
}

int FolderVariablesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_contents.variables.size());
}

int FolderVariablesModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : Columns;
}

QVariant FolderVariablesModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const Variable& row = variable(index.row());
    const int column = index.column();
    const auto attribute = attributeOf(column);
    switch (role) {
    case sortRole:
        return column == Length ? QVariant(text(row, column).toInt()) : text(row, column);
    case Qt::DisplayRole:
        return text(row, column);
    case Qt::ToolTipRole:
        return tip(row, column);
    case Qt::FontRole:
        if (attribute && row.isDifferent(*attribute)) {
            QFont font;
            font.setBold(true);
            return font;
        }
        return {};
    case Qt::TextAlignmentRole:
        return QVariant::fromValue((column == Length ? Qt::AlignRight : Qt::AlignLeft)
                                   | Qt::AlignVCenter);
    default:
        return {};
    }
}

QString FolderVariablesModel::text(const Variable& variable, int column)
{
    if (column == Type) {
        return variable.text(Attribute::Type) == "Numeric" ? tr("Numeric") : tr("Character");
    }
    if (const auto attribute = attributeOf(column)) {
        return QString::fromStdString(variable.text(*attribute));
    }
    if (column == Dataset || column == Name) {
        return QString::fromStdString(column == Name ? variable.name : variable.dataset);
    }
    const std::array<std::pair<Attribute, QString>, foldervariables::attributeCount> words{
        {{Attribute::Type, tr("type")},
         {Attribute::Length, tr("length")},
         {Attribute::Format, tr("format")},
         {Attribute::Label, tr("label")}}};
    QStringList differences;
    for (const auto& [attribute, word] : words) {
        if (variable.isDifferent(attribute)) {
            differences << word;
        }
    }
    return differences.join(QStringLiteral(", "));
}

/// Which datasets have which value, where that differs; the file of a dataset.
QString FolderVariablesModel::tip(const Variable& variable, int column) const
{
    const auto attribute = attributeOf(column);
    if (attribute && variable.isDifferent(*attribute)) {
        return QString::fromStdString(foldervariables::valuesOf(m_contents, variable, *attribute));
    }
    return column == Dataset ? variable.path.section(u'/', -1) : text(variable, column);
}

QVariant FolderVariablesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || section < 0) {
        return {};
    }
    if (orientation == Qt::Vertical) {
        return section + 1;
    }
    const QStringList titles{tr("Dataset"), tr("Variable"), tr("Type"),   tr("Length"),
                             tr("Format"),  tr("Label"),    tr("Differs")};
    return titles.value(section);
}

FolderVariablesFilter::FolderVariablesFilter(QObject* parent)
    : QSortFilterProxyModel(parent)
{
    setFilterKeyColumn(-1);
    setFilterCaseSensitivity(Qt::CaseInsensitive);
    setSortCaseSensitivity(Qt::CaseInsensitive);
    setSortRole(FolderVariablesModel::sortRole);
}

void FolderVariablesFilter::setText(const QString& text)
{
    setFilterFixedString(text.trimmed());
}

void FolderVariablesFilter::setOnlyDifferent(bool isOnly)
{
    m_isOnlyDifferent = isOnly;
    invalidateFilter();
}

bool FolderVariablesFilter::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    const auto* model = qobject_cast<const FolderVariablesModel*>(sourceModel());
    return (!m_isOnlyDifferent || model->variable(row).isDifferent())
        && QSortFilterProxyModel::filterAcceptsRow(row, parent);
}

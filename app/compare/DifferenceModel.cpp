#include "app/compare/DifferenceModel.h"

#include "data/StoredValue.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <limits>

using comparison::ComparedVariable;
using comparison::NumberDifference;
using comparison::ObservationPair;
using comparison::ValueTexts;

namespace {

bool belongsToCompare(DifferenceModel::Line line)
{
    return line == DifferenceModel::Line::Compare || line == DifferenceModel::Line::CompareOnly;
}

bool showsDifferences(DifferenceModel::Line line)
{
    return line == DifferenceModel::Line::Difference || line == DifferenceModel::Line::Percent;
}

/// A difference of doubles has digits behind these that neither value has.
QString differenceOf(double number)
{
    return QString::fromStdString(std::isnan(number) ? "." : fmt::format("{:.10g}", number));
}

QString percentOf(double number)
{
    return QString::fromStdString(std::isnan(number) ? "." : fmt::format("{:.4g}", number));
}

/// The beginning of a text, as long as a tool tip may be.
QString beginning(const std::string& text)
{
    constexpr qsizetype longest = 1000;
    const QString whole = QString::fromStdString(text);
    return whole.size() <= longest ? whole : whole.first(longest) + QChar(0x2026);
}

/// What a tool tip shows as it stands.
QString asPlainText(const QString& text)
{
    return QStringLiteral("<p style='white-space:pre-wrap'>%1</p>").arg(text.toHtmlEscaped());
}

std::string storedText(const StatDataset& dataset, std::uint32_t observation, int variable)
{
    return storedvalue::text(dataset, static_cast<int>(observation), variable);
}

}  // namespace

DifferenceModel::DifferenceModel(std::shared_ptr<const comparison::Comparison> comparison,
                                 QObject* parent)
    : QAbstractTableModel(parent)
    , m_comparison(std::move(comparison))
    , m_rows(*m_comparison, m_filter)
{ }

void DifferenceModel::setFilter(const comparison::DifferenceFilter& filter)
{
    if (filter == m_filter) {
        return;
    }
    beginResetModel();
    m_filter = filter;
    m_rows = comparison::DifferenceRows(*m_comparison, m_filter);
    endResetModel();
}

// Places

int DifferenceModel::leadingColumns() const
{
    return FirstId + static_cast<int>(m_comparison->variables().id.size());
}

DifferenceModel::Cell DifferenceModel::cell(const QModelIndex& index) const
{
    const auto row = static_cast<std::size_t>(index.row());
    const auto [group, line] = m_rows.row(row);
    const bool isLeading = index.column() < leadingColumns();
    return {line,
            isLeading,
            !isLeading && m_rows.isUnequal(group, index.column() - leadingColumns()),
            !isLeading && !variable(index.column()).isNumeric,
            group % 2 == 1,
            row + 1 == m_rows.firstRow(group + 1)};
}

ValueTexts DifferenceModel::texts(const QModelIndex& index) const
{
    const std::size_t group = m_rows.row(static_cast<std::size_t>(index.row())).group;
    return cellTexts(*m_comparison, variable(index.column()), m_rows.pair(group),
                     m_rows.isUnequal(group, index.column() - leadingColumns()));
}

DifferenceModel::Place DifferenceModel::placeOf(const QModelIndex& index) const
{
    return {
        m_rows.row(static_cast<std::size_t>(index.row())).group,
        std::max(index.column() - leadingColumns(), comparison::DifferenceRows::wholeObservation)};
}

QModelIndex DifferenceModel::indexOf(const Place& place, Line line) const
{
    const std::size_t first = m_rows.firstRow(place.group);
    const std::size_t end = m_rows.firstRow(place.group + 1);
    std::size_t row = first;
    while (row < end && m_rows.row(row).line != line) {
        ++row;
    }
    const bool isWhole = place.column == comparison::DifferenceRows::wholeObservation;
    return index(static_cast<int>(row < end ? row : first),
                 isWhole ? int(LineColumn) : leadingColumns() + place.column);
}

std::pair<int, int> DifferenceModel::observationsOf(int row) const
{
    const ObservationPair& pair = m_rows.pair(m_rows.row(static_cast<std::size_t>(row)).group);
    const auto number = [](std::uint32_t observation) {
        return observation == comparison::noObservation ? -1 : static_cast<int>(observation);
    };
    return {number(pair.base), number(pair.compare)};
}

std::pair<int, int> DifferenceModel::variablesOf(int column) const
{
    if (column < FirstId) {
        return {-1, -1};
    }
    const comparison::VariablePair& pair =
        column < leadingColumns() ? id(column) : variable(column).variables;
    return {pair.base, pair.compare};
}

// Cells

int DifferenceModel::rowCount(const QModelIndex& parent) const
{
    constexpr std::size_t most = std::numeric_limits<int>::max();
    return parent.isValid() ? 0 : static_cast<int>(std::min(m_rows.rowCount(), most));
}

int DifferenceModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : leadingColumns() + static_cast<int>(m_rows.variables().size());
}

QVariant DifferenceModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return text(index);
    case Qt::TextAlignmentRole:
        return alignmentOf(index.column());
    case Qt::ToolTipRole:
        return tip(index);
    case Qt::AccessibleTextRole:
        return accessibleText(index);
    default:
        return {};
    }
}

QString DifferenceModel::lineText(Line line)
{
    switch (line) {
    case Line::Base:
        return tr("Base");
    case Line::Compare:
        return tr("Compare");
    case Line::Difference:
        return tr("Diff.");
    case Line::Percent:
        return tr("% Diff");
    case Line::BaseOnly:
        return tr("Only in base");
    case Line::CompareOnly:
        return tr("Only in compare");
    }
    return {};
}

QString DifferenceModel::text(const QModelIndex& index) const
{
    const auto [group, line] = m_rows.row(static_cast<std::size_t>(index.row()));
    if (index.column() < leadingColumns()) {
        return leadingText(index, line, m_rows.pair(group));
    }
    const int column = index.column() - leadingColumns();
    return showsDifferences(line) ? differenceText(group, line, column)
                                  : valueText(group, line, column);
}

QString DifferenceModel::leadingText(const QModelIndex& index, Line line,
                                     const ObservationPair& pair) const
{
    if (index.column() == LineColumn) {
        return lineText(line);
    }
    if (showsDifferences(line)) {
        return {};
    }
    if (index.column() == ObservationColumn) {
        return QString::number(qint64{belongsToCompare(line) ? pair.compare : pair.base} + 1);
    }
    return QString::fromStdString(idText(*m_comparison, id(index.column()), pair));
}

QString DifferenceModel::valueText(std::size_t group, Line line, int column) const
{
    const ObservationPair& pair = m_rows.pair(group);
    const ComparedVariable& variable = m_rows.variable(column);
    if (pair.isMatched()) {
        const ValueTexts texts =
            cellTexts(*m_comparison, variable, pair, m_rows.isUnequal(group, column));
        return QString::fromStdString(belongsToCompare(line) ? texts.compare : texts.base);
    }
    const bool isCompare = belongsToCompare(line);
    const StatDataset& dataset = isCompare ? m_comparison->compare() : m_comparison->base();
    return QString::fromStdString(
        dataset.cellText(static_cast<int>(isCompare ? pair.compare : pair.base),
                         isCompare ? variable.variables.compare : variable.variables.base));
}

/// Values that are equal within the criterion have a difference, too.
QString DifferenceModel::differenceText(std::size_t group, Line line, int column) const
{
    const ComparedVariable& variable = m_rows.variable(column);
    if (!variable.isNumeric) {
        return {};
    }
    const NumberDifference numbers = m_comparison->numbers(variable, m_rows.pair(group));
    const bool isSome = m_rows.isUnequal(group, column)
        || (!std::isnan(numbers.difference) && numbers.difference != 0);
    if (!isSome) {
        return {};
    }
    return line == Line::Difference ? differenceOf(numbers.difference) : percentOf(numbers.percent);
}

/// The values of a difference with all that the cells have no room for.
QString DifferenceModel::tip(const QModelIndex& index) const
{
    const auto [group, line] = m_rows.row(static_cast<std::size_t>(index.row()));
    const ObservationPair& pair = m_rows.pair(group);
    if (index.column() < leadingColumns()) {
        return pair.isMatched() ? asPlainText(beginning(observationText(*m_comparison, pair)))
                                : QString();
    }
    const ComparedVariable& variable = this->variable(index.column());
    if (!pair.isMatched() || !m_rows.isUnequal(group, index.column() - leadingColumns())) {
        return {};
    }
    const auto& [base, compare] = std::pair(variable.variables.base, variable.variables.compare);
    QString lines = QString::fromStdString(pairName(*m_comparison, variable.variables)) + u'\n'
        + tr("Base: %1").arg(beginning(storedText(m_comparison->base(), pair.base, base))) + u'\n'
        + tr("Compare: %1")
              .arg(beginning(storedText(m_comparison->compare(), pair.compare, compare)));
    if (variable.isNumeric) {
        const NumberDifference numbers = m_comparison->numbers(variable, pair);
        lines += u'\n'
            + (std::isnan(numbers.percent)
                   ? tr("Difference: %1").arg(differenceOf(numbers.difference))
                   : tr("Difference: %1 (%2 %)")
                         .arg(differenceOf(numbers.difference), percentOf(numbers.percent)));
    }
    return asPlainText(lines);
}

/// Says what others see by colours and marks.
QString DifferenceModel::accessibleText(const QModelIndex& index) const
{
    const QString shown = text(index);
    return cell(index).isUnequal ? tr("%1, differs").arg(shown) : shown;
}

int DifferenceModel::alignmentOf(int column) const
{
    const bool isNumber = column < FirstId
        ? column == ObservationColumn
        : m_comparison->base().isNumeric(variablesOf(column).first);
    return Qt::Alignment(isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

// Titles

QVariant DifferenceModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (section < 0 || orientation == Qt::Vertical || section >= columnCount()) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return title(section);
    case Qt::ToolTipRole:
        return titleTip(section);
    case Qt::TextAlignmentRole:
        return alignmentOf(section);
    default:
        return {};
    }
}

QString DifferenceModel::title(int column) const
{
    switch (column) {
    case LineColumn:
        return tr("Row");
    case ObservationColumn:
        return tr("Obs");
    default:
        const auto& pair = column < leadingColumns() ? id(column) : variable(column).variables;
        return QString::fromStdString(pairName(*m_comparison, pair));
    }
}

QString DifferenceModel::titleTip(int column) const
{
    if (column < FirstId) {
        return column == LineColumn ? QString() : tr("The number of the observation");
    }
    const auto base = static_cast<std::size_t>(variablesOf(column).first);
    const QString label = QString::fromStdString(m_comparison->base().labels()[base]);
    if (column < leadingColumns()) {
        return asPlainText(label);
    }
    const QString differences = tr("Unequal values: %L1").arg(variable(column).unequal.size());
    return asPlainText(label.isEmpty() ? differences : label + u'\n' + differences);
}

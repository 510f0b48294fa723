#include "app/log/LogModel.h"

#include <QGuiApplication>
#include <QPalette>

#include <algorithm>

namespace {

QString levelName(spdlog::level::level_enum level)
{
    switch (level) {
    case spdlog::level::trace:
        return LogModel::tr("Trace");
    case spdlog::level::debug:
        return LogModel::tr("Debug");
    case spdlog::level::warn:
        return LogModel::tr("Warning");
    case spdlog::level::err:
        return LogModel::tr("Error");
    case spdlog::level::critical:
        return LogModel::tr("Fatal");
    default:
        return LogModel::tr("Information");
    }
}

}  // namespace

LogModel::LogModel(int limit, QObject* parent)
    : QAbstractTableModel(parent)
    , m_limit(static_cast<std::size_t>(std::max(limit, 10)))
{ }

void LogModel::append(const LogRecord& record)
{
    if (m_records.size() == m_limit) {
        dropOldest();
    }
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_records.push_back(record);
    endInsertRows();
}

void LogModel::dropOldest()
{
    // Many at once: every removal at the front costs the filter a pass over all rows.
    const auto count = static_cast<std::ptrdiff_t>(m_limit / 10);
    beginRemoveRows({}, 0, static_cast<int>(count) - 1);
    m_records.erase(m_records.begin(), m_records.begin() + count);
    endRemoveRows();
}

void LogModel::clear()
{
    if (m_records.empty()) {
        return;
    }
    beginResetModel();
    m_records.clear();
    endResetModel();
}

QString LogModel::line(int row) const
{
    const LogRecord& record = m_records.at(static_cast<std::size_t>(row));
    return text(record, Time) + u'\t' + text(record, Level) + u'\t' + record.text;
}

int LogModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_records.size());
}

int LogModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString LogModel::text(const LogRecord& record, int column)
{
    switch (column) {
    case Time:
        return record.time.toString(QStringLiteral("HH:mm:ss.zzz"));
    case Level:
        return levelName(record.level);
    default:
        return QString(record.text).replace(u'\n', u' ');
    }
}

QVariant LogModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const LogRecord& record = m_records.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case Qt::DisplayRole:
        return text(record, index.column());
    case Qt::ToolTipRole:
        return index.column() == Message ? record.text : QVariant();
    case Qt::ForegroundRole:
        return record.level >= spdlog::level::err
            ? QVariant(QGuiApplication::palette().brush(QPalette::BrightText))
            : QVariant();
    case levelRole:
        return static_cast<int>(record.level);
    default:
        return {};
    }
}

QVariant LogModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    switch (section) {
    case Time:
        return tr("Time");
    case Level:
        return tr("Level");
    case Message:
        return tr("Message");
    default:
        return {};
    }
}

void LogLevelFilter::setLowestLevel(spdlog::level::level_enum level)
{
    if (level != m_lowestLevel) {
        m_lowestLevel = level;
        invalidateRowsFilter();
    }
}

bool LogLevelFilter::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    const QModelIndex index = sourceModel()->index(sourceRow, 0, sourceParent);
    return index.data(LogModel::levelRole).toInt() >= m_lowestLevel;
}

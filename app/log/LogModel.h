#pragma once

#include <spdlog/common.h>

#include <QAbstractTableModel>
#include <QDateTime>
#include <QSortFilterProxyModel>
#include <QString>

#include <deque>

/// One message of the log.
struct LogRecord
{
    QDateTime time;  ///< local
    spdlog::level::level_enum level = spdlog::level::info;
    QString text;
};

/// The messages of the log, the oldest first, as a table of time, level and text.
class LogModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Time,
        Level,
        Message,
        ColumnCount
    };
    /// The level as a number that grows with the weight of the message.
    static constexpr int levelRole = Qt::UserRole;

    /// @param limit  how many messages are kept, at least 10
    explicit LogModel(int limit = 10'000, QObject* parent = nullptr);

    /// Adds a message. When there is no room, the oldest tenth of all goes first.
    void append(const LogRecord& record);
    void clear();

    /// A row as one line of text, its parts separated by tabulators.
    [[nodiscard]] QString line(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    [[nodiscard]] static QString text(const LogRecord& record, int column);
    void dropOldest();

    std::deque<LogRecord> m_records;
    std::size_t m_limit;
};

/// Lets the messages of a level and those that weigh more through.
class LogLevelFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setLowestLevel(spdlog::level::level_enum level);

protected:
    [[nodiscard]] bool filterAcceptsRow(int sourceRow,
                                        const QModelIndex& sourceParent) const override;

private:
    spdlog::level::level_enum m_lowestLevel = spdlog::level::trace;
};

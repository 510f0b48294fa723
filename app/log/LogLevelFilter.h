#pragma once

#include <spdlog/common.h>

#include <QSortFilterProxyModel>

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

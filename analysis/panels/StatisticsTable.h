#pragma once

#include "analysis/Statistics.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTableWidget>

/// The table of the statistics that were made last, as a widget that can be put anywhere.
class StatisticsTable
{
    Q_DECLARE_TR_FUNCTIONS(StatisticsTable)

public:
    /// A message for the user.
    struct Message
    {
        QString title;
        QString text;
    };

    StatisticsTable() = default;
    ~StatisticsTable();
    StatisticsTable(const StatisticsTable&) = delete;
    StatisticsTable& operator=(const StatisticsTable&) = delete;

    void fillTable(const statistics::Table& contents);
    /// What the user is told when there are no statistics.
    [[nodiscard]] static Message messageOf(statistics::Problem problem);

    /// The table, owned by this object wherever it is put; null before the first result.
    [[nodiscard]] QTableWidget* table() const { return m_table; }

private:
    QPointer<QTableWidget> m_table;
};

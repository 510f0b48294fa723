#pragma once

#include "analysis/Statistics.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTableWidget>

/// The table of statistics that a grid has made last, as a widget that can be put anywhere.
class GridStatistics
{
    Q_DECLARE_TR_FUNCTIONS(GridStatistics)

public:
    /// A message for the user.
    struct Message
    {
        QString title;
        QString text;
    };

    GridStatistics() = default;
    ~GridStatistics();
    GridStatistics(const GridStatistics&) = delete;
    GridStatistics& operator=(const GridStatistics&) = delete;

    void fillTable(const statistics::Table& contents);
    /// What the user is told when there are no statistics.
    [[nodiscard]] static Message messageOf(statistics::Problem problem);

    /// The table, owned by this object wherever it is put; null before the first result.
    [[nodiscard]] QTableWidget* table() const { return m_table; }

private:
    QPointer<QTableWidget> m_table;
};

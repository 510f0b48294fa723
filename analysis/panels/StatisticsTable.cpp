#include "analysis/panels/StatisticsTable.h"

#include <QHeaderView>

namespace {

QTableWidget* createTable()
{
    auto* table = new QTableWidget;
    table->setObjectName(QStringLiteral("tableStatistics"));
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setAlternatingRowColors(true);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setHighlightSections(false);
    return table;
}

}  // namespace

StatisticsTable::~StatisticsTable()
{
    delete m_table;
}

void StatisticsTable::fillTable(const statistics::Table& contents)
{
    if (m_table == nullptr) {
        m_table = createTable();
    }
    QStringList labels;
    for (const std::string& text : contents.header) {
        labels << QString::fromStdString(text);
    }
    m_table->clear();
    m_table->setColumnCount(static_cast<int>(contents.header.size()));
    m_table->setRowCount(static_cast<int>(contents.rows.size()));
    m_table->setHorizontalHeaderLabels(labels);
    int row = 0;
    for (const std::vector<std::string>& texts : contents.rows) {
        int column = 0;
        for (const std::string& text : texts) {
            m_table->setItem(row, column, new QTableWidgetItem(QString::fromStdString(text)));
            ++column;
        }
        ++row;
    }
    m_table->resizeColumnsToContents();
}

StatisticsTable::Message StatisticsTable::messageOf(statistics::Problem problem)
{
    switch (problem) {
    case statistics::Problem::NoColumnSelected:
        return {tr("Descriptive Statistics"), tr("Please select at least one column.")};
    case statistics::Problem::NotNumeric:
        return {tr("Desciptive Stattistics"),  // sic
                tr("Selected variable is not numeric.")};
    case statistics::Problem::NoData:
        break;
    }
    return {tr("Desciptive Stattistics"),  // sic
            tr("No data available under current filters.")};
}

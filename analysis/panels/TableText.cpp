#include "analysis/panels/TableText.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QTableView>

#include <algorithm>
#include <set>

namespace tabletext {
namespace {

bool breaksTheTable(QChar letter)
{
    return letter == u'\t' || letter == u'\n' || letter == u'\r';
}

void append(QString& result, const QString& cell)
{
    const auto start = result.size();
    result += cell;
    std::replace_if(result.begin() + start, result.end(), breaksTheTable, u' ');
}

/// From left to right.
std::vector<int> columnsOf(const QItemSelection& selection, const QHeaderView& header)
{
    std::set<int> places;
    for (const QItemSelectionRange& range : selection) {
        for (int column = range.left(); column <= range.right(); ++column) {
            places.insert(header.visualIndex(column));
        }
    }
    std::vector<int> columns;
    std::transform(places.begin(), places.end(), std::back_inserter(columns),
                   [&](int place) { return header.logicalIndex(place); });
    return columns;
}

}  // namespace

QString text(const Cells& cells)
{
    QString result;
    for (const int row : cells.rows) {
        if (row != cells.rows.front()) {
            result += u'\n';
        }
        for (const int column : cells.columns) {
            if (column != cells.columns.front()) {
                result += u'\t';
            }
            append(result, cells.text(row, column));
        }
    }
    return result;
}

QString line(const QStringList& texts)
{
    QString result;
    for (const QString& text : texts) {
        if (&text != &texts.front()) {
            result += u'\t';
        }
        append(result, text);
    }
    return result;
}

std::vector<int> selectedRows(const QTableView& table)
{
    std::vector<int> rows;
    for (const QItemSelectionRange& range : table.selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            rows.push_back(row);
        }
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void copySelection(const QTableView& table)
{
    const QItemSelection selection = table.selectionModel()->selection();
    const std::vector<int> rows = selectedRows(table);
    const std::vector<int> columns = columnsOf(selection, *table.horizontalHeader());
    if (rows.empty()) {
        return;
    }
    const auto cellText = [&](int row, int column) {
        const QModelIndex index = table.model()->index(row, column);
        return selection.size() == 1 || selection.contains(index) ? index.data().toString()
                                                                  : QString();
    };
    QGuiApplication::clipboard()->setText(text({rows, columns, cellText}));
}

}  // namespace tabletext

#include "grid/GridCopy.h"

#include "grid/GridTable.h"
#include "grid/opened/OpenDataset.h"

#include <QStringList>

#include <algorithm>

namespace gridcopy {
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

QString ofSelection(const GridTable& grid, bool includeNames)
{
    const GridSelection selection = grid.selected();
    const std::vector<int> rows = selection.rows();
    const std::vector<int> variables = selection.variables();
    const auto cellText = [&](int row, int variable) {
        return selection.contains(row, variable)
            ? grid.model()->index(row, variable).data().toString()
            : QString();
    };
    const QString cells = text({rows, variables, cellText});
    return includeNames ? namesOf(grid, variables) + u'\n' + cells : cells;
}

QString namesOf(const GridTable& grid, std::span<const int> variables)
{
    QStringList names;
    std::transform(variables.begin(), variables.end(), std::back_inserter(names),
                   [&](int variable) { return grid.opened()->nameOf(variable); });
    return line(names);
}

}  // namespace gridcopy

#include "grid/GridCopy.h"

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

}  // namespace gridcopy

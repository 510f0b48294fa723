#include "grid/GridSelection.h"

#include "grid/opened/ShownVariables.h"
#include "grid/RowVisibility.h"

#include <algorithm>
#include <set>

GridSelection::GridSelection(QItemSelection selection, const ShownVariables& variables,
                             const RowVisibility& rows)
    : m_selection(std::move(selection))
    , m_variables(variables)
    , m_rows(rows)
{ }

std::vector<int> GridSelection::variables() const
{
    std::vector<int> result = m_variables.order();
    std::erase_if(result, [&](int variable) {
        return !m_variables.isShown(variable)
            || std::none_of(m_selection.begin(), m_selection.end(), [&](const auto& range) {
                   return range.left() <= variable && variable <= range.right();
               });
    });
    return result;
}

std::vector<int> GridSelection::rows() const
{
    return shownRows([](const QItemSelectionRange&) { return true; });
}

std::vector<int> GridSelection::rowsOf(int variable) const
{
    return shownRows([&](const QItemSelectionRange& range) {
        return range.left() <= variable && variable <= range.right();
    });
}

/// The shown rows of the ranges that are accepted.
template <typename Accepts>
std::vector<int> GridSelection::shownRows(Accepts accepts) const
{
    BitVector selected(m_rows.shown().size());
    for (const QItemSelectionRange& range : m_selection) {
        if (accepts(range) && range.isValid()) {
            selected.set(static_cast<std::size_t>(range.top()),
                         static_cast<std::size_t>(range.height()), true);
        }
    }
    selected &= m_rows.shown();
    std::vector<int> result;
    result.reserve(selected.count());
    for (auto row = selected.find_first(); row != BitVector::npos; row = selected.find_next(row)) {
        result.push_back(static_cast<int>(row));
    }
    return result;
}

bool GridSelection::contains(int row, int variable) const
{
    return std::any_of(m_selection.begin(), m_selection.end(), [&](const auto& range) {
        return range.contains(row, variable, QModelIndex());
    });
}

namespace gridselection {

std::vector<int> wholeColumns(const QItemSelection& selection, const RowVisibility& rows)
{
    const int bottom = static_cast<int>(rows.shown().size()) - 1;
    const bool areAllHidden = rows.shownCount() == 0;
    const int first = areAllHidden ? 0 : rows.nearestShown(0);
    const int last = areAllHidden ? bottom : rows.nearestShown(bottom);
    if (first == last) {
        return {};
    }
    std::set<int> columns;
    for (const QItemSelectionRange& range : selection) {
        if (range.top() <= first && range.bottom() >= last) {
            for (int column = range.left(); column <= range.right(); ++column) {
                columns.insert(column);
            }
        }
    }
    return {columns.begin(), columns.end()};
}

QItemSelection ofWholeColumns(const QAbstractItemModel& model, const std::vector<int>& columns)
{
    QItemSelection selection;
    for (std::size_t i = 0; i < columns.size();) {
        std::size_t end = i + 1;
        while (end < columns.size() && columns[end] == columns[end - 1] + 1) {
            ++end;
        }
        selection.select(model.index(0, columns[i]),
                         model.index(model.rowCount() - 1, columns[end - 1]));
        i = end;
    }
    return selection;
}

}  // namespace gridselection

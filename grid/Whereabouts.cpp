#include "grid/Whereabouts.h"

#include "grid/GridSelection.h"
#include "grid/MainTableModel.h"
#include "grid/RowVisibility.h"

#include <algorithm>

namespace whereabouts {
namespace {

/// Every cell that is painted is looked for in each of them.
constexpr qsizetype mostPieces = 2'000;

/// The row of every observation.
std::vector<int> rowsByObservation(const MainTableModel& model)
{
    const auto rowMap = model.rowMap();
    std::vector<int> rows(rowMap.size());
    for (std::size_t row = 0; row < rowMap.size(); ++row) {
        rows[rowMap[row]] = static_cast<int>(row);
    }
    return rows;
}

/// The observations of a range that count as selected.
std::vector<int> observationsOf(const QItemSelectionRange& range, const MainTableModel& model,
                                const RowVisibility& rows)
{
    const bool areAllHidden = rows.shownCount() == 0;
    std::vector<int> observations;
    for (int row = range.top(); row <= range.bottom(); ++row) {
        if (areAllHidden || rows.isShown(row)) {
            observations.push_back(model.observationAt(row));
        }
    }
    return observations;
}

/// Adds the rows, which are in order, as ranges that reach over hidden rows.
void select(QItemSelection& selection, const Whereabouts::Block& block,
            const std::vector<int>& rows, const MainTableModel& model, const RowVisibility& shown)
{
    for (std::size_t i = 0; i < rows.size() && selection.size() <= mostPieces;) {
        const std::size_t first = i++;
        while (i < rows.size() && !shown.isAnyShownBetween(rows[i - 1], rows[i])) {
            ++i;
        }
        selection.append(QItemSelectionRange(model.index(rows[first], block.firstVariable),
                                             model.index(rows[i - 1], block.lastVariable)));
    }
}

}  // namespace

void noteSelection(Whereabouts& place, const QItemSelection& selection, const MainTableModel& model,
                   const RowVisibility& rows)
{
    place.wholeColumns = gridselection::wholeColumns(selection, rows);
    place.blocks.clear();
    if (!place.wholeColumns.empty()) {
        return;
    }
    for (const QItemSelectionRange& range : selection) {
        std::vector<int> observations = observationsOf(range, model, rows);
        if (!observations.empty()) {
            place.blocks.push_back({range.left(), range.right(), std::move(observations)});
        }
    }
}

QItemSelection selectionOf(const Whereabouts& place, const MainTableModel& model,
                           const RowVisibility& rows)
{
    if (!place.wholeColumns.empty()) {
        return gridselection::ofWholeColumns(model, place.wholeColumns);
    }
    QItemSelection selection;
    if (place.blocks.empty()) {
        return selection;
    }
    const bool areAllHidden = rows.shownCount() == 0;
    const std::vector<int> rowOf = rowsByObservation(model);
    for (const Whereabouts::Block& block : place.blocks) {
        std::vector<int> selected;
        for (const int observation : block.observations) {
            const int row = rowOf[static_cast<std::size_t>(observation)];
            if (areAllHidden || rows.isShown(row)) {
                selected.push_back(row);
            }
        }
        std::sort(selected.begin(), selected.end());
        select(selection, block, selected, model, rows);
    }
    return selection.size() <= mostPieces ? selection : QItemSelection();
}

}  // namespace whereabouts

#pragma once

#include <QItemSelection>

#include <vector>

class MainTableModel;
class RowVisibility;

/// Where the user is in a grid and what is selected there, told by observations and variables: so
/// it is found again when the rows have been sorted or others are shown.
struct Whereabouts
{
    struct Cell
    {
        int observation = -1;
        int variable = -1;
        [[nodiscard]] bool isNone() const { return observation < 0; }
    };
    /// Selected cells of neighbouring variables.
    struct Block
    {
        int firstVariable = 0;
        int lastVariable = 0;
        std::vector<int> observations;
    };

    Cell current;
    Cell anchor;  ///< from where Shift selects
    std::vector<int> wholeColumns;
    std::vector<Block> blocks;  ///< none where whole columns are selected

    [[nodiscard]] bool hasSelection() const { return !wholeColumns.empty() || !blocks.empty(); }
};

namespace whereabouts {

/// Notes the selection down: what of it is shown, or all of it while no row is.
void noteSelection(Whereabouts& place, const QItemSelection& selection, const MainTableModel& model,
                   const RowVisibility& rows);

/// The selection of the place among the rows as they are now; empty when nothing of it is shown
/// while other rows are, and when so many pieces would make the grid slow.
[[nodiscard]] QItemSelection selectionOf(const Whereabouts& place, const MainTableModel& model,
                                         const RowVisibility& rows);

}  // namespace whereabouts

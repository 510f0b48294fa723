#pragma once

#include "data/Result.h"
#include "data/StatDataset.h"

#include <QString>

#include <vector>

/// The filters in force on one dataset: keeps its two filter masks and the texts that say what they
/// select. The rows that the condition evaluated last matched stay in matchedObservations().
///
/// What cannot be done is a failure with its reason and changes nothing. What can be gives the
/// number of observations selected then.
class FilterState
{
public:
    /// Starts without filters: sets all bits of both masks. The dataset outlives the state.
    explicit FilterState(StatDataset& dataset);

    /// Sets the library filter; refused while one is in force.
    Result<std::size_t> applyLibraryFilter(QStringView condition);
    void clearLibraryFilter();

    /// Narrows the dataset filter by one more condition.
    Result<std::size_t> addDatasetFilterStep(QStringView condition);
    /// Puts a condition in the place of all steps, as one more step: undone, they are back.
    Result<std::size_t> replaceDatasetFilter(QStringView condition);
    /// Returns to the mask and the text before the last step; false when there is none.
    bool undoDatasetFilter();
    void clearDatasetFilter();

    /// Replaces all filters by those of two texts as libraryFilterText() and datasetFilterText()
    /// gave them, empty for none. The dataset filter becomes a single step.
    Result<std::size_t> restore(QStringView libraryFilterText, QStringView datasetFilterText);

    /// "where a = 1"; empty without a library filter.
    [[nodiscard]] QString libraryFilterText() const;
    /// "if a = 1 and b = 2": all steps, each in parentheses if it needs them; empty without any.
    [[nodiscard]] QString datasetFilterText() const;
    [[nodiscard]] bool hasLibraryFilter() const { return !m_libraryCondition.isEmpty(); }
    [[nodiscard]] bool hasDatasetFilter() const { return !m_steps.empty(); }

    /// The observations that both filters select.
    [[nodiscard]] BitVector combinedMask() const;
    [[nodiscard]] std::size_t selectedCount() const;

private:
    struct Step
    {
        QString condition;
        bool hasOuterOr;
        BitVector maskBefore;
        bool replacesOthers;  ///< those before it do not show in the text
    };

    StatDataset& m_dataset;
    QString m_libraryCondition;
    std::vector<Step> m_steps;
};

#pragma once

#include "data/StatDataset.h"
#include "grid/filter/ConditionParser.h"

#include <QString>

#include <span>
#include <vector>

/// The filters in force on one dataset: keeps its two filter masks and the texts that say what they
/// select. The rows that the condition evaluated last matched stay in matchedObservations().
///
/// What takes a condition throws ParseError where the dataset cannot be filtered by it, and changes
/// nothing then.
class FilterState
{
public:
    /// Starts without filters: sets all bits of both masks. The dataset outlives the state.
    explicit FilterState(StatDataset& dataset);

    /// Puts the condition in the place of the library filter.
    void setLibraryFilter(const ParsedCondition& condition);
    void clearLibraryFilter();

    /// Narrows the dataset filter by one more condition.
    void addDatasetFilterStep(const ParsedCondition& condition);
    /// Puts a condition in the place of all steps, as one more step: undone, they are back.
    void replaceDatasetFilter(const ParsedCondition& condition);
    /// Returns to the mask and the text before the last step; false when there is none.
    bool undoDatasetFilter();
    /// Takes the filter away as one more step: undone, it is back. Without one there is no step.
    void clearDatasetFilter();

    /// "where a = 1"; empty without a library filter.
    [[nodiscard]] QString libraryFilterText() const;
    /// "if a = 1 and b = 2": all steps, each in parentheses if it needs them; empty without any.
    [[nodiscard]] QString datasetFilterText() const;

    /// The observations that both filters select.
    [[nodiscard]] BitVector combinedMask() const;
    [[nodiscard]] std::size_t selectedCount() const;

private:
    struct Step
    {
        QString condition;  ///< empty for the step that clears the filter
        bool hasOuterOr;
        BitVector maskBefore;
        bool replacesOthers;  ///< those before it do not show in the text
    };

    const BitVector& match(const ParsedCondition& condition);
    void push(const ParsedCondition& condition, BitVector mask, bool replacesOthers);
    [[nodiscard]] std::span<const Step> shownSteps() const;

    StatDataset& m_dataset;
    QString m_libraryCondition;
    std::vector<Step> m_steps;
};

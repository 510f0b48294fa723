#include "grid/filter/FilterState.h"

#include "grid/filter/CompiledCondition.h"

#include <utility>

using namespace Qt::StringLiterals;

FilterState::FilterState(StatDataset& dataset)
    : m_dataset(dataset)
{
    m_dataset.libraryFilterMask().set();
    m_dataset.datasetFilterMask().set();
}

/// The observations for which the condition holds.
const BitVector& FilterState::match(const ParsedCondition& condition)
{
    BitVector& matched = m_dataset.matchedObservations();
    CompiledCondition(condition, m_dataset).select(matched);
    return matched;
}

void FilterState::setLibraryFilter(const ParsedCondition& condition)
{
    m_dataset.libraryFilterMask() = match(condition);
    m_libraryCondition = condition.text;
}

void FilterState::clearLibraryFilter()
{
    m_dataset.libraryFilterMask().set();
    m_libraryCondition.clear();
}

void FilterState::addDatasetFilterStep(const ParsedCondition& condition)
{
    BitVector narrowed = match(condition);
    narrowed &= m_dataset.datasetFilterMask();
    push(condition, std::move(narrowed), false);
}

void FilterState::replaceDatasetFilter(const ParsedCondition& condition)
{
    push(condition, match(condition), true);
}

void FilterState::clearDatasetFilter()
{
    if (!shownSteps().empty()) {
        BitVector all = m_dataset.datasetFilterMask();
        push({}, std::move(all.set()), true);
    }
}

void FilterState::push(const ParsedCondition& condition, BitVector mask, bool replacesOthers)
{
    m_steps.push_back({condition.text, condition.hasOuterOr, {}, replacesOthers});
    m_steps.back().maskBefore = std::exchange(m_dataset.datasetFilterMask(), std::move(mask));
}

bool FilterState::undoDatasetFilter()
{
    if (m_steps.empty()) {
        return false;
    }
    m_dataset.datasetFilterMask() = std::move(m_steps.back().maskBefore);
    m_steps.pop_back();
    return true;
}

QString FilterState::libraryFilterText() const
{
    return m_libraryCondition.isEmpty() ? QString() : u"where "_s + m_libraryCondition;
}

/// The steps that are in force together.
std::span<const FilterState::Step> FilterState::shownSteps() const
{
    std::size_t first = m_steps.size();
    while (first > 0 && !m_steps[first - 1].replacesOthers) {
        --first;
    }
    if (first > 0 && !m_steps[first - 1].condition.isEmpty()) {
        --first;
    }
    return std::span(m_steps).subspan(first);
}

QString FilterState::datasetFilterText() const
{
    const std::span<const Step> steps = shownSteps();
    QString text;
    for (const Step& step : steps) {
        text += text.isEmpty() ? u"if "_s : u" and "_s;
        const bool needsParentheses = step.hasOuterOr && steps.size() > 1;
        text += needsParentheses ? u'(' + step.condition + u')' : step.condition;
    }
    return text;
}

BitVector FilterState::combinedMask() const
{
    BitVector mask = m_dataset.libraryFilterMask();
    mask &= m_dataset.datasetFilterMask();
    return mask;
}

std::size_t FilterState::selectedCount() const
{
    return combinedMask().count();
}

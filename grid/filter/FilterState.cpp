#include "grid/filter/FilterState.h"

#include "grid/filter/CompiledCondition.h"

#include <algorithm>
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
    m_steps.push_back({condition.text, condition.hasOuterOr, {}, false});
    m_steps.back().maskBefore = std::exchange(m_dataset.datasetFilterMask(), std::move(narrowed));
}

void FilterState::replaceDatasetFilter(const ParsedCondition& condition)
{
    BitVector replacing = match(condition);
    m_steps.push_back({condition.text, condition.hasOuterOr, {}, true});
    m_steps.back().maskBefore = std::exchange(m_dataset.datasetFilterMask(), std::move(replacing));
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

void FilterState::clearDatasetFilter()
{
    m_dataset.datasetFilterMask().set();
    m_steps.clear();
}

QString FilterState::libraryFilterText() const
{
    return m_libraryCondition.isEmpty() ? QString() : u"where "_s + m_libraryCondition;
}

QString FilterState::datasetFilterText() const
{
    const auto replacing = std::find_if(m_steps.rbegin(), m_steps.rend(),
                                        [](const Step& step) { return step.replacesOthers; });
    const auto first = replacing == m_steps.rend() ? m_steps.begin() : replacing.base() - 1;
    QString text;
    for (auto step = first; step != m_steps.end(); ++step) {
        text += text.isEmpty() ? u"if "_s : u" and "_s;
        const bool needsParentheses = step->hasOuterOr && m_steps.end() - first > 1;
        text += needsParentheses ? u'(' + step->condition + u')' : step->condition;
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

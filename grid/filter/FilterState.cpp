#include "grid/filter/FilterState.h"

#include "grid/filter/FilterCondition.h"
#include "grid/filter/FilterStatement.h"

#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The compiled condition of a filter text; nothing for an empty text.
Result<std::optional<FilterCondition>> compiled(QStringView filterText, QStringView word,
                                                const StatDataset& dataset)
{
    if (filterText.trimmed().isEmpty()) {
        return std::optional<FilterCondition>();
    }
    const Result<QString> condition = filterstatement::condition(filterText, word);
    if (!condition) {
        return Failure{condition.error()};
    }
    Result<FilterCondition> filter = FilterCondition::compile(condition.value(), dataset);
    if (!filter) {
        return Failure{filter.error()};
    }
    return std::optional(std::move(filter.value()));
}

}  // namespace

FilterState::FilterState(StatDataset& dataset)
    : m_dataset(dataset)
{
    m_dataset.libraryFilterMask().set();
    m_dataset.datasetFilterMask().set();
}

Result<std::size_t> FilterState::applyLibraryFilter(QStringView condition)
{
    if (hasLibraryFilter()) {
        return Failure{"Library Filter supports one level only. "
                       "Please clear library filter first."};
    }
    const Result<FilterCondition> filter = FilterCondition::compile(condition, m_dataset);
    if (!filter) {
        return Failure{filter.error()};
    }
    BitVector& matched = m_dataset.matchedObservations();
    filter.value().select(matched);
    m_dataset.libraryFilterMask() = matched;
    m_libraryCondition = filter.value().text();
    return selectedCount();
}

void FilterState::clearLibraryFilter()
{
    m_dataset.libraryFilterMask().set();
    m_libraryCondition.clear();
}

Result<std::size_t> FilterState::addDatasetFilterStep(QStringView condition)
{
    const Result<FilterCondition> filter = FilterCondition::compile(condition, m_dataset);
    if (!filter) {
        return Failure{filter.error()};
    }
    BitVector& matched = m_dataset.matchedObservations();
    filter.value().select(matched);
    BitVector narrowed = m_dataset.datasetFilterMask();
    narrowed &= matched;
    m_steps.push_back({filter.value().text(), filter.value().hasOuterOr(), {}, false});
    m_steps.back().maskBefore = std::exchange(m_dataset.datasetFilterMask(), std::move(narrowed));
    return selectedCount();
}

Result<std::size_t> FilterState::replaceDatasetFilter(QStringView condition)
{
    const Result<FilterCondition> filter = FilterCondition::compile(condition, m_dataset);
    if (!filter) {
        return Failure{filter.error()};
    }
    BitVector& matched = m_dataset.matchedObservations();
    filter.value().select(matched);
    m_steps.push_back({filter.value().text(), filter.value().hasOuterOr(),
                       std::exchange(m_dataset.datasetFilterMask(), matched), true});
    return selectedCount();
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

Result<std::size_t> FilterState::restore(QStringView libraryFilterText,
                                         QStringView datasetFilterText)
{
    const auto library = compiled(libraryFilterText, u"where", m_dataset);
    const auto dataset = compiled(datasetFilterText, u"if", m_dataset);
    if (!library || !dataset) {
        return Failure{library ? dataset.error() : library.error()};
    }
    BitVector libraryMask(m_dataset.libraryFilterMask());
    BitVector datasetMask(libraryMask.set());
    QString condition;
    std::vector<Step> steps;
    if (library.value()) {
        library.value()->select(libraryMask);
        condition = library.value()->text();
        m_dataset.matchedObservations() = libraryMask;
    }
    if (dataset.value()) {
        steps.push_back(
            {dataset.value()->text(), dataset.value()->hasOuterOr(), datasetMask, false});
        dataset.value()->select(datasetMask);
        m_dataset.matchedObservations() = datasetMask;
    }
    m_dataset.libraryFilterMask().swap(libraryMask);
    m_dataset.datasetFilterMask().swap(datasetMask);
    m_libraryCondition.swap(condition);
    m_steps.swap(steps);
    return selectedCount();
}

QString FilterState::libraryFilterText() const
{
    return hasLibraryFilter() ? u"where "_s + m_libraryCondition : QString();
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

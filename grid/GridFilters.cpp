#include "grid/GridFilters.h"

#include "grid/filter/QuickFilter.h"

GridFilters::GridFilters(StatDataset& dataset)
    : m_dataset(dataset)
    , m_state(dataset)
{ }

Result<QString> GridFilters::comparison(int variable, int observation) const
{
    const QuickFilter filter(m_dataset, variable);
    return filter.compare(m_op, filter.valueAt(observation));
}

Result<QString> GridFilters::inList(int variable, std::span<const int> observations) const
{
    const QuickFilter filter(m_dataset, variable);
    std::vector<QuickFilter::Value> values;
    values.reserve(observations.size());
    for (const int observation : observations) {
        values.push_back(filter.valueAt(observation));
    }
    return filter.isIn(values);
}

Result<QString> GridFilters::containing(int variable, int observation) const
{
    const QuickFilter filter(m_dataset, variable);
    return filter.contains(filter.valueAt(observation));
}

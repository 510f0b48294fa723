#include "grid/filter/MissingNumbers.h"

#include "data/InMemoryDataset.h"

namespace missingnumbers {

MissingMark markOf(const StatDataset& dataset, int variable)
{
    if (dynamic_cast<const InMemoryDataset*>(&dataset) != nullptr) {
        return MissingMark::MinusInfinity;
    }
    const TypeCode type = dataset.typeCodes()[static_cast<std::size_t>(variable)];
    const bool isInteger = type == TypeCode::Int8 || type == TypeCode::Int32;
    return dataset.sourceKind() == SourceKind::R && isInteger ? MissingMark::SmallestInteger
                                                              : MissingMark::NanOnly;
}

}  // namespace missingnumbers

#include "data/StoredValue.h"

#include "data/StatDataset.h"
#include "data/values/MissingTag.h"
#include "data/values/NumberText.h"

namespace storedvalue {

std::string text(const StatDataset& dataset, int row, int column)
{
    if (!dataset.isNumeric(column)) {
        return dataset.stringValue(row, column);
    }
    const double number = dataset.numericValue(row, column);
    if (!dataset.missingMark(column).isMissing(number)) {
        return numbertext::shortest(number);
    }
    const char letter = missingtag::of(number);
    return letter == '\0' ? "." : std::string{'.', letter};
}

}  // namespace storedvalue

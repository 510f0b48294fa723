#include "grid/filter/VariableNames.h"

#include <QString>

namespace variablenames {

std::optional<int> find(const StatDataset& dataset, QStringView name)
{
    std::optional<int> similar;
    for (int variable = 0; variable < dataset.variableCount(); ++variable) {
        const auto candidate =
            QString::fromStdString(dataset.names()[static_cast<std::size_t>(variable)]);
        if (candidate == name) {
            return variable;
        }
        if (!similar && name.compare(candidate, Qt::CaseInsensitive) == 0) {
            similar = variable;
        }
    }
    return similar;
}

}  // namespace variablenames

#include "cli/Selection.h"

#include "grid/filter/CompiledCondition.h"
#include "grid/filter/ParseError.h"
#include "grid/filter/VariableNames.h"

#include <fmt/format.h>

namespace cli {

Result<int> variableNamed(const StatDataset& dataset, const std::string& name)
{
    const std::optional<int> variable = variablenames::find(dataset, QString::fromStdString(name));
    if (!variable) {
        return Failure{fmt::format("There is no variable named {}", name)};
    }
    return *variable;
}

Result<std::vector<int>> variablesNamed(const StatDataset& dataset,
                                        const std::vector<std::string>& names)
{
    std::vector<int> variables;
    for (const std::string& name : names) {
        const Result<int> variable = variableNamed(dataset, name);
        if (!variable) {
            return Failure{variable.error()};
        }
        variables.push_back(variable.value());
    }
    return variables;
}

Result<bool> selectWhere(StatDataset& dataset, const std::optional<std::string>& condition)
{
    if (condition) {
        try {
            const CompiledCondition compiled(QString::fromStdString(*condition), dataset);
            compiled.select(dataset.datasetFilterMask());
        } catch (const ParseError& error) {
            const std::string meant = error.suggestion().empty()
                ? std::string()
                : fmt::format(" (did you mean {}?)", error.suggestion());
            return Failure{fmt::format("--where: {}{}", error.what(), meant)};
        }
    }
    return true;
}

}  // namespace cli

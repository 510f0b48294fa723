#pragma once

#include <QString>
#include <Qt>

#include <string>
#include <utility>
#include <vector>

/// How the user has arranged one dataset, as plain values that can be kept and given back to the
/// same dataset read anew. Variables are told by their names.
struct ViewState
{
    QString libraryFilter;  ///< "where a = 1"; empty for none
    QString datasetFilter;  ///< "if a = 1 and b = 2"; empty for none
    std::vector<std::string> hiddenVariables;  ///< in the dataset's order
    std::vector<std::string> variableOrder;  ///< from left to right, hidden ones included
    std::vector<std::pair<std::string, Qt::SortOrder>> sortKeys;
    std::vector<std::string> byVariables;

    bool operator==(const ViewState&) const = default;
};

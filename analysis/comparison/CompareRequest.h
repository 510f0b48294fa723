#pragma once

#include <optional>
#include <string>
#include <vector>

/// Comparing two datasets as PROC COMPARE does.
namespace comparison {

/// How two numbers are held against each other.
enum class Method
{
    Exact,
    Absolute,
    Relative,
    Percent,
};

/// "EXACT", "ABSOLUTE", "RELATIVE", "PERCENT".
[[nodiscard]] const char* nameOf(Method method);

/// A criterion of its own for one variable.
struct VariableCriterion
{
    std::string variable;  ///< of the base dataset
    double criterion = 0;
    std::optional<Method> method{};  ///< that of the request where there is none
};

/// What is to be compared, and what counts as equal.
struct Request
{
    std::vector<std::string> id{};  ///< observations are matched by these; by position where empty
    std::vector<std::string> var{};  ///< whose values are compared; all common ones where empty
    std::vector<std::string> with{};  ///< of the compare dataset, each beside the var of its place

    /// EXACT where neither method nor criterion is given, RELATIVE where only a criterion is.
    std::optional<Method> method{};
    std::optional<double> criterion{};
    std::optional<double> delta{};  ///< of RELATIVE: 0 to 1
    std::vector<VariableCriterion> variableCriteria{};

    /// Whether a missing value of the base, or of the compare dataset, equals anything.
    bool missingBaseEqualsAll = false;
    bool missingCompareEqualsAll = false;

    /// Whether observations and variables that the datasets do not show are compared, too.
    bool passesOverFilters = false;

    /// What the datasets are called in reports; their own names where empty.
    std::string baseName{};
    std::string compareName{};
};

}  // namespace comparison

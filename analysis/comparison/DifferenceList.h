#pragma once

#include "analysis/comparison/Comparison.h"

#include <functional>

namespace comparison {

/// Every difference of a comparison as a line of a table: the observations of one side first, then
/// the unequal values, one variable after the other. Numbers have all their digits.
class DifferenceList
{
public:
    using Line = std::vector<std::string>;

    /// The comparison outlives this object.
    explicit DifferenceList(const Comparison& comparison)
        : m_comparison(comparison)
    { }

    /// "Kind", "Variable" and what else there is, the names of the ID variables among it.
    [[nodiscard]] Line titles() const;
    void forEachLine(const std::function<void(const Line&)>& take) const;

private:
    [[nodiscard]] Line valueLine(const ComparedVariable& variable,
                                 const ObservationPair& pair) const;
    [[nodiscard]] Line line(const char* kind, const std::string& variable,
                            const ObservationPair& pair, const Line& values) const;

    const Comparison& m_comparison;
};

enum class ListFormat
{
    Csv,  ///< values with a comma, a quote or a line break in quotes
    Tsv,  ///< tabs, line breaks and backslashes escaped
};

/// A line of such a file, with its line end.
[[nodiscard]] std::string listLine(const DifferenceList::Line& line, ListFormat format);

}  // namespace comparison

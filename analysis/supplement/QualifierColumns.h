#pragma once

#include "analysis/supplement/QualifierRows.h"
#include "data/ExtendedDataset.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace supplement {

/// A row of one of several SUPP-- datasets.
struct RowPlace
{
    std::uint32_t supplement = 0;
    std::uint32_t row = 0;
};

/// The joined variables as they fill: one for each QNAM, in the order in which they first come.
class QualifierColumns
{
public:
    explicit QualifierColumns(int observations)
        : m_observations(static_cast<std::size_t>(observations))
    { }

    /// The number of the variable of that QNAM, which is made where there is none.
    /// @param dataset  the name of the SUPP-- dataset
    [[nodiscard]] std::size_t columnOf(const QualifierRows& rows, int row, const std::string& name,
                                       const std::string& dataset);

    /// What a cell held before it was given another value.
    struct Before
    {
        RowPlace place;  ///< of the row that gave it
        std::string value;
    };
    /// Gives a cell a value. One that has another value already shows both from then on.
    /// @return  what it had, if that is another value
    [[nodiscard]] std::optional<Before> put(std::size_t column, std::uint32_t observation,
                                            const std::string& value, RowPlace place);

    /// Hands the columns over, each with a name that is no variable of the parent.
    /// @param notes  told of the columns that had to be given another name, and of labels that
    ///               differ
    [[nodiscard]] std::vector<ExtendedDataset::Column> take(const StatDataset& parent,
                                                            std::vector<std::string>& notes);

private:
    struct Column
    {
        ExtendedDataset::Column result;
        std::unordered_map<std::string, std::uint32_t> numbers;  ///< of the texts, from 1
        std::vector<RowPlace> places;  ///< of the row that first filled each cell
        /// The values of the cells that have several.
        std::unordered_map<std::uint32_t, std::vector<std::string>> several;
        std::vector<std::string> datasets;
        std::vector<std::string> labels;
        std::vector<std::string> origins;
        std::vector<std::string> evaluators;
    };

    [[nodiscard]] static std::uint32_t numberOf(Column& column, const std::string& text);
    [[nodiscard]] static std::string originOf(const Column& column);

    std::size_t m_observations;
    std::vector<Column> m_columns;
    std::unordered_map<std::string, std::size_t> m_byName;  ///< in capitals
};

}  // namespace supplement

#pragma once

#include <limits>
#include <string>
#include <variant>
#include <vector>

namespace samples {

inline constexpr double missing = std::numeric_limits<double>::quiet_NaN();

/// A column as SAS describes it. Dates are days and date-times seconds from 1960; the writers
/// convert both where a file counts otherwise.
struct Column
{
    std::string name;
    std::string label;
    std::string format{};  ///< SAS format name without width, such as "DATE" or "$"; may be empty
    int width = 0;  ///< of the format, 0 for its default
    int decimals = 0;
    bool character = false;
    int length = 8;  ///< bytes of storage

    bool operator==(const Column&) const = default;
};

/// Everything of a table but its rows.
struct TableShape
{
    std::string name;
    std::string label;
    std::vector<Column> columns;
};

using Cell = std::variant<std::string, double>;  ///< a missing number is NaN
using Row = std::vector<Cell>;

struct Table : TableShape
{
    std::vector<Row> rows;
};

[[nodiscard]] inline Column textColumn(std::string name, std::string label, int length = 1)
{
    return {
        .name = std::move(name), .label = std::move(label), .character = true, .length = length};
}

[[nodiscard]] inline Column numberColumn(std::string name, std::string label,
                                         std::string format = {}, int width = 0, int decimals = 0)
{
    return {.name = std::move(name),
            .label = std::move(label),
            .format = std::move(format),
            .width = width,
            .decimals = decimals};
}

}  // namespace samples

#include "samples/Table.h"

#include <algorithm>
#include <stdexcept>

namespace samples {

void fitTextLengths(Table& table)
{
    for (std::size_t index = 0; index < table.columns.size(); ++index) {
        auto& column = table.columns[index];
        if (!column.character) {
            continue;
        }
        std::size_t longest = 1;
        for (const auto& row : table.rows) {
            longest = std::max(longest, std::get<std::string>(row.at(index)).size());
        }
        column.length = static_cast<int>(longest);
    }
}

std::size_t columnIndex(const TableShape& table, const std::string& name)
{
    const auto found = std::ranges::find(table.columns, name, &Column::name);
    if (found == table.columns.end()) {
        throw std::out_of_range(table.name + " has no column " + name);
    }
    return static_cast<std::size_t>(found - table.columns.begin());
}

}  // namespace samples

#pragma once

#include "analysis/RowSorter.h"

#include <algorithm>
#include <array>
#include <optional>
#include <ranges>
#include <set>
#include <utility>
#include <vector>

inline constexpr int rowCount = 60;
inline constexpr int variableCount = 6;

using Observations = std::set<int>;
using Variables = std::set<int>;

/// What a grid ought to show, told the plain way.
struct GridExpectation
{
    std::array<std::array<double, variableCount>, rowCount> values{};  ///< -1e300 where missing
    /// Of the dataset filter: what each has left, nothing for one that has cleared it.
    std::vector<std::optional<Observations>> steps;
    std::optional<Observations> library;
    std::vector<int> columns{0, 1, 2, 3, 4, 5};  ///< from left to right
    Variables hidden;
    SortKeys keys;
    int variable = -1;  ///< of the current cell
    int observation = -1;  ///< that the user has gone to, shown or not
    int nearest = -1;  ///< the observation of the current cell, -1 while none is shown
    std::optional<Variables> wholeColumns;  ///< that are selected, if any is known to be
    std::optional<Observations> cells;  ///< selected of the current variable, if they are known
    int variablesTold = 0;  ///< how often the set of hidden variables was told to be another
    int refused = 0;  ///< commands since the last look

    [[nodiscard]] double value(int row, int column) const
    {
        return values[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
    }
    [[nodiscard]] bool isFiltered() const { return !steps.empty() && steps.back(); }
    [[nodiscard]] bool isSelected(int row) const
    {
        return (!isFiltered() || steps.back()->contains(row))
            && (!library || library->contains(row));
    }
    [[nodiscard]] int shownCount() const
    {
        return static_cast<int>(std::ranges::count_if(std::views::iota(0, rowCount),
                                                      [this](int row) { return isSelected(row); }));
    }
    /// The observations whose value of the current variable compares so with another's.
    template <typename Compares>
    [[nodiscard]] Observations matching(int other, Compares compares) const
    {
        Observations result;
        for (int row = 0; row < rowCount; ++row) {
            if (compares(value(row, variable), value(other, variable))) {
                result.insert(row);
            }
        }
        return result;
    }
    void narrow(Observations matched)
    {
        std::erase_if(matched,
                      [this](int row) { return isFiltered() && !steps.back()->contains(row); });
        steps.emplace_back(std::move(matched));
    }
    /// Whether the sort in force allows one observation right above another.
    [[nodiscard]] bool mayPrecede(int above, int below) const
    {
        for (const auto& [key, order] : keys) {
            const double first = value(order == Qt::AscendingOrder ? above : below, key);
            const double second = value(order == Qt::AscendingOrder ? below : above, key);
            if (first != second || first < 0) {
                return first <= second;  // two missing ones leave the next key unasked
            }
        }
        return !keys.empty() || above < below;
    }
    void click(int column)
    {
        for (auto& [key, order] : keys) {
            if (key == column) {
                order = order == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
                return;
            }
        }
        keys = {{column, Qt::AscendingOrder}};
    }
    /// The place of the next shown column in a direction, or -1.
    [[nodiscard]] int nextPlace(int place, int step) const
    {
        for (place += step; place >= 0 && place < variableCount; place += step) {
            if (!hidden.contains(columns[static_cast<std::size_t>(place)])) {
                return place;
            }
        }
        return -1;
    }
    [[nodiscard]] int placeOf(int column) const
    {
        return static_cast<int>(std::find(columns.begin(), columns.end(), column)
                                - columns.begin());
    }
    void move(int from, int to)
    {
        const int moved = columns[static_cast<std::size_t>(from)];
        columns.erase(columns.begin() + from);
        columns.insert(columns.begin() + to, moved);
    }
    void shift(int step)
    {
        const int target = nextPlace(placeOf(variable), step);
        if (variable >= 0 && !hidden.contains(variable) && target >= 0) {
            move(placeOf(variable), target);
        }
    }
    /// The user goes to the current cell, which is selected alone.
    void stay()
    {
        observation = nearest < 0 ? observation : nearest;
        wholeColumns.reset();
        cells.reset();
        if (nearest >= 0) {
            cells = Observations{nearest};
        }
    }
    /// The current cell leaves a hidden column, to the right if it can.
    void setHidden(const Variables& variables)
    {
        hidden = variables;
        if (variable >= 0 && hidden.contains(variable)) {
            const int right = nextPlace(placeOf(variable), 1);
            const int next = right < 0 ? nextPlace(placeOf(variable), -1) : right;
            if (next >= 0) {
                variable = columns[static_cast<std::size_t>(next)];
                stay();
            }
        }
    }
};

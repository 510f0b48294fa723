#pragma once

#include <map>
#include <string>

class MainTableView;

/// Where the user is in a grid and how wide its columns are, in terms that hold for another grid of
/// the same dataset, read anew.
class GridPlace
{
public:
    explicit GridPlace(const MainTableView& grid);

    /// Goes there, or as near as the other grid has it.
    void goTo(MainTableView& grid) const;

private:
    int m_observation = -1;  ///< of the current cell, -1 without one
    bool m_isSelected = false;  ///< whether the current cell is
    int m_topObservation = -1;
    std::string m_variable;
    int m_left;  ///< how far the columns are scrolled, in pixels
    std::map<std::string, int> m_widths;  ///< of the columns that are shown
};

#pragma once

#include "grid/MainTableModel.h"

#include <functional>

class DifferenceView;
class MainTableView;
class QMdiArea;
class Settings;

/// How all grids look, kept for the next start: light or dark, the size of the letters, names or
/// labels in the column headers.
class GridLook
{
public:
    /// Both outlive this object.
    GridLook(Settings& settings, QMdiArea& area)
        : m_settings(settings)
        , m_area(area)
    { }

    void toggleDarkMode();
    void setFontSize(int points);
    void setHeaderMode(HeaderMode mode);
    [[nodiscard]] HeaderMode headerMode() const;
    /// Gives a grid that has come to the screen the letters of the others.
    void applyFontTo(MainTableView& grid) const;
    void applyFontTo(DifferenceView& view) const;

private:
    void forEachComparison(const std::function<void(DifferenceView&)>& visit) const;
    void forEachGrid(const std::function<void(MainTableView&)>& visit) const;

    Settings& m_settings;
    QMdiArea& m_area;
};

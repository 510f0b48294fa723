#include "app/look/GridLook.h"

#include "app/compare/ComparisonWindow.h"
#include "app/compare/DifferenceView.h"
#include "app/compare/DifferenceWindow.h"
#include "app/look/Theme.h"
#include "app/start/Settings.h"
#include "app/window/DatasetWindow.h"
#include "grid/MainTableView.h"
#include "grid/WaitCursor.h"

#include <QMdiArea>

void GridLook::toggleDarkMode()
{
    const WaitCursor waitCursor;
    m_settings.setDarkMode(!m_settings.darkMode());
    theme::apply(m_settings.darkMode());
    // The style sheet takes the letters away from grids that have their own.
    forEachGrid([this](MainTableView& grid) { applyFontTo(grid); });
    forEachComparison([this](DifferenceView& view) { applyFontTo(view); });
}

void GridLook::setFontSize(int points)
{
    const WaitCursor waitCursor;
    m_settings.setFontSize(points);
    forEachGrid([points](MainTableView& grid) { grid.setFontSize(points); });
    forEachComparison([points](DifferenceView& view) { view.setFontSize(points); });
}

void GridLook::setHeaderMode(HeaderMode mode)
{
    m_settings.setHeadersShowLabels(mode == HeaderMode::VariableLabels);
    forEachGrid([mode](MainTableView& grid) { grid.setHeaderMode(mode); });
}

HeaderMode GridLook::headerMode() const
{
    return m_settings.headersShowLabels() ? HeaderMode::VariableLabels : HeaderMode::VariableNames;
}

void GridLook::applyFontTo(MainTableView& grid) const
{
    if (const int points = m_settings.fontSize(); points > 0) {
        grid.setFontSize(points);
    }
}

void GridLook::applyFontTo(DifferenceView& view) const
{
    if (const int points = m_settings.fontSize(); points > 0) {
        view.setFontSize(points);
    }
}

void GridLook::forEachComparison(const std::function<void(DifferenceView&)>& visit) const
{
    for (QMdiSubWindow* window : m_area.subWindowList()) {
        if (auto* comparison = qobject_cast<ComparisonWindow*>(window)) {
            visit(comparison->differences().view());
        }
    }
}

void GridLook::forEachGrid(const std::function<void(MainTableView&)>& visit) const
{
    for (QMdiSubWindow* window : m_area.subWindowList()) {
        if (auto* dataset = qobject_cast<DatasetWindow*>(window)) {
            visit(*dataset->view());
        }
    }
}

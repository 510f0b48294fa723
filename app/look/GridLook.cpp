#include "app/look/GridLook.h"

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
}

void GridLook::setFontSize(int points)
{
    const WaitCursor waitCursor;
    m_settings.setFontSize(points);
    forEachGrid([points](MainTableView& grid) { grid.setFontSize(points); });
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

void GridLook::forEachGrid(const std::function<void(MainTableView&)>& visit) const
{
    for (QMdiSubWindow* window : m_area.subWindowList()) {
        if (auto* dataset = qobject_cast<DatasetWindow*>(window)) {
            visit(*dataset->view());
        }
    }
}

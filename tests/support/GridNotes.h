#pragma once

#include "grid/MainTableView.h"

#include <QStringList>

#include <utility>

/// Notes down what grids tell their window.
class GridNotes
{
public:
    void listenTo(MainTableView& grid)
    {
        QObject::connect(&grid, &MainTableView::signalCommandFailed, &grid,
                         [this](const CommandFailure& failure) {
                             m_notes << "error|" + failure.message + '|' + failure.command;
                         });
        QObject::connect(&grid, &MainTableView::signalInform, &grid,
                         [this](const QString& title, const QString& text) {
                             m_notes << "inform|" + title + '|' + text;
                         });
        QObject::connect(&grid, &MainTableView::signalMessage, &grid,
                         [this](const QString& text) { m_notes << "message|" + text; });
        QObject::connect(&grid, &MainTableView::signalFontSizeChanged, &grid,
                         [this](int points) { m_notes << "font|" + QString::number(points); });
    }

    /// What was told since the last call.
    [[nodiscard]] QStringList take() { return std::exchange(m_notes, {}); }

private:
    QStringList m_notes;
};

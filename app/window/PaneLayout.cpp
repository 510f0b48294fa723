#include "app/window/PaneLayout.h"

#include <QDockWidget>

#include <algorithm>

void PaneLayout::apply(std::size_t layout)
{
    const Shares& wanted = shares.at(layout);
    applyToSide(Qt::LeftDockWidgetArea, wanted[0]);
    applyToSide(Qt::RightDockWidgetArea, wanted[2]);
    if (layout == maximized) {
        applyToSide(Qt::BottomDockWidgetArea, 0);
    }
    resizeSide(Qt::LeftDockWidgetArea, wanted[0]);
    resizeSide(Qt::RightDockWidgetArea, wanted[2]);
}

void PaneLayout::applyToSide(Qt::DockWidgetArea area, int percent)
{
    const QList<QDockWidget*> docks = docksAt(area);
    const bool isShown = std::any_of(docks.begin(), docks.end(),
                                     [](const QDockWidget* dock) { return !dock->isHidden(); });
    if (isShown == (percent > 0)) {
        return;
    }
    for (QDockWidget* dock : docks) {
        dock->setVisible(percent > 0);
    }
    // Of those that share a place the first comes to the front.
    std::for_each(docks.rbegin(), docks.rend(), [](QDockWidget* dock) { dock->raise(); });
}

void PaneLayout::resizeSide(Qt::DockWidgetArea area, int percent)
{
    QList<QDockWidget*> docks = docksAt(area);
    docks.removeIf([](const QDockWidget* dock) { return dock->isHidden(); });
    if (percent > 0 && !docks.isEmpty()) {
        // The docks of a side are as wide as each other.
        m_window.resizeDocks({docks.first()}, {m_window.width() * percent / 100}, Qt::Horizontal);
    }
}

void PaneLayout::makeRoomFor(QDockWidget& dock)
{
    constexpr int readable = 30;
    const Qt::DockWidgetArea area = m_window.dockWidgetArea(&dock);
    const QList<QDockWidget*> docks = docksAt(area);
    const bool wasShown = std::any_of(docks.begin(), docks.end(), [&](const QDockWidget* other) {
        return other != &dock && !other->isHidden();
    });
    const bool isSide = area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea;
    if (isSide && dock.isHidden() && !wasShown) {
        dock.show();
        resizeSide(area, readable);
    }
}

QList<QDockWidget*> PaneLayout::docksAt(Qt::DockWidgetArea area) const
{
    QList<QDockWidget*> docks = m_docks;
    docks.removeIf([&](QDockWidget* dock) {
        return dock->isFloating() || m_window.dockWidgetArea(dock) != area;
    });
    return docks;
}

QString PaneLayout::text(std::size_t layout)
{
    const Shares& wanted = shares.at(layout);
    return QStringLiteral("%1:%2:%3").arg(wanted[0]).arg(wanted[1]).arg(wanted[2]);
}

std::size_t PaneLayout::fromText(const QString& text)
{
    for (std::size_t layout = 0; layout < shares.size(); ++layout) {
        if (PaneLayout::text(layout) == text) {
            return layout;
        }
    }
    return 0;
}

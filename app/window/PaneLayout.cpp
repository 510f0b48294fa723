#include "app/window/PaneLayout.h"

#include <QDockWidget>

#include <algorithm>

void PaneLayout::apply(const Shares& wanted)
{
    const auto [left, main, right] = wanted;
    applyToSide(Qt::LeftDockWidgetArea, left);
    applyToSide(Qt::RightDockWidgetArea, right);
    if (left == 0 && right == 0) {
        applyToSide(Qt::BottomDockWidgetArea, 0);
    }
    resizeArea(Qt::LeftDockWidgetArea, left);
    resizeArea(Qt::RightDockWidgetArea, right);
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

/// Gives an area its share of the window's width, or of its height at the bottom.
void PaneLayout::resizeArea(Qt::DockWidgetArea area, int percent)
{
    QList<QDockWidget*> docks = docksAt(area);
    docks.removeIf([](const QDockWidget* dock) { return dock->isHidden(); });
    if (percent > 0 && !docks.isEmpty()) {
        const bool isSide = area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea;
        const int whole = isSide ? m_window.width() : m_window.height();
        // The docks of a side are as wide as each other, those of the bottom as tall.
        m_window.resizeDocks({docks.first()}, {whole * percent / 100},
                             isSide ? Qt::Horizontal : Qt::Vertical);
    }
}

void PaneLayout::makeRoomFor(QDockWidget& dock)
{
    constexpr int readable = 30;
    const Qt::DockWidgetArea area = m_window.dockWidgetArea(&dock);
    const QList<QDockWidget*> docks = docksAt(area);
    const bool wasShown = std::any_of(docks.begin(), docks.end(),
                                      [](const QDockWidget* other) { return !other->isHidden(); });
    dock.show();
    if (!wasShown && !dock.isFloating()) {
        resizeArea(area, readable);
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

QString PaneLayout::text(const Shares& wanted)
{
    return QStringLiteral("%1:%2:%3").arg(wanted[0]).arg(wanted[1]).arg(wanted[2]);
}

std::optional<PaneLayout::Shares> PaneLayout::fromText(const QString& text)
{
    const QStringList parts = text.split(u':');
    Shares read{};
    if (parts.size() != static_cast<qsizetype>(read.size())) {
        return std::nullopt;
    }
    for (std::size_t i = 0; i < read.size(); ++i) {
        bool isNumber = false;
        read[i] = parts[static_cast<qsizetype>(i)].toInt(&isNumber);
        if (!isNumber || read[i] < 0 || read[i] > 100) {
            return std::nullopt;
        }
    }
    return read;
}

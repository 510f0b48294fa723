#pragma once

#include <QMainWindow>
#include <QString>

#include <array>

class QDockWidget;

/// Divides the main window's width among the left docks, the datasets and the right docks.
class PaneLayout
{
public:
    /// The widths in percent of the window's width: left, main, right.
    using Shares = std::array<int, 3>;

    static constexpr std::array<Shares, 4> shares{
        {{30, 70, 0}, {0, 100, 0}, {20, 60, 20}, {0, 70, 30}}};
    /// Of the layouts, the one that leaves nothing but the main area.
    static constexpr std::size_t maximized = 1;

    /// @param docks  of the window, the more important ones first; both outlive this object
    PaneLayout(QMainWindow& window, QList<QDockWidget*> docks)
        : m_window(window)
        , m_docks(std::move(docks))
    { }

    /// Shows or hides the sides and gives them their widths. A side that has a share and shows no
    /// dock shows all of its docks.
    void apply(std::size_t layout);
    /// Makes the side of a dock wide enough to read it, where it has no width.
    void makeRoomFor(QDockWidget& dock);

    /// "30:70:0", as the setting holds it.
    [[nodiscard]] static QString text(std::size_t layout);
    /// The layout of such a text, the first one for any other text.
    [[nodiscard]] static std::size_t fromText(const QString& text);

private:
    [[nodiscard]] QList<QDockWidget*> docksAt(Qt::DockWidgetArea area) const;
    void applyToSide(Qt::DockWidgetArea area, int percent);
    void resizeSide(Qt::DockWidgetArea area, int percent);

    QMainWindow& m_window;
    QList<QDockWidget*> m_docks;
};

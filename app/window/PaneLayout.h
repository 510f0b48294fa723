#pragma once

#include <QMainWindow>
#include <QString>

#include <array>
#include <optional>

class QDockWidget;

/// Divides the main window's width among the left docks, the datasets and the right docks.
class PaneLayout
{
public:
    /// The widths in percent of the window's width: left, main, right.
    using Shares = std::array<int, 3>;

    /// What the four layouts give.
    static constexpr std::array<Shares, 4> shares{
        {{30, 70, 0}, {0, 100, 0}, {20, 60, 20}, {0, 70, 30}}};

    /// @param docks  of the window, the more important ones first; both outlive this object
    PaneLayout(QMainWindow& window, QList<QDockWidget*> docks)
        : m_window(window)
        , m_docks(std::move(docks))
    { }

    /// Shows or hides the sides and gives them their widths. A side that has a share and shows no
    /// dock shows all of its docks. Where neither has one, nothing but the main area is left.
    void apply(const Shares& wanted);
    /// Shows a dock, wide or tall enough to read it where none stood in its place.
    void makeRoomFor(QDockWidget& dock);

    /// "30:70:0", as the setting holds it.
    [[nodiscard]] static QString text(const Shares& wanted);
    /// The shares of such a text; nothing for a text that holds no three percentages.
    [[nodiscard]] static std::optional<Shares> fromText(const QString& text);

private:
    [[nodiscard]] QList<QDockWidget*> docksAt(Qt::DockWidgetArea area) const;
    void applyToSide(Qt::DockWidgetArea area, int percent);
    void resizeArea(Qt::DockWidgetArea area, int percent);

    QMainWindow& m_window;
    QList<QDockWidget*> m_docks;
};

#pragma once

#include <QCoreApplication>
#include <QPointer>
#include <QWidget>

class DockWindows;
class MainTableView;
class QLabel;

/// The place in a dock for a view of the grid in front, which says how to get one where there is
/// none. The view belongs to its grid and may go at any time.
class PanelPlace : public QWidget
{
    Q_OBJECT

public:
    explicit PanelPlace(const QString& hint, QWidget* parent = nullptr);

    void setPanel(QWidget* panel);
    [[nodiscard]] QWidget* panel() const { return m_panel; }

private:
    QLabel* m_hint;
    QPointer<QWidget> m_panel;
};

/// The views beside the grids, in their docks: those of the grid in front.
class SidePanels
{
    Q_DECLARE_TR_FUNCTIONS(SidePanels)

public:
    /// Fills the docks, which outlive this object.
    explicit SidePanels(const DockWindows& docks);

    /// Shows the views of another grid, which takes the keys when they were going to a view of the
    /// one before.
    /// @param grid  null for none
    void setGrid(MainTableView* grid);
    /// Shows what the grid in front has counted and described by now.
    void update();

private:
    [[nodiscard]] bool isInHand() const;

    // Their docks own them.
    PanelPlace* m_variables;
    PanelPlace* m_frequency;
    PanelPlace* m_univariate;
    QPointer<MainTableView> m_grid;
    bool m_wasInHand = false;  ///< when the last grid went
};

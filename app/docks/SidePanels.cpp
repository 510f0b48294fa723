#include "app/docks/SidePanels.h"

#include "app/docks/DockWindows.h"
#include "grid/MainTableView.h"

#include <QApplication>
#include <QDockWidget>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace {

PanelPlace* fill(QDockWidget& dock, const QString& hint)
{
    auto* place = new PanelPlace(hint, &dock);
    dock.setWidget(place);
    return place;
}

}  // namespace

PanelPlace::PanelPlace(const QString& hint, QWidget* parent)
    : QWidget(parent)
    , m_hint(new QLabel(hint, this))
{
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    m_hint->setMargin(16);
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_hint);
}

/// A view that is put aside stays here, hidden: to give it another parent and back takes longer.
void PanelPlace::setPanel(QWidget* panel)
{
    if (panel != m_panel && m_panel != nullptr) {
        m_panel->hide();
        layout()->removeWidget(m_panel);
    }
    if (panel != nullptr && panel != m_panel) {
        layout()->addWidget(panel);
        panel->show();
    }
    m_panel = panel;
    m_hint->setVisible(panel == nullptr);
    setFocusProxy(panel);
}

SidePanels::SidePanels(const DockWindows& docks)
    : m_variables(fill(*docks.variables(), tr("Open or choose a dataset to see its variables.")))
    , m_frequency(fill(*docks.frequency(),
                       tr("Press F in a grid to count the values of the selected variables, or N "
                          "to count distinct subjects.")))
    , m_univariate(fill(*docks.univariate(),
                        tr("Select a numeric variable in a grid and press S for its statistics. "
                           "B adds the current variable to those that they are grouped by.")))
{ }

void SidePanels::setGrid(MainTableView* grid)
{
    m_wasInHand = m_wasInHand || isInHand();
    m_grid = grid;
    update();
    if (grid != nullptr && m_wasInHand) {
        m_wasInHand = false;
        grid->setFocus();
    }
}

bool SidePanels::isInHand() const
{
    const std::array places{m_variables, m_frequency, m_univariate};
    return std::any_of(places.begin(), places.end(), [](const PanelPlace* place) {
        return place->isAncestorOf(QApplication::focusWidget());
    });
}

void SidePanels::update()
{
    const GridPanels* panels = m_grid == nullptr ? nullptr : &m_grid->panels();
    const bool hasList = panels != nullptr && panels->frequency()->hasList();
    const bool hasStatistics = panels != nullptr && panels->statistics()->table() != nullptr;
    m_variables->setPanel(panels == nullptr ? nullptr : panels->variables());
    m_frequency->setPanel(hasList ? panels->frequency() : nullptr);
    m_univariate->setPanel(hasStatistics ? panels->statistics() : nullptr);
}

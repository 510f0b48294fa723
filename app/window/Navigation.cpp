#include "app/window/Navigation.h"

#include "app/dialogs/FindDialog.h"
#include "app/dialogs/QuickOpenDialog.h"
#include "app/window/MainActions.h"
#include "grid/MainTableView.h"

#include <QAction>

Navigation::Navigation(QWidget& window, const MainActions& actions,
                       const QAbstractItemModel& workspace)
    : QObject(&window)
    , m_window(window)
    , m_workspace(workspace)
    , m_find(new FindDialog(&window))
{
    connect(actions.find, &QAction::triggered, m_find, &FindDialog::bringUp);
    connect(actions.findNext, &QAction::triggered, this, [this] { findAgain(true); });
    connect(actions.findPrevious, &QAction::triggered, this, [this] { findAgain(false); });
    connect(actions.quickOpen, &QAction::triggered, this, &Navigation::quickOpen);
    m_find->addActions({actions.findNext, actions.findPrevious});
}

void Navigation::setGrid(MainTableView* grid)
{
    m_grid = grid;
    m_find->setView(grid);
    if (grid != nullptr) {
        // Which tells of every change of what is hidden.
        connect(grid, &MainTableView::signalObsNo, m_find, &FindDialog::followVisibility,
                Qt::UniqueConnection);
    }
}

void Navigation::findAgain(bool isForward)
{
    if (!m_find->hasText()) {
        m_find->bringUp();
        return;
    }
    (void)m_find->find(isForward ? CellWalk::Direction::Forward : CellWalk::Direction::Backward);
    if (m_find->hasStatus() && !m_find->isVisible()) {
        m_find->bringUp();  // nothing was found, or what is hidden
    }
}

void Navigation::quickOpen()
{
    auto* palette =
        new QuickOpenDialog(m_workspace, m_grid == nullptr ? nullptr : m_grid->model(), &m_window);
    palette->setAttribute(Qt::WA_DeleteOnClose);
    connect(palette, &QuickOpenDialog::fileChosen, this, &Navigation::signalFileChosen);
    connect(palette, &QuickOpenDialog::columnChosen, this, [this](int column) {
        if (m_grid != nullptr) {
            m_grid->cmdGotoVariable(column);
        }
    });
    connect(palette, &QuickOpenDialog::rowChosen, this, [this](int observation) {
        if (m_grid != nullptr) {
            m_grid->cmdGotoObservation(observation);
        }
    });
    const QPoint middle = m_window.rect().center() - palette->rect().center();
    palette->move(m_window.mapToGlobal(QPoint(middle.x(), middle.y() / 2)));
    palette->show();
}

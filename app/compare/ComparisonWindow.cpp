#include "app/compare/ComparisonWindow.h"

#include "app/compare/DifferenceWindow.h"
#include "app/compare/LinkedGrids.h"
#include "app/window/PlainTitle.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QMenu>

namespace {

QString tipOf(const DatasetOrigin& origin)
{
    return QDir::toNativeSeparators(origin.fileKey);
}

}  // namespace

ComparisonWindow::ComparisonWindow(std::shared_ptr<const ComparedDatasets> comparison)
    : m_comparison(std::move(comparison))
    , m_differences(new DifferenceWindow(
          std::shared_ptr<const comparison::Comparison>(m_comparison, &m_comparison->result), this))
    , m_grids(new LinkedGrids(*m_comparison, this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWidget(m_differences);
    setWindowTitle(plainTitle(m_differences->windowTitle()));
    setWindowIcon(m_differences->windowIcon());
    m_differences->setFiles(tipOf(m_comparison->baseOrigin), tipOf(m_comparison->compareOrigin));
    // The keys of its own menu are the main window's, and of two actions for one key Qt runs none.
    for (QAction* action : systemMenu()->actions()) {
        action->setShortcuts(QList<QKeySequence>());
    }
    // A tab that is left hands its focus to whatever comes next in it, and would go on there. Who
    // has the focus is known once the tab is on the screen.
    const auto takeFocus = [this](Qt::WindowStates before, Qt::WindowStates now) {
        const QWidget* focused = QApplication::focusWidget();
        const bool isBroughtUp =
            !before.testFlag(Qt::WindowActive) && now.testFlag(Qt::WindowActive);
        if (isBroughtUp && focused != nullptr && isAncestorOf(focused)) {
            m_differences->setFocus();
        }
    };
    connect(this, &QMdiSubWindow::windowStateChanged, this, takeFocus, Qt::QueuedConnection);
    connect(m_differences, &DifferenceWindow::signalTogetherChanged, m_grids,
            &LinkedGrids::setActive);
}

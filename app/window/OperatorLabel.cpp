#include "app/window/OperatorLabel.h"

#include "grid/MainTableView.h"

OperatorLabel::OperatorLabel(QWidget* parent)
    : QLabel(parent)
{
    setObjectName(QStringLiteral("labelStatusBarOperator"));
    setContentsMargins(6, 0, 6, 0);
    setTextFormat(Qt::PlainText);
    setToolTip(tr("The keys d and = filter by the current cell with this operator"));
    hide();
}

void OperatorLabel::follow(MainTableView* grid)
{
    if (m_grid != nullptr) {
        disconnect(m_grid, nullptr, this, nullptr);
    }
    m_grid = grid;
    setVisible(grid != nullptr);
    if (grid != nullptr) {
        connect(grid, &MainTableView::signalFilterOperator, this, &OperatorLabel::tell);
        tell();
    }
}

void OperatorLabel::tell()
{
    setText(tr("Key d: %1").arg(compareop::textOf(m_grid->cellFilters().op())));
}

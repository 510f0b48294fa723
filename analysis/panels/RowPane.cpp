#include "analysis/panels/RowPane.h"

#include <QHeaderView>

RowPane::RowPane(QWidget* parent)
    : QTableView(parent)
{
    setObjectName(QStringLiteral("rowTable"));
    setAccessibleName(tr("Row"));
    setModel(&m_model);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setTabKeyNavigation(false);
    setWordWrap(false);
    // In a narrow dock, too, the value is in sight.
    horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    horizontalHeader()->setSectionResizeMode(2, QHeaderView::Stretch);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    connect(this, &QAbstractItemView::activated, this, [this](const QModelIndex& index) {
        emit signalVariableChosen(m_model.variableAt(index.row()));
    });
}

void RowPane::showRow(const OpenDataset* opened, int observation, int variable)
{
    m_model.showObservation(opened, observation);
    const int row = m_model.rowOf(variable);
    if (row < 0) {
        clearSelection();
        return;
    }
    selectRow(row);
    scrollTo(m_model.index(row, 0));
}

#include "grid/MainTableView.h"

#include "data/StatDataset.h"
#include "grid/MainTableModel.h"

#include <spdlog/spdlog.h>

#include <QAbstractButton>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QScopeGuard>
#include <QSignalBlocker>

#include <algorithm>

MainTableView::MainTableView(StatDataset* dataset, QWidget* mainWindow, QWidget* parent)
    : QTableView(parent)
    , m_dataset(dataset)
    , m_mainWindow(mainWindow)
{
    if (m_dataset != nullptr) {
        m_rowTotal = m_dataset->observationCount();
        m_variableTotal = m_dataset->variableCount();
    }
    setContextMenuPolicy(Qt::CustomContextMenu);
    setWordWrap(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setTabKeyNavigation(false);
    setUpHeaders();
    connectCornerButton();
}

void MainTableView::setUpHeaders()
{
    // One height for all rows: measuring a million of them, or only asking for it, is out of
    // question.
    QHeaderView* rows = verticalHeader();
    const int rowHeight = fontMetrics().height() + 6;
    rows->setMinimumSectionSize(rowHeight);
    rows->setDefaultSectionSize(rowHeight);
    rows->setSectionResizeMode(QHeaderView::Fixed);
    rows->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    rows->setHighlightSections(false);

    QHeaderView* columns = horizontalHeader();
    columns->setHighlightSections(false);
    columns->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    columns->setSectionsClickable(true);
    columns->setMinimumSectionSize(24);
    connect(columns, &QHeaderView::sectionClicked, this, &MainTableView::onHeaderClicked);
}

void MainTableView::connectCornerButton()
{
    const auto* corner = findChild<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly);
    if (corner == nullptr) {
        spdlog::warn("Corner button not found");
        return;
    }
    connect(corner, &QAbstractButton::clicked, this, &MainTableView::onCornerClicked,
            Qt::UniqueConnection);
}

void MainTableView::setModel(QAbstractItemModel* model)
{
    Q_ASSERT(m_model == nullptr);
    QTableView::setModel(model);
    m_model = qobject_cast<MainTableModel*>(model);
    if (m_model == nullptr) {
        return;
    }
    Q_ASSERT(m_model->dataset() == m_dataset);
    connect(this, &MainTableView::signalSort, m_model, &MainTableModel::sortRows);
    connect(this, &MainTableView::signalResetSort, m_model, &MainTableModel::resetSort);
    m_rows.reset(m_model->rowMap().size());
    applyRowVisibility();
}

int MainTableView::shownRowCount() const
{
    return static_cast<int>(m_rows.shownCount());
}

void MainTableView::fitColumns()
{
    // The header measures this many rows of every column. Never 0, which stands for all rows as
    // long as the view is hidden; and fewer in a wide table, so that the whole stays a blink.
    constexpr int cellsToMeasure = 10'000;
    constexpr int widest = 400;
    QHeaderView* columns = horizontalHeader();
    columns->setResizeContentsPrecision(
        std::clamp(cellsToMeasure / std::max(m_variableTotal, 1), 10, 300));
    resizeColumnsToContents();
    for (int column = 0; column < columns->count(); ++column) {
        if (columns->sectionSize(column) > widest) {
            columns->resizeSection(column, widest);
        }
    }
}

void MainTableView::applyRowVisibility()
{
    if (m_model == nullptr) {
        return;
    }
    // Every hidden row would be cut out of such a selection, at a cost that grows with the rows.
    if (hasSelectedAllRows()) {
        clearSelection();
    }
    showRows();
}

/// Hiding a row makes the view lay itself out again unless updates are off, and the header tell the
/// view of each row unless its signals are blocked: a million rows would take minutes. What the
/// signals would have brought about is done once at the end.
void MainTableView::showRows()
{
    setUpdatesEnabled(false);
    const auto enableUpdates = qScopeGuard([this] { setUpdatesEnabled(true); });
    {
        const QSignalBlocker blocker(verticalHeader());
        m_rows.update(*m_dataset, m_model->rowMap(),
                      [this](int row, bool shown) { setRowHidden(row, !shown); });
    }
    updateGeometries();
}

bool MainTableView::hasSelectedAllRows() const
{
    const int lastRow = m_model->rowCount() - 1;
    const QItemSelection& selection = selectionModel()->selection();
    return std::any_of(selection.begin(), selection.end(), [&](const QItemSelectionRange& range) {
        return range.top() == 0 && range.bottom() == lastRow;
    });
}

void MainTableView::publishCounters()
{
    emit signalObsNo(rowCounter());
    emit signalVarNo(variableCounter());
}

QString MainTableView::rowCounter() const
{
    if (m_dataset == nullptr || m_dataset->observationCount() < 0) {
        return tr("Rows: NA/NA");
    }
    return tr("Rows: %1/%2").arg(shownRowCount()).arg(m_rowTotal);
}

QString MainTableView::variableCounter() const
{
    if (m_dataset == nullptr || m_dataset->variableCount() < 0) {
        return tr("Vars: NA/NA");
    }
    return tr("Vars: %1/%2").arg(m_dataset->visibleVariables().count()).arg(m_variableTotal);
}

void MainTableView::updateAll()
{
    applyRowVisibility();
    publishCounters();
}

void MainTableView::onHeaderClicked(int logicalIndex)
{
    const auto key =
        std::find_if(m_sortKeys.begin(), m_sortKeys.end(),
                     [&](const SortKey& candidate) { return candidate.first == logicalIndex; });
    Qt::SortOrder order = Qt::AscendingOrder;
    if (key != m_sortKeys.end()) {
        order = key->second == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
        key->second = order;
    } else {
        m_sortKeys = {{logicalIndex, order}};
    }
    horizontalHeader()->setSortIndicator(logicalIndex, order);
    resort([this] { emit signalSort(m_sortKeys); });
}

void MainTableView::onCornerClicked()
{
    m_sortKeys.clear();
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    resort([this] { emit signalResetSort(); });
    selectAll();
}

/// Has the rows put in another order and the filtered ones hidden in their new places. The current
/// cell stays where it was on the screen, so that the keys that act on it go on working.
template <typename EmitSort>
void MainTableView::resort(EmitSort emitSort)
{
    const int currentRow = currentIndex().row();
    const int currentColumn = currentIndex().column();
    emitSort();
    applyRowVisibility();
    publishCounters();
    if (model() != nullptr && currentRow >= 0) {
        const bool scrollsToCurrent = hasAutoScroll();
        setAutoScroll(false);
        selectionModel()->setCurrentIndex(model()->index(currentRow, currentColumn),
                                          QItemSelectionModel::NoUpdate);
        setAutoScroll(scrollsToCurrent);
    }
}

void MainTableView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    if (current.isValid()) {
        m_currentVariable = current.column();
    }
}

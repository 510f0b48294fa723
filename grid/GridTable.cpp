#include "grid/GridTable.h"

#include "data/StatDataset.h"
#include "grid/MainTableModel.h"
#include "grid/opened/OpenDataset.h"

#include <QAbstractItemDelegate>
#include <QEvent>
#include <QFontInfo>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QScopeGuard>
#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>

namespace {

/// No column is made wider than this by itself.
constexpr int widestFitted = 400;

}  // namespace

GridTable::GridTable(OpenDataset* opened, QWidget* parent)
    : QTableView(parent)
    , m_opened(opened)
{
    setWordWrap(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setTabKeyNavigation(false);
    // Nothing is typed into the cells, and an input method would keep the accent keys to itself,
    // some of which are commands.
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setUpColumnHeader();
    setUpRowHeader(*verticalHeader());
}

void GridTable::setUpColumnHeader()
{
    QHeaderView* columnHeader = horizontalHeader();
    columnHeader->setHighlightSections(false);
    columnHeader->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    columnHeader->setSectionsClickable(true);
    columnHeader->setMinimumSectionSize(24);
    // Not by setSortingEnabled(), after which a click on a header would no longer select.
    columnHeader->setSortIndicatorShown(true);
    columnHeader->setSortIndicator(-1, Qt::AscendingOrder);
    columnHeader->viewport()->installEventFilter(this);
}

/// One height for all rows: measuring a million of them, or only asking for it, is out of question.
void GridTable::setUpRowHeader(QHeaderView& header) const
{
    const int rowHeight = fontMetrics().height() + 6;
    header.setFont(font());
    header.setMinimumSectionSize(rowHeight);
    header.setDefaultSectionSize(rowHeight);
    header.setSectionResizeMode(QHeaderView::Fixed);
    header.setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    header.setHighlightSections(false);
    header.setSectionsClickable(true);
    header.setMinimumWidth(rowHeaderWidth());
}

/// Room for the largest number, whichever rows are shown: the columns would jump from one filter to
/// the next otherwise.
int GridTable::rowHeaderWidth() const
{
    const int largest = m_opened == nullptr ? 0 : dataset()->observationCount();
    return fontMetrics().horizontalAdvance(QString::number(largest) + u'0')
        + 2 * style()->pixelMetric(QStyle::PM_HeaderMargin);
}

void GridTable::setModel(QAbstractItemModel* model)
{
    Q_ASSERT(m_model == nullptr);
    QTableView::setModel(model);
    m_model = qobject_cast<MainTableModel*>(model);
    if (m_model == nullptr) {
        return;
    }
    Q_ASSERT(m_model->opened() == m_opened);
    followRows();
    followColumns();
    m_rows.reset(m_model->rowMap().size());
    applyRowVisibility();
}

/// Whoever has the rows put in another order, the filtered ones are hidden in their new places. The
/// view is not scrolled: after a sort people look at what comes first.
void GridTable::followRows()
{
    // Not by the model's signals: a row header that came later takes the selection away by them.
    connect(m_opened, &OpenDataset::signalRowsAboutToChange, this,
            [this] { m_placeBeforeChange = place(); });
    connect(m_opened, &OpenDataset::signalRowsChanged, this,
            [this] { showRows(m_placeBeforeChange, Scrolling::Stay); });
}

void GridTable::followColumns()
{
    m_columns.emplace(*this, *m_opened);
    m_columns->followBits();
    m_columns->followOrder();
    connect(m_opened, &OpenDataset::signalOrderChanged, this, [this] { m_columns->followOrder(); });
    connect(horizontalHeader(), &QHeaderView::sectionMoved, this,
            [this] { m_columns->keepOrder(); });
}

StatDataset* GridTable::dataset() const
{
    return m_opened == nullptr ? nullptr : &m_opened->dataset();
}

int GridTable::shownRowCount() const
{
    return static_cast<int>(m_rows.shownCount());
}

GridSelection GridTable::selected() const
{
    return {selectionModel()->selection(), m_opened->variables(), m_rows};
}

bool GridTable::isCurrentVariableShown() const
{
    return isReady() && m_opened->variables().isShown(m_currentVariable);
}

void GridTable::fitColumns()
{
    // The header measures this many rows of every column. Never 0, which stands for all rows as
    // long as the view is hidden; and fewer in a wide table, so that the whole stays a blink.
    constexpr int cellsToMeasure = 10'000;
    QHeaderView* columnHeader = horizontalHeader();
    const int rowsToMeasure =
        std::clamp(cellsToMeasure / std::max(columnHeader->count(), 1), 10, 300);
    columnHeader->setResizeContentsPrecision(rowsToMeasure);
    resizeColumnsToContents();
    for (int column = 0; column < columnHeader->count(); ++column) {
        const int width = std::max(columnHeader->sectionSize(column),
                                   widthOfSpreadRows(column, rowsToMeasure / 5));
        columnHeader->resizeSection(column, std::min(width, widestFitted));
    }
}

/// The width that rows from all over the table want, of which the header has measured the first:
/// numbers tend to grow towards the end.
int GridTable::widthOfSpreadRows(int column, int rowCount) const
{
    const auto lastRow = static_cast<std::int64_t>(model()->rowCount()) - 1;
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    int width = 0;
    for (int i = 1; lastRow > 0 && i <= rowCount; ++i) {
        const QModelIndex index = model()->index(static_cast<int>(lastRow * i / rowCount), column);
        width = std::max(width, itemDelegateForIndex(index)->sizeHint(option, index).width());
    }
    return width + (showGrid() ? 1 : 0);
}

void GridTable::stepFontSize(int step)
{
    constexpr int smallestToShrink = 6;
    const int before = fontSize();
    if (step > 0 || before >= smallestToShrink) {
        setFontSize(before + step);
    }
    if (fontSize() != before) {
        emit signalFontSizeChanged(fontSize());
    }
}

int GridTable::fontSize() const
{
    return QFontInfo(font()).pointSize();
}

/// A pressed header selects its column. To scroll to it then would take the header from under the
/// mouse, and the release would be no click.
bool GridTable::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == horizontalHeader()->viewport()) {
        if (event->type() == QEvent::MouseButtonPress) {
            setAutoScroll(false);
        } else if (event->type() == QEvent::MouseButtonRelease) {
            setAutoScroll(true);
        }
    }
    return QTableView::eventFilter(watched, event);
}

void GridTable::setFontSize(int points)
{
    // An application's style sheet keeps letters from going on to the header and from there to what
    // it is painted on.
    QWidget* const header = horizontalHeader();
    QWidget* const headerGround = horizontalHeader()->viewport();
    if (points == fontSize() && points == QFontInfo(header->font()).pointSize()
        && points == QFontInfo(headerGround->font()).pointSize()) {
        return;
    }
    QFont changed = font();
    changed.setPointSize(points);
    setFont(changed);
    header->setFont(changed);
    headerGround->setFont(changed);
    if (isReady()) {
        // Hidden rows would keep the height that they had.
        const Place before = place();
        startRowHeaderOver();
        m_rows.reset(m_model->rowMap().size());
        showRows(before, Scrolling::FollowCurrent);
        fitColumns();
    }
}

void GridTable::setHeaderMode(HeaderMode mode)
{
    if (isReady()) {
        const Place before = place();
        m_model->setHeaderMode(mode);
        showRows(before, Scrolling::Stay);
        widenForHeaders();
    }
}

/// Labels want more room than names; what the user has made wider stays.
void GridTable::widenForHeaders()
{
    QHeaderView* header = horizontalHeader();
    for (int column = 0; column < header->count(); ++column) {
        const int wanted = std::min(header->sectionSizeHint(column), widestFitted);
        if (!header->isSectionHidden(column) && header->sectionSize(column) < wanted) {
            header->resizeSection(column, wanted);
        }
    }
}

void GridTable::applyRowVisibility()
{
    if (isReady()) {
        showRows(place(), Scrolling::FollowCurrent);
    }
}

void GridTable::keyboardSearch(const QString& /*search*/) { }

GridTable::Place GridTable::place() const
{
    const QModelIndex current = currentIndex();
    const QItemSelection& selection = selectionModel()->selection();
    return {current.isValid() ? m_model->observationAt(current.row()) : m_lostObservation,
            m_currentVariable, gridselection::wholeColumns(selection, m_rows),
            !selection.isEmpty() || m_lostObservation >= 0};
}

void GridTable::showRows(const Place& place, Scrolling scrolling)
{
    // Every hidden row would be cut out of such a selection, at a cost that grows with the rows.
    if (!place.wholeColumns.empty()) {
        clearSelection();
    }
    hideAndShowRows();

    const QModelIndex currentBefore = currentIndex();
    const bool scrollsToCurrent = hasAutoScroll();
    setAutoScroll(false);
    restoreCurrent(place);
    restoreSelection(place, currentBefore);
    setAutoScroll(scrollsToCurrent);
    if (scrolling == Scrolling::FollowCurrent && currentIndex().isValid()) {
        scrollTo(currentIndex());
    }
}

/// Hiding a row makes the view lay itself out again unless updates are off, and the header tell the
/// view of each row unless its signals are blocked: a million rows would take minutes. What the
/// signals would have brought about is done once at the end.
void GridTable::hideAndShowRows()
{
    const bool updated = updatesEnabled();
    setUpdatesEnabled(false);
    const auto enableUpdates = qScopeGuard([&] { setUpdatesEnabled(updated); });
    std::optional<QSignalBlocker> blocker(verticalHeader());
    m_rows.update(
        *dataset(), m_model->rowMap(), [this](int row, bool shown) { setRowHidden(row, !shown); },
        [&] {
            blocker.reset();
            startRowHeaderOver();
            blocker.emplace(verticalHeader());
        });
    blocker.reset();
    updateGeometries();
}

/// Puts a row header in the place of the old one, which shows all rows: showing a million of them
/// one by one takes the old one ten times as long.
void GridTable::startRowHeaderOver()
{
    const bool shown = !verticalHeader()->isHidden();
    auto* header = new QHeaderView(Qt::Vertical, this);
    setUpRowHeader(*header);
    setVerticalHeader(header);  // which deletes the old one
    header->setVisible(shown);
}

void GridTable::restoreCurrent(const Place& place)
{
    if (place.observation < 0) {
        return;
    }
    const int row = m_rows.nearestShown(m_model->rowOf(place.observation));
    m_lostObservation = row < 0 ? place.observation : -1;
    selectionModel()->setCurrentIndex(row < 0 ? QModelIndex() : model()->index(row, place.variable),
                                      QItemSelectionModel::NoUpdate);
}

void GridTable::restoreSelection(const Place& place, const QModelIndex& currentBefore)
{
    if (!place.hasSelection) {
        return;
    }
    if (!place.wholeColumns.empty()) {
        selectionModel()->select(gridselection::ofWholeColumns(*model(), place.wholeColumns),
                                 QItemSelectionModel::ClearAndSelect);
    } else if (currentIndex() != currentBefore || !selectionModel()->hasSelection()) {
        clearSelection();
        if (currentIndex().isValid()) {
            selectionModel()->select(currentIndex(), QItemSelectionModel::Select);
        }
    }
}

void GridTable::makeCurrent(int variable)
{
    m_currentVariable = variable;
    int row = currentIndex().row();
    if (row < 0) {
        row = m_rows.nearestShown(0);
    }
    if (row >= 0) {
        setCurrentIndex(model()->index(row, variable));
    }
}

void GridTable::leaveHiddenColumn()
{
    if (m_currentVariable < 0 || m_opened->variables().isShown(m_currentVariable)) {
        return;
    }
    const int replacement = m_opened->variables().neighbour(m_currentVariable);
    if (replacement >= 0) {
        makeCurrent(replacement);
    }
}

void GridTable::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    if (current.isValid()) {
        m_currentVariable = current.column();
    }
}

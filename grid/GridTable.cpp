#include "grid/GridTable.h"

#include "data/StatDataset.h"
#include "grid/GridHeader.h"
#include "grid/MainTableModel.h"
#include "grid/opened/OpenDataset.h"

#include <QAbstractItemDelegate>
#include <QEvent>
#include <QFontInfo>
#include <QGuiApplication>
#include <QItemSelectionModel>
#include <QScopedValueRollback>
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
    , m_columnHeader(new GridHeader(Qt::Horizontal, this))
{
    setWordWrap(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setTabKeyNavigation(false);
    // Nothing is typed into the cells, and an input method would keep the accent keys to itself,
    // some of which are commands.
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setUpColumnHeader();
    startRowHeaderOver();
}

void GridTable::setUpColumnHeader()
{
    setHorizontalHeader(m_columnHeader);
    m_columnHeader->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_columnHeader->setRightAligned(
        [this](int variable) { return isReady() && !dataset()->isCharacter(variable); });
    m_columnHeader->setAdded(
        [this](int variable) { return isReady() && !dataset()->variableOrigin(variable).empty(); });
    m_columnHeader->setMinimumSectionSize(24);
    m_columnHeader->setSectionsMovable(true);
    setSortingEnabled(true);
    sortByColumn(-1, Qt::AscendingOrder);
    // Sorting takes it from the headers to select their columns.
    connect(m_columnHeader, &QHeaderView::sectionPressed, this, &GridTable::pressColumn);
    m_columnHeader->viewport()->installEventFilter(this);
}

/// Puts a row header in the place of the old one, which shows all rows: showing a million of them
/// one by one takes the old one ten times as long.
/// One height for all rows: measuring a million of them, or only asking for it, is out of question.
void GridTable::startRowHeaderOver()
{
    const bool shown = !verticalHeader()->isHidden();
    m_rowHeader = new GridHeader(Qt::Vertical, this);
    const int rowHeight = fontMetrics().height() + 6;
    m_rowHeader->setFont(font());
    m_rowHeader->setMinimumSectionSize(rowHeight);
    m_rowHeader->setDefaultSectionSize(rowHeight);
    m_rowHeader->setSectionResizeMode(QHeaderView::Fixed);
    m_rowHeader->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_rowHeader->setMinimumWidth(rowHeaderWidth());
    setVerticalHeader(m_rowHeader);  // which deletes the old one
    m_rowHeader->setVisible(shown);
    connect(m_rowHeader, &QHeaderView::sectionPressed, this, [this] {
        if (!QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier)) {
            m_anchor = currentIndex();
        }
    });
}

/// Room for the largest number, whichever rows are shown: the columns would jump from one filter to
/// the next otherwise.
int GridTable::rowHeaderWidth() const
{
    const int largest = m_opened == nullptr ? 0 : dataset()->observationCount();
    return fontMetrics().horizontalAdvance(QString::number(largest) + u'0')
        + 2 * style()->pixelMetric(QStyle::PM_HeaderMargin);
}

/// The view itself would go to the topmost row in sight.
void GridTable::pressColumn(int column)
{
    const QModelIndex before = currentIndex();
    const QModelIndex anchorBefore = anchor();
    const bool extends =
        anchorBefore.isValid() && QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier);
    if (extends) {
        setCurrentAndAnchor(before, anchorBefore);
    }
    selectColumn(column);
    const QModelIndex current =
        before.isValid() ? model()->index(before.row(), column) : currentIndex();
    setCurrentAndAnchor(current, extends ? anchorBefore : current);
    takePlace();
    showCurrentCell();
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
        // Of a hidden one nothing has been measured yet.
        const int measured = isColumnHidden(column) ? m_columnHeader->titleWidth(column)
                                                    : columnHeader->sectionSize(column);
        const int width = std::max(measured, widthOfSpreadRows(column, rowsToMeasure / 5));
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
        const Whereabouts before = place();
        startRowHeaderOver();
        m_rows.reset(m_model->rowMap().size());
        showRows(before, Scrolling::FollowCurrent);
        fitColumns();
    }
}

void GridTable::setHeaderMode(HeaderMode mode)
{
    if (isReady() && mode != m_model->headerMode()) {
        const Whereabouts before = place();
        m_model->setHeaderMode(mode);
        showRows(before, Scrolling::Stay);
        fitColumns();
    }
}

void GridTable::applyRowVisibility()
{
    if (isReady()) {
        showRows(place(), Scrolling::FollowCurrent);
    }
}

void GridTable::keyboardSearch(const QString& /*search*/) { }

int GridTable::currentObservation() const
{
    return cellAt(currentIndex()).observation;
}

Whereabouts::Cell GridTable::cellAt(const QModelIndex& index) const
{
    return isReady() && index.isValid()
        ? Whereabouts::Cell{m_model->observationAt(index.row()), index.column()}
        : Whereabouts::Cell();
}

Whereabouts GridTable::place() const
{
    Whereabouts place;
    if (m_place) {
        place = *m_place;
    } else {
        place.current.observation = m_lastObservation;
        place.anchor = cellAt(anchor());
        whereabouts::noteSelection(place, selectionModel()->selection(), *m_model, m_rows);
    }
    place.current.variable = m_currentVariable;
    return place;
}

void GridTable::showRows(const Whereabouts& place, Scrolling scrolling)
{
    {
        const QScopedValueRollback restoring(m_isRestoring, true);
        // Every hidden row would be cut out of whole columns, at a cost that grows with the rows.
        clearSelection();
        hideAndShowRows();
        restore(place);
        m_place = place;
    }
    if (scrolling == Scrolling::FollowCurrent && currentIndex().isValid()) {
        scrollTo(currentIndex());
    }
    showCurrentCell();
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

void GridTable::restore(const Whereabouts& place)
{
    const QModelIndex current = nearestShown(place.current);
    setCurrentAndAnchor(current, nearestShown(place.anchor));
    QItemSelection selection = whereabouts::selectionOf(place, *m_model, m_rows);
    if (selection.isEmpty() && place.hasSelection() && current.isValid()) {
        selection.select(current, current);
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

/// From where Shift selects; one that is not selected any more has been left by a command.
QModelIndex GridTable::anchor() const
{
    return selectionModel()->isSelected(m_anchor) ? QModelIndex(m_anchor) : currentIndex();
}

/// The cell, or where its row is hidden the one in the nearest row that is shown.
QModelIndex GridTable::nearestShown(const Whereabouts::Cell& cell) const
{
    const int row =
        cell.observation < 0 ? -1 : m_rows.nearestShown(m_model->rowOf(cell.observation));
    return row < 0 ? QModelIndex() : model()->index(row, cell.variable);
}

/// Selects nothing and scrolls nowhere. The view takes a cell for its anchor that is made the
/// current one; other ways to it there are none.
void GridTable::setCurrentAndAnchor(const QModelIndex& current, const QModelIndex& anchor)
{
    const QScopedValueRollback restoring(m_isRestoring, true);
    const bool scrollsToCurrent = hasAutoScroll();
    setAutoScroll(false);
    setCurrentIndex(anchor);
    selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    setAutoScroll(scrollsToCurrent);
    m_anchor = anchor;
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
    } else {
        showCurrentCell();
    }
}

void GridTable::leaveHiddenColumn()
{
    if (m_currentVariable < 0) {
        return;
    }
    const ShownVariables& variables = m_opened->variables();
    const int replacement =
        variables.isShown(m_currentVariable) ? -1 : variables.neighbour(m_currentVariable);
    if (replacement >= 0) {
        makeCurrent(replacement);
    } else if (m_anchor.isValid() && !variables.isShown(m_anchor.column())) {
        setCurrentAndAnchor(currentIndex(), currentIndex());
    }
}

void GridTable::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    if (current.isValid()) {
        m_currentVariable = current.column();
    }
    if (!m_isRestoring) {
        takePlace();
        showCurrentCell();
    }
}

/// The user is here now, and not where he was taken from any more.
void GridTable::takePlace()
{
    m_place.reset();
    if (currentIndex().isValid()) {
        m_lastObservation = currentObservation();
    }
}

void GridTable::showCurrentCell()
{
    m_columnHeader->markSection(m_currentVariable);
    m_rowHeader->markSection(currentIndex().row());
    emit signalCurrentCellChanged();
}

void GridTable::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QTableView::selectionChanged(selected, deselected);
    if (!m_isRestoring) {
        takePlace();
    }
}

void GridTable::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command)
{
    QTableView::setSelection(rect, command);
    if (!command.testAnyFlags(QItemSelectionModel::Rows | QItemSelectionModel::Columns)) {
        m_anchor = indexAt(rect.topLeft());
    }
}

QItemSelectionModel::SelectionFlags GridTable::selectionCommand(const QModelIndex& index,
                                                                const QEvent* event) const
{
    return m_isRestoring ? QItemSelectionModel::NoUpdate
                         : QTableView::selectionCommand(index, event);
}
